// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/ColorGlyphSource.h"
#include "text/ReadingSupport.h"

#include <QPainter>
#include <QtEndian>

#include <gtest/gtest.h>

namespace lorva::test {

/// The size of pictures below, and where the glyph's origin lies on them, in points.
constexpr int kPictureSide = 60;
constexpr QPoint kPictureOrigin(10, 50);

inline std::string colorText(QRgb pixel)
{
    return QStringLiteral("%1").arg(pixel, 8, 16, QLatin1Char('0')).toStdString();
}

/// The glyph on a transparent ground; null when it is not painted.
inline QImage pictureOf(ColorGlyphSource &glyphs, quint32 glyph, double ratio = 1,
                        const QColor &foreground = Qt::black)
{
    QImage image(QSize(kPictureSide, kPictureSide) * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(kPictureOrigin);
    return glyphs.paint(painter, glyph, foreground) ? image : QImage();
}

/// The colour at a place in points from the glyph's origin, y up; "aarrggbb", not premultiplied.
inline std::string colorAt(const QImage &picture, QPointF place)
{
    const QPointF at =
        (QPointF(kPictureOrigin) + QPointF(place.x(), -place.y())) * picture.devicePixelRatio();
    const QPoint pixel(int(std::floor(at.x())), int(std::floor(at.y())));
    if (!picture.rect().contains(pixel))
        return "outside";
    return colorText(picture.pixelColor(pixel).rgba());
}

inline bool areAlike(QRgb one, QRgb other, int tolerance)
{
    return std::abs(qRed(one) - qRed(other)) <= tolerance
        && std::abs(qGreen(one) - qGreen(other)) <= tolerance
        && std::abs(qBlue(one) - qBlue(other)) <= tolerance
        && std::abs(qAlpha(one) - qAlpha(other)) <= tolerance;
}

/// A place in points from the glyph's origin, y up, and what it must show.
struct Expected
{
    QPointF place;
    QRgb color;
};

inline void expectColors(const QImage &picture, const std::vector<Expected> &expected,
                         int tolerance = 3)
{
    ASSERT_FALSE(picture.isNull());
    for (const Expected &one : expected) {
        const std::string seen = colorAt(picture, one.place);
        EXPECT_TRUE(seen != "outside"
                    && areAlike(QRgb(std::stoul(seen, nullptr, 16)), one.color, tolerance))
            << seen << " where " << colorText(one.color) << " should be, at " << one.place.x()
            << ' ' << one.place.y();
    }
}

/// Where a table of a font file lies.
inline std::pair<qsizetype, qsizetype> tableIn(const QByteArray &font, const char *tag)
{
    const qsizetype record = font.indexOf(tag, 12);
    if (record < 0 || record + 16 > font.size())
        return {0, 0};
    return {qFromBigEndian<quint32>(font.data() + record + 8),
            qFromBigEndian<quint32>(font.data() + record + 12)};
}

template <class Number>
QByteArray bigEndian(Number number)
{
    QByteArray bytes(sizeof(Number), '\0');
    qToBigEndian(number, bytes.data());
    return bytes;
}

constexpr QRgb kNothing = 0;
constexpr QRgb kRed = 0xffff0000;
constexpr QRgb kGreen = 0xff00ff00;
constexpr QRgb kBlue = 0xff0000ff;
constexpr QRgb kYellow = 0xffffff00;
constexpr QRgb kBlack = 0xff000000;

} // namespace lorva::test
