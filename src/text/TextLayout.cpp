// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/TextLayout.h"

#include "text/FontLimits.h"
#include "text/GlyphOutlines.h"
#include "text/layout/LineAssembler.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// Every font has a line height, whatever its tables say; shares of the point size for those
/// without.
constexpr double kFallbackAscent = 0.8;
constexpr double kFallbackDescent = 0.2;

/// At most kMaxLayoutCharacters units, never half a surrogate pair; control characters become
/// spaces (tab) or nothing visible, for no face has glyphs for them.
QString layoutText(const QString &text)
{
    qsizetype length = std::min<qsizetype>(text.size(), kMaxLayoutCharacters);
    if (length < text.size() && text[length].isLowSurrogate() && text[length - 1].isHighSurrogate())
        --length;
    QString result = text.left(length);
    for (qsizetype i = 0; i < length; ++i) {
        const char16_t u = result.at(i).unicode();
        if (u == u'\t')
            result[i] = u' ';
        else if (u < 0x09 || (u > 0x0D && u < 0x20) || (u >= 0x7F && u < 0xA0 && u != 0x85))
            result[i] = QChar(0x200B);
    }
    return result;
}

struct Extents
{
    double ascent = 0;
    double descent = 0;
};

Extents fontExtents(const Font &font)
{
    const Extents extents{font.ascent(), font.descent()};
    if (extents.ascent + extents.descent > 0)
        return extents;
    return {kFallbackAscent * font.pointSize(), kFallbackDescent * font.pointSize()};
}

bool isBlank(QStringView text)
{
    return text.trimmed().isEmpty();
}

TextLayoutOptions sanitized(TextLayoutOptions options)
{
    options.width = std::isnan(options.width) ? std::numeric_limits<double>::infinity()
                                              : std::max(0.0, options.width);
    options.firstLineInset =
        std::isfinite(options.firstLineInset) ? std::max(0.0, options.firstLineInset) : 0;
    if (options.maximumLines <= 0)
        options.maximumLines = std::numeric_limits<int>::max();
    return options;
}

/// Sets a text paragraph by paragraph until it ends or no more lines are allowed.
class LayoutBuilder
{
public:
    LayoutBuilder(const QString &text, const Font &font, const TextLayoutOptions &options)
        : m_text(layoutText(text))
        , m_isCutShort(m_text.size() < text.size())
        , m_font(font)
        , m_options(sanitized(options))
        , m_truncates(options.lineBreakMode == LineBreakMode::truncateTail)
        , m_onePerParagraph(m_truncates && options.maximumLines <= 0)
        , m_fonts(font, options)
    {
    }

    std::vector<LayoutLine> build()
    {
        for (const TextParagraph &paragraph : splitParagraphs(m_text)) {
            if (!hasRoom())
                break;
            setParagraph(paragraph);
        }
        m_lines.back().isTruncated |= m_isCutShort;
        place();
        return std::move(m_lines);
    }

private:
    bool hasRoom() const { return int(m_lines.size()) < m_options.maximumLines; }
    double inset() const { return m_lines.empty() ? m_options.firstLineInset : 0; }
    double available() const { return std::max(0.0, m_options.width - inset()); }

    bool isLastAllowedLine() const
    {
        return m_onePerParagraph || int(m_lines.size()) + 1 == m_options.maximumLines;
    }

    void setParagraph(const TextParagraph &range)
    {
        const QStringView text = QStringView(m_text).mid(range.start, range.end - range.start);
        const ShapedParagraph paragraph(text, m_options.direction, m_fonts);
        LineBreaker breaker(paragraph);
        int start = 0;
        do {
            BrokenLine line = nextLine(breaker, start, range.end);
            start = line.end;
            const bool isLast = line.hasEllipsis || start >= text.size();
            addLine(std::move(line), paragraph, range.start, isLast);
            if (isLast)
                break;
        } while (hasRoom());
        m_lines.back().isTruncated |= leavesTextOut(range.start + start, range.end);
    }

    BrokenLine nextLine(LineBreaker &breaker, int start, int paragraphEnd) const
    {
        const bool fits = breaker.restFits(start, available());
        if (m_truncates && isLastAllowedLine()) {
            const bool showsAll = fits && (m_onePerParagraph || isBlank(textAfter(paragraphEnd)));
            return showsAll ? breaker.rest(start) : breaker.truncate(start, available());
        }
        return fits && start == 0 ? breaker.rest(start) : breaker.wrap(start, available());
    }

    QStringView textAfter(int index) const { return QStringView(m_text).mid(index); }

    bool leavesTextOut(int end, int paragraphEnd) const
    {
        if (m_onePerParagraph)
            return !isBlank(QStringView(m_text).mid(end, paragraphEnd - end));
        return !hasRoom() && !isBlank(textAfter(end));
    }

    void addLine(BrokenLine line, const ShapedParagraph &paragraph, int paragraphStart, bool isLast)
    {
        if (m_options.alignment == TextAlignment::justified && !isLast
            && std::isfinite(m_options.width))
            justify(line, paragraph.text(), available());
        const LinePlace at{paragraphStart, paragraph.isRightToLeft(), paragraph.baseLevel(),
                           inset()};
        m_lines.push_back(assembleLine(std::move(line), at, m_fonts));
    }

    /// Gives every line its baseline and its left end.
    void place()
    {
        const Extents own = fontExtents(m_font);
        const double lineGap = m_font.lineGap();
        const double box = boxWidth();
        double top = 0;
        for (LayoutLine &line : m_lines) {
            const auto [ascent, descent] = extentsOf(line, own);
            line.ascent = ascent;
            line.descent = descent;
            line.origin = QPointF((box - line.width) * leftShare(line), top + ascent);
            top += ascent + descent + lineGap;
        }
    }

    /// A line is as high as the main font, or as the highest one that stands in on it, so that
    /// lines never overlap.
    Extents extentsOf(const LayoutLine &line, Extents own) const
    {
        Extents extents = own;
        for (const GlyphRun &run : line.runs) {
            if (!m_options.fallback || run.font == m_font)
                continue;
            const Extents other = fontExtents(run.font);
            extents = {std::max(extents.ascent, other.ascent),
                       std::max(extents.descent, other.descent)};
        }
        return extents;
    }

    double boxWidth() const
    {
        if (std::isfinite(m_options.width))
            return m_options.width;
        double widest = 0;
        for (const LayoutLine &line : m_lines)
            widest = std::max(widest, line.width);
        return widest;
    }

    /// The share of a line's free space that stands at its left.
    double leftShare(const LayoutLine &line) const
    {
        switch (m_options.alignment) {
        case TextAlignment::left:
            return 0;
        case TextAlignment::right:
            return 1;
        case TextAlignment::center:
            return 0.5;
        case TextAlignment::justified:
        case TextAlignment::natural:
            break;
        }
        return line.isRightToLeft ? 1 : 0;
    }

    const QString m_text;
    const bool m_isCutShort;
    const Font &m_font;
    const TextLayoutOptions m_options;
    const bool m_truncates;
    const bool m_onePerParagraph;
    TextFonts m_fonts;
    std::vector<LayoutLine> m_lines;
};

} // namespace

TextLayout::TextLayout(const QString &text, const Font &font, const TextLayoutOptions &options)
    : m_lines(LayoutBuilder(text, font, options).build())
{
    double width = 0;
    for (const LayoutLine &line : m_lines)
        width = std::max(width, line.width);
    const LayoutLine &last = m_lines.back();
    m_size = QSizeF(width, last.origin.y() + last.descent);
}

bool TextLayout::isTruncated() const
{
    return std::any_of(m_lines.begin(), m_lines.end(),
                       [](const LayoutLine &line) { return line.isTruncated; });
}

QRectF TextLayout::inkBounds() const
{
    return inkBoundsOf(*this);
}

} // namespace lorva
