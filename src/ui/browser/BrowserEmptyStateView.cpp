// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserEmptyStateView.h"

#include "ui/browser/PaneButton.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"
#include "ui/style/SymbolImage.h"

#include <QPainter>

namespace lorva {

namespace {

constexpr int kSymbolSize = 40;
constexpr int kTextWidth = 360;
constexpr double kSymbolAlpha = 0.35;
constexpr double kSubtitleAlpha = 0.5;

} // namespace

BrowserEmptyStateView::BrowserEmptyStateView(QWidget *parent)
    : QWidget(parent)
    , m_watchFolder(new PaneButton(tr("Watch Folder…"), this))
{
    setObjectName(QStringLiteral("BrowserEmptyStateView"));
    m_watchFolder->setObjectName(QStringLiteral("watchFolderButton"));
    m_watchFolder->hide();
    connect(m_watchFolder, &QAbstractButton::clicked, this, [this] {
        if (onWatchFolder)
            onWatchFolder();
    });
}

void BrowserEmptyStateView::show(const BrowserEmptyState &state)
{
    if (const auto *search = std::get_if<BrowserEmptyState::NoSearchResults>(&state.reason)) {
        m_symbol = QStringLiteral("magnifyingglass");
        m_title = tr("No Results");
        m_subtitle = tr("No fonts match “%1”.").arg(search->query);
    } else {
        const auto &source = std::get<BrowserEmptyState::SourceEmpty>(state.reason);
        m_symbol = QStringLiteral("textformat.alt");
        m_title = source.title;
        m_subtitle = source.subtitle;
    }
    const auto *source = std::get_if<BrowserEmptyState::SourceEmpty>(&state.reason);
    m_watchFolder->setVisible(source && source->showsWatchFolder);
    m_watchFolder->setGeometry(column().button);
    setAccessibleName(m_title);
    setAccessibleDescription(m_subtitle);
    update();
}

void BrowserEmptyStateView::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_watchFolder->setColors(foreground, background);
    update();
}

BrowserEmptyStateView::Column BrowserEmptyStateView::column() const
{
    const int titleHeight =
        QFontMetrics(interfaceFont(InterfaceSize::title, InterfaceWeight::semibold)).height();
    const int left = rect().center().x() - kTextWidth / 2;
    const int subtitleHeight = QFontMetrics(interfaceFont(InterfaceSize::body))
                                   .boundingRect(QRect(left, 0, kTextWidth, height()),
                                                 Qt::AlignHCenter | Qt::TextWordWrap, m_subtitle)
                                   .height();
    const QSize button = m_watchFolder->sizeHint();
    int total = kSymbolSize + spacing::k16 + titleHeight + spacing::k8 + subtitleHeight;
    if (!m_watchFolder->isHidden())
        total += spacing::k20 + button.height();

    Column places;
    int y = (height() - total) / 2;
    places.symbol = {rect().center().x() - kSymbolSize / 2, y, kSymbolSize, kSymbolSize};
    y += kSymbolSize + spacing::k16;
    places.title = {left, y, kTextWidth, titleHeight};
    y += titleHeight + spacing::k8;
    places.subtitle = {left, y, kTextWidth, subtitleHeight};
    y += subtitleHeight + spacing::k20;
    places.button = {QPoint(rect().center().x() - button.width() / 2, y), button};
    return places;
}

void BrowserEmptyStateView::resizeEvent(QResizeEvent *)
{
    m_watchFolder->setGeometry(column().button);
}

void BrowserEmptyStateView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const Column places = column();
    painter.drawImage(places.symbol.topLeft(),
                      symbolImage(m_symbol, kSymbolSize, withAlpha(m_foreground, kSymbolAlpha),
                                  devicePixelRatioF()));
    painter.setFont(interfaceFont(InterfaceSize::title, InterfaceWeight::semibold));
    painter.setPen(m_foreground);
    painter.drawText(places.title, Qt::AlignCenter, m_title);
    painter.setFont(interfaceFont(InterfaceSize::body));
    painter.setPen(withAlpha(m_foreground, kSubtitleAlpha));
    painter.drawText(places.subtitle, int(Qt::AlignHCenter | Qt::AlignTop) | int(Qt::TextWordWrap),
                     m_subtitle);
}

} // namespace lorva
