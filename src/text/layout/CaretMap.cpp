// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/CaretMap.h"

#include "text/layout/TextBoundaries.h"

#include <hb-ot.h>
#include <hb.h>

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

namespace lorva {

namespace {

/// Phrases set as one ligature have some twenty letters; more places than this are spread evenly.
constexpr unsigned kMaxLigatureCarets = 64;

/// How far x is from a cell; 0 inside it.
double distanceTo(const CaretCell &cell, double x)
{
    return std::max(
        {0.0, std::min(cell.left, cell.right) - x, x - std::max(cell.left, cell.right)});
}

/// A shaping cluster: its glyphs, and the text up to the next cluster of the line.
struct ClusterBox
{
    int start = 0;
    int end = 0;
    double left = 0;
    double right = 0;
    const GlyphRun *run = nullptr;
    size_t firstGlyph = 0;
    size_t lastGlyph = 0;
};

/// Where a font divides its ligatures (OpenType `GDEF`).
class LigatureDivider
{
public:
    /// Distances in points from the cluster's left end, `parts` less one of them; empty when the
    /// font says nothing of use.
    std::vector<double> divisions(const ClusterBox &box, int parts)
    {
        if (parts < 2 || unsigned(parts) > kMaxLigatureCarets || box.run->font.isNull())
            return {};
        use(box.run->font);
        double pen = 0;
        for (size_t i = box.firstGlyph; i < box.lastGlyph; ++i) {
            const PositionedGlyph &glyph = box.run->glyphs[i];
            std::vector<double> places = caretsOf(glyph.glyph, box.run->isRightToLeft, parts - 1);
            if (!places.empty())
                return within(std::move(places), pen, box.right - box.left);
            pen += glyph.advance;
        }
        return {};
    }

private:
    void use(const Font &font)
    {
        if (m_shapingFont && m_font == font)
            return;
        m_font = font;
        m_shapingFont = font.shapingFont();
        m_pointsPerUnit = font.pointSize() / std::max(1, font.face()->metrics().unitsPerEm);
    }

    std::vector<double> caretsOf(quint32 glyph, bool isRightToLeft, int count) const
    {
        std::array<hb_position_t, kMaxLigatureCarets> positions{};
        unsigned filled = unsigned(positions.size());
        const unsigned known = hb_ot_layout_get_ligature_carets(
            m_shapingFont.get(), isRightToLeft ? HB_DIRECTION_RTL : HB_DIRECTION_LTR, glyph, 0,
            &filled, positions.data());
        if (known != unsigned(count) || filled != known)
            return {};
        std::vector<double> places;
        for (unsigned i = 0; i < filled; ++i)
            places.push_back(positions[i] * m_pointsPerUnit);
        std::sort(places.begin(), places.end());
        return places;
    }

    static std::vector<double> within(std::vector<double> places, double pen, double width)
    {
        for (double &place : places)
            place += pen;
        const bool fit = !places.empty() && places.front() > 0 && places.back() < width;
        return fit ? places : std::vector<double>();
    }

    Font m_font;
    std::shared_ptr<hb_font_t> m_shapingFont;
    double m_pointsPerUnit = 0;
};

/// Makes the cells of one line after the other.
class CellBuilder
{
public:
    explicit CellBuilder(QStringView text)
        : m_text(text)
        , m_graphemes(TextBoundaries::Kind::grapheme, text)
    {
    }

    void build(const LayoutLine &line, CaretLine &result)
    {
        m_line = &line;
        m_result = &result;
        collectBoxes();
        findEnds();
        for (const ClusterBox &box : m_boxes)
            addCells(box);
        joinParts();
        sortLogically();
        result.isOrdered =
            std::all_of(result.cells.begin(), result.cells.end(),
                        [](const CaretCell &cell) { return cell.left <= cell.right; });
    }

private:
    int clamped(int index) const
    {
        return std::clamp(index, m_result->textStart, m_result->textEnd);
    }

    void collectBoxes()
    {
        m_boxes.clear();
        double pen = m_result->left;
        for (const GlyphRun &run : m_line->runs) {
            for (size_t i = 0; i < run.glyphs.size();) {
                ClusterBox box{clamped(run.glyphs[i].cluster), 0, pen, pen, &run, i, i};
                const int cluster = run.glyphs[i].cluster;
                for (; i < run.glyphs.size() && run.glyphs[i].cluster == cluster; ++i)
                    pen += run.glyphs[i].advance;
                box.right = pen;
                box.lastGlyph = i;
                m_boxes.push_back(box);
            }
        }
        m_result->right = pen;
    }

    /// A cluster reaches to the next one of the line, in whichever run that stands.
    void findEnds()
    {
        m_starts.clear();
        for (const ClusterBox &box : m_boxes)
            m_starts.push_back(box.start);
        if (!std::is_sorted(m_starts.begin(), m_starts.end()))
            std::sort(m_starts.begin(), m_starts.end());
        for (ClusterBox &box : m_boxes) {
            const auto next = std::upper_bound(m_starts.begin(), m_starts.end(), box.start);
            box.end = next == m_starts.end() ? m_result->textEnd : *next;
            if (box.start == m_starts.front())
                box.start = m_result->textStart;
        }
    }

    void addCells(const ClusterBox &box)
    {
        if (box.start >= m_result->textEnd) {
            addEllipsis(box);
            return;
        }
        m_stops.assign(1, box.start);
        while (m_stops.back() < box.end)
            m_stops.push_back(std::min(box.end, m_graphemes.following(m_stops.back())));
        divide(box);
    }

    /// All glyphs of the ellipsis are one cell.
    void addEllipsis(const ClusterBox &box)
    {
        if (m_result->hiddenEnd <= m_result->textEnd)
            return;
        m_result->cells.push_back({m_result->textEnd, m_result->hiddenEnd, box.left, box.right,
                                   box.run->isRightToLeft, true, false});
    }

    /// One cell for each grapheme cluster between the stops, from left to right.
    void divide(const ClusterBox &box)
    {
        const int parts = int(m_stops.size()) - 1;
        std::vector<double> inner = m_divider.divisions(box, parts);
        if (inner.empty()) {
            for (int i = 1; i < parts; ++i)
                inner.push_back((box.right - box.left) * i / parts);
        }
        for (int i = 0; i < parts; ++i) {
            const int part = box.run->isRightToLeft ? parts - 1 - i : i;
            const int start = m_stops[size_t(part)];
            m_result->cells.push_back(
                {start, m_stops[size_t(part) + 1],
                 i == 0 ? box.left : box.left + inner[size_t(i) - 1],
                 i == parts - 1 ? box.right : box.left + inner[size_t(i)], box.run->isRightToLeft,
                 false,
                 part == 0 && start > m_result->textStart && !m_graphemes.isBoundary(start)});
        }
    }

    /// Two clusters of the shaper can be one of the reader's.
    void joinParts()
    {
        std::vector<CaretCell> &cells = m_result->cells;
        const bool isWhole = std::none_of(cells.begin(), cells.end(),
                                          [](const CaretCell &cell) { return cell.joinsPrevious; });
        if (isWhole)
            return;
        std::vector<CaretCell> joined;
        for (const CaretCell &cell : cells) {
            if (joined.empty() || !join(joined.back(), cell))
                joined.push_back(cell);
        }
        cells = std::move(joined);
    }

    static bool join(CaretCell &left, const CaretCell &right)
    {
        if (left.isRightToLeft != right.isRightToLeft || left.isEllipsis || right.isEllipsis)
            return false;
        if (left.isRightToLeft ? left.joinsPrevious && right.end == left.start
                               : right.joinsPrevious && left.end == right.start) {
            left.joinsPrevious = left.isRightToLeft ? right.joinsPrevious : left.joinsPrevious;
            left.start = std::min(left.start, right.start);
            left.end = std::max(left.end, right.end);
            left.right = right.right;
            return true;
        }
        return false;
    }

    void sortLogically()
    {
        const std::vector<CaretCell> &cells = m_result->cells;
        std::vector<int> &logical = m_result->logical;
        logical.resize(cells.size());
        std::iota(logical.begin(), logical.end(), 0);
        const auto before = [&](int a, int b) {
            return cells[size_t(a)].start < cells[size_t(b)].start;
        };
        if (!std::is_sorted(logical.begin(), logical.end(), before))
            std::sort(logical.begin(), logical.end(), before);
    }

    QStringView m_text;
    TextBoundaries m_graphemes;
    LigatureDivider m_divider;
    const LayoutLine *m_line = nullptr;
    CaretLine *m_result = nullptr;
    std::vector<ClusterBox> m_boxes;
    std::vector<int> m_starts;
    std::vector<int> m_stops;
};

/// Where the separator before `next` begins.
int separatorBefore(QStringView text, int next)
{
    if (next >= 2 && text[next - 1] == u'\n' && text[next - 2] == u'\r')
        return next - 2;
    return next - 1;
}

CaretLine frameOf(const LayoutLine &line, int length)
{
    CaretLine frame;
    frame.left = frame.right = line.origin.x() + line.runsLeft;
    frame.top = line.origin.y() - line.ascent;
    frame.bottom = line.origin.y() + line.descent;
    frame.textStart = std::min(line.textStart, length);
    frame.textEnd = std::clamp(line.textEnd, frame.textStart, length);
    frame.hiddenEnd = frame.textEnd;
    frame.isRightToLeft = line.isRightToLeft;
    return frame;
}

} // namespace

double CaretLine::edgeX(int edge) const
{
    if (cells.empty())
        return left;
    return edge < edgeCount() ? cells[size_t(edge)].left : cells.back().right;
}

int CaretLine::cellNear(double x) const
{
    if (isOrdered) {
        const auto holding = std::partition_point(
            cells.begin(), cells.end() - 1, [=](const CaretCell &cell) { return cell.right <= x; });
        return int(holding - cells.begin());
    }
    const auto nearer = [=](const CaretCell &a, const CaretCell &b) {
        return distanceTo(a, x) < distanceTo(b, x);
    };
    return int(std::min_element(cells.begin(), cells.end(), nearer) - cells.begin());
}

int CaretLine::cellAt(int index) const
{
    const auto after = std::partition_point(logical.begin(), logical.end(), [&](int place) {
        return cells[size_t(place)].start <= index;
    });
    if (after == logical.begin())
        return -1;
    const int place = *std::prev(after);
    return cells[size_t(place)].end > index ? place : -1;
}

int CaretLine::cellBefore(int index) const
{
    const auto at = std::partition_point(logical.begin(), logical.end(), [&](int place) {
        return cells[size_t(place)].end < index;
    });
    return at != logical.end() && cells[size_t(*at)].end == index ? *at : -1;
}

std::vector<CaretLine> caretLines(QStringView text, const TextLayout &layout)
{
    const int length = int(text.size());
    std::vector<CaretLine> lines;
    for (const LayoutLine &line : layout.lines())
        lines.push_back(frameOf(line, length));
    CellBuilder builder(text);
    for (size_t i = 0; i < lines.size(); ++i) {
        CaretLine &line = lines[i];
        if (i + 1 == lines.size()) {
            line.hiddenEnd = length;
        } else {
            const int next = lines[i + 1].textStart;
            line.isWrapped = next == line.textEnd;
            if (next > line.textEnd)
                line.hiddenEnd = std::max(line.textEnd, separatorBefore(text, next));
        }
        builder.build(layout.lines()[i], line);
    }
    return lines;
}

} // namespace lorva
