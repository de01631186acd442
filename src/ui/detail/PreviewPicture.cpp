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

/// Points above and below what is asked for.
constexpr int kSpare = 240;
/// Device pixels; no screen is higher, whatever is asked for.
constexpr int kMostRows = 8192;
/// Antialiasing, and baselines that move to whole pixels, reach this far beyond the ink.
constexpr int kInkOutsetDevicePx = 2;

/// The device pixels of the ink between two heights of the view.
QRect inkPixels(const QRectF &ink, double top, double bottom, double width, double ratio)
{
    // Cut in floating point first: the ink of a hostile font may lie beyond the range of int.
    const QRectF cut = ink.adjusted(-1, -1, 1, 1).intersected(QRectF(0, top, width, bottom - top));
    if (ink.isNull() || cut.isEmpty())
        return {};
    const QRectF devicePx(cut.topLeft() * ratio, cut.size() * ratio);
    constexpr int outset = kInkOutsetDevicePx;
    const QRect rows = devicePx.toAlignedRect().adjusted(0, -outset, 0, outset);
    return {rows.left(), rows.top(), rows.width(), std::min(rows.height(), kMostRows)};
}

} // namespace

void PreviewPicture::draw(QPainter &painter, const PreviewPlacement &placement,
                          const DetailSpecimen &specimen, const QRect &needed, int width)
{
    const DeviceSpace device(painter);
    const double ratio = device.ratio();
    const QRect needs = inkPixels(placement.ink, needed.top(), needed.bottom() + 1, width, ratio);
    if (needs.isEmpty())
        return;
    const bool isAtHand = !m_image.isNull() && m_image.devicePixelRatio() == ratio
        && m_devicePx.top() <= needs.top() && m_devicePx.bottom() >= needs.bottom();
    if (!isAtHand) {
        const QRect more = inkPixels(placement.ink, needed.top() - kSpare,
                                     needed.bottom() + 1 + kSpare, width, ratio);
        paint(placement, specimen, more.contains(needs) ? more : needs, ratio);
    }
    device.drawImage(QPointF(0, 0), m_devicePx.topLeft(), m_image);
}

void PreviewPicture::paint(const PreviewPlacement &placement, const DetailSpecimen &specimen,
                           const QRect &devicePx, double ratio)
{
    m_devicePx = devicePx;
    m_image = QImage(devicePx.size(), QImage::Format_ARGB32_Premultiplied);
    if (m_image.isNull())
        return;
    m_image.fill(Qt::transparent);
    m_image.setDevicePixelRatio(ratio);
    const QPointF corner = QPointF(devicePx.topLeft()) / ratio;
    if (specimen.logoImage)
        paintLogo(m_image, *specimen.logoImage, placement.logoRect.translated(-corner),
                  specimen.foreground);
    GlyphPainter::paint(m_image, placement.carets.layout(), placement.origin - corner,
                        specimen.foreground);
}

} // namespace lorva
