// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/FolderMark.h"

#include "install/FolderWalker.h"
#include "install/FontFolderWalk.h"

#include <QHash>

#include <algorithm>
#include <memory>

#include <dirent.h>
#include <sys/stat.h>

namespace lorva {

namespace {

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

FolderMark::Time changeTime(const struct stat &info)
{
    return FolderMark::Time(std::chrono::seconds(info.st_ctim.tv_sec)
                            + std::chrono::nanoseconds(info.st_ctim.tv_nsec));
}

/// What a walk would pass over by name and kind alone is not looked at.
bool mayMatter(const dirent &entry)
{
    const QByteArray name(entry.d_name);
    if (name.startsWith('.'))
        return false;
    return entry.d_type != DT_REG || isFontFileName(FilePath(name));
}

/// Files by what they hold, folders by which they are; what they hold has a mark of its own.
quint64 entryMark(const QByteArray &name, const struct stat &info)
{
    if (S_ISREG(info.st_mode) && isFontFileName(FilePath(name)))
        return qHashMulti(1, name, quint64(info.st_dev), quint64(info.st_ino), qint64(info.st_size),
                          qint64(info.st_mtim.tv_sec), qint64(info.st_mtim.tv_nsec));
    if (S_ISDIR(info.st_mode) && !FolderWalker::isSkipped(name))
        return qHashMulti(2, name, quint64(info.st_dev), quint64(info.st_ino));
    return 0;
}

void takeEntry(FolderMark &mark, int folder, const dirent &entry)
{
    struct stat info;
    if (!mayMatter(entry) || ::fstatat(folder, entry.d_name, &info, 0) != 0)
        return;
    // A sum, because listings have no order.
    mark.content += entryMark(entry.d_name, info);
    if (S_ISREG(info.st_mode))
        mark.lastChange = std::max(mark.lastChange, changeTime(info));
}

FolderMark::Time lastChangeAbove(FilePath folder)
{
    struct stat info;
    while (::stat(folder.c_str(), &info) != 0) {
        if (folder.bytes().size() <= 1)
            return {};
        folder = folder.parent();
    }
    return changeTime(info);
}

} // namespace

FolderMark folderMark(const FilePath &folder)
{
    FolderMark mark;
    struct stat info;
    const std::unique_ptr<DIR, CloseFolder> stream(::opendir(folder.c_str()));
    if (!stream || ::fstat(::dirfd(stream.get()), &info) != 0) {
        mark.lastChange = lastChangeAbove(folder);
        return mark;
    }
    mark.identity = qHashMulti(3, quint64(info.st_dev), quint64(info.st_ino));
    mark.content = mark.identity;
    mark.lastChange = changeTime(info);
    while (const dirent *const entry = ::readdir(stream.get()))
        takeEntry(mark, ::dirfd(stream.get()), *entry);
    return mark;
}

} // namespace lorva
