// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/PreferenceWatcher.h"

#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>

#include <algorithm>
#include <chrono>

namespace lorva {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds kPause = 1s;
/// However much waits, trying takes no more than this part of the time.
constexpr int kPausesPerTry = 20;

/// The folder, for files that come and go; the file and its log, for what is written to them.
QStringList watchedPaths(const std::optional<FilePath> &file)
{
    // A name that is no UTF-8 cannot be watched this way; becoming active has to do.
    if (!file || !file->isUtf8())
        return {};
    const QString path = QString::fromUtf8(file->bytes());
    return {QString::fromUtf8(file->parent().bytes()), path, path % QStringLiteral("-wal")};
}

} // namespace

PreferenceWatcher::PreferenceWatcher(PreferenceStore &store, QObject *parent)
    : QObject(parent)
    , m_store(store)
    , m_paths(watchedPaths(store.status().file))
{
    // One commit makes many notices: one look per round of the event loop answers them.
    m_look.setSingleShot(true);
    connect(&m_look, &QTimer::timeout, this, &PreferenceWatcher::look);
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, [this] { m_look.start(0ms); });
    connect(&m_files, &QFileSystemWatcher::directoryChanged, this, [this] {
        // A name may stand for another file now, while the watch is on the old one.
        if (const QStringList files = m_files.files(); !files.isEmpty())
            m_files.removePaths(files);
        m_look.start(0ms);
    });

    m_waiting.setSingleShot(true);
    connect(&m_waiting, &QTimer::timeout, this, &PreferenceWatcher::writeWaiting);
    m_store.onChangeWaits = [this] {
        if (!m_waiting.isActive())
            m_waiting.start(kPause);
    };
    watchApplication();
    watchFiles();
    m_waiting.start(0ms); // not before those who want to be told are connected
}

PreferenceWatcher::~PreferenceWatcher()
{
    m_store.onChangeWaits = nullptr;
}

void PreferenceWatcher::watchApplication()
{
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application)
        return;
    // The last moment at which everything that changes refer to is still there.
    connect(application, &QCoreApplication::aboutToQuit, this,
            [this] { m_store.writeWaitingChanges(); });
    if (const auto *const withWindows = qobject_cast<QGuiApplication *>(application))
        connect(withWindows, &QGuiApplication::applicationStateChanged, this,
                [this](Qt::ApplicationState state) {
                    if (state == Qt::ApplicationActive)
                        writeWaiting();
                });
}

void PreferenceWatcher::watchFiles()
{
    const QStringList watched = m_files.files() + m_files.directories();
    for (const QString &path : m_paths) {
        if (!watched.contains(path) && QFile::exists(path))
            m_files.addPath(path);
    }
}

/// Not at file notices: an attempt on a full disk writes to the log, and so would cause the next.
void PreferenceWatcher::writeWaiting()
{
    QElapsedTimer timer;
    timer.start();
    if (m_store.writeWaitingChanges())
        m_waiting.stop();
    else
        m_waiting.start(
            std::max(kPause, kPausesPerTry * std::chrono::milliseconds(timer.elapsed())));
    look();
}

void PreferenceWatcher::look()
{
    watchFiles();
    if (m_store.takeChangesElsewhere())
        Q_EMIT changedElsewhere();
}

} // namespace lorva
