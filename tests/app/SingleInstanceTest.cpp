// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DBusSingleInstance.h"
#include "platform/linux/SessionBusProbe.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"
#include "support/Waiting.h"

#include <QDBusConnection>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusReply>
#include <QDir>
#include <QProcess>

#include <gmock/gmock.h>

#include <csignal>
#include <cstring>
#include <memory>
#include <optional>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace lorva {
namespace {

using Claim = SingleInstance::Claim;
using testing::ElementsAre;

/// A session bus of the case's own, which this process and those that it starts take for theirs.
class PrivateBus
{
public:
    PrivateBus()
    {
        m_daemon.start(QStringLiteral("dbus-daemon"),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--nopidfile"), QStringLiteral("--print-address")});
        EXPECT_TRUE(m_daemon.waitForStarted()) << "dbus-daemon is missing";
        EXPECT_TRUE(test::waitUntil([this] { return m_daemon.canReadLine(); }));
        m_address = m_daemon.readLine().trimmed();
        qputenv("DBUS_SESSION_BUS_ADDRESS", m_address);
    }
    ~PrivateBus()
    {
        qunsetenv("DBUS_SESSION_BUS_ADDRESS");
        m_daemon.kill();
        m_daemon.waitForFinished();
    }

    const QByteArray &address() const { return m_address; }

private:
    QProcess m_daemon;
    QByteArray m_address;
};

/// A started program with an offscreen window.
class Program
{
public:
    explicit Program(const QByteArray &shellArguments = {},
                     const QByteArray &traceName = "trace.json")
        : m_trace(test::TestHome::instance().root().child(traceName))
    {
        ::unlink(m_trace.c_str());
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        environment.insert(QStringLiteral("LORVA_TRACE"), m_trace.displayText());
        m_process.setProcessEnvironment(environment);
        m_process.setWorkingDirectory(test::TestHome::instance().root().displayText());
        // A shell, because arguments are bytes.
        m_process.start(QStringLiteral("/bin/sh"),
                        {QStringLiteral("-c"),
                         QStringLiteral("exec '") + QStringLiteral(LORVA_PROGRAM)
                             + QStringLiteral("' ") + QString::fromLatin1(shellArguments)});
    }
    ~Program()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

    /// Runs the event loop meanwhile, for the process may have to be answered.
    bool ends()
    {
        return test::waitUntil([this] { return m_process.state() == QProcess::NotRunning; });
    }
    bool traces(const char *event, int times = 1)
    {
        return test::waitUntil([&] { return test::readFile(m_trace).count(event) >= times; });
    }
    QProcess &process() { return m_process; }

private:
    const FilePath m_trace;
    QProcess m_process;
};

constexpr char kWindow[] = "first screen painted";

TEST(SingleInstance, HandsAStartOverWithEveryByteAndEndsSilently)
{
    const PrivateBus bus;
    DBusSingleInstance first;
    std::vector<ProgramStart> starts;
    first.onStart = [&](const ProgramStart &start) { starts.push_back(start); };
    first.beginClaim({});
    ASSERT_EQ(first.claim(), Claim::first);

    qputenv("XDG_ACTIVATION_TOKEN", "token-7");
    Program second("--text ''");
    qunsetenv("XDG_ACTIVATION_TOKEN");
    ASSERT_TRUE(second.ends());
    // An argument without a value is told by the process that was given it.
    EXPECT_EQ(second.process().exitCode(), 2);
    EXPECT_TRUE(starts.empty());

    qputenv("XDG_ACTIVATION_TOKEN", "token-7");
    Program third("--folder \"$(printf 'b\\377')\" --text 'two words'");
    qunsetenv("XDG_ACTIVATION_TOKEN");
    ASSERT_TRUE(third.ends());
    EXPECT_EQ(third.process().exitCode(), 0);
    EXPECT_EQ(third.process().readAllStandardOutput() + third.process().readAllStandardError(), "");
    EXPECT_THAT(starts,
                ElementsAre(ProgramStart{{"--folder", "b\xff", "--text", "two words"},
                                         test::TestHome::instance().root(),
                                         "token-7"}));

    first.release();
    Program fourth;
    EXPECT_TRUE(fourth.traces(kWindow)) << "the place is free again";
}

TEST(SingleInstance, LetsTheRunningProgramTakeTheArguments)
{
    const PrivateBus bus;
    const auto &home = test::TestHome::instance();
    test::writeFile(home.systemFonts(), "one.ttf", test::FontBuilder("One").build());
    test::writeFile(home.makeFolder("more"), "two.ttf", test::FontBuilder("Two").build());
    Program running;
    ASSERT_TRUE(running.traces("catalog applied"));
    ASSERT_TRUE(running.traces(kWindow));

    Program second("--folder more", "second.json");
    ASSERT_TRUE(second.ends());
    EXPECT_EQ(second.process().exitCode(), 0);
    EXPECT_TRUE(running.traces("catalog applied", 2)) << "it scans the folder";

    auto activate = QDBusMessage::createMethodCall(
        QStringLiteral("vantrel.lorva"), QStringLiteral("/vantrel/lorva"),
        QStringLiteral("org.freedesktop.Application"), QStringLiteral("Open"));
    const FilePath again = home.makeFolder("again");
    activate << QStringList{QString::fromLatin1(again.toUrl()), QStringLiteral("http://x/")}
             << QVariantMap();
    auto connection =
        QDBusConnection::connectToBus(QString::fromUtf8(bus.address()), QStringLiteral("desktop"));
    EXPECT_EQ(connection.call(activate).type(), QDBusMessage::ReplyMessage);
    EXPECT_TRUE(running.traces("catalog applied", 3));
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
}

TEST(SingleInstance, AnswersDesktopsAsWellAndForgivesNonsense)
{
    const PrivateBus bus;
    DBusSingleInstance first;
    std::vector<ProgramStart> starts;
    first.onStart = [&](const ProgramStart &start) { starts.push_back(start); };
    first.beginClaim({});
    ASSERT_EQ(first.claim(), Claim::first);

    auto connection =
        QDBusConnection::connectToBus(QString::fromUtf8(bus.address()), QStringLiteral("desktop"));
    const auto send = [&](const char *interface, const char *member,
                          const QVariantList &arguments) {
        auto call = QDBusMessage::createMethodCall(
            QStringLiteral("vantrel.lorva"), QStringLiteral("/vantrel/lorva"),
            QString::fromLatin1(interface), QString::fromLatin1(member));
        call.setArguments(arguments);
        // This process answers its own call, from its event loop.
        const QDBusPendingCall answer = connection.asyncCall(call);
        EXPECT_TRUE(test::waitUntil([&] { return answer.isFinished(); }));
    };
    constexpr char kApplication[] = "org.freedesktop.Application";
    send(kApplication, "Activate",
         {QVariantMap{{QStringLiteral("activation-token"), QStringLiteral("t")}}});
    send(kApplication, "ActivateAction",
         {QStringLiteral("x"), QVariantList(),
          QVariantMap{{QStringLiteral("desktop-startup-id"), QStringLiteral("s")}}});
    send(kApplication, "ActivateAction",
         {QStringLiteral("organize"), QVariantList(), QVariantMap()});
    send(kApplication, "Open",
         {QStringList{QStringLiteral("file:///a%20b"), QStringLiteral("trash:///c")},
          QVariantMap()});
    EXPECT_THAT(starts,
                ElementsAre(ProgramStart{{}, FilePath("/"), "t"},
                            ProgramStart{{}, FilePath("/"), "s"},
                            ProgramStart{{"--quiz", "intro"}, FilePath("/"), {}},
                            ProgramStart{{"--", "/a b", "trash:///c"}, FilePath("/"), {}}));
    send("vantrel.lorva.Instance", "Start", {QStringLiteral("no bytes")});
    send("vantrel.lorva.Instance", "Frobnicate", {});
    EXPECT_EQ(starts.size(), 4U);
    send("vantrel.lorva.Instance", "Start",
         {QVariant::fromValue(QByteArrayList{"--text", QByteArray(3'000'000, 'x')}),
          QByteArray("/"), QByteArray("t")});
    ASSERT_EQ(starts.size(), 5U);
    EXPECT_EQ(starts.back(), (ProgramStart{{}, FilePath("/"), {}})) << "more than a start holds";
    QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
}

constexpr char kFiles[] = "font files shown";

TEST(SingleInstance, OpensFilesAloneUntilTheLibraryIsWanted)
{
    const PrivateBus bus;
    const auto &home = test::TestHome::instance();
    test::writeFile(home.systemFonts(), "one.ttf", test::FontBuilder("One").build());
    test::writeFile(home.root(), "two.ttf", test::FontBuilder("Two").build());
    Program running("two.ttf");
    ASSERT_TRUE(running.traces(kFiles));
    Program second("two.ttf", "second.json");
    ASSERT_TRUE(second.ends());
    EXPECT_TRUE(running.traces(kFiles, 2));
    EXPECT_FALSE(test::readFile(home.root().child("trace.json")).contains("start: window"));

    Program third({}, "third.json");
    ASSERT_TRUE(third.ends());
    EXPECT_TRUE(running.traces(kWindow));
    EXPECT_TRUE(running.traces("catalog applied"));
}

/// A call of the desktop's to a program that the bus starts for it.
class ActivatedProgram
{
public:
    ActivatedProgram()
    {
        const QByteArray service = "[D-BUS Service]\nName=vantrel.lorva\nExec=/usr/bin/env "
                                   "QT_QPA_PLATFORM=offscreen LORVA_TRACE="
            + m_trace.bytes() + " " + QByteArray(LORVA_PROGRAM) + "\n";
        const FilePath services = FilePath(qgetenv("XDG_DATA_HOME")).child("dbus-1/services");
        QDir().mkpath(services.displayText());
        test::writeFile(services, "vantrel.lorva.service", service);
        m_bus = std::make_unique<PrivateBus>();
        m_connection.emplace(QDBusConnection::connectToBus(QString::fromUtf8(m_bus->address()),
                                                           QStringLiteral("desktop")));
    }
    ~ActivatedProgram()
    {
        const QDBusReply<uint> process =
            m_connection->interface()->servicePid(QStringLiteral("vantrel.lorva"));
        if (process.isValid())
            ::kill(pid_t(process.value()), SIGKILL);
        QDBusConnection::disconnectFromBus(QStringLiteral("desktop"));
        ::unlink(FilePath(qgetenv("XDG_DATA_HOME"))
                     .child("dbus-1/services/vantrel.lorva.service")
                     .c_str());
    }

    bool answers(const char *member, const QVariantList &arguments)
    {
        auto call = QDBusMessage::createMethodCall(
            QStringLiteral("vantrel.lorva"), QStringLiteral("/vantrel/lorva"),
            QStringLiteral("org.freedesktop.Application"), QString::fromLatin1(member));
        call.setArguments(arguments);
        return m_connection->call(call).type() == QDBusMessage::ReplyMessage;
    }
    bool traces(const char *event)
    {
        return test::waitUntil([&] { return trace().contains(event); });
    }
    QByteArray trace() const { return test::readFile(m_trace); }

private:
    const FilePath m_trace = test::TestHome::instance().root().child("activated.json");
    std::unique_ptr<PrivateBus> m_bus;
    std::optional<QDBusConnection> m_connection;
};

TEST(SingleInstance, AnswersTheCallThatTheBusHasStartedItFor)
{
    const FilePath file = test::writeFile(test::TestHome::instance().root(), "asked.ttf",
                                          test::FontBuilder("Asked").build());
    ActivatedProgram program;
    ASSERT_TRUE(
        program.answers("Open", {QStringList{QString::fromLatin1(file.toUrl())}, QVariantMap()}));
    EXPECT_TRUE(program.traces(kFiles));
    EXPECT_FALSE(program.trace().contains("start: window")) << "nobody has asked for the library";
    ASSERT_TRUE(program.answers("Activate", {QVariantMap()}));
    EXPECT_TRUE(program.traces(kWindow));
}

TEST(SingleInstance, OpensItsWindowForActivationByTheBus)
{
    ActivatedProgram program;
    ASSERT_TRUE(program.answers("Activate", {QVariantMap()}));
    EXPECT_TRUE(program.traces(kWindow));
    EXPECT_FALSE(program.trace().contains(kFiles));
}

TEST(SingleInstance, DoesNotWaitLongForACallThatOnlyTheEnvironmentPromises)
{
    const PrivateBus bus;
    qputenv("DBUS_STARTER_BUS_TYPE", "session");
    Program program;
    qunsetenv("DBUS_STARTER_BUS_TYPE");
    EXPECT_TRUE(program.traces(kWindow));
}

TEST(SingleInstance, StartsAllTheSameWhenTheRunningProgramHangs)
{
    const PrivateBus bus;
    DBusSingleInstance hanging;
    hanging.beginClaim({});
    ASSERT_EQ(hanging.claim(), Claim::first);
    // This process does not look at its messages until the other one has its window.
    Program program;
    QByteArray trace;
    const FilePath file = test::TestHome::instance().root().child("trace.json");
    while (!trace.contains(kWindow) && program.process().state() != QProcess::NotRunning)
        trace = program.process().waitForFinished(1) ? QByteArray() : test::readFile(file);
    EXPECT_TRUE(trace.contains(kWindow));
}

TEST(SingleInstance, StartsAllTheSameWithoutABusThatAnswers)
{
    // Accepts, and then says nothing.
    const FilePath path = test::TestHome::instance().root().child("deaf");
    const int listener = ::socket(AF_UNIX, SOCK_STREAM, 0);
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    std::strncpy(name.sun_path, path.c_str(), sizeof name.sun_path - 1);
    ASSERT_EQ(::bind(listener, reinterpret_cast<sockaddr *>(&name), sizeof name), 0);
    ASSERT_EQ(::listen(listener, 8), 0);
    const QByteArray deaf = "unix:path=" + path.bytes();

    const QByteArray gone = "unix:path=/nowhere/bus";
    const QByteArrayList addresses{
        deaf,         gone,        "unix:abstract=/lorva-nobody,guid=00",           "tcp:host=x",
        "unix:path=", "disabled:", "unix:path=/" + QByteArray(200, 'x').append(';')};
    for (const QByteArray &address : addresses)
        EXPECT_FALSE(sessionBusAnswers(address, std::chrono::milliseconds(50)))
            << address.constData();
    for (const QByteArray &address : {deaf, gone}) {
        qputenv("DBUS_SESSION_BUS_ADDRESS", address);
        Program program;
        EXPECT_TRUE(program.traces(kWindow)) << address.constData();
    }
    ::close(listener);
    qunsetenv("DBUS_SESSION_BUS_ADDRESS");
    EXPECT_EQ(sessionBusAddress(), QByteArray()) << "the test's home has no bus";
}

TEST(SingleInstance, LeavesPicturesAlone)
{
    const PrivateBus bus;
    DBusSingleInstance first;
    bool wasAsked = false;
    first.onStart = [&](const ProgramStart &) { wasAsked = true; };
    first.beginClaim({});
    ASSERT_EQ(first.claim(), Claim::first);
    Program picture("--screenshot shot.png");
    ASSERT_TRUE(picture.ends());
    EXPECT_FALSE(wasAsked);
    EXPECT_FALSE(test::readFile(test::TestHome::instance().root().child("shot.png")).isEmpty());
}

} // namespace
} // namespace lorva
