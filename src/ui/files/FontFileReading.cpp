// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/files/FontFileReading.h"

#include "catalog/FaceReading.h"
#include "install/FolderEntries.h"

#include <QCoreApplication>

#include <sys/stat.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontFiles)
};

FontFileProblem problemOf(ErrorKind kind)
{
    switch (kind) {
    case ErrorKind::notFound:
        return FontFileProblem::gone;
    case ErrorKind::permissionDenied:
        return FontFileProblem::notAllowed;
    case ErrorKind::notRegularFile:
        return FontFileProblem::noFile;
    case ErrorKind::tooLarge:
        return FontFileProblem::tooLarge;
    case ErrorKind::unsupported:
        return FontFileProblem::noFont;
    case ErrorKind::truncated:
    case ErrorKind::malformed:
        return FontFileProblem::damaged;
    default:
        return FontFileProblem::unreadable;
    }
}

/// One spelling for one file, whatever links its folder is reached by: that of the books.
FilePath spelledPath(const FilePath &file)
{
    const std::optional<FilePath> folder = realPath(file.parent());
    return folder ? folder->child(file.fileName()) : file;
}

std::optional<FontFileProblem> readFaces(ReadFontFile &read)
{
    const auto opened = FontFile::openForReading(read.path);
    if (!opened)
        return problemOf(opened.error().kind);
    const auto descriptors = opened->file->descriptors();
    if (!descriptors)
        return problemOf(descriptors.error().kind);
    for (const FaceDescriptor &descriptor : *descriptors)
        if (auto entry = parsedEntry(descriptor, read.path))
            read.faces.push_back(*std::move(entry));
    if (read.faces.empty())
        return descriptors->empty() ? FontFileProblem::damaged : FontFileProblem::nameless;
    read.identifications =
        identifyFamilies(*opened->file, *descriptors, [](const QString &) { return true; });
    return std::nullopt;
}

} // namespace

QString fontFileProblemText(FontFileProblem problem)
{
    switch (problem) {
    case FontFileProblem::gone:
        return Texts::tr("There is no such file.");
    case FontFileProblem::notAllowed:
        return Texts::tr("You are not allowed to read this file.");
    case FontFileProblem::noFile:
        return Texts::tr("This is a folder or a device, not a font file.");
    case FontFileProblem::tooLarge:
        return Texts::tr("This file is too large to be a font.");
    case FontFileProblem::noFont:
        return Texts::tr("This file holds no font that Lorva can show.");
    case FontFileProblem::damaged:
        return Texts::tr("This font is damaged and cannot be shown.");
    case FontFileProblem::unreadable:
        return Texts::tr("This file cannot be read from its disk.");
    case FontFileProblem::nameless:
        return Texts::tr("This font has no name, so no program could offer it.");
    case FontFileProblem::notHere:
        return Texts::tr("Only files of this computer can be shown.");
    case FontFileProblem::tooMany:
        return Texts::tr("So many files cannot be shown at once.");
    }
    return {};
}

ReadFontFile readFontFile(const FilePath &file)
{
    ReadFontFile read;
    read.path = spelledPath(file);
    struct stat info = {};
    if (::stat(read.path.c_str(), &info) == 0) {
        read.device = quint64(info.st_dev);
        read.inode = quint64(info.st_ino);
    }
    read.problem = readFaces(read);
    return read;
}

} // namespace lorva
