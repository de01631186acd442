// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <chrono>
#include <map>

namespace lorva {

/// Tells whether what the library sees of one folder, without the folders in it, is still the same:
/// its font files, as they were last written, and the names of its folders.
struct FolderMark
{
    using Time = std::chrono::time_point<std::chrono::system_clock, std::chrono::nanoseconds>;

    /// Which folder it is; zero for one that cannot be opened.
    quint64 identity = 0;
    quint64 content = 0;
    /// When something of it, or of its font files, last changed in any way; of a folder that is not
    /// there, of the nearest one above it, from which it may have gone then.
    Time lastChange{};
};

using FolderMarks = std::map<FilePath, FolderMark>;

/// Thread: any; may take long on a slow volume, so never the main thread.
FolderMark folderMark(const FilePath &folder);

} // namespace lorva
