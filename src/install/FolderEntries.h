// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <optional>
#include <vector>

namespace lorva {

/// A name in a folder.
struct FolderEntry
{
    QByteArray name;
    /// A link, or something that the file system does not tell from one.
    bool mayBeLink = false;
};

/// Everything directly in `folder`, in no order; nothing when it cannot be listed. Thread: any; may
/// take long on a slow volume.
std::optional<std::vector<FolderEntry>> folderEntries(const FilePath &folder);

/// `path` with all links resolved; nothing, with errno saying why, when something of it is missing
/// or cannot be passed. Thread: any; may take long on a slow volume.
std::optional<FilePath> realPath(const FilePath &path);

} // namespace lorva
