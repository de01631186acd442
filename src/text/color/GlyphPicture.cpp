// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/GlyphPicture.h"

#include "text/FontLimits.h"
#include "text/TableView.h"

#include <QBuffer>
#include <QImageReader>
#include <QPaintEngine>
#include <QPainter>

#include <zlib.h>

#include <array>
#include <cmath>

namespace lorva {

namespace {

constexpr QByteArrayView kPngStart("\x89PNG\r\n\x1a\n", 8);
constexpr QByteArrayView kJpegStart("\xff\xd8\xff", 3);

QSize usableSize(quint32 width, quint32 height)
{
    const bool isUsable = width > 0 && height > 0 && width <= quint32(kMaxGlyphPictureSide)
        && height <= quint32(kMaxGlyphPictureSide);
    return isUsable ? QSize(int(width), int(height)) : QSize();
}

/// Goes through the chunks (PNG, section 5.3) up to the last one.
bool isWholePng(const TableView &png)
{
    quint64 at = quint64(kPngStart.size());
    while (png.has(at, 12)) {
        const quint32 length = png.u32(at);
        const QByteArrayView body = png.bytes(at + 4, quint64(length) + 4);
        if (body.isEmpty() || !png.has(at + 8 + length, 4))
            return false;
        const auto *const bytes = reinterpret_cast<const Bytef *>(body.data());
        if (crc32(0, bytes, uInt(body.size())) != png.u32(at + 8 + length))
            return false;
        if (body.first(4) == QByteArrayView("IEND"))
            return true;
        at += quint64(length) + 12;
    }
    return false;
}

/// What one pixel of the result takes from the source, along one side.
struct Share
{
    int first = 0;
    std::vector<float> weights;
};

Share averagedShare(int index, double step, double end, int sourceSize)
{
    const double from = index * step;
    const double to = std::min((index + 1) * step, end);
    Share share;
    share.first = std::min(int(from), sourceSize - 1);
    for (int i = share.first; i < sourceSize && i < to; ++i)
        share.weights.push_back(float((std::min(i + 1.0, to) - std::max(double(i), from)) / step));
    return share;
}

Share interpolatedShare(int index, double step, double coverage, int sourceSize)
{
    const double centre = std::clamp((index + 0.5) * step - 0.5, 0.0, sourceSize - 1.0);
    const double part = centre - std::floor(centre);
    Share share;
    share.first = int(centre);
    share.weights.push_back(float((1 - part) * coverage));
    if (share.first + 1 < sourceSize)
        share.weights.push_back(float(part * coverage));
    return share;
}

std::vector<Share> shares(double size, int sourceSize)
{
    const double step = sourceSize / size;
    std::vector<Share> result;
    result.reserve(size_t(std::ceil(size)));
    for (int i = 0; i < size; ++i)
        result.push_back(step >= 1
                             ? averagedShare(i, step, sourceSize, sourceSize)
                             : interpolatedShare(i, step, std::min(1.0, size - i), sourceSize));
    return result;
}

using Channels = std::array<float, 4>;

void addPixel(Channels &sum, QRgb pixel, float weight)
{
    sum[0] += weight * float(qRed(pixel));
    sum[1] += weight * float(qGreen(pixel));
    sum[2] += weight * float(qBlue(pixel));
    sum[3] += weight * float(qAlpha(pixel));
}

QRgb toPixel(const Channels &sum)
{
    const auto byte = [](float value) { return std::clamp(int(std::lrint(value)), 0, 255); };
    const int alpha = byte(sum[3]);
    return qRgba(std::min(byte(sum[0]), alpha), std::min(byte(sum[1]), alpha),
                 std::min(byte(sum[2]), alpha), alpha);
}

std::vector<Channels> scaledRow(const QRgb *row, const std::vector<Share> &columns)
{
    std::vector<Channels> result;
    result.reserve(columns.size());
    for (const Share &share : columns) {
        Channels sum{};
        for (size_t i = 0; i < share.weights.size(); ++i)
            addPixel(sum, row[share.first + int(i)], share.weights[i]);
        result.push_back(sum);
    }
    return result;
}

void addRow(std::vector<Channels> &sums, const std::vector<Channels> &row, float weight)
{
    for (size_t x = 0; x < sums.size(); ++x) {
        for (size_t channel = 0; channel < sums[x].size(); ++channel)
            sums[x][channel] += weight * row[x][channel];
    }
}

/// Rows of the source at the new width, each made once; rows of the result ask for them in order.
class ScaledRows
{
public:
    ScaledRows(const QImage &picture, std::vector<Share> columns)
        : m_picture(picture)
        , m_columns(std::move(columns))
    {
    }

    const std::vector<Channels> &row(int y)
    {
        Kept &kept = m_kept[size_t(y) % m_kept.size()];
        if (kept.y != y)
            kept = {
                y,
                scaledRow(reinterpret_cast<const QRgb *>(m_picture.constScanLine(y)), m_columns)};
        return kept.row;
    }

private:
    struct Kept
    {
        int y = -1;
        std::vector<Channels> row;
    };

    const QImage &m_picture;
    const std::vector<Share> m_columns;
    /// Neighbouring rows of the result share at most two.
    std::array<Kept, 2> m_kept;
};

bool isVectorEngine(const QPaintEngine *engine)
{
    return engine != nullptr && engine->type() != QPaintEngine::Raster;
}

bool isScaleAndMove(const QTransform &transform)
{
    return transform.type() <= QTransform::TxScale && transform.m11() > 0 && transform.m22() > 0;
}

} // namespace

QSize glyphPictureSize(QByteArrayView bytes)
{
    const TableView view(bytes);
    if (bytes.startsWith(kPngStart) && view.u32(12) == 0x49484452 && isWholePng(view))
        return usableSize(view.u32(16), view.u32(20));
    if (!bytes.startsWith(kJpegStart))
        return {};
    QByteArray held = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer buffer(&held);
    QImageReader reader(&buffer, "jpeg");
    reader.setAutoDetectImageFormat(false);
    const QSize size = reader.size();
    return usableSize(quint32(std::max(0, size.width())), quint32(std::max(0, size.height())));
}

QImage readGlyphPicture(QByteArrayView bytes)
{
    if (glyphPictureSize(bytes).isEmpty())
        return {};
    QByteArray held = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer buffer(&held);
    QImageReader reader(&buffer, bytes.startsWith(kPngStart) ? "png" : "jpeg");
    reader.setAutoDetectImageFormat(false);
    return reader.read().convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

QImage scaledPicture(const QImage &picture, QSizeF sizePx)
{
    const bool isUsable = sizePx.width() > 0 && sizePx.height() > 0
        && sizePx.width() <= kMaxGlyphPictureSide && sizePx.height() <= kMaxGlyphPictureSide;
    if (picture.isNull() || !isUsable)
        return {};
    if (sizePx == QSizeF(picture.size()))
        return picture;
    const QImage source = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const std::vector<Share> rows = shares(sizePx.height(), source.height());
    std::vector<Share> columns = shares(sizePx.width(), source.width());
    QImage result(int(columns.size()), int(rows.size()), QImage::Format_ARGB32_Premultiplied);
    ScaledRows scaled(source, std::move(columns));
    for (int y = 0; y < result.height(); ++y) {
        std::vector<Channels> sums(size_t(result.width()));
        const Share &share = rows[size_t(y)];
        for (size_t i = 0; i < share.weights.size(); ++i)
            addRow(sums, scaled.row(share.first + int(i)), share.weights[i]);
        std::transform(sums.begin(), sums.end(), reinterpret_cast<QRgb *>(result.scanLine(y)),
                       toPixel);
    }
    return result;
}

PictureSpace::PictureSpace(const QPainter &painter)
    : m_toDevice(painter.deviceTransform())
    , m_scale(std::hypot(m_toDevice.m11(), m_toDevice.m12()),
              std::hypot(m_toDevice.m21(), m_toDevice.m22()))
    , m_isVector(isVectorEngine(painter.paintEngine()))
    , m_isUpright(!m_isVector && isScaleAndMove(m_toDevice))
{
}

void drawDevicePixels(QPainter &painter, const QImage &picture, QPoint at)
{
    const QTransform kept = painter.worldTransform();
    // What stays when the world is left out: the window's own scale and place.
    painter.setWorldTransform({});
    const QTransform rest = painter.deviceTransform();
    painter.setWorldTransform(rest.inverted());
    painter.drawImage(at, picture);
    painter.setWorldTransform(kept);
}

void drawIntoRect(QPainter &painter, const QImage &picture, const QRectF &target)
{
    const QPainter::RenderHints kept = painter.renderHints();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, picture);
    painter.setRenderHints(QPainter::SmoothPixmapTransform, false);
    painter.setRenderHints(kept);
}

QImage PictureCache::find(const Key &key)
{
    const auto found = m_index.find(key);
    if (found == m_index.end())
        return {};
    m_order.splice(m_order.begin(), m_order, found->second);
    return found->second->second;
}

void PictureCache::insert(const Key &key, const QImage &picture)
{
    if (picture.sizeInBytes() > m_maxBytes || m_index.contains(key))
        return;
    m_order.emplace_front(key, picture);
    m_index.emplace(key, m_order.begin());
    m_bytes += picture.sizeInBytes();
    while (m_bytes > m_maxBytes) {
        m_bytes -= m_order.back().second.sizeInBytes();
        m_index.erase(m_order.back().first);
        m_order.pop_back();
    }
}

} // namespace lorva
