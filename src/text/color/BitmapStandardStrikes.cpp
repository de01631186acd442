// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/BitmapStrikes.h"
#include "text/color/BitmapTables.h"
#include "text/color/GlyphPicture.h"
#include "text/FontLimits.h"

namespace lorva {

namespace {

constexpr FontTag kPng = fontTag('p', 'n', 'g', ' ');
constexpr FontTag kJpeg = fontTag('j', 'p', 'g', ' ');
constexpr FontTag kSameAs = fontTag('d', 'u', 'p', 'e');
constexpr quint64 kGlyphHeaderBytes = 8;

/// Where the outline of a glyph of `glyf` begins: pictures are placed from there. Nothing is ever
/// drawn there; fonts put two points to say where the picture's corner is.
class OutlineCorners
{
public:
    explicit OutlineCorners(const Font &font)
        : m_outlines(font, fontTag('g', 'l', 'y', 'f'))
        , m_locations(font, fontTag('l', 'o', 'c', 'a'))
        , m_advances(font, fontTag('h', 'm', 't', 'x'))
        , m_isLong(HeldTable(font, fontTag('h', 'e', 'a', 'd')).view().u16(50) != 0)
        , m_longMetrics(HeldTable(font, fontTag('h', 'h', 'e', 'a')).view().u16(34))
    {
    }

    /// In font units: the left side bearing, and the lowest point.
    QPointF corner(quint32 glyph) const
    {
        const TableView &locations = m_locations.view();
        const quint64 index = glyph;
        const quint64 begin =
            m_isLong ? locations.u32(4 * index) : 2 * quint64(locations.u16(2 * index));
        const quint64 end =
            m_isLong ? locations.u32(4 * index + 4) : 2 * quint64(locations.u16(2 * index + 2));
        const TableView outline(end > begin ? m_outlines.view().bytes(begin, end - begin)
                                            : QByteArrayView());
        if (outline.i16(0) == 0)
            return {};
        return {double(leftBearing(index)), double(outline.i16(4))};
    }

private:
    int leftBearing(quint64 glyph) const
    {
        const quint64 count = m_longMetrics;
        return m_advances.view().i16(glyph < count ? 4 * glyph + 2
                                                   : 4 * count + 2 * (glyph - count));
    }

    HeldTable m_outlines;
    HeldTable m_locations;
    HeldTable m_advances;
    bool m_isLong;
    quint16 m_longMetrics;
};

class StandardBitmaps final : public BitmapStrikes
{
public:
    explicit StandardBitmaps(const Font &font)
        : m_table(font, fontTag('s', 'b', 'i', 'x'))
        , m_corners(font)
        , m_glyphCount(quint32(font.face()->glyphCount()))
        , m_unitsPerEm(std::max(1, font.face()->metrics().unitsPerEm))
    {
        const TableView &table = m_table.view();
        const quint32 count = std::min(table.u32(4), kMaxBitmapStrikes);
        for (quint32 i = 0; i < count; ++i)
            addStrike(table.from(table.u32(8 + 4 * quint64(i))));
    }

    bool isEmpty() const { return m_strikes.empty(); }

    std::optional<BitmapGlyph> find(quint32 glyph, double pixelsPerEm) const override
    {
        if (glyph >= m_glyphCount)
            return std::nullopt;
        for (const size_t index : bySuitability(m_sizes, pixelsPerEm)) {
            if (auto found = findIn(index, glyph))
                return found;
        }
        return std::nullopt;
    }

private:
    void addStrike(const TableView &strike)
    {
        if (strike.u16(0) == 0)
            return;
        m_sizes.push_back(strike.u16(0));
        m_strikes.push_back(strike);
    }

    TableView record(size_t strike, quint32 glyph) const
    {
        const TableView &view = m_strikes[strike];
        const quint64 begin = view.u32(4 + 4 * quint64(glyph));
        const quint64 end = view.u32(8 + 4 * quint64(glyph));
        return TableView(end > begin + kGlyphHeaderBytes ? view.bytes(begin, end - begin)
                                                         : QByteArrayView());
    }

    std::optional<BitmapGlyph> findIn(size_t strike, quint32 glyph) const
    {
        TableView found = record(strike, glyph);
        // The picture of another glyph, never one that is itself another's.
        if (found.u32(4) == kSameAs && found.u16(kGlyphHeaderBytes) < m_glyphCount)
            found = record(strike, found.u16(kGlyphHeaderBytes));
        if (found.u32(4) != kPng && found.u32(4) != kJpeg)
            return std::nullopt;
        const QByteArrayView bytes =
            found.bytes(kGlyphHeaderBytes, found.size() - kGlyphHeaderBytes);
        const QSize size = glyphPictureSize(bytes);
        if (size.isEmpty())
            return std::nullopt;
        return BitmapGlyph{bytes, box(glyph, found, size, m_sizes[strike]), m_sizes[strike]};
    }

    /// The offset of the picture's lower left corner is in its own pixels, from the outline's.
    QRectF box(quint32 glyph, const TableView &found, QSize size, double pixelsPerEm) const
    {
        const QPointF corner = m_corners.corner(glyph) / m_unitsPerEm;
        const double left = corner.x() + found.i16(0) / pixelsPerEm;
        const double bottom = -corner.y() - found.i16(2) / pixelsPerEm;
        const QSizeF ems = QSizeF(size) / pixelsPerEm;
        return {QPointF(left, bottom - ems.height()), ems};
    }

    HeldTable m_table;
    OutlineCorners m_corners;
    quint32 m_glyphCount;
    double m_unitsPerEm;
    std::vector<TableView> m_strikes;
    std::vector<double> m_sizes;
};

} // namespace

std::unique_ptr<BitmapStrikes> openStandardBitmaps(const Font &font)
{
    auto bitmaps = std::make_unique<StandardBitmaps>(font);
    return bitmaps->isEmpty() ? nullptr : std::move(bitmaps);
}

} // namespace lorva
