// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColorGlyphSource.h"

#include "text/color/ColrReader.h"
#include "text/color/ColrRenderer.h"
#include "text/color/ColrVectors.h"
#include "text/FontFaceData.h"
#include "text/FontLimits.h"

#include <QPaintEngine>
#include <QPainter>

#include <cmath>
#include <unordered_map>

namespace lorva {

namespace {

/// Of pictures on vector devices that cannot be vectors: sharp in print.
constexpr double kVectorPixelsPerPoint = 600 / 72.0;

/// Where a picture is drawn, and how finely.
struct Raster
{
    QTransform pointsToPixels;
    /// Within the picture's own pixels.
    QRect pixels;
    bool isExact = true;
};

bool hasPixels(const QPainter &painter)
{
    const QPaintEngine::Type type = painter.paintEngine()->type();
    return type == QPaintEngine::Raster || type == QPaintEngine::OpenGL2;
}

/// What of the device can show at all; everything, where that is not known.
QRectF deviceRect(const QPainter &painter)
{
    constexpr double kEverywhere = 1e9;
    const QPaintDevice *const device = painter.device();
    if (device && (device->devType() == QInternal::Image || device->devType() == QInternal::Pixmap))
        return QRectF(0, 0, device->width(), device->height());
    return QRectF(-kEverywhere, -kEverywhere, 2 * kEverywhere, 2 * kEverywhere);
}

double area(const QRectF &rect)
{
    return rect.width() * rect.height();
}

/// Nothing to draw gives no pixels.
Raster rasterFor(const QPainter &painter, const QRectF &bounds)
{
    Raster raster;
    raster.pointsToPixels = painter.deviceTransform();
    const bool isDevicePixels = hasPixels(painter) && raster.pointsToPixels.isAffine();
    if (!isDevicePixels)
        raster.pointsToPixels = QTransform::fromScale(kVectorPixelsPerPoint, kVectorPixelsPerPoint);
    raster.isExact = isDevicePixels;
    QRectF box = raster.pointsToPixels.mapRect(bounds);
    if (isDevicePixels)
        box &= deviceRect(painter);
    // Written so that what is no number fails too.
    if (!(area(box) > 0) || !raster.pointsToPixels.isInvertible())
        return raster;
    const auto most = double(isDevicePixels ? kMaxColorImagePixels : kMaxVectorImagePixels);
    if (area(box) > most) {
        const double shrink = std::sqrt(most / area(box));
        raster.pointsToPixels *= QTransform::fromScale(shrink, shrink);
        box = QTransform::fromScale(shrink, shrink).mapRect(box);
        raster.isExact = false;
    }
    constexpr double kLongest = 32767;
    raster.pixels =
        box.width() <= kLongest && box.height() <= kLongest ? box.toAlignedRect() : QRect();
    return raster;
}

void drawPicture(QPainter &painter, const QImage &image, const Raster &raster)
{
    painter.save();
    // So that the picture's pixels fall upon the device's.
    painter.setTransform(raster.pointsToPixels.inverted() * painter.transform());
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !raster.isExact);
    painter.drawImage(raster.pixels.topLeft(), image);
    painter.restore();
}

class ColrGlyphs : public ColorGlyphSource
{
public:
    explicit ColrGlyphs(const Font &font)
        : m_font(font)
        , m_reader(font)
        , m_outlines(font)
    {
        const FaceMetrics &metrics = font.face()->metrics();
        const double scale = font.pointSize() / std::max(1, metrics.unitsPerEm);
        m_unitsToPoints = QTransform::fromScale(scale, -scale);
    }

    bool isEmpty() const { return m_reader.isEmpty(); }
    bool has(quint32 glyph) override { return find(glyph).paint.has_value(); }

    QRectF bounds(quint32 glyph) override
    {
        const Picture &picture = find(glyph);
        return picture.paint ? m_unitsToPoints.mapRect(picture.units) : QRectF();
    }

    bool paint(QPainter &painter, quint32 glyph, const QColor &foreground) override
    {
        Picture &picture = find(glyph);
        if (!picture.paint)
            return false;
        if (picture.units.isEmpty() || m_font.pointSize() <= 0)
            return true;
        if (!hasPixels(painter) && arePlainVectors(*picture.paint, m_outlines)) {
            paintAsVectors(painter, *picture.paint, m_unitsToPoints, m_outlines, foreground);
            return true;
        }
        return paintImage(painter, picture, foreground);
    }

private:
    struct Picture
    {
        /// Nothing for glyphs without colour, and for those that turned out to be too much.
        std::optional<ColrPaint> paint;
        /// Where it shows, in font units, y up.
        QRectF units;
        int nodes = 0;
    };

    Picture &find(quint32 glyph)
    {
        const auto known = m_pictures.find(glyph);
        if (known != m_pictures.end())
            return known->second;
        if (m_nodes > kKeptNodes) {
            m_pictures.clear();
            m_nodes = 0;
        }
        Picture picture;
        picture.paint = m_reader.read(glyph);
        if (picture.paint)
            picture.units = extentInUnits(*picture.paint);
        m_nodes += m_reader.nodesRead() + 1;
        return m_pictures.emplace(glyph, std::move(picture)).first->second;
    }

    /// The clip box, else what the outlines cover, else the em box.
    QRectF extentInUnits(const ColrPaint &paint)
    {
        if (paint.kind == ColrPaint::Kind::box)
            return paint.box;
        const ColrExtent extent = extentOf(paint, {}, m_outlines);
        if (!extent.isUnbounded)
            return extent.box;
        const FaceMetrics &metrics = m_font.face()->metrics();
        return QRectF(0, metrics.descender, metrics.unitsPerEm,
                      metrics.ascender - metrics.descender);
    }

    bool paintImage(QPainter &painter, Picture &picture, const QColor &foreground)
    {
        const Raster raster = rasterFor(painter, m_unitsToPoints.mapRect(picture.units));
        if (raster.pixels.isEmpty())
            return true;
        ColrRenderer renderer(m_outlines, foreground);
        const QImage image = m_paintedPixels > budgetFor(painter)
            ? QImage()
            : renderer.render(*picture.paint, m_unitsToPoints * raster.pointsToPixels,
                              raster.pixels);
        m_paintedPixels += renderer.pixelsPainted();
        if (image.isNull()) {
            picture.paint.reset();
            return false;
        }
        drawPicture(painter, image, raster);
        return true;
    }

    static qint64 budgetFor(const QPainter &painter)
    {
        const double pixels = std::min(1e9, area(deviceRect(painter)));
        return std::min(kMaxPaintedPixels, qint64(pixels) * kMaxPaintsPerImagePixel);
    }

    static constexpr int kKeptNodes = 2 * kMaxPaintNodes;

    const Font m_font;
    ColrReader m_reader;
    ColrOutlines m_outlines;
    QTransform m_unitsToPoints;
    std::unordered_map<quint32, Picture> m_pictures;
    int m_nodes = 0;
    qint64 m_paintedPixels = 0;
};

} // namespace

std::unique_ptr<ColorGlyphSource> makeColrGlyphs(const Font &font)
{
    if (font.isNull() || !font.face()->data().directory.has(fontTag('C', 'O', 'L', 'R')))
        return nullptr;
    auto glyphs = std::make_unique<ColrGlyphs>(font);
    return glyphs->isEmpty() ? nullptr : std::move(glyphs);
}

} // namespace lorva
