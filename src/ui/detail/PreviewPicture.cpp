// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/PreviewPicture.h"

#include "text/GlyphPainter.h"
#include "ui/preview/SpecimenLogo.h"
#include "ui/style/DeviceSpace.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// Points above and below what is asked for, when it is for a scroll.
constexpr int kSpare = 240;
/// Device pixels; no screen is higher, whatever is asked for.
constexpr int kMostRows = 8192;
/// Antialiasing, and baselines that move to whole pixels, reach this far beyond the ink.
constexpr int kInkOutsetDevicePx = 2;
/// Rows come in steps, so that type that changes a little fits into the same image.
constexpr int kRowStep = 64;

/// The rows of device pixels with ink between two heights of the view, over all its width.
QRect inkPixels(const QRectF &ink, double top, double bottom, double width, double ratio)
{
    // Cut in floating point first: the ink of a hostile font may lie beyond the range of int.
    const QRectF cut = ink.intersected(QRectF(0, top, width, bottom - top));
    if (cut.isEmpty())
        return {};
    constexpr int outset = kInkOutsetDevicePx;
    const int first = int(std::floor(cut.top() * ratio)) - outset;
    const int end = int(std::ceil(cut.bottom() * ratio)) + outset;
    return {0, first, int(std::ceil(width * ratio)), std::min(end - first, kMostRows)};
}

} // namespace

void PreviewPicture::letGo()
{
    m_image = {};
    invalidate();
}

void PreviewPicture::draw(QPainter &painter, const PreviewPlacement &placement,
                          const DetailSpecimen &specimen, const QRect &needed, int width)
{
    const DeviceSpace device(painter);
    const double ratio = device.ratio();
    const QRect needs = inkPixels(placement.ink, needed.top(), needed.bottom() + 1, width, ratio);
    if (needs.isEmpty())
        return;
    if (m_isStale) {
        paint(placement, specimen, needs, ratio);
    } else if (!holds(needs, ratio)) {
        const QRect more = inkPixels(placement.ink, needed.top() - kSpare,
                                     needed.bottom() + 1 + kSpare, width, ratio);
        paint(placement, specimen, more.contains(needs) ? more : needs, ratio);
    }
    device.drawImage(QPointF(0, 0), m_devicePx.topLeft(), m_image);
}

bool PreviewPicture::holds(const QRect &devicePx, double ratio) const
{
    // Of another width, lines are broken and aligned otherwise.
    return m_image.devicePixelRatio() == ratio && m_devicePx.width() == devicePx.width()
        && m_devicePx.contains(devicePx);
}

void PreviewPicture::paint(const PreviewPlacement &placement, const DetailSpecimen &specimen,
                           const QRect &devicePx, double ratio)
{
    m_isStale = false;
    m_devicePx = devicePx;
    m_devicePx.setHeight((devicePx.height() + kRowStep - 1) / kRowStep * kRowStep);
    if (m_image.size() != m_devicePx.size())
        m_image = QImage(m_devicePx.size(), QImage::Format_ARGB32_Premultiplied);
    if (m_image.isNull())
        return;
    m_image.fill(Qt::transparent);
    m_image.setDevicePixelRatio(ratio);
    const QPointF corner = QPointF(m_devicePx.topLeft()) / ratio;
    if (specimen.logoImage)
        paintLogo(m_image, *specimen.logoImage, placement.logoRect.translated(-corner),
                  specimen.foreground);
    GlyphPainter::paint(m_image, placement.carets.layout(), placement.origin - corner,
                        specimen.foreground);
}

} // namespace lorva
