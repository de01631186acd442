// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <sys/stat.h>

namespace lorva {

/// Stays the same when the entry `file` itself is renamed on its file system, and is another for
/// every other file, also for one that is given its name later. Empty when it cannot be looked at.
/// Thread: any.
inline QByteArray identityOf(const FilePath &file)
{
    struct stat info;
    if (::lstat(file.c_str(), &info) != 0)
        return {};
    QByteArray identity;
    for (const auto part : {qint64(info.st_dev), qint64(info.st_ino), qint64(info.st_size),
                            qint64(info.st_mtim.tv_sec), qint64(info.st_mtim.tv_nsec)})
        identity.append(QByteArray::number(part)).append(' ');
    return identity;
}

} // namespace lorva
