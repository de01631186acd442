// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

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
    /// Moves the entry `file` here, and notes `originalPath` as its place. When that fails, the
    /// file is where it was, and no note is left.
    int take(const FilePath &file, const FilePath &originalPath) const;

private:
    int takeAs(const QByteArray &name, const FilePath &file, const QByteArray &note) const;

    const FilePath m_folder;
    const FilePath m_files;
    const FilePath m_info;
};

} // namespace lorva
