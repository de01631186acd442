// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva {

/// The kind that stands for the system's error number `code`.
ErrorKind errorKindOf(int code);

/// What was tried with a file or folder.
enum class FileAction {
    empty,
    emptyTrace,
    find,
    lock,
    lookAt,
    make,
    move,
    moveToTrash,
    read,
    remove,
    takeFromTrash,
    write,
    writeInto,
    writeTrace,
};

/// "cannot read `path`: the system's reason", in the user's language.
[[nodiscard]] tl::unexpected<Error> systemFailure(int code, FileAction action,
                                                  const FilePath &path);

} // namespace lorva
