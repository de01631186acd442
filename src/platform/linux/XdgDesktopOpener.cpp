// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/XdgDesktopOpener.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDesktopServices>

namespace lorva {

namespace {

constexpr int kPatienceMilliseconds = 3000;

void openFolderOf(const FilePath &file)
{
    QDesktopServices::openUrl(QUrl::fromEncoded(file.parent().toUrl()));
}

} // namespace

void XdgDesktopOpener::openLink(const QUrl &link)
{
    const QString scheme = link.scheme();
    if (scheme == QLatin1String("http") || scheme == QLatin1String("https"))
        QDesktopServices::openUrl(link);
}

/// Does not wait: a file manager that has to start first takes its time.
void XdgDesktopOpener::showFile(const FilePath &file)
{
    const QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        openFolderOf(file);
        return;
    }
    auto call = QDBusMessage::createMethodCall(QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("/org/freedesktop/FileManager1"),
                                               QStringLiteral("org.freedesktop.FileManager1"),
                                               QStringLiteral("ShowItems"));
    call << QStringList(QString::fromLatin1(file.toUrl())) << QString();
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call, kPatienceMilliseconds));
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, watcher,
                     [watcher, file](QDBusPendingCallWatcher *answer) {
                         if (answer->isError())
                             openFolderOf(file);
                         watcher->deleteLater();
                     });
}

} // namespace lorva
