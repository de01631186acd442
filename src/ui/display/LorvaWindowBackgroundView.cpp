// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/LorvaWindowBackgroundView.h"

#include "ui/display/BackgroundImages.h"
#include "ui/display/BackgroundImageStore.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Palette.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>

#include <cmath>

namespace lorva {

namespace {

/// Photographs need not be read larger than this to cover any screen.
constexpr int kMostReadSidePx = 8192;

/// Of the chip in the bar, on a threefold screen.
constexpr int kThumbnailPx = 54;

QImage makeImage(const LorvaWindowBackgroundView::Ground &ground, const BackgroundImageStore *store,
                 QSize sizePx)
{
    if (!ground.userFilename)
        return drawBackgroundImage(ground.imageID.value_or(QString()), sizePx);
    if (!store)
        return {};
    // A tall picture that covers a wide window is larger than the window.
    const int side = std::min(2 * std::max(sizePx.width(), sizePx.height()), kMostReadSidePx);
    const Result<QImage> image = store->read(*ground.userFilename, side);
    return image ? coveringImage(*image, sizePx) : QImage();
}

QRectF coveringPart(QSizeF image, QSizeF target)
{
    const QSizeF part = target.scaled(image, Qt::KeepAspectRatio);
    return {QPointF((image.width() - part.width()) / 2, (image.height() - part.height()) / 2),
            part};
}

} // namespace

LorvaWindowBackgroundView::LorvaWindowBackgroundView(
    std::shared_ptr<const BackgroundImageStore> store, QWidget *parent)
    : QWidget(parent)
    , m_store(std::move(store))
{
    setObjectName(QStringLiteral("LorvaWindowBackgroundView"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_pool.setMaxThreadCount(1);
    m_pool.setObjectName(QStringLiteral("lorva.ui.background"));
}

LorvaWindowBackgroundView::~LorvaWindowBackgroundView()
{
    m_run.cancel();
    m_pool.waitForDone();
}

void LorvaWindowBackgroundView::apply(const Ground &ground)
{
    if (ground == m_ground)
        return;
    const bool isSameImage = ground.mode == m_ground.mode && ground.imageID == m_ground.imageID
        && ground.userFilename == m_ground.userFilename;
    m_ground = ground;
    if (!isSameImage) {
        ++m_generation;
        m_run.cancel();
        m_isRunning = false;
        m_image = {};
        m_userThumbnail = {};
        m_askedSizePx = {};
        m_interim = interimColor();
        requestImage();
    }
    update();
}

bool LorvaWindowBackgroundView::event(QEvent *event)
{
    // A desktop that turns dark, or a screen of another ratio, which is noticed when it is painted.
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::ScreenChangeInternal) {
        m_interim = interimColor();
        update();
    }
    return QWidget::event(event);
}

bool LorvaWindowBackgroundView::showsImage() const
{
    return m_ground.mode == ColorMode::image && (m_ground.imageID || m_ground.userFilename);
}

QSize LorvaWindowBackgroundView::wantedSizePx() const
{
    const double ratio = devicePixelRatioF();
    return {int(std::ceil(width() * ratio)), int(std::ceil(height() * ratio))};
}

QColor LorvaWindowBackgroundView::interimColor() const
{
    if (!showsImage())
        return m_ground.color;
    const QColor average =
        m_ground.userFilename ? QColor() : averageBackgroundColor(m_ground.imageID.value());
    return average.isValid() ? average : neutralColors(isDarkDesktop()).sidebar;
}

void LorvaWindowBackgroundView::requestImage()
{
    const QSize sizePx = wantedSizePx();
    if (!showsImage() || m_isRunning || sizePx.isEmpty() || sizePx == m_askedSizePx)
        return;
    m_isRunning = true;
    m_askedSizePx = sizePx;
    m_run = runThen(
        m_pool, this,
        [ground = m_ground, store = m_store, sizePx](const std::stop_token &) {
            return makeImage(ground, store.get(), sizePx);
        },
        [this, generation = m_generation, sizePx](const QImage &image) {
            takeImage(generation, sizePx, image);
        });
}

void LorvaWindowBackgroundView::takeImage(unsigned generation, QSize sizePx, const QImage &image)
{
    if (generation != m_generation)
        return;
    m_isRunning = false;
    if (sizePx == m_askedSizePx)
        m_image = image;
    if (m_ground.userFilename && m_userThumbnail.isNull() && !image.isNull())
        m_userThumbnail = coveringImage(image, {kThumbnailPx, kThumbnailPx});
    if (onImageChanged)
        onImageChanged();
    // The window may have got another size meanwhile.
    requestImage();
    update();
}

void LorvaWindowBackgroundView::resizeEvent(QResizeEvent *)
{
    requestImage();
}

void LorvaWindowBackgroundView::paintEvent(QPaintEvent *event)
{
    requestImage();
    QPainter painter(this);
    if (!showsImage() || m_image.isNull()) {
        painter.fillRect(event->rect(), showsImage() ? m_interim : m_ground.color);
        return;
    }
    if (m_image.size() == wantedSizePx()) {
        DeviceSpace(painter).drawImage({}, {}, m_image);
        return;
    }
    painter.fillRect(event->rect(), m_interim);
    painter.drawImage(QRectF(rect()), m_image, coveringPart(m_image.size(), size()));
}

} // namespace lorva
