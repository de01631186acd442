// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Specimen.h"

#include "base/AtomicFile.h"
#include "cli/OutputFile.h"
#include "text/GlyphPainter.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>
#include <cmath>

namespace lorva::cli {

namespace {

Result<FaceKey> faceKey(const FontFile &file, const SpecimenRequest &request)
{
    FaceKey key{request.faceIndex, -1};
    if (request.instance.isEmpty())
        return key;
    const auto face = file.face(key);
    if (!face)
        return tl::unexpected(face.error());
    const std::vector<NamedInstance> &instances = (*face)->namedInstances();
    const auto found =
        std::find_if(instances.begin(), instances.end(), [&](const NamedInstance &instance) {
            return instance.name.compare(request.instance, Qt::CaseInsensitive) == 0;
        });
    if (found == instances.end())
        return failure(ErrorKind::notFound,
                       QStringLiteral("%1: the face has no instance \"%2\"")
                           .arg(request.font.displayText(), request.instance));
    key.namedInstance = int(found - instances.begin());
    return key;
}

Result<std::shared_ptr<const FontFace>> openFace(const SpecimenRequest &request)
{
    const auto file = FontFile::open(request.font);
    if (!file)
        return tl::unexpected(file.error());
    const Result<FaceKey> key = faceKey(**file, request);
    if (!key)
        return tl::unexpected(key.error());
    return (*file)->face(*key);
}

/// The text and the picture around it.
struct Page
{
    TextLayout layout;
    QSize size;
    QPointF origin;
};

Page makePage(const SpecimenRequest &request, const Font &font)
{
    const double margin = std::ceil(request.pixelsPerEm / 4);
    const auto layOut = [&](double width) {
        TextLayoutOptions options;
        options.width = std::max(1.0, width - 2 * margin);
        return TextLayout(request.text, font, options);
    };
    Page page;
    page.layout = layOut(request.width ? *request.width : std::numeric_limits<double>::infinity());
    const auto fitted = [&](double length) { return int(std::ceil(length + 2 * margin)); };
    if (!request.width && fitted(page.layout.size().width()) > kMaxSpecimenSide)
        page.layout = layOut(kMaxSpecimenSide);
    const QSizeF text = page.layout.size();
    page.size = {request.width.value_or(std::min(fitted(text.width()), kMaxSpecimenSide)),
                 request.height.value_or(fitted(text.height()))};
    const double free = page.size.height() - text.height();
    page.origin = {margin, free > 0 ? std::floor(free / 2) : margin};
    return page;
}

Result<QByteArray> drawPng(const Page &page, const SpecimenRequest &request)
{
    if (page.size.height() > kMaxSpecimenSide)
        return failure(
            ErrorKind::tooLarge,
            QStringLiteral("the text needs %1 pixels of height; give a --height up to %2")
                .arg(QString::number(page.size.height()), QString::number(kMaxSpecimenSide)));
    QImage image(page.size,
                 request.background.alpha() < 255 ? QImage::Format_ARGB32_Premultiplied
                                                  : QImage::Format_RGB32);
    if (image.isNull())
        return failure(ErrorKind::tooLarge, QStringLiteral("the picture does not fit into memory"));
    image.fill(request.background);
    GlyphPainter::paint(image, page.layout, page.origin, request.color);
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !image.save(&buffer, "PNG"))
        return failure(ErrorKind::ioFailure, QStringLiteral("the picture cannot be encoded"));
    return png;
}

} // namespace

Result<void> writeSpecimen(const SpecimenRequest &request)
{
    if (Result<void> checked = refuseFontFile(request.picture); !checked)
        return checked;
    const auto face = openFace(request);
    if (!face)
        return tl::unexpected(face.error());
    const Page page = makePage(request, Font(*face, request.pixelsPerEm));
    const Result<QByteArray> png = drawPng(page, request);
    if (!png)
        return tl::unexpected(png.error());
    return writeFileAtomically(request.picture, *png);
}

} // namespace lorva::cli
