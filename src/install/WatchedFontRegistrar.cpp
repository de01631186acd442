// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/WatchedFontRegistrar.h"

#include "install/FolderWalker.h"
#include "install/FontFolderWalk.h"
#include "platform/FontRegistrar.h"

#include <algorithm>

#include <sys/stat.h>

namespace lorva {

namespace {

/// Recognises files by device and inode.
class SeenFiles
{
public:
    /// False when the file was seen before or has gone.
    bool add(const FilePath &path)
    {
        struct stat info;
        return ::stat(path.c_str(), &info) == 0 && m_seen.emplace(info.st_dev, info.st_ino).second;
    }

private:
    std::set<std::pair<quint64, quint64>> m_seen;
};

/// Folders are never walked twice, so only links can give a file again. The common library has no
/// links to files, and pays nothing.
void dropRepeatingLinks(std::vector<FolderWalker::File> &files)
{
    if (std::ranges::none_of(files, &FolderWalker::File::isLink))
        return;
    SeenFiles seen;
    for (const FolderWalker::File &file : files) {
        if (!file.isLink)
            seen.add(file.path);
    }
    std::erase_if(
        files, [&](const FolderWalker::File &file) { return file.isLink && !seen.add(file.path); });
}

} // namespace

std::vector<FilePath> WatchedFontRegistrar::fontFiles(const std::vector<FilePath> &folders,
                                                      std::stop_token stop) const
{
    FolderWalker walker(std::move(stop));
    for (const FilePath &folder : folders)
        walker.walk(folder);
    std::vector<FolderWalker::File> found = walker.takeFiles();
    dropRepeatingLinks(found);

    std::vector<FilePath> files;
    files.reserve(found.size());
    for (FolderWalker::File &file : found)
        files.push_back(std::move(file.path));
    return files;
}

void WatchedFontRegistrar::unregisterFonts(const std::vector<FilePath> &folders,
                                           FontRegistrar &registrar,
                                           const std::stop_token &stop) const
{
    for (const FilePath &folder : folders) {
        for (const FilePath &file : fontFilesInFolder(folder, stop))
            static_cast<void>(registrar.unregisterFont(file, RegistrationScope::process));
    }
}

} // namespace lorva
