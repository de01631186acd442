// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/layout/LineBreaker.h"

namespace lorva {

/// Where a line stands in its text.
struct LinePlace
{
    /// Index of the paragraph's first unit in the text.
    int paragraphStart = 0;
    bool isRightToLeft = false;
    quint8 baseLevel = 0;
    double inset = 0;
};

/// Widens the spaces inside a line until it is `width` points wide; lines without spaces, or wider
/// ones, stay as they are.
void justify(BrokenLine &line, QStringView paragraph, double width);

/// Puts the runs of a line in visual order and its glyphs at their places; `runs` are moved from.
/// The line's origin is left at 0.
LayoutLine assembleLine(BrokenLine line, const LinePlace &place, const TextFonts &fonts);

} // namespace lorva
