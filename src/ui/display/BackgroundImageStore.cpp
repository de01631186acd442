// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/BackgroundImageStore.h"

#include "base/SystemError.h"
#include "base/WholeFile.h"
#include "ui/display/SafeImage.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>

#include <cerrno>

#include <unistd.h>

namespace lorva {

namespace {

/// Photographs of 100 megapixels are smaller.
constexpr qsizetype kMostBytes = 100'000'000;
/// Enough of the content's hash that two images never meet.
constexpr qsizetype kHashLength = 32;
/// Reading it at this size tells whether it is an image at all.
constexpr int kProofSidePx = 256;

/// Names that add() gives out, and nothing else: no path ever leaves the folder.
bool isOurName(const QString &name)
{
    const qsizetype dot = name.indexOf(u'.');
    if (dot != kHashLength || name.size() < dot + 4 || name.size() > dot + 5)
        return false;
    const auto isPlain = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'a' && c <= u'z');
    };
    return std::all_of(name.begin(), name.begin() + dot, isPlain)
        && std::all_of(name.begin() + dot + 1, name.end(), isPlain);
}

tl::unexpected<Error> noSuchImage()
{
    return failure(ErrorKind::notFound,
                   QCoreApplication::translate("BackgroundImageStore", "The image is not there"));
}

} // namespace

BackgroundImageStore::BackgroundImageStore(FilePath folder)
    : m_folder(std::move(folder))
{
}

QStringList BackgroundImageStore::fileNames() const
{
    const QDir folder(QString::fromUtf8(m_folder.bytes()));
    QStringList names;
    if (m_folder.isEmpty())
        return names;
    for (const QFileInfo &file :
         folder.entryInfoList(QDir::Files | QDir::NoSymLinks, QDir::Time | QDir::Reversed)) {
        if (isOurName(file.fileName()))
            names.append(file.fileName());
    }
    return names;
}

Result<QString> BackgroundImageStore::add(const QByteArray &bytes) const
{
    if (bytes.size() > kMostBytes)
        return failure(ErrorKind::tooLarge,
                       QCoreApplication::translate("BackgroundImageStore",
                                                   "The file is too large for a background"));
    if (const Result<QImage> image = readSafeImage(bytes, kProofSidePx); !image)
        return tl::unexpected(image.error());
    const QByteArray hash =
        QCryptographicHash::hash(bytes, QCryptographicHash::Sha256).toHex().left(kHashLength);
    const QByteArray name = hash + '.' + safeImageExtension(bytes);
    const FilePath file = m_folder.child(name);
    if (::access(file.c_str(), R_OK) != 0) {
        if (const Result<void> written = writeWholeFile(file, bytes); !written)
            return tl::unexpected(written.error());
    }
    return QString::fromLatin1(name);
}

Result<QImage> BackgroundImageStore::read(const QString &fileName, int maximumSidePx) const
{
    if (!isOurName(fileName))
        return noSuchImage();
    return readWholeFile(m_folder.child(fileName.toLatin1()), kMostBytes)
        .and_then([maximumSidePx](const QByteArray &bytes) {
            return readSafeImage(bytes, maximumSidePx);
        });
}

Result<void> BackgroundImageStore::remove(const QString &fileName) const
{
    if (!isOurName(fileName))
        return noSuchImage();
    const FilePath file = m_folder.child(fileName.toLatin1());
    if (::unlink(file.c_str()) == 0)
        return {};
    if (errno == ENOENT)
        return noSuchImage();
    return systemFailure(errno, FileAction::remove, file);
}

} // namespace lorva
