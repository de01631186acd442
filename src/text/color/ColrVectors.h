// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColrOutlines.h"

class QPainter;

namespace lorva {

/// Whether paintAsVectors() shows the paint truly: outlines with plain colours, and such gradients
/// as every vector format has.
bool arePlainVectors(const ColrPaint &paint, ColrOutlines &outlines);

/// Paints as vectors only, for devices without pixels. The painter's state is left as it was.
void paintAsVectors(QPainter &painter, const ColrPaint &paint, const QTransform &unitsToPoints,
                    ColrOutlines &outlines, const QColor &foreground);

} // namespace lorva
