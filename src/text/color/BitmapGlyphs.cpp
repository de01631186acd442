// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/BitmapStrikes.h"
#include "text/color/ColorGlyphSource.h"
#include "text/color/GlyphPicture.h"
#include "text/FontFaceData.h"
#include "text/FontLimits.h"

#include <QPainter>

#include <cmath>
#include <unordered_map>

namespace lorva {

namespace {

QRectF scaledBox(const QRectF &box, double factor)
{
    return {box.topLeft() * factor, box.size() * factor};
}

bool isSmaller(QSizeF size, QSize than)
{
    return size.width() < than.width() || size.height() < than.height();
}

/// Draws pictures of the strike that suits the device, made for its very pixels where it has any.
class BitmapGlyphs final : public ColorGlyphSource
{
public:
    BitmapGlyphs(const Font &font, std::unique_ptr<BitmapStrikes> strikes)
        : m_pointSize(font.pointSize())
        , m_strikes(std::move(strikes))
    {
    }

    bool has(quint32 glyph) override { return !box(glyph).isEmpty(); }
    QRectF bounds(quint32 glyph) override { return scaledBox(box(glyph), m_pointSize); }

    bool paint(QPainter &painter, quint32 glyph, const QColor &) override
    {
        const PictureSpace space(painter);
        const double pixels = m_pointSize * space.scale().height();
        const auto found = m_strikes->find(glyph, pixels);
        if (!found)
            return false;
        const QImage picture = decoded(glyph, *found);
        if (picture.isNull())
            return false;
        const QRectF target = scaledBox(found->boxEms, m_pointSize);
        if (!space.isUpright() || !drawAligned(painter, space, glyph, picture, target))
            drawIntoRect(painter, space.isVector() ? picture : reduced(picture, space, target),
                         target);
        return true;
    }

private:
    QRectF box(quint32 glyph)
    {
        if (const auto known = m_boxes.find(glyph); known != m_boxes.end())
            return known->second;
        const auto found = m_strikes->find(glyph, m_pointSize);
        const QRectF box = found ? found->boxEms : QRectF();
        m_boxes.emplace(glyph, box);
        return box;
    }

    QImage decoded(quint32 glyph, const BitmapGlyph &found)
    {
        const PictureCache::Key key{glyph, 0, 0, quint64(found.pixelsPerEm)};
        QImage picture = m_pictures.find(key);
        if (!picture.isNull())
            return picture;
        picture = readGlyphPicture(found.bytes);
        if (!picture.isNull())
            m_pictures.insert(key, picture);
        return picture;
    }

    /// At whole pixels, so that a picture looks the same wherever it stands; false where that would
    /// take a picture larger than any.
    bool drawAligned(QPainter &painter, const PictureSpace &space, quint32 glyph,
                     const QImage &picture, const QRectF &target)
    {
        const QSizeF size(target.width() * space.scale().width(),
                          target.height() * space.scale().height());
        const PictureCache::Key key{glyph, size.width(), size.height(), 0};
        QImage scaled = m_pictures.find(key);
        if (scaled.isNull()) {
            scaled = scaledPicture(picture, size);
            if (scaled.isNull())
                return false;
            m_pictures.insert(key, scaled);
        }
        const QPointF corner = space.toDevice(target.topLeft());
        drawDevicePixels(painter, scaled,
                         {int(std::lround(corner.x())), int(std::lround(corner.y()))});
        return true;
    }

    /// Turned pictures are sampled by the painter, which averages no more than four pixels.
    static QImage reduced(const QImage &picture, const PictureSpace &space, const QRectF &target)
    {
        const QSizeF size(std::ceil(target.width() * space.scale().width()),
                          std::ceil(target.height() * space.scale().height()));
        const QImage smaller =
            isSmaller(size, picture.size()) ? scaledPicture(picture, size) : QImage();
        return smaller.isNull() ? picture : smaller;
    }

    const double m_pointSize;
    const std::unique_ptr<BitmapStrikes> m_strikes;
    std::unordered_map<quint32, QRectF> m_boxes;
    PictureCache m_pictures{kMaxKeptPictureBytes};
};

bool hasTable(const Font &font, FontTag tag)
{
    return font.face()->data().directory.has(tag);
}

} // namespace

std::unique_ptr<ColorGlyphSource> makeBitmapGlyphs(const Font &font)
{
    if (font.isNull())
        return nullptr;
    std::unique_ptr<BitmapStrikes> strikes;
    if (hasTable(font, fontTag('C', 'B', 'D', 'T')))
        strikes = openColorBitmaps(font);
    if (!strikes && hasTable(font, fontTag('s', 'b', 'i', 'x')))
        strikes = openStandardBitmaps(font);
    return strikes ? std::make_unique<BitmapGlyphs>(font, std::move(strikes)) : nullptr;
}

} // namespace lorva
