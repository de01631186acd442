// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/LineAssembler.h"

namespace lorva {

namespace {

template <class Visit>
void visitSpaces(BrokenLine &line, QStringView paragraph, Visit visit)
{
    for (ShapedRun &run : line.runs) {
        for (ShapedGlyph &glyph : run.glyphs) {
            if (glyph.cluster >= line.visibleEnd || glyph.cluster >= paragraph.size())
                continue;
            const QChar c = paragraph[glyph.cluster];
            if (c == u' ' || c == u'\u00a0')
                visit(glyph);
        }
    }
}

std::vector<int> visualRunOrder(const std::vector<ShapedRun> &runs)
{
    std::vector<quint8> levels;
    levels.reserve(runs.size());
    for (const ShapedRun &run : runs)
        levels.push_back(run.item.level);
    return visualOrder(levels);
}

GlyphRun placeRun(const ShapedRun &run, const Font &font, int paragraphStart, double &pen)
{
    GlyphRun placed{font, run.item.isRightToLeft(), {}};
    placed.glyphs.reserve(run.glyphs.size());
    for (const ShapedGlyph &glyph : run.glyphs) {
        placed.glyphs.push_back({glyph.glyph, QPointF(pen, 0) + glyph.offset, glyph.advance,
                                 paragraphStart + glyph.cluster});
        pen += glyph.advance;
    }
    return placed;
}

double hangingWidth(const BrokenLine &line)
{
    return visibleWidth(line.runs, std::numeric_limits<int>::max())
        - visibleWidth(line.runs, line.visibleEnd);
}

} // namespace

void justify(BrokenLine &line, QStringView paragraph, double width)
{
    const double missing = width - visibleWidth(line.runs, line.visibleEnd);
    int spaces = 0;
    visitSpaces(line, paragraph, [&](ShapedGlyph &) { ++spaces; });
    if (spaces == 0 || missing <= 0)
        return;
    visitSpaces(line, paragraph, [&](ShapedGlyph &glyph) { glyph.advance += missing / spaces; });
}

LayoutLine assembleLine(BrokenLine line, const LinePlace &place, const TextFonts &fonts)
{
    LayoutLine result;
    result.width = place.inset + visibleWidth(line.runs, line.visibleEnd);
    result.textStart = place.paragraphStart + line.start;
    result.textEnd = place.paragraphStart + line.end;
    result.isRightToLeft = place.isRightToLeft;
    result.isTruncated = line.hasEllipsis;
    // White space at the end of a right-to-left line hangs over its left edge.
    double pen = place.isRightToLeft ? -hangingWidth(line) : place.inset;
    result.runsLeft = pen;
    for (const int index : visualRunOrder(line.runs)) {
        const ShapedRun &run = line.runs[size_t(index)];
        if (!run.glyphs.empty())
            result.runs.push_back(placeRun(run, fonts.font(run.item), place.paragraphStart, pen));
    }
    return result;
}

} // namespace lorva
