// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/ImageIntake.h"

#include "base/RunThen.h"
#include "base/WholeFile.h"
#include "ui/FontFamilyPasteboard.h"

#include <QBuffer>
#include <QFileDialog>
#include <QImage>
#include <QMimeData>
#include <QThreadPool>
#include <QUrl>

#include <optional>

namespace lorva {

namespace {

std::optional<FilePath> &nextChosenFile()
{
    static std::optional<FilePath> next;
    return next;
}

/// The first file that a drop names.
std::optional<FilePath> droppedFile(const QMimeData &data)
{
    for (const QUrl &url : data.urls()) {
        if (const Result<FilePath> file = FilePath::fromUrl(url.toEncoded(QUrl::FullyEncoded)))
            return *file;
    }
    return std::nullopt;
}

QString words(ErrorKind kind, const QString &name)
{
    switch (kind) {
    case ErrorKind::notFound:
        return ImageIntake::tr("“%1” is not there any more").arg(name);
    case ErrorKind::permissionDenied:
        return ImageIntake::tr("“%1” may not be read").arg(name);
    case ErrorKind::notRegularFile:
        return ImageIntake::tr("“%1” is no file").arg(name);
    case ErrorKind::tooLarge:
        return ImageIntake::tr("“%1” is too large").arg(name);
    default:
        return ImageIntake::tr("“%1” could not be read").arg(name);
    }
}

QByteArray pngOf(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "png");
    return bytes;
}

} // namespace

ImageIntake::ImageIntake(qsizetype mostBytes, QWidget *host)
    : QObject(host)
    , m_mostBytes(mostBytes)
    , m_host(host)
{
}

void ImageIntake::setNextChosenFile(const FilePath &file)
{
    nextChosenFile() = file;
}

void ImageIntake::choose()
{
    if (const std::optional<FilePath> next = std::exchange(nextChosenFile(), std::nullopt)) {
        if (!next->isEmpty())
            read(*next);
        return;
    }
    // The panel may close while the dialog is open; the dialog then goes with it.
    auto *dialog = new QFileDialog(m_host, tr("Choose an Image"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({tr("Images")
                                + QLatin1String(" (*.png *.jpg *.jpeg *.gif *.webp *.bmp "
                                                "*.svg *.PNG *.JPG *.JPEG)"),
                            tr("All Files") + QLatin1String(" (*)")});
    connect(dialog, &QFileDialog::fileSelected, this,
            [this](const QString &file) { read(FilePath::fromText(file)); });
    dialog->open();
}

bool ImageIntake::canTake(const QMimeData &data)
{
    if (data.hasFormat(QLatin1String(kFontFamilyNamesMimeType)))
        return false;
    return droppedFile(data).has_value() || data.hasImage();
}

void ImageIntake::take(const QMimeData &data)
{
    if (const std::optional<FilePath> file = droppedFile(data)) {
        read(*file);
        return;
    }
    const auto picture = qvariant_cast<QImage>(data.imageData());
    if (!picture.isNull())
        encode(picture);
    else if (onProblem)
        onProblem(tr("What was dropped is no picture"));
}

/// A dropped photograph takes seconds to be packed.
void ImageIntake::encode(const QImage &picture)
{
    const unsigned generation = ++m_generation;
    runThen(
        *QThreadPool::globalInstance(), this,
        [picture](const std::stop_token &) { return pngOf(picture); },
        [this, generation](const QByteArray &bytes) {
            if (generation == m_generation && onBytes)
                onBytes(bytes);
        });
}

void ImageIntake::read(const FilePath &file)
{
    // Another file chosen meanwhile wins.
    const unsigned generation = ++m_generation;
    runThen(
        *QThreadPool::globalInstance(), this,
        [file, most = m_mostBytes](const std::stop_token &) { return readWholeFile(file, most); },
        [this, generation,
         name = FilePath(file.fileName()).displayText()](const Result<QByteArray> &bytes) {
            if (generation != m_generation)
                return;
            if (bytes && onBytes)
                onBytes(*bytes);
            else if (!bytes && onProblem)
                onProblem(words(bytes.error().kind, name));
        });
}

} // namespace lorva
