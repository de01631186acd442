// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverFoundryItem.h"

#include "ui/discover/DiscoverArtworkView.h"
#include "ui/discover/DiscoverLayout.h"
#include "ui/discover/DiscoverLinkButton.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>

#include <utility>

namespace lorva {

namespace {

constexpr double kQuietAlpha = 0.6;
constexpr double kEmptyFrameAlpha = 0.06;
constexpr int kTitleTop = spacing::k8;
constexpr int kTitleHeight = 28;
constexpr int kMostLines = 4;

SheetText *makeLabel(const char *name, const QFont &font, double alpha, QWidget *parent)
{
    auto *label = new SheetText(QString(), font, alpha, parent);
    label->setObjectName(QString::fromLatin1(name));
    label->setMaximumLineCount(1);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    return label;
}

} // namespace

DiscoverFoundryItem::DiscoverFoundryItem(QWidget *parent)
    : QWidget(parent)
    , m_imageContainer(new QWidget(this))
    , m_artworkView(new DiscoverArtworkView(m_imageContainer))
    , m_placeholderLabel(makeLabel("placeholderLabel", interfaceFont(InterfaceSize::heading),
                                   kQuietAlpha, m_imageContainer))
    , m_titleLabel(makeLabel(
          "titleLabel", interfaceFont(InterfaceSize::title, InterfaceWeight::semibold), 1, this))
    , m_subtitleLabel(
          makeLabel("subtitleLabel", interfaceFont(InterfaceSize::body), kQuietAlpha, this))
    , m_linkButton(new DiscoverLinkButton(this))
{
    m_imageContainer->setObjectName(QStringLiteral("imageContainer"));
    m_imageContainer->setCursor(Qt::PointingHandCursor);
    m_artworkView->setObjectName(QStringLiteral("artworkView"));
    m_artworkView->hide();
    m_placeholderLabel->hide();
    m_subtitleLabel->setMaximumLineCount(kMostLines);
    m_linkButton->setObjectName(QStringLiteral("linkButton"));
    connect(m_linkButton, &QAbstractButton::clicked, this, &DiscoverFoundryItem::open);
}

void DiscoverFoundryItem::setFoundry(const DiscoverFoundry &foundry)
{
    m_foundry = foundry;
    m_titleLabel->setText(foundry.title);
    m_subtitleLabel->setText(foundry.subtitle);
    m_placeholderLabel->setText(foundry.title);
    m_linkButton->setAccessibleName(tr("Visit %1").arg(foundry.title));
    m_linkButton->setToolTip(foundry.url.host());
    setAccessibleName(foundry.title);
    releaseArtwork();
    layOut();
}

void DiscoverFoundryItem::loadArtwork(QThreadPool &pool)
{
    const QSize pixels = m_artworkView->wantedPixels();
    if (!m_foundry || pixels == m_askedPixels)
        return;
    m_run.cancel();
    m_askedPixels = pixels;
    m_isLoading = true;
    m_run = runThen(
        pool, this,
        [name = m_foundry->imageName, pixels](const std::stop_token &stop) {
            return stop.stop_requested() ? QImage() : renderDiscoverArtwork(name, pixels);
        },
        [this](const QImage &image) { showArtwork(image); });
}

void DiscoverFoundryItem::releaseArtwork()
{
    m_run.cancel();
    m_isLoading = false;
    m_askedPixels = {};
    m_artworkView->hide();
    m_artworkView->setImage({});
}

void DiscoverFoundryItem::showArtwork(const QImage &image)
{
    m_isLoading = false;
    m_artworkView->setVisible(!image.isNull());
    m_placeholderLabel->setVisible(image.isNull());
    m_artworkView->setImage(image);
}

void DiscoverFoundryItem::layOut()
{
    const int artwork = DiscoverLayout{1, width(), height()}.artworkHeight();
    const auto place = [this](QWidget *widget, const QRect &logical) {
        widget->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
    };
    place(m_imageContainer, {0, 0, width(), artwork});
    m_artworkView->setGeometry(m_imageContainer->rect());
    m_placeholderLabel->setGeometry(m_imageContainer->rect().adjusted(
        spacing::k24, spacing::k20, -spacing::k24, -spacing::k20));
    const int title = artwork + kTitleTop;
    const int link = m_linkButton->sizeHint().width();
    const int titleWidth = std::max(width() - link - spacing::k12, 1);
    const int titleHeight = m_titleLabel->heightForWidth(titleWidth);
    place(m_titleLabel, {0, title + (kTitleHeight - titleHeight) / 2, titleWidth, titleHeight});
    // Its word ends where the picture does.
    place(m_linkButton, {width() - link + spacing::k12, title, link, kTitleHeight});
    const int subtitle = title + kTitleHeight + spacing::k2;
    place(m_subtitleLabel, {0, subtitle, width(), std::max(height() - subtitle, 0)});
}

void DiscoverFoundryItem::open()
{
    if (m_foundry && onOpen)
        onOpen(m_foundry->url);
}

void DiscoverFoundryItem::resizeEvent(QResizeEvent *)
{
    layOut();
}

void DiscoverFoundryItem::paintEvent(QPaintEvent *)
{
    if (m_artworkView->isVisible())
        return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(neutralColors(isDarkDesktop()).text, kEmptyFrameAlpha));
    painter.drawRoundedRect(m_imageContainer->geometry(), DiscoverArtworkView::kRadius,
                            DiscoverArtworkView::kRadius);
}

bool DiscoverFoundryItem::isOnArtwork(const QMouseEvent &event) const
{
    return event.button() == Qt::LeftButton
        && m_imageContainer->geometry().contains(event.position().toPoint());
}

void DiscoverFoundryItem::mousePressEvent(QMouseEvent *event)
{
    m_isPressed = isOnArtwork(*event);
    event->accept();
}

/// The second press of a double click opens nothing again.
void DiscoverFoundryItem::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->accept();
}

void DiscoverFoundryItem::mouseReleaseEvent(QMouseEvent *event)
{
    event->accept();
    if (std::exchange(m_isPressed, false) && isOnArtwork(*event))
        open();
}

void DiscoverFoundryItem::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
    QWidget::changeEvent(event);
}

} // namespace lorva
