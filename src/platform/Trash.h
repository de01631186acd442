// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

namespace lorva {

/// The place where the desktop puts what the user throws away. Thread: any.
class Trash
{
public:
    virtual ~Trash() = default;
    /// Moves the entry `file` itself there, also when it is a link. Fails with unsupported when its
    /// volume has no Trash and none can be made (nothing is copied to another volume's), with
    /// notFound, permissionDenied or ioFailure; the file then is where it was. Gives the place
    /// where it lies now.
    virtual Result<FilePath> moveToTrash(const FilePath &file) = 0;
    /// Moves what lies at `place`, as moveToTrash() gave it, to `destination`, and forgets that it
    /// was thrown away. Never replaces anything. Fails with notFound when it is not in the Trash
    /// any more, with invalidValue when `destination` is taken, with permissionDenied or ioFailure;
    /// the Trash then is as it was.
    virtual Result<void> takeFromTrash(const FilePath &place, const FilePath &destination) = 0;
};

} // namespace lorva
