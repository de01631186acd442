// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontFolderWalk.h"

#include "install/FolderWalker.h"

#include <algorithm>
#include <array>

namespace lorva {

bool isFontFileName(const FilePath &path)
{
    static constexpr std::array<QByteArrayView, 5> kExtensions{"otf", "ttf", "ttc", "otc", "dfont"};
    return std::ranges::count(kExtensions, QByteArrayView(path.lowerCaseExtension())) > 0;
}

std::vector<FilePath> fontFilesInFolder(const FilePath &folder, std::stop_token stop)
{
    FolderWalker walker(std::move(stop));
    walker.walk(folder);
    std::vector<FilePath> files;
    files.reserve(walker.files().size());
    for (FolderWalker::File &file : walker.takeFiles())
        files.push_back(std::move(file.path));
    return files;
}

} // namespace lorva
