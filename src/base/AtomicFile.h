// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva {

/// Makes `path` a file that holds exactly `bytes`, or leaves what was there untouched: the bytes go
/// to a new file in the same folder, are flushed to the disk, and take the name over. A link is
/// followed, so that it keeps pointing at the file. An existing file's permissions are kept.
///
/// The folder must exist. Fails with notFound, permissionDenied, notRegularFile (a folder, a device
/// or a pipe has that name) or ioFailure (a full disk, …). No new file stays behind, on most file
/// systems not even that of a process which is killed meanwhile. Thread: any.
Result<void> writeFileAtomically(const FilePath &path, QByteArrayView bytes);

} // namespace lorva
