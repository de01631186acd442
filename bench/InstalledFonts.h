// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/FontFolderWalk.h"

#include <QFile>

namespace lorva {

/// The system's font files, each read once, so that their pages are warm.
inline const std::vector<FilePath> &installedFonts()
{
    static const std::vector<FilePath> files = [] {
        std::vector<FilePath> found = fontFilesInFolder(FilePath("/usr/share/fonts"));
        for (const FilePath &path : found) {
            QFile file(path.displayText());
            if (file.open(QIODevice::ReadOnly))
                file.readAll();
        }
        return found;
    }();
    return files;
}

} // namespace lorva
