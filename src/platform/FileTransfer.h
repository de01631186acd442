// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva {

/// What became of a file that was to get a new name.
enum class Transfer { done, destinationExists };

/// Makes `destination` a copy of the regular file `source`, whole and flushed to the disk, or makes
/// nothing; never replaces anything. The modification time is the source's. The folder must exist.
///
/// Fails with notFound, notRegularFile, permissionDenied or ioFailure (a full disk, a name that is
/// too long, …); the detail names the path. Opens nothing that blocks. What a process that is
/// killed meanwhile leaves is a file that removeUnfinishedCopies() knows, on most file systems not
/// even that. Thread: any.
Result<Transfer> copyToNewFile(const FilePath &source, const FilePath &destination);

/// Gives the entry `source` (also a link) the name `destination`, in another folder perhaps; never
/// replaces anything. On another file system a copy is made, compared byte by byte, and only then
/// the source removed; a link there is made anew. A relative link
/// leads where it led. Fails as copyToNewFile(); the source then is
/// where it was.
Result<Transfer> moveToNewFile(const FilePath &source, const FilePath &destination);

/// Removes what killed processes have left of copies in `folder`. Call it while no other process
/// can be copying into that folder.
void removeUnfinishedCopies(const FilePath &folder);

/// Both can be read, and hold the same bytes. Links are followed.
bool haveEqualBytes(const FilePath &one, const FilePath &other);

} // namespace lorva
