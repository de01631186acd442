// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/GoneFiles.h"

#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>

#include <sys/stat.h>

namespace lorva {

namespace {

/// Each may hang for as long as its volume does.
constexpr int kMostLooks = 4;
std::atomic<int> looksUnderWay = 0;

struct Look
{
    std::mutex mutex;
    std::condition_variable changed;
    std::set<FilePath> gone;
    bool hasEnded = false;
};

bool hasGone(const FilePath &file)
{
    struct stat info;
    if (::stat(file.c_str(), &info) == 0)
        return !S_ISREG(info.st_mode);
    return errno == ENOENT || errno == ENOTDIR;
}

void run(Look &look, const std::vector<FilePath> &files)
{
    for (const FilePath &file : files) {
        if (!hasGone(file))
            continue;
        const std::lock_guard lock(look.mutex);
        look.gone.insert(file);
    }
    --looksUnderWay;
    const std::lock_guard lock(look.mutex);
    look.hasEnded = true;
    look.changed.notify_all();
}

} // namespace

std::set<FilePath> goneFiles(const std::vector<FilePath> &files, std::chrono::milliseconds patience)
{
    if (files.empty())
        return {};
    const auto look = std::make_shared<Look>();
    if (looksUnderWay.fetch_add(1) >= kMostLooks) {
        --looksUnderWay;
        return {};
    }
    try {
        std::thread([look, files] { run(*look, files); }).detach();
    } catch (const std::system_error &) {
        --looksUnderWay;
        return {};
    }
    std::unique_lock lock(look->mutex);
    look->changed.wait_for(lock, patience, [&] { return look->hasEnded; });
    return look->gone;
}

} // namespace lorva
