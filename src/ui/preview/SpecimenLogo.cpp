// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/SpecimenLogo.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// A logo scaled beyond this is painted straight onto the canvas, so that no ratio can ask for
/// gigabytes.
constexpr double kMaxScaledLogoDevicePx = 4096;

/// Scaled with a filter that reads every pixel: a painter's own would drop rows of a large logo.
QImage scaledForCanvas(const QImage &logo, QSizeF size, double devicePixelRatio)
{
    const QSizeF wanted = size * devicePixelRatio;
    if (std::max(wanted.width(), wanted.height()) > kMaxScaledLogoDevicePx)
        return logo;
    const QSize devicePx(std::max(1, qRound(wanted.width())), std::max(1, qRound(wanted.height())));
    return logo.scaled(devicePx, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QSizeF logoSize(QSizeF imageSize, double capHeight, double sizeRatio)
{
    const double height = std::max(0.0, capHeight * sizeRatio);
    return QSizeF(height * imageSize.width() / std::max(1.0, imageSize.height()), height);
}

double logoInset(QSizeF logo, double spacing, double pointSize)
{
    return logo.width() + std::max(0.0, spacing * pointSize);
}

QRectF logoRectInLayout(const LayoutLine &firstLine, QSizeF logo, double capHeight)
{
    const double left =
        firstLine.origin.x() + (firstLine.isRightToLeft ? firstLine.width - logo.width() : 0.0);
    const double bottomAboveBaseline = (capHeight - logo.height()) * 0.5;
    const double top = firstLine.origin.y() - bottomAboveBaseline - logo.height();
    return QRectF(QPointF(left, top), logo);
}

QImage tintedLogo(QImage logo, const QColor &color)
{
    logo.convertTo(QImage::Format_ARGB32_Premultiplied);
    logo.setDevicePixelRatio(1.0);
    QPainter painter(&logo);
    painter.setCompositionMode(QPainter::CompositionMode_SourceAtop);
    painter.fillRect(logo.rect(), color);
    return logo;
}

void paintLogo(QImage &image, const QImage &logo, const QRectF &rect, const QColor &color)
{
    if (logo.isNull() || rect.isEmpty())
        return;
    const double ratio = image.devicePixelRatio();
    const QImage shape = scaledForCanvas(logo, rect.size(), ratio);
    // On whole device pixels, so that the scaled pixels are not filtered a second time.
    const QPointF corner(snappedToPixel(rect.left(), ratio), snappedToPixel(rect.top(), ratio));
    const bool isScaled = shape.size() != logo.size();
    const QRectF target(corner, isScaled ? QSizeF(shape.size()) / ratio : rect.size());
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(target, tintedLogo(shape, color), QRectF(shape.rect()));
}

double snappedToPixel(double points, double devicePixelRatio)
{
    return std::round(points * devicePixelRatio) / devicePixelRatio;
}

} // namespace lorva
