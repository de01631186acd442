// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FolderEntries.h"

#include <memory>

#include <cstdlib>

#include <dirent.h>

namespace lorva {

namespace {

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

struct FreeText
{
    void operator()(char *text) const { std::free(text); }
};

} // namespace

std::optional<std::vector<FolderEntry>> folderEntries(const FilePath &folder)
{
    const std::unique_ptr<DIR, CloseFolder> stream(::opendir(folder.c_str()));
    if (!stream)
        return std::nullopt;
    std::vector<FolderEntry> entries;
    while (const dirent *const found = ::readdir(stream.get())) {
        const QByteArrayView name(found->d_name);
        if (name != "." && name != "..")
            entries.push_back(
                {name.toByteArray(), found->d_type == DT_LNK || found->d_type == DT_UNKNOWN});
    }
    return entries;
}

std::optional<FilePath> realPath(const FilePath &path)
{
    const std::unique_ptr<char, FreeText> real(::realpath(path.c_str(), nullptr));
    if (!real)
        return std::nullopt;
    return FilePath(QByteArray(real.get()));
}

} // namespace lorva
