// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"

#include <QColor>
#include <QImage>
#include <QRectF>
#include <QSizeF>

namespace lorva {

// The logo before a text. Thread: any. Units: points.

/// The size at which a logo of `imageSize` stands beside type of `capHeight`; heights under 1 count
/// as 1.
QSizeF logoSize(QSizeF imageSize, double capHeight, double sizeRatio);

/// What a logo takes of the first line: its own width and the gap after it, which is `spacing` ems
/// but never less than nothing.
double logoInset(QSizeF logo, double spacing, double pointSize);

/// The logo's place in the layout's box: at the leading edge of the first line, centred on the cap
/// height.
QRectF logoRectInLayout(const LayoutLine &firstLine, QSizeF logo, double capHeight);

/// The logo's shape in `color`, of the same pixels.
QImage tintedLogo(QImage logo, const QColor &color);

/// Paints the logo's shape in `color`, its corner on whole pixels of the image. Nothing for an
/// empty logo or place.
void paintLogo(QImage &image, const QImage &logo, const QRectF &rect, const QColor &color);

/// The nearest place that is a whole number of device pixels away from nothing.
double snappedToPixel(double points, double devicePixelRatio);

} // namespace lorva
