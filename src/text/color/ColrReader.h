// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColrPaint.h"
#include "text/color/ColrVariations.h"
#include "text/HeldTable.h"

#include <optional>

namespace lorva {

class ColrRecord;

/// Reads the paints of colour glyphs out of OpenType `COLR`, in a font's palette and at its place
/// in the design space.
///
/// Thread: any, one at a time per object. Hostile fonts: the table's graph is read as a tree of at
/// most kMaxPaintNodes paints and kMaxPaintDepth levels; what leads back to itself paints nothing.
class ColrReader
{
public:
    explicit ColrReader(const Font &font);
    ~ColrReader();

    bool isEmpty() const { return m_table.isEmpty(); }
    /// Nothing for a glyph without colour, for one that paints nothing and for one beyond the
    /// limits.
    std::optional<ColrPaint> read(quint32 glyph);
    /// How many paints the last read() came to.
    int nodesRead() const { return m_nodes; }

private:
    std::optional<ColrPaint> readLayersOfVersion0(quint32 glyph);
    quint64 positionOf(quint32 glyph) const;
    std::optional<QRectF> clipBoxOf(quint32 glyph);
    QRectF readClipBox(quint64 at);

    ColrPaint colorGlyph(quint32 glyph, int depth);
    ColrPaint paint(quint64 at, int depth);
    ColrPaint paintOfFormat(quint64 at, int depth);
    ColrPaint layers(quint64 at, int depth);
    ColrPaint glyph(quint64 at, int depth);
    ColrPaint child(quint64 at, quint64 field, int depth);
    ColrPaint transformed(quint64 at, int depth, const QTransform &transform);
    ColrPaint composite(quint64 at, int depth);
    ColrPaint solid(const ColrRecord &record) const;
    ColrPaint linearGradient(const ColrRecord &record);
    ColrPaint radialGradient(const ColrRecord &record);
    ColrPaint sweepGradient(const ColrRecord &record);
    bool readColorLine(const ColrRecord &record, ColrGradient &gradient);
    ColrColor color(quint16 entry, double alpha) const;

    quint8 byte(quint64 at) const
    {
        return m_table.has(at, 1) ? quint8(m_table.bytes(at, 1)[0]) : 0;
    }
    quint64 offset24(quint64 at) const;
    bool spendNode();

    HeldTable m_held;
    TableView m_table;
    ColrVariations m_variations;
    std::vector<QRgb> m_palette;
    /// Where the paints stand that are just being read, from the outermost on.
    std::vector<quint64> m_path;
    int m_nodes = 0;
    int m_stops = 0;
    int m_nodesLeft = kMaxPaintNodesPerText;
    bool m_isBeyondLimits = false;
};

} // namespace lorva
