// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QByteArray>

namespace lorva {

/// What is done to the entries of folders in more than one place. Thread: any.

/// Gives the entry `from` itself (also a link) the name `to` on the same file system, unless that
/// is taken. 0 or the system's error number: EEXIST when it is taken, EXDEV for another file
/// system.
int renameWithoutReplacing(const FilePath &from, const FilePath &to);

/// Waits until the disk holds the folder's entries as they are. 0, also where the file system
/// cannot do that or the user may not read the folder, or the system's error number.
int flushFolder(const FilePath &folder);
int flushFolder(int descriptor);

/// `prefix` and six random letters and digits.
QByteArray randomName(QByteArrayView prefix);

/// The name cut to at most `mostBytes` in front of its extension, between two characters.
QByteArray cutName(const QByteArray &name, qsizetype mostBytes);

/// "name 2.otf" for the second of "name.otf"; the first is the name itself.
QByteArray numberedName(const QByteArray &name, int number);

} // namespace lorva
