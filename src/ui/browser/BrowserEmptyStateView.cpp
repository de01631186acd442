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
constexpr int kBalanceStep = 8;

/// A page of text that was pasted into the search field would fill the pane.
QString shortened(const QString &query)
{
    constexpr qsizetype longest = 200;
    return query.size() > longest ? QString(query.left(longest) + u'…') : query;
}

QSize wrappedSize(const QString &text, int width)
{
    return QFontMetrics(interfaceFont(InterfaceSize::body))
        .boundingRect(QRect(0, 0, width, 0), Qt::AlignHCenter | Qt::TextWordWrap, text)
        .size();
}

/// The least width at which `text` takes no more lines: no word stands alone on the last one.
int balancedWidth(const QString &text, int widest)
{
    const int height = wrappedSize(text, widest).height();
    int width = widest;
    while (width > widest / 2) {
        const QSize narrower = wrappedSize(text, width - kBalanceStep);
        if (narrower.height() > height || narrower.width() > width - kBalanceStep)
            break;
        width -= kBalanceStep;
    }
    return width;
}

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
        m_subtitle = tr("No fonts match “%1”.").arg(shortened(search->query));
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
    // Over an image the text's colour says what it is read on.
    m_ground = background.alpha() == 255 ? background : contrastingNeutral(foreground);
    m_ink = controlColor(foreground, m_ground);
    m_watchFolder->setColors(foreground, background);
    update();
}

BrowserEmptyStateView::Column BrowserEmptyStateView::column() const
{
    const int titleHeight =
        QFontMetrics(interfaceFont(InterfaceSize::title, InterfaceWeight::semibold)).height();
    const int left = rect().center().x() - kTextWidth / 2;
    const int subtitleWidth = balancedWidth(m_subtitle, kTextWidth);
    const int subtitleHeight = wrappedSize(m_subtitle, subtitleWidth).height();
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
    places.subtitle = {rect().center().x() - subtitleWidth / 2, y, subtitleWidth, subtitleHeight};
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
    painter.drawImage(
        places.symbol.topLeft(),
        symbolImage(m_symbol, kSymbolSize, withAlpha(m_ink, kSymbolAlpha), devicePixelRatioF()));
    painter.setFont(interfaceFont(InterfaceSize::title, InterfaceWeight::semibold));
    painter.setPen(m_ink);
    painter.drawText(places.title, Qt::AlignCenter, m_title);
    painter.setFont(interfaceFont(InterfaceSize::body));
    painter.setPen(quietColor(m_ink, m_ground, kSubtitleAlpha));
    painter.drawText(places.subtitle, int(Qt::AlignHCenter | Qt::AlignTop) | int(Qt::TextWordWrap),
                     m_subtitle);
}

} // namespace lorva
