// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColrPaint.h"

#include <QImage>
#include <QRect>

namespace lorva {

/// The gradient's colours on the pixels of `devicePx`, ARGB32 premultiplied; nothing shows where
/// the gradient has no colour (outside the cone of a radial one) and with a transform that cannot
/// be undone. Colours between stops are interpolated premultiplied.
QImage shade(const ColrGradient &gradient, const QTransform &unitsToDevice, const QRect &devicePx,
             const QColor &foreground);

} // namespace lorva
