// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/SpecimenPage.h"

#include "text/GlyphPainter.h"

#include <QPainter>

namespace lorva::cli {

Result<QByteArray> encodedSpecimen(const SpecimenPage &page, PictureFormat format)
{
    PictureContent content;
    content.size = page.size;
    content.background = page.background;
    content.title = page.title;
    content.creator = QStringLiteral("lorvactl");
    content.onImage = [&page](QImage &image) {
        GlyphPainter::paint(image, page.layout, page.origin, page.color);
    };
    content.onPage = [&page](QPainter &painter) {
        GlyphPainter::paint(painter, page.layout, page.origin, page.color);
    };
    return encodedPicture(content, format);
}

} // namespace lorva::cli
