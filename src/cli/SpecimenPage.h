// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Specimen.h"

#include <QSize>

namespace lorva::cli {

/// The text and the picture around it. Units: pixels.
struct SpecimenPage
{
    TextLayout layout;
    QSize size;
    /// Where the layout's box begins.
    QPointF origin;
    QColor color;
    QColor background;
    QString title;
    /// Something of the text lies outside the picture.
    bool isCropped = false;
};
SpecimenPage layOutSpecimen(const SpecimenRequest &request, const Font &font);

/// The bytes of a picture file.
Result<QByteArray> pngPicture(const SpecimenPage &page);
/// Outlines as paths, no fonts. The same bytes for the same page.
Result<QByteArray> svgPicture(const SpecimenPage &page);
/// As svgPicture(); one pixel is one point, 1/72 inch.
Result<QByteArray> pdfPicture(const SpecimenPage &page);

} // namespace lorva::cli
