// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"
#include "ui/preview/FontPreviewConfiguration.h"
#include "ui/preview/SpecimenLogo.h"

#include <QImage>
#include <QRectF>
#include <QSize>
#include <QString>

namespace lorva {

// Specimens as pixels, without widgets, so that workers can make them. Thread: any.

/// Room kept free on both sides of a specimen, in points.
inline constexpr double kSpecimenMargin = 20.0;

/// The view that a specimen is made for.
struct SpecimenCanvas
{
    /// Points.
    QSize size;
    double devicePixelRatio = 1.0;

    bool operator==(const SpecimenCanvas &) const = default;
};

/// A specimen, set and placed but not yet coloured. Rectangles are in points of the view, y down.
struct Specimen
{
    /// The text that is shown, which may not be the user's.
    QString text;
    TextLayout layout;
    /// Where the layout's box has its top left.
    QPointF origin;
    /// Null without a logo.
    QRectF logoRect;
    /// Around all ink, the logo's rectangle included; null when there is none.
    QRectF inkBounds;
};

/// The pixels of a specimen: only the part of the view that has ink, on whole device pixels.
struct SpecimenImage
{
    /// Premultiplied, of the canvas's device-pixel ratio; null when nothing is to be drawn.
    QImage image;
    /// The image's top left, in device pixels from the view's.
    QPoint devicePosition;
};

/// Sets the specimen: single lines within the margins, centred on their ink (not on their line
/// box), the logo centred on the cap height. A null face gives an empty specimen.
Specimen layOutSpecimen(const FontPreviewConfiguration &configuration, const Font &face,
                        const SpecimenCanvas &canvas);

/// Paints the specimen in the configuration's colour. Ink outside the view is cut off.
SpecimenImage paintSpecimen(const Specimen &specimen, const FontPreviewConfiguration &configuration,
                            const SpecimenCanvas &canvas);

} // namespace lorva
