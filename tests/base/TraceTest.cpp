// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/TestHome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gmock/gmock.h>

#include <map>

#include <sys/stat.h>

namespace lorva {
namespace {

using test::TestHome;
using testing::ElementsAre;
using testing::Pair;

struct Outcome
{
    bool hasCrashed = false;
    QByteArray output;
    QByteArray errors;
};

Outcome runProbe(const QString &what, const FilePath &trace)
{
    QProcess process;
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("LORVA_TRACE"));
    if (!trace.isEmpty())
        environment.insert(QStringLiteral("LORVA_TRACE"), trace.displayText());
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LORVA_TRACE_PROBE), {what});
    EXPECT_TRUE(process.waitForFinished(60000)) << "it hangs";
    return {process.exitStatus() == QProcess::CrashExit, process.readAllStandardOutput(),
            process.readAllStandardError()};
}

/// The events of a trace that is still open, as a killed process leaves it.
std::vector<QJsonObject> eventsOf(const FilePath &trace)
{
    QJsonParseError error;
    const auto document = QJsonDocument::fromJson(test::readFile(trace) + "]", &error);
    EXPECT_EQ(error.error, QJsonParseError::NoError) << test::readFile(trace).constData();
    std::vector<QJsonObject> events;
    for (const QJsonValue &event : document.array())
        events.push_back(event.toObject());
    return events;
}

QString text(const QJsonObject &event, const char *key)
{
    return event.value(QLatin1String(key)).toString();
}

double number(const QJsonObject &event, const char *key)
{
    return event.value(QLatin1String(key)).toDouble(-1);
}

/// Phase and name of all but the metadata.
std::vector<std::pair<QString, QString>> stepsOf(const std::vector<QJsonObject> &events)
{
    std::vector<std::pair<QString, QString>> steps;
    for (const QJsonObject &event : events)
        if (text(event, "ph") != QLatin1String("M"))
            steps.emplace_back(text(event, "ph"), text(event, "name"));
    return steps;
}

auto step(const char *phase, const char *name)
{
    return Pair(QLatin1String(phase), QString::fromUtf8(name));
}

TEST(Trace, StagesNestAndTimeGoesOn)
{
    const FilePath trace = test::writeFile(TestHome::instance().root(), "nest.json", "old events");
    EXPECT_EQ(runProbe(QStringLiteral("nest"), trace).output, "on\n");

    const auto events = eventsOf(trace);
    const char *const quoted = "a \"quoted\" \\ name\n";
    EXPECT_THAT(stepsOf(events),
                ElementsAre(step("B", "outer"), step("B", quoted), step("i", "moment"),
                            step("E", quoted), step("B", "early"), step("E", "early"),
                            step("i", "after early"), step("E", "outer")));
    double last = 0;
    for (const QJsonObject &event : events) {
        EXPECT_EQ(number(event, "pid"), number(events.front(), "pid"));
        EXPECT_EQ(number(event, "tid"), number(event, "pid")) << "all on the main thread";
        if (text(event, "ph") == QLatin1String("M"))
            continue;
        EXPECT_GE(number(event, "ts"), last);
        last = number(event, "ts");
    }
    // The clock is the one that other processes read, in microseconds.
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    EXPECT_NEAR(last / 1e6, double(now.tv_sec), 60);
}

TEST(Trace, NoEventOfAnyThreadIsLostOrTorn)
{
    const FilePath trace = TestHome::instance().root().child("threads.json");
    const Outcome outcome = runProbe(QStringLiteral("threads"), trace);
    EXPECT_EQ(outcome.output, "on\n");
    EXPECT_EQ(outcome.errors, "") << "a thread sanitizer speaks here";

    std::map<double, int> openByThread;
    std::map<double, int> stagesByThread;
    std::map<double, QString> names;
    for (const QJsonObject &event : eventsOf(trace)) {
        const double thread = number(event, "tid");
        if (text(event, "ph") == QLatin1String("B"))
            openByThread[thread] += 1;
        if (text(event, "ph") == QLatin1String("E"))
            stagesByThread[thread] += openByThread[thread]--;
        if (text(event, "name") == QLatin1String("thread_name"))
            names[thread] = event.value(QLatin1String("args"))
                                .toObject()
                                .value(QLatin1String("name"))
                                .toString();
    }
    ASSERT_EQ(stagesByThread.size(), 4U);
    for (const auto &[thread, stages] : stagesByThread) {
        EXPECT_EQ(stages, 250);
        EXPECT_EQ(names[thread], QLatin1String("worker"));
    }
}

TEST(Trace, OfAKilledProcessHoldsAllThatHappened)
{
    const FilePath trace = TestHome::instance().root().child("die.json");
    EXPECT_TRUE(runProbe(QStringLiteral("die"), trace).hasCrashed);
    EXPECT_THAT(stepsOf(eventsOf(trace)),
                ElementsAre(step("B", "cut short"), step("i", "last words")));
}

TEST(Trace, IsOffWithoutTheVariable)
{
    const Outcome outcome = runProbe(QStringLiteral("nest"), {});
    EXPECT_EQ(outcome.output, "off\n");
    EXPECT_EQ(outcome.errors, "");
}

TEST(Trace, SaysInOneLineThatItsFileCannotBeWritten)
{
    const FilePath folder = TestHome::instance().makeFolder("odd");
    const FilePath fifo = folder.child("fifo");
    ASSERT_EQ(::mkfifo(fifo.c_str(), 0600), 0);
    for (const FilePath &unwritable :
         {folder, fifo, folder.child("missing").child("trace.json"), FilePath("/dev/full")}) {
        const Outcome outcome = runProbe(QStringLiteral("nest"), unwritable);
        EXPECT_EQ(outcome.output, "off\n") << unwritable.c_str();
        EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
        EXPECT_TRUE(outcome.errors.startsWith("trace_probe: cannot write the trace ")
                    && outcome.errors.contains(unwritable.bytes()))
            << outcome.errors.constData();
    }
}

} // namespace
} // namespace lorva
