// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/GlyphInk.h"

#include "text/color/ColorGlyphs.h"
#include "text/GlyphOutlines.h"

#include <QPainter>

#include <cmath>
#include <optional>

namespace lorva {

namespace {

/// Shares of the em. Cap heights outside of these would push the baseline out of sight.
constexpr double kLowCaps = 0.5;
constexpr double kHighCaps = 0.9;

/// Where the baseline stands: capitals are in the middle of the box, which is where ideographs are,
/// too.
double baselineOf(const GlyphLook &look)
{
    const double em = look.font.pointSize();
    const double capHeight = std::clamp(look.font.capHeight(), kLowCaps * em, kHighCaps * em);
    const double y = (look.box.height() + capHeight) / 2;
    return std::round(y * look.devicePixelRatio) / look.devicePixelRatio;
}

/// How far to move what reaches from `low` to `high` so that it lies between the others, which it
/// fits in.
double shiftInto(double low, double high, double from, double to)
{
    if (low < from)
        return from - low;
    return high > to ? to - high : 0;
}

} // namespace

struct GlyphInkPainter::Parts
{
    GlyphOutliner outliner;
    /// Only for a font that may have some.
    std::optional<ColorGlyphs> colors;
};

QImage GlyphInk::colored(const QColor &color) const
{
    if (isColored || image.isNull())
        return image;
    QImage result(image.size(), QImage::Format_ARGB32_Premultiplied);
    result.fill(color);
    QPainter painter(&result);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.drawImage(0, 0, image);
    return result;
}

GlyphInkPainter::GlyphInkPainter(const GlyphLook &look)
    : m_look(look)
    , m_baseline(baselineOf(look))
    , m_parts(new Parts{GlyphOutliner(look.font), std::nullopt})
{
    if (!look.font.isNull() && mayHaveColor(*look.font.face()))
        m_parts->colors.emplace(look.font);
}

GlyphInkPainter::~GlyphInkPainter() = default;

QTransform GlyphInkPainter::placed(const QRectF &ink, double advance) const
{
    const QRectF room = QRectF(QPointF(), QSizeF(m_look.box))
                            .adjusted(m_look.margin, m_look.margin, -m_look.margin, -m_look.margin);
    const double ratio = m_look.devicePixelRatio;
    QTransform toDevice = QTransform::fromScale(ratio, ratio);
    const double shrink = std::min(room.width() / ink.width(), room.height() / ink.height());
    if (shrink < 1) {
        toDevice.translate(room.center().x(), room.center().y());
        toDevice.scale(shrink, shrink);
        return toDevice.translate(-ink.center().x(), -ink.center().y());
    }
    // What takes no room by itself (marks) has its ink anywhere but over its own place.
    const double middle = advance > 0 ? advance / 2 : ink.center().x();
    const QPointF origin(room.center().x() - middle, m_baseline);
    const QRectF at = ink.translated(origin);
    return toDevice.translate(
        origin.x() + shiftInto(at.left(), at.right(), room.left(), room.right()),
        origin.y() + shiftInto(at.top(), at.bottom(), room.top(), room.bottom()));
}

/// Draws on an image that is just as large as the ink.
template <class Draw>
GlyphInk GlyphInkPainter::painted(const QRectF &inkPx, const Draw &draw) const
{
    // Antialiasing reaches beyond the outline.
    const QRect pixels = inkPx.toAlignedRect().adjusted(-1, -1, 1, 1);
    QImage image(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return {};
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.translate(-pixels.topLeft());
    if (!draw(painter))
        return {};
    painter.end();
    return {image, pixels.topLeft(), true};
}

GlyphInk GlyphInkPainter::paint(quint32 glyph)
{
    if (m_look.font.isNull())
        return {};
    const double advance = m_parts->outliner.advance(glyph);
    if (m_parts->colors && m_parts->colors->has(glyph)) {
        const QRectF box = m_parts->colors->bounds(glyph);
        if (box.isEmpty())
            return {};
        const QTransform place = placed(box, advance);
        GlyphInk ink = painted(place.mapRect(box), [&](QPainter &painter) {
            painter.setTransform(place, true);
            return m_parts->colors->paint(painter, glyph, m_look.foreground);
        });
        if (!ink.image.isNull())
            return ink;
    }
    QPainterPath outline;
    m_parts->outliner.append(outline, glyph, {});
    const QRectF box = outline.boundingRect();
    if (box.isEmpty())
        return {};
    const QTransform place = placed(box, advance);
    GlyphInk ink = painted(place.mapRect(box), [&](QPainter &painter) {
        outline.setFillRule(Qt::WindingFill);
        painter.fillPath(place.map(outline), Qt::black);
        return true;
    });
    ink.image = std::move(ink.image).convertToFormat(QImage::Format_Alpha8);
    ink.isColored = false;
    return ink;
}

} // namespace lorva
