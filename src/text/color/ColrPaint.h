// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <QTransform>

#include <memory>
#include <vector>

namespace lorva {

/// A colour of the chosen palette, or the text's own.
struct ColrColor
{
    /// Not premultiplied.
    QRgb rgba = 0;
    bool isForeground = false;
    /// 0 … 1, on top of the colour's own.
    double alpha = 1;

    QColor with(const QColor &foreground) const
    {
        QColor color = isForeground ? foreground : QColor::fromRgba(rgba);
        color.setAlphaF(float(color.alphaF() * alpha));
        return color;
    }
    bool operator==(const ColrColor &) const = default;
};

enum class ColrExtend { pad, repeat, reflect };

struct ColrStop
{
    double offset = 0;
    ColrColor color;
};

/// A gradient that is well formed, in font units, y up. Stops are sorted; there is at least one.
struct ColrGradient
{
    enum class Kind { linear, radial, sweep };

    Kind kind = Kind::linear;
    ColrExtend extend = ColrExtend::pad;
    std::vector<ColrStop> stops;
    /// Where offsets 0 and 1 are. linear: lines of one colour stand at right angles to their
    /// connection. radial: centres of the two circles. sweep: `start` is the centre.
    QPointF start;
    QPointF end;
    /// radial only; never negative.
    double startRadius = 0;
    double endRadius = 0;
    /// sweep only: degrees, counter-clockwise from the x axis.
    double startAngle = 0;
    double endAngle = 0;
};

/// In the order of OpenType `COLR`, "CompositeMode enumeration".
enum class ColrComposite : quint8 {
    clear,
    source,
    destination,
    sourceOver,
    destinationOver,
    sourceIn,
    destinationIn,
    sourceOut,
    destinationOut,
    sourceAtop,
    destinationAtop,
    exclusiveOr,
    plus,
    screen,
    overlay,
    darken,
    lighten,
    colorDodge,
    colorBurn,
    hardLight,
    softLight,
    difference,
    exclusion,
    multiply,
    hslHue,
    hslSaturation,
    hslColor,
    hslLuminosity,
};

/// A paint of OpenType `COLR` with all that it refers to: a tree, variations applied, whatever the
/// table's graph was. In font units, y up.
struct ColrPaint
{
    enum class Kind {
        /// Paints nothing.
        nothing,
        /// Paints the children, the first at the bottom.
        layers,
        /// Fills everything.
        solid,
        gradient,
        /// Shows the child where the outline of `glyph` is.
        glyph,
        /// Shows the child where `box` is.
        box,
        /// Shows the child moved by `transform`.
        transform,
        /// Shows the second child (the source) upon the first (the backdrop).
        composite,
    };

    Kind kind = Kind::nothing;
    ColrComposite mode = ColrComposite::sourceOver;
    quint32 glyph = 0;
    ColrColor color;
    std::shared_ptr<const ColrGradient> gradient;
    QRectF box;
    QTransform transform;
    std::vector<ColrPaint> children;

    static ColrPaint solid(const ColrColor &color)
    {
        ColrPaint paint;
        paint.kind = Kind::solid;
        paint.color = color;
        return paint;
    }
    /// With a first child.
    static ColrPaint upon(Kind kind, ColrPaint child)
    {
        ColrPaint paint;
        paint.kind = kind;
        paint.children.push_back(std::move(child));
        return paint;
    }
};

/// What a glyph's outline is filled with, and the way from the fill's own coordinates to the
/// glyph's. Null when it is not a mere colour or gradient.
struct ColrFill
{
    const ColrPaint *paint = nullptr;
    QTransform transform;
};
ColrFill plainFillOf(const ColrPaint &glyphPaint);

} // namespace lorva
