// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphPainter.h"

#include "text/color/ColorGlyphs.h"
#include "text/GlyphOutlines.h"

#include <QPainter>

#include <cmath>

namespace lorva {

namespace {

/// How far a baseline at `y` points is from the next pixel edge, in points. Flat feet of letters
/// that ended between pixels would be blurred.
double toPixelEdge(double y, double ratio)
{
    return std::round(y * ratio) / ratio - y;
}

QRectF pointBounds(const QImage &image)
{
    return QRectF(QPointF(0, 0), QSizeF(image.size()) / image.devicePixelRatio());
}

/// Draws what a layout shows, each line moved as the device asks for.
class InkPainter : public InkVisitor
{
public:
    InkPainter(QPainter &painter, const QColor &color)
        : m_painter(painter)
        , m_color(color)
        , m_base(painter.transform())
    {
        painter.setRenderHint(QPainter::Antialiasing);
    }

    void outline(const LayoutLine &line, const QPainterPath &outline) override
    {
        const QPointF at = offset(line);
        if (isVisible(outline.controlPointRect().translated(at))) {
            moveTo(at);
            m_painter.fillPath(outline, m_color);
        }
    }

    bool picture(const LayoutLine &line, ColorGlyphs &glyphs, quint32 glyph, QPointF at) override
    {
        const QPointF origin = offset(line) + at;
        if (!isVisible(glyphs.bounds(glyph).translated(origin)))
            return true;
        moveTo(origin);
        return glyphs.paint(m_painter, glyph, m_color);
    }

protected:
    /// From the layout's coordinates to the painter's.
    virtual QPointF offset(const LayoutLine &line) const = 0;
    virtual bool isVisible(const QRectF &box) const = 0;

private:
    void moveTo(QPointF at)
    {
        m_painter.setTransform(QTransform::fromTranslate(at.x(), at.y()) * m_base);
    }

    QPainter &m_painter;
    const QColor m_color;
    const QTransform m_base;
};

class ImageInkPainter : public InkPainter
{
public:
    ImageInkPainter(QPainter &painter, const QColor &color, const QImage &image, QPointF origin)
        : InkPainter(painter, color)
        , m_visible(pointBounds(image))
        , m_ratio(image.devicePixelRatio())
        , m_origin(origin)
    {
    }

protected:
    QPointF offset(const LayoutLine &line) const override
    {
        return m_origin + QPointF(0, toPixelEdge(m_origin.y() + line.origin.y(), m_ratio));
    }
    bool isVisible(const QRectF &box) const override { return box.intersects(m_visible); }

private:
    const QRectF m_visible;
    const double m_ratio;
    const QPointF m_origin;
};

class DeviceInkPainter : public InkPainter
{
public:
    DeviceInkPainter(QPainter &painter, const QColor &color, QPointF origin)
        : InkPainter(painter, color)
        , m_origin(origin)
    {
    }

protected:
    QPointF offset(const LayoutLine &) const override { return m_origin; }
    bool isVisible(const QRectF &) const override { return true; }

private:
    const QPointF m_origin;
};

} // namespace

void GlyphPainter::paint(QImage &image, const TextLayout &layout, QPointF origin,
                         const QColor &color)
{
    if (image.isNull())
        return;
    QPainter painter(&image);
    ImageInkPainter ink(painter, color, image, origin);
    visitInk(layout, ink);
}

void GlyphPainter::paint(QPainter &painter, const TextLayout &layout, QPointF origin,
                         const QColor &color)
{
    if (!painter.isActive())
        return;
    painter.save();
    DeviceInkPainter ink(painter, color, origin);
    visitInk(layout, ink);
    painter.restore();
}

QPainterPath GlyphPainter::path(const TextLayout &layout)
{
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    forEachOutline(layout,
                   [&](const LayoutLine &, const QPainterPath &outline) { path.addPath(outline); });
    return path;
}

} // namespace lorva
