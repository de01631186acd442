// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/SystemError.h"

#include <cerrno>
#include <system_error>

namespace lorva {

ErrorKind errorKindOf(int code)
{
    switch (code) {
    case ENOENT:
    case ENOTDIR:
        return ErrorKind::notFound;
    case EACCES:
    case EPERM:
    case EROFS:
        return ErrorKind::permissionDenied;
    case EISDIR:
        return ErrorKind::notRegularFile;
    case EFBIG:
        return ErrorKind::tooLarge;
    default:
        return ErrorKind::ioFailure;
    }
}

tl::unexpected<Error> systemFailure(int code, const char *action, const FilePath &path)
{
    const std::string reason = std::generic_category().message(code);
    return failure(errorKindOf(code),
                   QStringLiteral("cannot %1 %2: %3")
                       .arg(QLatin1String(action), path.displayText(),
                            QString::fromLocal8Bit(reason.c_str())));
}

} // namespace lorva
