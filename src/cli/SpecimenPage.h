// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/Specimen.h"
#include "text/PictureFile.h"

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

/// The bytes of a picture file, letters as paths where it has no pixels. See encodedPicture().
Result<QByteArray> encodedSpecimen(const SpecimenPage &page, PictureFormat format);

} // namespace lorva::cli
