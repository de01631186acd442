// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverArtworkView.h"

#include "ui/style/Palette.h"

#include <QFile>
#include <QPainter>
#include <QSvgRenderer>

// Resources of a static library are only linked in when someone asks for them; the macro must stand
// outside of every namespace.
static void initDiscoverResources()
{
    Q_INIT_RESOURCE(discover);
}

namespace lorva {

namespace {

/// Artwork of the page's own colour still ends somewhere.
constexpr double kEdgeAlpha = 0.08;

} // namespace

QImage renderDiscoverArtwork(const QString &imageName, QSize pixels)
{
    initDiscoverResources();
    const QString source = QStringLiteral(":/discover/%1.svg").arg(imageName);
    // The renderer would complain of a missing one in the log.
    if (pixels.isEmpty() || !QFile::exists(source))
        return {};
    QSvgRenderer renderer(source);
    if (!renderer.isValid())
        return {};
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter, image.rect());
    return image;
}

DiscoverArtworkView::DiscoverArtworkView(QWidget *parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void DiscoverArtworkView::setImage(const QImage &image)
{
    m_image = image;
    update();
}

QSize DiscoverArtworkView::wantedPixels() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

void DiscoverArtworkView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const QRectF frame(rect());
    QBrush brush(m_image);
    brush.setTransform(
        QTransform::fromScale(frame.width() / m_image.width(), frame.height() / m_image.height()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(frame, kRadius, kRadius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(withAlpha(neutralColors(isDarkDesktop()).text, kEdgeAlpha));
    painter.drawRoundedRect(frame.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

} // namespace lorva
