// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/SystemError.h"

#include <QCoreApplication>

#include <cerrno>
#include <system_error>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SystemError)
};

/// With places for the path and the system's reason.
QString sentenceOf(FileAction action)
{
    switch (action) {
    case FileAction::empty:
        return Texts::tr("cannot empty %1: %2");
    case FileAction::emptyTrace:
        //: The trace says where the program spent its time.
        return Texts::tr("cannot empty the trace %1: %2");
    case FileAction::find:
        return Texts::tr("cannot find %1: %2");
    case FileAction::lock:
        return Texts::tr("cannot lock %1: %2");
    case FileAction::lookAt:
        return Texts::tr("cannot look at %1: %2");
    case FileAction::make:
        return Texts::tr("cannot make %1: %2");
    case FileAction::move:
        return Texts::tr("cannot move %1: %2");
    case FileAction::moveToTrash:
        return Texts::tr("cannot move to the Trash %1: %2");
    case FileAction::read:
        return Texts::tr("cannot read %1: %2");
    case FileAction::remove:
        return Texts::tr("cannot remove %1: %2");
    case FileAction::takeFromTrash:
        return Texts::tr("cannot take from the Trash %1: %2");
    case FileAction::write:
        return Texts::tr("cannot write %1: %2");
    case FileAction::writeInto:
        return Texts::tr("cannot write into %1: %2");
    case FileAction::writeTrace:
        return Texts::tr("cannot write the trace %1: %2");
    }
    return {};
}

} // namespace

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

tl::unexpected<Error> systemFailure(int code, FileAction action, const FilePath &path)
{
    const std::string reason = std::generic_category().message(code);
    return failure(
        errorKindOf(code),
        sentenceOf(action).arg(path.displayText(), QString::fromLocal8Bit(reason.c_str())));
}

} // namespace lorva
