// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/linux/DBusSingleInstance.h"

#include "base/Trace.h"
#include "platform/linux/InstanceAdaptors.h"
#include "platform/linux/SessionBusProbe.h"

#include <QDBusMessage>
#include <QDBusMetaType>
#include <QLoggingCategory>
#include <QThread>

#include <chrono>

Q_LOGGING_CATEGORY(lcInstance, "lorva.platform.instance", QtWarningMsg)

namespace lorva {

namespace {

using namespace std::chrono_literals;

constexpr auto kBusPatience = 1000ms;
/// Of a process that is just starting itself, too: it answers once its window is there.
constexpr auto kInstancePatience = 1000ms;
/// For all of it.
constexpr auto kWholePatience = 2000ms;

const QString kName = QStringLiteral("vantrel.lorva");
const QString kPath = QStringLiteral("/vantrel/lorva");

/// org.freedesktop.DBus.RequestName: not in a queue, and nobody may replace us.
bool requestName(const QDBusConnection &connection)
{
    // A bus that has just greeted us answers this at once.
    constexpr auto kPatience = 300ms;
    constexpr uint kDoNotQueue = 4;
    constexpr uint kPrimaryOwner = 1;
    auto request = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("/org/freedesktop/DBus"),
        QStringLiteral("org.freedesktop.DBus"), QStringLiteral("RequestName"));
    request << kName << kDoNotQueue;
    const QDBusMessage answer = connection.call(request, QDBus::Block, int(kPatience.count()));
    return answer.type() == QDBusMessage::ReplyMessage
        && answer.arguments().value(0).toUInt() == kPrimaryOwner;
}

bool handOver(const QDBusConnection &connection, const ProgramStart &start)
{
    auto call = QDBusMessage::createMethodCall(
        kName, kPath, QStringLiteral("vantrel.lorva.Instance"), QStringLiteral("Start"));
    call.setAutoStartService(false);
    call << QVariant::fromValue(start.arguments) << start.workingFolder.bytes()
         << start.activationToken;
    const QDBusMessage answer = connection.call(call, QDBus::Block, int(kInstancePatience.count()));
    if (answer.type() == QDBusMessage::ReplyMessage)
        return true;
    qCInfo(lcInstance) << "the running process does not take over:" << answer.errorMessage();
    return false;
}

} // namespace

DBusSingleInstance::DBusSingleInstance()
{
    qDBusRegisterMetaType<QByteArrayList>();
}

DBusSingleInstance::~DBusSingleInstance()
{
    release();
}

void DBusSingleInstance::beginClaim(const ProgramStart &start)
{
    std::packaged_task<Claim()> task([this, start, mainThread = QThread::currentThread()] {
        return runClaim(start, mainThread);
    });
    m_outcome = task.get_future();
    m_thread = std::thread(std::move(task));
}

SingleInstance::Claim DBusSingleInstance::runClaim(const ProgramStart &start, QThread *mainThread)
{
    const TraceStage stage("start: single instance");
    const QByteArray address = sessionBusAddress();
    if (address.isEmpty())
        return Claim::alone;
    m_busHangs = !sessionBusAnswers(address, kBusPatience);
    if (m_busHangs || !connectAndExport(address, mainThread))
        return Claim::alone;
    if (requestName(m_connection))
        return Claim::first;
    if (handOver(m_connection, start))
        return Claim::handedOver;
    // It may just have ended.
    return requestName(m_connection) ? Claim::first : Claim::alone;
}

bool DBusSingleInstance::connectAndExport(const QByteArray &address, QThread *mainThread)
{
    m_connection = QDBusConnection::connectToBus(QString::fromUtf8(address), kName);
    if (!m_connection.isConnected())
        return false;
    m_object = std::make_unique<QObject>();
    new FreedesktopApplicationAdaptor(*this, m_object.get());
    new InstanceAdaptor(*this, m_object.get());
    // Before the name is asked for: whoever finds the name finds the object, too.
    const bool isExported =
        m_connection.registerObject(kPath, m_object.get(), QDBusConnection::ExportAdaptors);
    m_object->moveToThread(mainThread);
    return isExported;
}

SingleInstance::Claim DBusSingleInstance::claim()
{
    const TraceStage stage("start: wait for single instance");
    if (m_outcome.wait_for(kWholePatience) != std::future_status::ready)
        return Claim::alone;
    m_thread.join();
    if (m_busHangs)
        qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:");
    return m_outcome.get();
}

void DBusSingleInstance::release()
{
    if (m_thread.joinable())
        m_thread.join();
    if (m_connection.isConnected())
        QDBusConnection::disconnectFromBus(kName);
    m_connection = QDBusConnection(QString());
    m_object.reset();
}

bool takeStartedByBus()
{
    const bool isStartedByBus = qEnvironmentVariableIsSet("DBUS_STARTER_BUS_TYPE")
        || qEnvironmentVariableIsSet("DBUS_STARTER_ADDRESS");
    qunsetenv("DBUS_STARTER_BUS_TYPE");
    qunsetenv("DBUS_STARTER_ADDRESS");
    return isStartedByBus;
}

QByteArray activationTokenFromEnvironment()
{
    const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN");
    return token.isEmpty() ? qgetenv("DESKTOP_STARTUP_ID") : token;
}

} // namespace lorva
