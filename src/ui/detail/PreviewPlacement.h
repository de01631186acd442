// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextCarets.h"
#include "ui/detail/DetailSpecimen.h"

#include <vector>

namespace lorva {

/// The large preview, set: where its text, its ink and its logo stand in the view.
///
/// Large type is aligned by its ink, not by the side bearings before it: at 200 points those would
/// be seen as an indent. What stands out of the line boxes (swashes, stacked marks, the heads of
/// italic letters) has room in `height` and within the width.
///
/// A value. Thread: any. Units: points of the view, y down; those of `carets` its layout's.
struct PreviewPlacement
{
    TextCarets carets;
    /// Where the layout's box has its top left.
    QPointF origin;
    /// Null without a logo.
    QRectF logoRect;
    /// Around all ink, the logo included; null where nothing shows.
    QRectF ink;
    int height = 0;
};

/// `text` in the specimen's font, wrapped to `width`. A specimen without a font sets nothing but
/// has a line for the caret.
PreviewPlacement placePreview(const QString &text, const DetailSpecimen &specimen, double width);

/// What covers a stretch of the text, without gaps between lines; a line end that belongs to it
/// shows as a narrow piece. In the layout's coordinates.
std::vector<QRectF> selectionShapes(const TextCarets &carets, int start, int end);

/// Lines of `thickness` under a stretch of the text, below the baseline. In the layout's
/// coordinates.
std::vector<QRectF> underlines(const TextCarets &carets, int start, int end, double thickness);

} // namespace lorva
