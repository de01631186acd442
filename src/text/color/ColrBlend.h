// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColrPaint.h"

#include <QImage>

namespace lorva {

/// Composes `source` upon `backdrop`, both ARGB32 premultiplied and of one size, by the formulas of
/// the W3C's "Compositing and Blending Level 1", which OpenType `COLR` refers to.
void compose(QImage &backdrop, const QImage &source, ColrComposite mode);

} // namespace lorva
