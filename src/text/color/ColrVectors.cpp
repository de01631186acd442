// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrVectors.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

bool hasDistinctOffsets(const std::vector<ColrStop> &stops)
{
    // QGradient keeps one stop only at each place, to within this.
    constexpr double kLeastGap = 1e-6;
    return std::adjacent_find(
               stops.begin(), stops.end(),
               [](const ColrStop &a, const ColrStop &b) { return b.offset - a.offset < kLeastGap; })
        == stops.end();
}

/// PDF and SVG interpolate alpha apart from colour.
bool hasOneAlpha(const std::vector<ColrStop> &stops)
{
    const auto alpha = [](const ColrStop &stop) {
        return stop.color.isForeground ? -stop.color.alpha
                                       : stop.color.alpha * qAlpha(stop.color.rgba);
    };
    return std::all_of(stops.begin(), stops.end(),
                       [&](const ColrStop &stop) { return alpha(stop) == alpha(stops.front()); });
}

bool isPlain(const ColrGradient &gradient)
{
    const bool isConcentric = gradient.start == gradient.end && gradient.startRadius == 0
        && gradient.stops.front().offset >= 0;
    return gradient.extend == ColrExtend::pad && gradient.stops.size() > 1
        && hasDistinctOffsets(gradient.stops) && hasOneAlpha(gradient.stops)
        && (gradient.kind == ColrGradient::Kind::linear
            || (gradient.kind == ColrGradient::Kind::radial && isConcentric));
}

bool isPlainFill(const ColrFill &fill)
{
    return fill.paint
        && (fill.paint->kind == ColrPaint::Kind::solid
            || (isPlain(*fill.paint->gradient) && fill.transform.isInvertible()));
}

QGradientStops qtStops(const ColrGradient &gradient, double first, double length,
                       const QColor &foreground)
{
    QGradientStops stops;
    for (const ColrStop &stop : gradient.stops)
        stops.append(
            {std::clamp((stop.offset - first) / length, 0.0, 1.0), stop.color.with(foreground)});
    return stops;
}

/// Qt's gradients end at 0 and 1, so the stops' own range becomes that.
QBrush brushOf(const ColrGradient &gradient, const QColor &foreground)
{
    const double last = gradient.stops.back().offset;
    if (gradient.kind == ColrGradient::Kind::linear) {
        const double first = gradient.stops.front().offset;
        const QPointF along = gradient.end - gradient.start;
        QLinearGradient brush(gradient.start + first * along, gradient.start + last * along);
        brush.setStops(qtStops(gradient, first, last - first, foreground));
        return brush;
    }
    QRadialGradient brush(gradient.start, gradient.endRadius * last);
    brush.setStops(qtStops(gradient, 0, last, foreground));
    return brush;
}

class VectorPainter
{
public:
    VectorPainter(QPainter &painter, ColrOutlines &outlines, const QColor &foreground)
        : m_painter(painter)
        , m_base(painter.transform())
        , m_outlines(outlines)
        , m_foreground(foreground)
    {
    }

    void draw(const ColrPaint &paint, const QTransform &transform)
    {
        if (paint.kind == ColrPaint::Kind::glyph)
            return fillGlyph(paint, transform);
        const bool isMove = paint.kind == ColrPaint::Kind::transform;
        for (const ColrPaint &child : paint.children)
            draw(child, isMove ? paint.transform * transform : transform);
    }

private:
    void fillGlyph(const ColrPaint &paint, const QTransform &transform)
    {
        const QPainterPath &outline = m_outlines.outline(paint.glyph);
        const ColrFill fill = plainFillOf(paint);
        if (fill.paint->kind == ColrPaint::Kind::solid) {
            m_painter.setTransform(m_base);
            m_painter.fillPath(transform.map(outline), fill.paint->color.with(m_foreground));
            return;
        }
        // In the gradient's own space, because not every vector device heeds a brush's transform.
        m_painter.setTransform(fill.transform * transform * m_base);
        m_painter.fillPath(fill.transform.inverted().map(outline),
                           brushOf(*fill.paint->gradient, m_foreground));
    }

    QPainter &m_painter;
    const QTransform m_base;
    ColrOutlines &m_outlines;
    const QColor m_foreground;
};

} // namespace

bool arePlainVectors(const ColrPaint &paint, ColrOutlines &outlines)
{
    const auto areChildrenPlain = [&] {
        return std::all_of(
            paint.children.begin(), paint.children.end(),
            [&](const ColrPaint &child) { return arePlainVectors(child, outlines); });
    };
    switch (paint.kind) {
    case ColrPaint::Kind::nothing:
        return true;
    case ColrPaint::Kind::solid:
    case ColrPaint::Kind::gradient:
        return false;
    case ColrPaint::Kind::glyph:
        return isPlainFill(plainFillOf(paint));
    case ColrPaint::Kind::composite:
        return paint.mode == ColrComposite::sourceOver && areChildrenPlain();
    case ColrPaint::Kind::box: {
        const ColrExtent extent = extentOf(paint.children[0], {}, outlines);
        return !extent.isUnbounded && paint.box.contains(extent.box) && areChildrenPlain();
    }
    case ColrPaint::Kind::layers:
    case ColrPaint::Kind::transform:
        return areChildrenPlain();
    }
    return false;
}

void paintAsVectors(QPainter &painter, const ColrPaint &paint, const QTransform &unitsToPoints,
                    ColrOutlines &outlines, const QColor &foreground)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    VectorPainter(painter, outlines, foreground).draw(paint, unitsToPoints);
    painter.restore();
}

} // namespace lorva
