// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/SafeSvg.h"

#include "ui/display/SvgWork.h"

#include <QCoreApplication>
#include <QPainter>
#include <QSvgRenderer>

#include <cmath>
#include <optional>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SafeImage)
};

/// A second at the most: svgWork() errs on the high side by two to four times.
constexpr double kMostWork = 2e9;
/// Below it a drawing is not worth being seen.
constexpr int kLeastSidePx = 48;
constexpr qsizetype kLookedAtBytes = 4096;

QSize fittingSize(QSizeF size, int maximumSidePx)
{
    if (size.isEmpty())
        size = QSizeF(1, 1);
    const double factor = maximumSidePx / std::max(size.width(), size.height());
    const auto side = [maximumSidePx](double length) {
        return std::clamp(int(std::lround(length)), 1, maximumSidePx);
    };
    return {side(size.width() * factor), side(size.height() * factor)};
}

/// The largest size at which painting takes no longer than it may. Measuring takes its time, too,
/// so few sizes are tried.
std::optional<QSize> affordableSize(QSvgRenderer &renderer, QSizeF natural, int maximumSidePx)
{
    int side = maximumSidePx;
    for (;;) {
        const QSize size = fittingSize(natural, side);
        const double work = svgWork(renderer, size);
        if (work <= kMostWork)
            return size;
        if (side <= kLeastSidePx)
            return std::nullopt;
        const double factor = std::clamp(std::sqrt(kMostWork / work), 0.125, 0.7);
        side = std::max(int(side * factor), kLeastSidePx);
    }
}

} // namespace

bool isSvg(const QByteArray &bytes)
{
    const QByteArray head = bytes.left(kLookedAtBytes);
    const qsizetype root = head.indexOf("<svg");
    const qsizetype prefixedRoot = head.indexOf("<svg:svg");
    if (root < 0 && prefixedRoot < 0)
        return false;
    QByteArray start = head;
    if (start.startsWith("\xef\xbb\xbf"))
        start.remove(0, 3);
    start = start.trimmed();
    return start.startsWith("<?xml") || start.startsWith("<svg") || start.startsWith("<!");
}

Result<QImage> readSafeSvg(const QByteArray &bytes, int maximumSidePx)
{
    const Result<SafeSvg> svg = sanitizeSvg(bytes);
    if (!svg)
        return tl::unexpected(svg.error());
    QSvgRenderer renderer;
    if (!renderer.load(svg->xml))
        return failure(
            ErrorKind::malformed,
            QCoreApplication::translate("SafeImage", "The drawing is damaged and cannot be read"));
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    const QSizeF natural = svg->size.isEmpty() ? renderer.viewBoxF().size() : svg->size;
    const std::optional<QSize> size = affordableSize(renderer, natural, maximumSidePx);
    if (!size)
        return failure(
            ErrorKind::tooLarge,
            QCoreApplication::translate("SafeImage", "The drawing is too complicated to be shown"));
    QImage image(*size, QImage::Format_ARGB32_Premultiplied);
    if (image.isNull())
        return failure(ErrorKind::tooLarge, Texts::tr("no memory for the drawing"));
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(*size)));
    painter.end();
    return image;
}

} // namespace lorva
