// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColorGlyphs.h"
#include "text/GlyphPainter.h"

#include "text/LayoutSupport.h"
#include "text/MadeFonts.h"

#include <QPainter>

namespace lorva::test {

/// At 100 points, so that a point is ten font units.
inline Font colorFont(const QByteArray &name, double weight = 400)
{
    return Font(openFace(madeFont(name)), 100)
        .withVariations({{fontTag('w', 'g', 'h', 't'), weight}});
}

/// The character on white, its origin at (0, 80) of 100 by 100 points.
inline QImage drawnCharacter(const Font &font, char32_t character, double ratio = 1,
                             const QColor &color = Qt::black)
{
    QImage image(QSize(100, 100) * ratio, QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::white);
    const TextLayout layout(QString::fromUcs4(&character, 1), font);
    GlyphPainter::paint(image, layout, QPointF(0, 80 - layout.lines()[0].origin.y()), color);
    return image;
}

/// The colour at a place in font units, y up.
inline QRgb colorAt(const QImage &image, double x, double y)
{
    const double ratio = image.devicePixelRatio();
    return image.pixel(int(x / 10 * ratio), int((80 - y / 10) * ratio)) & 0xFFFFFF;
}

inline bool isClose(QRgb a, QRgb b, int tolerance = 4)
{
    return std::abs(qRed(a) - qRed(b)) <= tolerance && std::abs(qGreen(a) - qGreen(b)) <= tolerance
        && std::abs(qBlue(a) - qBlue(b)) <= tolerance;
}

inline std::string colorText(QRgb color)
{
    return QString::number(color, 16).rightJustified(6, u'0').toStdString();
}

} // namespace lorva::test
