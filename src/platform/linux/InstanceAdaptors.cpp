// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/linux/InstanceAdaptors.h"

namespace lorva {

namespace {

/// As much as a command line holds. Any program of this login may send more.
constexpr qsizetype kMostBytes = qsizetype(2) * 1024 * 1024;

qsizetype sizeOf(const ProgramStart &start)
{
    qsizetype size = start.workingFolder.bytes().size() + start.activationToken.size();
    for (const QByteArray &argument : start.arguments)
        size += argument.size() + qsizetype(sizeof(char *));
    return size;
}

/// What is too large is no start; the window comes forward all the same.
void take(SingleInstance &instance, const ProgramStart &start)
{
    if (!instance.onStart)
        return;
    const bool isStart = sizeOf(start) <= kMostBytes;
    instance.onStart(isStart ? start : ProgramStart{{}, FilePath("/"), {}});
}

QByteArray tokenIn(const QVariantMap &platformData)
{
    const QByteArray token =
        platformData.value(QStringLiteral("activation-token")).toString().toUtf8();
    return token.isEmpty()
        ? platformData.value(QStringLiteral("desktop-startup-id")).toString().toUtf8()
        : token;
}

} // namespace

FreedesktopApplicationAdaptor::FreedesktopApplicationAdaptor(SingleInstance &instance,
                                                             QObject *object)
    : QDBusAbstractAdaptor(object)
    , m_instance(instance)
{
}

void FreedesktopApplicationAdaptor::Activate(const QVariantMap &platformData)
{
    take(m_instance, {{}, FilePath("/"), tokenIn(platformData)});
}

void FreedesktopApplicationAdaptor::Open(const QStringList &uris, const QVariantMap &platformData)
{
    // No address passes for an option.
    ProgramStart start{{"--"}, FilePath("/"), tokenIn(platformData)};
    for (const QString &uri : uris) {
        const auto path = FilePath::fromUrl(uri.toUtf8());
        start.arguments << (path ? path->bytes() : uri.toUtf8());
    }
    take(m_instance, start);
}

void FreedesktopApplicationAdaptor::ActivateAction(const QString &name, const QVariantList &,
                                                   const QVariantMap &platformData)
{
    // The actions of the desktop file; of one that we do not know the window comes forward.
    ProgramStart start{{}, FilePath("/"), tokenIn(platformData)};
    if (name == QLatin1String("organize"))
        start.arguments << "--quiz"
                        << "intro";
    take(m_instance, start);
}

InstanceAdaptor::InstanceAdaptor(SingleInstance &instance, QObject *object)
    : QDBusAbstractAdaptor(object)
    , m_instance(instance)
{
}

void InstanceAdaptor::Start(const QByteArrayList &arguments, const QByteArray &workingFolder,
                            const QByteArray &activationToken)
{
    take(m_instance, {arguments, FilePath(workingFolder), activationToken});
}

} // namespace lorva
