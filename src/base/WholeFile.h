// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva {

/// All bytes of a regular file, opened without ever waiting. A file that is replaced meanwhile
/// gives the old bytes, one that shrinks gives what was left. Fails with notFound,
/// permissionDenied, notRegularFile, tooLarge (more than `mostBytes`) or ioFailure. Thread: any.
Result<QByteArray> readWholeFile(const FilePath &path, qint64 mostBytes);

/// writeFileAtomically() that makes the folder first, with its missing parents. Thread: any.
Result<void> writeWholeFile(const FilePath &path, QByteArrayView bytes);

/// Makes `folder` and its missing parents, for the user alone. Fails with permissionDenied,
/// notRegularFile (a file has the name) or ioFailure. Thread: any.
Result<void> makeFolders(const FilePath &folder);

} // namespace lorva
