// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/BitmapStrikes.h"
#include "text/color/BitmapTables.h"
#include "text/color/GlyphPicture.h"
#include "text/FontLimits.h"

namespace lorva {

namespace {

// The shapes of records are OpenType's, tables `CBLC` and `EBLC`, `CBDT` and `EBDT`.

constexpr quint64 kSizeRecordBytes = 48;
constexpr quint64 kSubtableRecordBytes = 8;
constexpr quint64 kSmallMetricsBytes = 5;
constexpr quint64 kBigMetricsBytes = 8;

struct Strike
{
    TableView subtables;
    quint32 subtableCount = 0;
    double ppemX = 0;
    double ppemY = 0;
};

/// Where a glyph's bytes lie in `CBDT`, and its metrics where the index holds them.
struct Location
{
    int imageFormat = 0;
    quint64 at = 0;
    quint64 length = 0;
    QByteArrayView metrics;
};

int byteAt(QByteArrayView bytes, qsizetype at)
{
    return quint8(bytes[at]);
}

int signedByteAt(QByteArrayView bytes, qsizetype at)
{
    return qint8(bytes[at]);
}

class ColorBitmaps final : public BitmapStrikes
{
public:
    explicit ColorBitmaps(const Font &font)
        : m_index(font, fontTag('C', 'B', 'L', 'C'))
        , m_data(font, fontTag('C', 'B', 'D', 'T'))
    {
        const TableView &index = m_index.view();
        const quint32 count = std::min(index.u32(4), kMaxBitmapStrikes);
        for (quint32 i = 0; i < count; ++i)
            addStrike(index, 8 + kSizeRecordBytes * i);
    }

    bool isEmpty() const { return m_strikes.empty(); }

    std::optional<BitmapGlyph> find(quint32 glyph, double pixelsPerEm) const override
    {
        for (const size_t index : bySuitability(m_sizes, pixelsPerEm)) {
            if (auto found = findIn(m_strikes[index], glyph))
                return found;
        }
        return std::nullopt;
    }

private:
    void addStrike(const TableView &index, quint64 at)
    {
        Strike strike;
        strike.subtables = index.from(index.u32(at));
        strike.subtableCount = std::min(index.u32(at + 8), kMaxBitmapSubtables);
        const quint16 sizes = index.u16(at + 44);
        strike.ppemX = sizes >> 8;
        strike.ppemY = sizes & 0xff;
        if (strike.ppemX <= 0 || strike.ppemY <= 0 || strike.subtables.isEmpty())
            return;
        m_sizes.push_back(strike.ppemY);
        m_strikes.push_back(strike);
    }

    std::optional<BitmapGlyph> findIn(const Strike &strike, quint32 glyph) const
    {
        for (quint32 i = 0; i < strike.subtableCount; ++i) {
            const quint64 record = kSubtableRecordBytes * i;
            const quint16 first = strike.subtables.u16(record);
            if (glyph < first || glyph > strike.subtables.u16(record + 2))
                continue;
            const TableView subtable = strike.subtables.from(strike.subtables.u32(record + 4));
            if (const auto location = locate(subtable, glyph, glyph - first))
                return picture(strike, *location);
        }
        return std::nullopt;
    }

    static std::optional<Location> locate(const TableView &subtable, quint32 glyph, quint32 index)
    {
        switch (subtable.u16(0)) {
        case 1:
            return between(subtable, subtable.u32(8 + 4 * quint64(index)),
                           subtable.u32(12 + 4 * quint64(index)));
        case 2:
            return sameSized(subtable, index);
        case 3:
            return between(subtable, subtable.u16(8 + 2 * quint64(index)),
                           subtable.u16(10 + 2 * quint64(index)));
        case 4: {
            const auto entry = findRecord(subtable.from(12), subtable.u32(8), 4, glyph);
            if (!entry)
                return std::nullopt;
            return between(subtable, subtable.u16(14 + 4 * *entry), subtable.u16(18 + 4 * *entry));
        }
        case 5: {
            const auto entry = findRecord(subtable.from(24), subtable.u32(20), 2, glyph);
            return entry ? sameSized(subtable, *entry) : std::nullopt;
        }
        default:
            return std::nullopt;
        }
    }

    static std::optional<Location> between(const TableView &subtable, quint64 begin, quint64 end)
    {
        if (end <= begin)
            return std::nullopt;
        return Location{subtable.u16(2), subtable.u32(4) + begin, end - begin, {}};
    }

    static std::optional<Location> sameSized(const TableView &subtable, quint64 index)
    {
        const quint64 size = subtable.u32(8);
        return Location{subtable.u16(2), subtable.u32(4) + size * index, size,
                        subtable.bytes(12, kBigMetricsBytes)};
    }

    std::optional<BitmapGlyph> picture(const Strike &strike, const Location &location) const
    {
        const TableView glyph(m_data.view().bytes(location.at, location.length));
        if (location.imageFormat == 17)
            return placed(strike, glyph.bytes(0, kSmallMetricsBytes),
                          glyph.bytes(9, glyph.u32(kSmallMetricsBytes)));
        if (location.imageFormat == 18)
            return placed(strike, glyph.bytes(0, kBigMetricsBytes),
                          glyph.bytes(12, glyph.u32(kBigMetricsBytes)));
        if (location.imageFormat == 19)
            return placed(strike, location.metrics, glyph.bytes(4, glyph.u32(0)));
        return std::nullopt;
    }

    /// Small and big metrics begin alike: height, width, bearings across and up.
    static std::optional<BitmapGlyph> placed(const Strike &strike, QByteArrayView metrics,
                                             QByteArrayView bytes)
    {
        const QSize own = glyphPictureSize(bytes);
        if (metrics.isEmpty() || own.isEmpty())
            return std::nullopt;
        const int height = byteAt(metrics, 0);
        const int width = byteAt(metrics, 1);
        const QSizeF size = width > 0 && height > 0 ? QSizeF(width, height) : QSizeF(own);
        const QRectF box(signedByteAt(metrics, 2) / strike.ppemX,
                         -signedByteAt(metrics, 3) / strike.ppemY, size.width() / strike.ppemX,
                         size.height() / strike.ppemY);
        return BitmapGlyph{bytes, box, strike.ppemY};
    }

    HeldTable m_index;
    HeldTable m_data;
    std::vector<Strike> m_strikes;
    std::vector<double> m_sizes;
};

} // namespace

std::unique_ptr<BitmapStrikes> openColorBitmaps(const Font &font)
{
    auto bitmaps = std::make_unique<ColorBitmaps>(font);
    return bitmaps->isEmpty() ? nullptr : std::move(bitmaps);
}

} // namespace lorva
