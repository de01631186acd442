// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"

#include <QStringView>

#include <span>
#include <vector>

namespace lorva {

/// A stretch of a paragraph with one embedding level, script and font, in UTF-16 units.
struct TextItem
{
    int start = 0;
    int end = 0;
    /// UAX #9: odd levels read from right to left.
    quint8 level = 0;
    /// OpenType script, as the ISO 15924 tag (hb_script_t).
    quint32 script = 0;
    /// The script that tells the language: of ideographs that of the kana, hangul or bopomofo near
    /// them, else `script`.
    quint32 writing = 0;
    /// Index into the layout's TextFonts.
    int font = 0;

    bool isRightToLeft() const { return level & 1; }
};

struct ItemizedParagraph
{
    quint8 baseLevel = 0;
    /// In logical order, without gaps.
    std::vector<TextItem> items;
};

/// A paragraph of a text, without its separator, in UTF-16 units.
struct TextParagraph
{
    int start = 0;
    int end = 0;
};

/// Splits at hard line ends: LF, CR, CR LF, VT, FF, NEL, U+2028, U+2029. Never empty; a text that
/// ends in a separator has an empty last paragraph.
std::vector<TextParagraph> splitParagraphs(QStringView text);

/// Levels (UAX #9, by ICU) and scripts (UAX #24: common and inherited characters join the run that
/// they stand in, a closing bracket the run of its opening one; emoji are runs of no script) of one
/// paragraph; all in the main font.
ItemizedParagraph itemize(QStringView paragraph, TextDirection direction);

/// Rule L2 of UAX #9: which item stands first, second … from the left, by their levels.
std::vector<int> visualOrder(std::span<const quint8> levels);

} // namespace lorva
