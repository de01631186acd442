// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QByteArray>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

#include <limits>
#include <vector>

namespace lorva {

class FontFallback;

enum class TextAlignment { left, right, center, justified, natural };
/// wordWrap: lines break between words (UAX #14), a word wider than the line between grapheme
/// clusters. truncateTail: what does not fit is replaced by an ellipsis (U+2026, three full stops
/// where the face lacks it, nothing where it lacks both) at the visual end of the paragraph's
/// direction.
enum class LineBreakMode { wordWrap, truncateTail };
enum class TextDirection { automatic, leftToRight, rightToLeft };

struct TextLayoutOptions
{
    /// Points; lines are wrapped, truncated and aligned to it. Infinite: one line per paragraph,
    /// aligned to the widest.
    double width = std::numeric_limits<double>::infinity();
    TextAlignment alignment = TextAlignment::natural;
    LineBreakMode lineBreakMode = LineBreakMode::wordWrap;
    /// 0: as many as it takes; with truncateTail then one line per paragraph. Otherwise text wraps
    /// up to this many lines, and with truncateTail the last of them ends in an ellipsis if text is
    /// left over.
    int maximumLines = 0;
    TextDirection direction = TextDirection::automatic;
    /// Points left free before the first line's text (a logo stands there); moves and wraps with
    /// it. In a right-to-left paragraph it lies at the line's right end.
    double firstLineInset = 0;
    /// Points after every cluster, but not between letters of a joined script (Arabic, Syriac,
    /// Mongolian …): a gap there would cut the stroke that joins them. Common ligatures are off
    /// when it is not 0, unless the font's features ask for them.
    double letterSpacing = 0;
    /// BCP 47, for the face's language-specific forms (OpenType `locl`) and the choice of fallback
    /// fonts. Empty: what the script implies (kana, hangul, bopomofo, and ideographs beside them),
    /// else the process's locale.
    QByteArray language;
    /// Where other fonts come from for characters that the face lacks: whole grapheme clusters, at
    /// the same size, without the font's feature settings. Lines grow with a font that is higher.
    /// Null: they show as the face's missing glyph.
    std::shared_ptr<const FontFallback> fallback;
};

struct PositionedGlyph
{
    quint32 glyph = 0;
    /// Points from the line's origin, y down.
    QPointF position;
    /// Points that the pen moves on; the cluster's width is the sum over its glyphs.
    double advance = 0;
    /// Index of the cluster's first UTF-16 unit in the text.
    int cluster = 0;
};

/// Glyphs of one font, direction and script, from left to right.
struct GlyphRun
{
    Font font;
    bool isRightToLeft = false;
    std::vector<PositionedGlyph> glyphs;
};

struct LayoutLine
{
    /// In visual order, from left to right.
    std::vector<GlyphRun> runs;
    /// The left end of the line's width on the layout's canvas: x after alignment, y of the
    /// baseline.
    QPointF origin;
    /// Where the pen begins for the leftmost run, from the origin: the inset, or what hangs over
    /// the left end.
    double runsLeft = 0;
    /// Advance width without trailing white space (which hangs over the line's end), the first
    /// line's inset included.
    double width = 0;
    double ascent = 0;
    double descent = 0;
    /// UTF-16 units of the text on this line, the paragraph separator not counted.
    int textStart = 0;
    int textEnd = 0;
    /// The paragraph's direction.
    bool isRightToLeft = false;
    /// Text that the line should hold, or that follows it, is not shown.
    bool isTruncated = false;
};

/// Sets text in a font: bidirectional runs (UAX #9), script runs (UAX #24), shaping, line breaks
/// (UAX #14), tail truncation and alignment. What the face cannot draw shows as its missing glyph.
///
/// A value, immutable once made. Thread: any.
/// Units: points, y down, origin at the top left of the layout's box.
/// Hostile fonts and texts: work is bounded by kMaxLayoutCharacters; an empty or null font sets no
/// glyphs but still has lines. A soft hyphen is a place to break and never drawn.
class TextLayout
{
public:
    TextLayout() = default;
    TextLayout(const QString &text, const Font &font, const TextLayoutOptions &options = {});

    const std::vector<LayoutLine> &lines() const & { return m_lines; }
    /// A copy, so that a range-for over a layout that dies at once is safe.
    std::vector<LayoutLine> lines() && { return std::move(m_lines); }
    /// Widest line by the sum of line heights.
    QSizeF size() const { return m_size; }
    bool isTruncated() const;
    /// The box around the ink of all glyphs; null when nothing is drawn.
    QRectF inkBounds() const;

private:
    std::vector<LayoutLine> m_lines;
    QSizeF m_size;
};

} // namespace lorva
