// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FolderWalker.h"

#include "install/FontFolderWalk.h"
#include "platform/PlatformFolders.h"

#include <algorithm>
#include <array>
#include <memory>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

struct FolderWalker::Entry
{
    QByteArray name;
    bool isFolder = false;
    /// A link is followed on purpose; what the listing called a folder must still be one when
    /// opened.
    bool isLink = false;
};

namespace {

constexpr int kOpenFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};
using FolderStream = std::unique_ptr<DIR, CloseFolder>;

/// A stream of its own; `descriptor` stays open for what is looked up relative to it.
FolderStream openStream(int descriptor)
{
    const int copy = ::fcntl(descriptor, F_DUPFD_CLOEXEC, 0);
    if (copy < 0)
        return nullptr;
    FolderStream stream(::fdopendir(copy));
    if (!stream)
        ::close(copy);
    return stream;
}

/// The entry's type as readdir() gives it, looked up where the file system leaves it out.
unsigned char entryType(int folder, const dirent &entry)
{
    struct stat info;
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type;
    if (::fstatat(folder, entry.d_name, &info, AT_SYMLINK_NOFOLLOW) != 0)
        return DT_UNKNOWN;
    return static_cast<unsigned char>(IFTODT(info.st_mode));
}

unsigned char targetType(int folder, const char *name)
{
    struct stat info;
    if (::fstatat(folder, name, &info, 0) != 0)
        return DT_UNKNOWN; // broken or circular
    return static_cast<unsigned char>(IFTODT(info.st_mode));
}

} // namespace

FolderWalker::FolderWalker(std::stop_token stop)
    : m_stop(std::move(stop))
{
}

bool FolderWalker::isSkipped(const QByteArray &folderName)
{
    static constexpr std::array<QByteArrayView, 5> kPackageExtensions{"app", "bundle", "framework",
                                                                      "plugin", "pkg"};
    if (folderName == kRegisteredLinksFolderName)
        return true;
    if (!folderName.contains('.'))
        return false;
    const QByteArray extension = FilePath(folderName).lowerCaseExtension();
    return std::ranges::count(kPackageExtensions, QByteArrayView(extension)) > 0;
}

void FolderWalker::walk(const FilePath &folder)
{
    // A folder that somebody chose is looked into whatever its name.
    if (folder.fileName() == kRegisteredLinksFolderName)
        return;
    const int descriptor = ::open(folder.c_str(), kOpenFlags);
    if (descriptor < 0)
        return;
    walkOpened(descriptor, folder.bytes(), 0);
    ::close(descriptor);
}

void FolderWalker::walkOpened(int descriptor, const QByteArray &path, int depth)
{
    if (depth >= kMaxDepth || !isFirstVisit(descriptor))
        return;
    m_folders.emplace_back(path);
    for (const Entry &entry : readEntries(descriptor)) {
        if (m_stop.stop_requested())
            return;
        takeEntry(descriptor, path, entry, depth);
    }
}

bool FolderWalker::isFirstVisit(int descriptor)
{
    struct stat info;
    return ::fstat(descriptor, &info) == 0 && m_visited.emplace(info.st_dev, info.st_ino).second;
}

std::vector<FolderWalker::Entry> FolderWalker::readEntries(int descriptor) const
{
    std::vector<Entry> entries;
    const FolderStream stream = openStream(descriptor);
    while (stream && !m_stop.stop_requested()) {
        const dirent *const found = ::readdir(stream.get());
        if (!found)
            break;
        if (found->d_name[0] == '.')
            continue;
        const unsigned char own = entryType(descriptor, *found);
        const bool isLink = own == DT_LNK;
        const unsigned char type = isLink ? targetType(descriptor, found->d_name) : own;
        Entry entry{found->d_name, type == DT_DIR, isLink};
        if (entry.isFolder ? !isSkipped(entry.name)
                           : type == DT_REG && isFontFileName(FilePath(entry.name)))
            entries.push_back(std::move(entry));
    }
    std::ranges::sort(entries, {}, &Entry::name);
    return entries;
}

void FolderWalker::takeEntry(int parent, const QByteArray &parentPath, const Entry &entry,
                             int depth)
{
    const QByteArray path = parentPath.endsWith('/') ? QByteArray(parentPath + entry.name)
                                                     : QByteArray(parentPath + '/' + entry.name);
    if (!entry.isFolder) {
        m_files.push_back({FilePath(path), entry.isLink});
        return;
    }
    const int flags = kOpenFlags | (entry.isLink ? 0 : O_NOFOLLOW);
    const int descriptor = ::openat(parent, entry.name.constData(), flags);
    if (descriptor < 0)
        return;
    walkOpened(descriptor, path, depth + 1);
    ::close(descriptor);
}

} // namespace lorva
