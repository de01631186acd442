// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/ShapedParagraph.h"

#include <unicode/uchar.h>

#include <algorithm>

namespace lorva {

namespace {

using Glyphs = std::vector<ShapedGlyph>;

/// The glyphs whose clusters lie in [start, end); clusters are sorted, so long runs stay cheap to
/// cut.
std::span<const ShapedGlyph> glyphsBetween(const ShapedRun &run, int start, int end)
{
    const Glyphs &glyphs = run.glyphs;
    const bool falls = run.item.isRightToLeft();
    const auto first =
        std::partition_point(glyphs.begin(), glyphs.end(), [&](const ShapedGlyph &g) {
            return falls ? g.cluster >= end : g.cluster < start;
        });
    const auto last = std::partition_point(first, glyphs.end(), [&](const ShapedGlyph &g) {
        return falls ? g.cluster >= start : g.cluster < end;
    });
    return {first, last};
}

/// Whether the glyphs on both sides of `index` are what they would be if text ended there.
bool isSafeCut(const ShapedRun &run, int index)
{
    if (index <= run.item.start || index >= run.item.end)
        return true;
    const auto at = glyphsBetween(run, index, index + 1);
    return !at.empty() && std::none_of(at.begin(), at.end(), [](const ShapedGlyph &g) {
        return g.isUnsafeToBreak;
    });
}

} // namespace

ShapedParagraph::ShapedParagraph(QStringView text, TextDirection direction, TextFonts &fonts)
    : m_text(text)
    , m_fonts(fonts)
{
    ItemizedParagraph itemized = itemize(text, direction);
    m_baseLevel = itemized.baseLevel;
    const std::vector<TextItem> items = fonts.assign(text, std::move(itemized.items));
    m_runs.reserve(items.size());
    for (const TextItem &item : items)
        m_runs.push_back(fonts.shaper(item).shape(text, item));
    measure();
}

void ShapedParagraph::measure()
{
    m_positions.assign(size_t(m_text.size()) + 1, 0);
    for (const ShapedRun &run : m_runs)
        measureRun(run);
    double sum = 0;
    for (double &position : m_positions)
        sum += std::exchange(position, sum);
}

/// Puts each unit's share of its cluster's width at its index.
void ShapedParagraph::measureRun(const ShapedRun &run)
{
    const Glyphs &glyphs = run.glyphs;
    const bool falls = run.item.isRightToLeft();
    int previous = run.item.end;
    for (size_t i = 0; i < glyphs.size();) {
        const int cluster = glyphs[i].cluster;
        double advance = 0;
        for (; i < glyphs.size() && glyphs[i].cluster == cluster; ++i)
            advance += glyphs[i].advance;
        const int next = i < glyphs.size() ? glyphs[i].cluster : run.item.end;
        const int end = std::clamp(falls ? previous : next, cluster + 1, run.item.end);
        for (int unit = cluster; unit < end; ++unit)
            m_positions[size_t(unit)] += advance / (end - cluster);
        previous = cluster;
    }
}

int ShapedParagraph::trimmedEnd(int start, int end) const
{
    // u_isWhitespace leaves the no-break spaces out: those are part of the text.
    while (end > start && u_isWhitespace(m_text[end - 1].unicode()))
        --end;
    return end;
}

std::vector<ShapedRun>::const_iterator ShapedParagraph::runAt(int index) const
{
    return std::partition_point(m_runs.begin(), m_runs.end(),
                                [=](const ShapedRun &run) { return run.item.end <= index; });
}

ShapedRun ShapedParagraph::cutRun(const ShapedRun &run, int start, int end, quint8 level) const
{
    TextItem item = run.item;
    item.start = std::max(start, item.start);
    item.end = std::min(end, item.end);
    item.level = level;
    const bool isWhole = item.start == run.item.start && item.end == run.item.end;
    const bool turns = item.isRightToLeft() != run.item.isRightToLeft();
    if (turns || (!isWhole && (!isSafeCut(run, start) || !isSafeCut(run, end))))
        return m_fonts.shaper(item).shape(m_text, item);
    const auto glyphs = glyphsBetween(run, item.start, item.end);
    return {item, Glyphs(glyphs.begin(), glyphs.end())};
}

std::vector<ShapedRun> ShapedParagraph::cut(int start, int end) const
{
    std::vector<ShapedRun> line;
    const int textEnd = trimmedEnd(start, end);
    for (auto run = runAt(start); run != m_runs.end() && run->item.start < end; ++run) {
        const int visible = run->item.level == baseLevel() ? end : std::min(end, textEnd);
        if (std::max(start, run->item.start) < visible)
            line.push_back(cutRun(*run, start, visible, run->item.level));
        if (visible < std::min(end, run->item.end))
            line.push_back(cutRun(*run, std::max(start, visible), end, baseLevel()));
    }
    return line;
}

ShapedRun ShapedParagraph::ellipsisAt(int at) const
{
    auto run = runAt(std::max(0, at - 1));
    const quint32 script = run == m_runs.end() ? quint32(HB_SCRIPT_COMMON) : run->item.script;
    return m_fonts.mainShaper().shapeEllipsis({at, at, baseLevel(), script, script});
}

double visibleWidth(std::span<const ShapedRun> runs, int trimmedEnd)
{
    double width = 0;
    for (const ShapedRun &run : runs) {
        for (const ShapedGlyph &glyph : run.glyphs) {
            if (glyph.cluster < trimmedEnd)
                width += glyph.advance;
        }
    }
    return width;
}

} // namespace lorva
