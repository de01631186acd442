// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QImage>
#include <QTransform>

#include <list>
#include <map>
#include <tuple>

class QPainter;

namespace lorva {

/// How large a picture in a font's bytes is, by its first bytes; empty unless it is a whole PNG or
/// a JPEG within kMaxGlyphPictureSide. Decodes nothing. Thread: any.
QSize glyphPictureSize(QByteArrayView bytes);
/// The picture, premultiplied; null when it is damaged. No other decoder of the desktop is ever
/// asked than those for PNG and JPEG. Thread: any.
QImage readGlyphPicture(QByteArrayView bytes);

/// The picture at another size, which may be broken: a last row or column that is only partly
/// covered is so far transparent. Reduced by averaging areas, enlarged linearly. Null where the
/// size is empty or beyond kMaxGlyphPictureSide. Thread: any.
QImage scaledPicture(const QImage &picture, QSizeF sizePx);

/// What the device of a painter makes of points.
class PictureSpace
{
public:
    explicit PictureSpace(const QPainter &painter);

    /// Pixels are made here and now, and points are only scaled and moved: pictures can be made for
    /// the very pixels.
    bool isUpright() const { return m_isUpright; }
    /// PDF, SVG and the like.
    bool isVector() const { return m_isVector; }
    /// Device pixels that a point takes, across and down.
    QSizeF scale() const { return m_scale; }
    QPointF toDevice(QPointF point) const { return m_toDevice.map(point); }

private:
    QTransform m_toDevice;
    QSizeF m_scale;
    bool m_isVector;
    bool m_isUpright;
};

/// Draws the picture's pixels as the device's, its top left at that one.
void drawDevicePixels(QPainter &painter, const QImage &picture, QPoint at);
/// Draws it into the rectangle of points, smoothly.
void drawIntoRect(QPainter &painter, const QImage &picture, const QRectF &target);

/// Keeps pictures that were used last, within a number of bytes. Thread: one.
class PictureCache
{
public:
    struct Key
    {
        quint32 glyph = 0;
        double width = 0;
        double height = 0;
        quint64 variant = 0;
        bool operator<(const Key &other) const
        {
            return std::tie(glyph, width, height, variant)
                < std::tie(other.glyph, other.width, other.height, other.variant);
        }
    };

    explicit PictureCache(qsizetype maxBytes)
        : m_maxBytes(maxBytes)
    {
    }
    /// Null when there is none.
    QImage find(const Key &key);
    void insert(const Key &key, const QImage &picture);

private:
    using Order = std::list<std::pair<Key, QImage>>;
    const qsizetype m_maxBytes;
    qsizetype m_bytes = 0;
    Order m_order;
    std::map<Key, Order::iterator> m_index;
};

} // namespace lorva
