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
/// The notice of the last write to a log comes before what it commits is visible.
constexpr std::chrono::milliseconds kUntilCommitted = 200ms;
/// What a person who quits waits for someone else's lock, so that nothing is lost.
constexpr std::chrono::milliseconds kPatienceAtEnd = 2s;
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
    , m_paths(watchedPaths(store.file()))
{
    // One commit makes many notices: one look per round of the event loop answers them.
    for (QTimer *const timer : {&m_look, &m_lookAgain}) {
        timer->setSingleShot(true);
        connect(timer, &QTimer::timeout, this, &PreferenceWatcher::look);
    }
    connect(&m_files, &QFileSystemWatcher::fileChanged, this, &PreferenceWatcher::noteFiles);
    connect(&m_files, &QFileSystemWatcher::directoryChanged, this, [this] {
        // A name may stand for another file now, while the watch is on the old one.
        if (const QStringList files = m_files.files(); !files.isEmpty())
            m_files.removePaths(files);
        noteFiles();
    });
    watchStore();
    watchApplication();
    watchFiles();
    m_tryAgain.start(0ms); // not before those who want to be told are connected
}

PreferenceWatcher::~PreferenceWatcher()
{
    m_store.onChangeWaits = nullptr;
    m_store.onValuesMissed = nullptr;
}

void PreferenceWatcher::watchStore()
{
    m_tryAgain.setSingleShot(true);
    connect(&m_tryAgain, &QTimer::timeout, this, &PreferenceWatcher::tryAgain);
    m_store.onChangeWaits = [this] { tryLater(); };
    m_store.onValuesMissed = [this] { tryLater(); };
}

void PreferenceWatcher::watchApplication()
{
    QCoreApplication *const application = QCoreApplication::instance();
    if (!application)
        return;
    // The last moment at which everything that changes refer to is still there.
    connect(application, &QCoreApplication::aboutToQuit, this,
            [this] { m_store.writeLastChanges(kPatienceAtEnd); });
    if (const auto *const withWindows = qobject_cast<QGuiApplication *>(application))
        connect(withWindows, &QGuiApplication::applicationStateChanged, this,
                [this](Qt::ApplicationState state) {
                    if (state == Qt::ApplicationActive)
                        tryAgain();
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
void PreferenceWatcher::tryAgain()
{
    QElapsedTimer timer;
    timer.start();
    m_tryAgain.stop();
    const bool isAllWritten = m_store.writeWaitingChanges();
    const bool isOther = takeChanges();
    if (!isAllWritten || m_store.hasMissedValues())
        m_tryAgain.start(
            std::max(kPause, kPausesPerTry * std::chrono::milliseconds(timer.elapsed())));
    if (isOther)
        Q_EMIT changedElsewhere();
}

void PreferenceWatcher::tryLater()
{
    if (!m_tryAgain.isActive())
        m_tryAgain.start(kPause);
}

void PreferenceWatcher::noteFiles()
{
    m_look.start(0ms);
    m_lookAgain.start(kUntilCommitted);
}

void PreferenceWatcher::look()
{
    const bool isOther = takeChanges();
    if (m_store.hasMissedValues())
        tryLater();
    if (isOther)
        Q_EMIT changedElsewhere();
}

bool PreferenceWatcher::takeChanges()
{
    watchFiles();
    return m_store.takeChangesElsewhere();
}

} // namespace lorva
