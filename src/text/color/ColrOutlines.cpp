// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrOutlines.h"

#include <algorithm>

namespace lorva {

namespace {

/// Segments of outlines kept together: some megabytes.
constexpr int kKeptSegments = 2 * kMaxOutlineSegments;

Font unitSized(const Font &font)
{
    return font.isNull() ? font : font.withPointSize(font.face()->metrics().unitsPerEm);
}

ColrExtent united(const ColrExtent &a, const ColrExtent &b)
{
    return {a.isUnbounded || b.isUnbounded, a.box | b.box};
}

ColrExtent intersected(const ColrExtent &a, const ColrExtent &b)
{
    if (a.isUnbounded || b.isUnbounded)
        return a.isUnbounded ? b : a;
    return {false, a.box & b.box};
}

/// OpenType `COLR`, "Bounding Box": which side bounds the outcome of a composition.
ColrExtent extentOfComposite(ColrComposite mode, const ColrExtent &backdrop,
                             const ColrExtent &source)
{
    switch (mode) {
    case ColrComposite::clear:
        return {};
    case ColrComposite::source:
    case ColrComposite::sourceOut:
        return source;
    case ColrComposite::destination:
    case ColrComposite::destinationOut:
        return backdrop;
    case ColrComposite::sourceIn:
    case ColrComposite::destinationIn:
        return intersected(source, backdrop);
    default:
        return united(source, backdrop);
    }
}

} // namespace

ColrOutlines::ColrOutlines(const Font &font)
    : m_outliner(unitSized(font))
{
}

const QPainterPath &ColrOutlines::outline(quint32 glyph)
{
    static const QPainterPath kNothing;
    if (m_segmentsLeft <= 0)
        return kNothing;
    const QPainterPath &outline = keptOutline(glyph);
    m_segmentsLeft -= outline.elementCount() + 1;
    return outline;
}

const QPainterPath &ColrOutlines::keptOutline(quint32 glyph)
{
    const auto known = m_outlines.find(glyph);
    if (known != m_outlines.end())
        return known->second;
    if (m_segments > kKeptSegments) {
        m_outlines.clear();
        m_segments = 0;
    }
    QPainterPath path;
    m_segments += m_outliner.append(path, glyph, QPointF());
    path = QTransform::fromScale(1, -1).map(path);
    path.setFillRule(Qt::WindingFill);
    return m_outlines.emplace(glyph, std::move(path)).first->second;
}

ColrExtent extentOf(const ColrPaint &paint, const QTransform &transform, ColrOutlines &outlines)
{
    switch (paint.kind) {
    case ColrPaint::Kind::nothing:
        return {};
    case ColrPaint::Kind::solid:
    case ColrPaint::Kind::gradient:
        return {true, {}};
    case ColrPaint::Kind::layers: {
        ColrExtent all;
        for (const ColrPaint &layer : paint.children)
            all = united(all, extentOf(layer, transform, outlines));
        return all;
    }
    case ColrPaint::Kind::transform:
        return extentOf(paint.children[0], paint.transform * transform, outlines);
    case ColrPaint::Kind::box: {
        const ColrExtent box{false, transform.mapRect(paint.box)};
        return intersected(extentOf(paint.children[0], transform, outlines), box);
    }
    case ColrPaint::Kind::glyph: {
        const QPainterPath path = transform.map(outlines.outline(paint.glyph));
        const ColrExtent glyph{false, path.boundingRect()};
        return plainFillOf(paint).paint
            ? glyph
            : intersected(extentOf(paint.children[0], transform, outlines), glyph);
    }
    case ColrPaint::Kind::composite:
        return extentOfComposite(paint.mode, extentOf(paint.children[0], transform, outlines),
                                 extentOf(paint.children[1], transform, outlines));
    }
    return {};
}

} // namespace lorva
