// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrPaint.h"

namespace lorva {

ColrFill plainFillOf(const ColrPaint &glyphPaint)
{
    ColrFill fill;
    const ColrPaint *paint = glyphPaint.children.data();
    while (paint->kind == ColrPaint::Kind::transform) {
        fill.transform = paint->transform * fill.transform;
        paint = paint->children.data();
    }
    if (paint->kind == ColrPaint::Kind::solid || paint->kind == ColrPaint::Kind::gradient)
        fill.paint = paint;
    return fill;
}

} // namespace lorva
