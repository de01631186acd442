// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/DetailSpecimen.h"
#include "ui/detail/SpecimenPage.h"

#include <array>
#include <vector>

namespace lorva {

// What a waterfall consists of, without widgets. Thread: any. Units: points.

/// The sizes that typefaces are judged and sold by, from the headline down to the small print.
inline constexpr std::array<int, 17> kWaterfallSizes{128, 96, 72, 60, 48, 42, 36, 32, 28,
                                                     24,  20, 18, 16, 14, 12, 11, 10};

/// The column at the leading side that the sizes stand in.
inline constexpr int kWaterfallCaptionWidth = 48;

struct WaterfallRow
{
    int size = 0;
    int top = 0;
    int height = 0;
    /// From the waterfall's top.
    int baseline = 0;
    bool operator==(const WaterfallRow &) const = default;
};

/// Rows as high as the font's lines, one below the other; none for a null font.
std::vector<WaterfallRow> waterfallRows(const Font &font);

/// The first paragraph that is not blank, without white space around it.
QString waterfallText(const QString &text);

/// Where a waterfall of that width has its lines; `isMirrored`: the sizes stand at the right.
QRectF waterfallRoom(double width, bool isMirrored);

/// cut: one line that goes on beyond the room. wholeWords: as many words as the room holds, for a
/// document, which has no edge that a line could pass behind.
enum class WaterfallLineEnd { cut, wholeWords };
SpecimenPage::Text waterfallLine(const DetailSpecimen &specimen, const WaterfallRow &row,
                                 const QRectF &room, WaterfallLineEnd end);

/// The size beside the line, on its baseline, and the hairline below it.
void addWaterfallFurniture(SpecimenPage &page, const DetailSpecimen &specimen,
                           const WaterfallRow &row, double width, bool isMirrored);

/// All of it, as a document.
SpecimenPage waterfallPage(const DetailSpecimen &specimen, double width, bool isMirrored);

} // namespace lorva
