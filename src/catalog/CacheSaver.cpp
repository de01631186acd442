// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CacheSaver.h"

#include "base/Trace.h"
#include "base/WholeFile.h"
#include "platform/ThreadPriority.h"

#include <QLoggingCategory>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace lorva {

Q_LOGGING_CATEGORY(parseCacheLog, "lorva.catalog.parse-cache", QtWarningMsg)

namespace {

Result<void> writeCache(const FilePath &file, const PersistedCache &cache)
{
    const TraceStage stage("parse cache: save");
    return writeWholeFile(file, encodePersistedCache(cache));
}

} // namespace

struct CacheSaver::Private
{
    explicit Private(FilePath target)
        : file(std::move(target))
    {
    }

    void run();
    bool takeNext(std::unique_lock<std::mutex> &lock, std::optional<PersistedCache> &next);

    const FilePath file;
    std::mutex mutex;
    std::condition_variable changed;
    std::optional<PersistedCache> waiting;
    bool cacheSaveInFlight = false;
    bool isEnding = false;
    Result<void> lastSave;
    std::thread thread;
};

/// Waits for the next cache to write; false when there will be none.
bool CacheSaver::Private::takeNext(std::unique_lock<std::mutex> &lock,
                                   std::optional<PersistedCache> &next)
{
    changed.wait(lock, [this] { return waiting || isEnding; });
    next = std::exchange(waiting, std::nullopt);
    return next.has_value();
}

void CacheSaver::Private::run()
{
    lowerThisThreadsPriority();
    std::optional<PersistedCache> next;
    for (std::unique_lock lock(mutex); takeNext(lock, next);) {
        cacheSaveInFlight = true;
        lock.unlock();
        Result<void> written = writeCache(file, *next);
        if (!written)
            qCInfo(parseCacheLog).noquote() << written.error().detail;
        // Here and not below the lock: it may be the last copy of a large cache.
        next.reset();
        lock.lock();
        lastSave = std::move(written);
        cacheSaveInFlight = false;
        changed.notify_all();
    }
}

CacheSaver::CacheSaver(FilePath file)
    : d(std::make_unique<Private>(std::move(file)))
{
    static_cast<void>(makeFolders(d->file.parent()));
    d->thread = std::thread([this] { d->run(); });
}

CacheSaver::~CacheSaver()
{
    {
        const std::lock_guard lock(d->mutex);
        d->isEnding = true;
    }
    d->changed.notify_all();
    d->thread.join();
}

const FilePath &CacheSaver::file() const
{
    return d->file;
}

void CacheSaver::save(PersistedCache cache)
{
    // What it replaces is let go of after the lock.
    std::optional<PersistedCache> next(std::move(cache));
    {
        const std::lock_guard lock(d->mutex);
        d->waiting.swap(next);
    }
    d->changed.notify_all();
}

Result<void> CacheSaver::finish()
{
    std::unique_lock lock(d->mutex);
    d->changed.wait(lock, [this] { return !d->waiting && !d->cacheSaveInFlight; });
    return d->lastSave;
}

bool CacheSaver::hasFailed() const
{
    const std::lock_guard lock(d->mutex);
    return !d->lastSave;
}

} // namespace lorva
