// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrReader.h"

#include "text/color/ColrRecord.h"

#include <hb-ot.h>
#include <hb.h>

#include <algorithm>

namespace lorva {

namespace {

constexpr quint16 kForegroundEntry = 0xFFFF;

ColrPaint paintOf(std::shared_ptr<const ColrGradient> gradient)
{
    ColrPaint paint;
    paint.kind = ColrPaint::Kind::gradient;
    paint.gradient = std::move(gradient);
    return paint;
}

std::vector<int> normalizedCoordinates(hb_font_t *font)
{
    unsigned count = 0;
    const int *const coordinates = hb_font_get_var_coords_normalized(font, &count);
    return std::vector<int>(coordinates, coordinates + std::min<size_t>(count, kMaxVariationAxes));
}

/// The subtable that a 32-bit offset of the header leads to; empty for offset 0.
TableView subtable(TableView table, quint64 field)
{
    const quint32 offset = table.u32(field);
    return offset ? table.from(offset) : TableView();
}

} // namespace

ColrReader::ColrReader(const Font &font)
    : m_held(font, fontTag('C', 'O', 'L', 'R'))
    , m_table(m_held.view())
    , m_palette(chosenColors(font))
{
    if (m_table.u16(0) >= 1)
        m_variations = ColrVariations(subtable(m_table, 30), subtable(m_table, 26),
                                      normalizedCoordinates(font.shapingFont().get()));
}

ColrReader::~ColrReader() = default;

std::optional<ColrPaint> ColrReader::read(quint32 glyph)
{
    m_nodes = 0;
    m_stops = 0;
    m_isBeyondLimits = false;
    m_path.clear();
    std::optional<ColrPaint> result;
    if (m_table.u16(0) >= 1 && positionOf(glyph) != 0)
        result = colorGlyph(glyph, 0);
    else
        result = readLayersOfVersion0(glyph);
    m_nodesLeft -= m_nodes;
    if (m_isBeyondLimits || (result && result->kind == ColrPaint::Kind::nothing))
        return std::nullopt;
    return result;
}

std::optional<ColrPaint> ColrReader::readLayersOfVersion0(quint32 glyph)
{
    const TableView records = subtable(m_table, 4);
    const auto found = findRecord(records, m_table.u16(2), 6, glyph);
    if (!found)
        return std::nullopt;
    const quint64 first = records.u16(*found * 6 + 2);
    const quint64 last = std::min<quint64>(first + records.u16(*found * 6 + 4), m_table.u16(12));
    const TableView layerRecords = subtable(m_table, 8);
    ColrPaint result;
    result.kind = ColrPaint::Kind::layers;
    for (quint64 i = first; i < last && layerRecords.has(i * 4, 4) && spendNode(); ++i) {
        ColrPaint layer = ColrPaint::upon(ColrPaint::Kind::glyph,
                                          ColrPaint::solid(color(layerRecords.u16(i * 4 + 2), 1)));
        layer.glyph = layerRecords.u16(i * 4);
        result.children.push_back(std::move(layer));
    }
    return result.children.empty() ? std::nullopt : std::optional(std::move(result));
}

/// From the start of the table; 0 without one.
quint64 ColrReader::positionOf(quint32 glyph) const
{
    const quint64 list = m_table.u32(14);
    const TableView records = list ? m_table.from(list + 4) : TableView();
    const quint64 count = list ? m_table.u32(list) : 0;
    const auto found = findRecord(records, count, 6, glyph);
    const quint32 offset = found ? records.u32(*found * 6 + 2) : 0;
    return offset ? list + offset : 0;
}

std::optional<QRectF> ColrReader::clipBoxOf(quint32 glyph)
{
    const quint64 list = m_table.u32(22);
    if (list == 0 || byte(list) != 1)
        return std::nullopt;
    quint64 low = 0;
    quint64 high = m_table.u32(list + 1);
    while (low < high) {
        const quint64 middle = low + (high - low) / 2;
        if (m_table.u16(list + 5 + middle * 7 + 2) < glyph)
            low = middle + 1;
        else
            high = middle;
    }
    const quint64 record = list + 5 + low * 7;
    if (low >= m_table.u32(list + 1) || !m_table.has(record, 7) || m_table.u16(record) > glyph)
        return std::nullopt;
    return readClipBox(list + offset24(record + 4));
}

QRectF ColrReader::readClipBox(quint64 at)
{
    const ColrRecord record(m_table, at, m_variations, byte(at) == 2, 9);
    const double left = record.word(1, 0);
    const double bottom = record.word(3, 1);
    const double width = record.word(5, 2) - left;
    const double height = record.word(7, 3) - bottom;
    return width > 0 && height > 0 ? QRectF(left, bottom, width, height) : QRectF();
}

ColrPaint ColrReader::colorGlyph(quint32 glyph, int depth)
{
    const quint64 at = positionOf(glyph);
    if (at == 0)
        return {};
    ColrPaint content = paint(at, depth + 1);
    const std::optional<QRectF> box = clipBoxOf(glyph);
    if (!box || content.kind == ColrPaint::Kind::nothing)
        return content;
    ColrPaint result = ColrPaint::upon(ColrPaint::Kind::box, std::move(content));
    result.box = *box;
    return result;
}

ColrPaint ColrReader::paint(quint64 at, int depth)
{
    if (depth > kMaxPaintDepth)
        m_isBeyondLimits = true;
    const bool isCycle = std::find(m_path.begin(), m_path.end(), at) != m_path.end();
    if (isCycle || !m_table.has(at, 3) || !spendNode())
        return {};
    m_path.push_back(at);
    ColrPaint result = paintOfFormat(at, depth);
    m_path.pop_back();
    return result;
}

ColrPaint ColrReader::paintOfFormat(quint64 at, int depth)
{
    const quint8 format = byte(at);
    // Where the varied form, the odd one of each pair from 2 on, has its variation index.
    constexpr quint8 kVariationFields[]{5, 16, 16, 12, 0, 0, 8, 8, 12, 6, 10, 6, 10, 8, 12};
    const size_t pair = size_t(std::max(0, format / 2 - 1));
    const quint64 field = pair < std::size(kVariationFields) ? kVariationFields[pair] : 0;
    const bool varies = format % 2 == 1;
    const ColrRecord record(m_table, at, m_variations, varies && field != 0, field);
    switch (format) {
    case 1:
        return layers(at, depth);
    case 2:
    case 3:
        return solid(record);
    case 4:
    case 5:
        return linearGradient(record);
    case 6:
    case 7:
        return radialGradient(record);
    case 8:
    case 9:
        return sweepGradient(record);
    case 10:
        return glyph(at, depth);
    case 11:
        return colorGlyph(m_table.u16(at + 1), depth);
    case 12:
    case 13:
        return transformed(
            at, depth,
            colrAffine(ColrRecord(m_table, at + offset24(at + 4), m_variations, varies, 24)));
    case 32:
        return composite(at, depth);
    default:
        if (format >= 14 && format <= 31)
            return transformed(at, depth, colrTransform(format, record));
        return {};
    }
}

ColrPaint ColrReader::layers(quint64 at, int depth)
{
    const quint64 list = m_table.u32(18);
    if (list == 0)
        return {};
    const quint64 first = m_table.u32(at + 2);
    const quint64 last = std::min<quint64>(first + byte(at + 1), m_table.u32(list));
    ColrPaint result;
    result.kind = ColrPaint::Kind::layers;
    for (quint64 i = first; i < last && !m_isBeyondLimits; ++i) {
        const quint32 offset = m_table.u32(list + 4 + i * 4);
        if (offset == 0)
            continue;
        ColrPaint layer = paint(list + offset, depth + 1);
        if (layer.kind != ColrPaint::Kind::nothing)
            result.children.push_back(std::move(layer));
    }
    return result.children.empty() ? ColrPaint() : result;
}

ColrPaint ColrReader::glyph(quint64 at, int depth)
{
    ColrPaint content = child(at, 1, depth);
    if (content.kind == ColrPaint::Kind::nothing)
        return content;
    ColrPaint result = ColrPaint::upon(ColrPaint::Kind::glyph, std::move(content));
    result.glyph = m_table.u16(at + 4);
    return result;
}

ColrPaint ColrReader::child(quint64 at, quint64 field, int depth)
{
    const quint64 offset = offset24(at + field);
    return offset ? paint(at + offset, depth + 1) : ColrPaint();
}

ColrPaint ColrReader::transformed(quint64 at, int depth, const QTransform &transform)
{
    if (!isUsable(transform))
        return {};
    ColrPaint content = child(at, 1, depth);
    if (content.kind == ColrPaint::Kind::nothing)
        return content;
    ColrPaint result = ColrPaint::upon(ColrPaint::Kind::transform, std::move(content));
    result.transform = transform;
    return result;
}

ColrPaint ColrReader::composite(quint64 at, int depth)
{
    const quint8 mode = byte(at + 4);
    if (mode > quint8(ColrComposite::hslLuminosity))
        return {};
    ColrPaint result = ColrPaint::upon(ColrPaint::Kind::composite, child(at, 5, depth));
    result.mode = ColrComposite(mode);
    result.children.push_back(child(at, 1, depth));
    return result;
}

ColrPaint ColrReader::solid(const ColrRecord &record) const
{
    return ColrPaint::solid(color(record.u16(1), record.f2dot14(3, 0)));
}

ColrPaint ColrReader::linearGradient(const ColrRecord &record)
{
    auto gradient = std::make_shared<ColrGradient>();
    const QPointF p0(record.word(4, 0), record.word(6, 1));
    const QPointF p1(record.word(8, 2), record.word(10, 3));
    const QPointF p2(record.word(12, 4), record.word(14, 5));
    // The lines of one colour are parallel to p0 → p2.
    const QPointF across(p2.y() - p0.y(), p0.x() - p2.x());
    const double length = QPointF::dotProduct(across, across);
    const double along = QPointF::dotProduct(p1 - p0, across);
    if (length == 0 || along == 0 || !readColorLine(record, *gradient))
        return {};
    gradient->kind = ColrGradient::Kind::linear;
    gradient->start = p0;
    gradient->end = p0 + across * (along / length);
    return paintOf(std::move(gradient));
}

ColrPaint ColrReader::radialGradient(const ColrRecord &record)
{
    auto gradient = std::make_shared<ColrGradient>();
    gradient->kind = ColrGradient::Kind::radial;
    gradient->start = QPointF(record.word(4, 0), record.word(6, 1));
    gradient->startRadius = record.unsignedWord(8, 2);
    gradient->end = QPointF(record.word(10, 3), record.word(12, 4));
    gradient->endRadius = record.unsignedWord(14, 5);
    const bool isPoint =
        gradient->start == gradient->end && gradient->startRadius == gradient->endRadius;
    if (isPoint || !readColorLine(record, *gradient))
        return {};
    return paintOf(std::move(gradient));
}

ColrPaint ColrReader::sweepGradient(const ColrRecord &record)
{
    auto gradient = std::make_shared<ColrGradient>();
    gradient->kind = ColrGradient::Kind::sweep;
    gradient->start = QPointF(record.word(4, 0), record.word(6, 1));
    // Angles are stored less one half turn, so that they reach from −180 to 540 degrees.
    gradient->startAngle = (record.f2dot14(8, 2) + 1) * 180;
    gradient->endAngle = (record.f2dot14(10, 3) + 1) * 180;
    if (!readColorLine(record, *gradient))
        return {};
    return paintOf(std::move(gradient));
}

bool ColrReader::readColorLine(const ColrRecord &record, ColrGradient &gradient)
{
    const quint64 offset = offset24(record.at() + 1);
    const quint64 line = record.at() + offset;
    const bool varies = (byte(record.at()) & 1) != 0;
    const quint64 size = varies ? 10 : 6;
    const quint64 count = m_table.u16(line + 1);
    if (offset == 0 || count == 0 || !m_table.has(line + 3, count * size))
        return false;
    m_stops += int(count);
    m_isBeyondLimits |= m_stops > kMaxPaintStops;
    if (m_isBeyondLimits)
        return false;
    const quint8 extend = byte(line);
    gradient.extend = extend <= 2 ? ColrExtend(extend) : ColrExtend::pad;
    gradient.stops.reserve(count);
    for (quint64 i = 0; i < count; ++i) {
        const ColrRecord stop(m_table, line + 3 + i * size, m_variations, varies, 6);
        gradient.stops.push_back({stop.f2dot14(0, 0), color(stop.u16(2), stop.f2dot14(4, 1))});
    }
    std::stable_sort(gradient.stops.begin(), gradient.stops.end(),
                     [](const ColrStop &a, const ColrStop &b) { return a.offset < b.offset; });
    return true;
}

ColrColor ColrReader::color(quint16 entry, double alpha) const
{
    ColrColor result;
    result.alpha = std::clamp(alpha, 0.0, 1.0);
    result.isForeground = entry == kForegroundEntry;
    if (!result.isForeground && entry < m_palette.size())
        result.rgba = m_palette[entry];
    return result;
}

quint64 ColrReader::offset24(quint64 at) const
{
    return (quint64(m_table.u16(at)) << 8) | quint64(m_table.u16(at + 1) & 0xFF);
}

bool ColrReader::spendNode()
{
    ++m_nodes;
    if (m_nodes > kMaxPaintNodes || m_nodes > m_nodesLeft)
        m_isBeyondLimits = true;
    return !m_isBeyondLimits;
}

} // namespace lorva
