// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserEmptyStateView.h"

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
{
    setObjectName(QStringLiteral("BrowserEmptyStateView"));
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
    setAccessibleName(m_title);
    setAccessibleDescription(m_subtitle);
    update();
}

void BrowserEmptyStateView::setForeground(const QColor &foreground)
{
    m_foreground = foreground;
    update();
}

void BrowserEmptyStateView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    const QFont titleFont = interfaceFont(InterfaceSize::title, InterfaceWeight::semibold);
    const QFont subtitleFont = interfaceFont(InterfaceSize::body);
    const int titleHeight = QFontMetrics(titleFont).height();
    const QRect column(rect().center().x() - kTextWidth / 2, 0, kTextWidth, height());
    const QRect wanted = QFontMetrics(subtitleFont)
                             .boundingRect(column, Qt::AlignHCenter | Qt::TextWordWrap, m_subtitle);
    const int total = kSymbolSize + spacing::k16 + titleHeight + spacing::k8 + wanted.height();
    int y = (height() - total) / 2;

    painter.drawImage(QPoint(rect().center().x() - kSymbolSize / 2, y),
                      symbolImage(m_symbol, kSymbolSize, withAlpha(m_foreground, kSymbolAlpha),
                                  devicePixelRatioF()));
    y += kSymbolSize + spacing::k16;
    painter.setFont(titleFont);
    painter.setPen(m_foreground);
    painter.drawText(QRect(column.left(), y, kTextWidth, titleHeight), Qt::AlignCenter, m_title);
    y += titleHeight + spacing::k8;
    painter.setFont(subtitleFont);
    painter.setPen(withAlpha(m_foreground, kSubtitleAlpha));
    painter.drawText(QRect(column.left(), y, kTextWidth, wanted.height()),
                     int(Qt::AlignHCenter | Qt::AlignTop) | int(Qt::TextWordWrap), m_subtitle);
}

} // namespace lorva
