// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <tl/expected.hpp>

namespace lorva {

/// One Trash: the folder "files" with what was thrown away, and the folder "info" with a note of
/// the same name on each, which says where it was and when it went.
///
/// Functions give 0 or the system's error number. Thread: any, and any number of processes at once.
class TrashFolder
{
public:
    explicit TrashFolder(FilePath folder);

    /// Makes what is missing of it, with its parents.
    int ensureFolders() const;
    /// Moves the entry `file` here, notes `originalPath` as its place, and gives where it lies now.
    /// When that fails, the file is where it was, and no note is left.
    tl::expected<FilePath, int> take(const FilePath &file, const FilePath &originalPath) const;
    /// Moves the entry `place`, as take() gave it, to `destination`, and removes its note. EEXIST
    /// when that is taken.
    static int giveBack(const FilePath &place, const FilePath &destination);

private:
    int takeAs(const QByteArray &name, const FilePath &file, const QByteArray &note) const;

    const FilePath m_folder;
    const FilePath m_files;
    const FilePath m_info;
};

} // namespace lorva
