// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetPanel.h"

#include "ui/sheets/SheetFooter.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/Hairline.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Palette.h"

#include <QAccessibleWidget>
#include <QEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kUsualWidth = 480;
constexpr int kFooterGap = spacing::k24;
constexpr int kFillerGap = spacing::k16;
constexpr double kRadius = 14;
constexpr double kDarkEdgeAlpha = 0.13;

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *panel = qobject_cast<SheetPanel *>(object);
    return panel ? new QAccessibleWidget(panel, panel->role()) : nullptr;
}

int heightOf(const QWidget &widget, int width)
{
    return widget.hasHeightForWidth() ? widget.heightForWidth(width) : widget.sizeHint().height();
}

QScrollArea *makeArea(QWidget *parent)
{
    auto *area = new QScrollArea(parent);
    area->setWidget(new QWidget);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    area->viewport()->setAutoFillBackground(false);
    area->widget()->setAutoFillBackground(false);
    return area;
}

} // namespace

SheetPanel::SheetPanel(QAccessible::Role role, QWidget *parent)
    : QWidget(parent)
    , m_role(role)
    , m_preferredWidth(kUsualWidth)
    , m_area(makeArea(this))
    , m_scrollBar(new OverlayScrollBar(m_area))
    , m_footer(new SheetFooter(this))
{
    [[maybe_unused]] static const bool once = (QAccessible::installFactory(&makeAccessible), true);
    m_scrollBar->follow(m_area->verticalScrollBar());
    m_scrollBar->setForeground(neutralColors(isDarkDesktop()).text);
}

void SheetPanel::add(QWidget *block, int gap)
{
    block->setParent(m_area->widget());
    m_blocks.push_back({block, gap});
}

SheetText *SheetPanel::addText(const QString &text, const QFont &font, double alpha, int gap)
{
    auto *label = new SheetText(text, font, alpha, nullptr);
    add(label, gap);
    return label;
}

void SheetPanel::setFiller(QWidget *filler, int minimumHeight, int preferredHeight)
{
    filler->setParent(this);
    m_filler = filler;
    m_fillerMinimum = minimumHeight;
    m_fillerPreferred = preferredHeight;
}

int SheetPanel::columnHeight(int textWidth) const
{
    int height = kPadding;
    for (const Block &block : m_blocks)
        height += block.gap + heightOf(*block.widget, textWidth);
    return height;
}

void SheetPanel::fitInto(QSize room)
{
    const int panelWidth = std::min(m_preferredWidth, room.width());
    const int textWidth = panelWidth - 2 * kPadding;
    const int footerWidth = textWidth + 2 * SheetFooter::kOverhang;
    const int footerHeight = m_footer->heightForWidth(footerWidth);
    const int footerPart = kFooterGap + footerHeight + kPadding;
    const int fillerGap = m_filler ? kFillerGap : 0;

    const int wholeColumn = columnHeight(textWidth);
    const int free = std::max(0, room.height() - footerPart - fillerGap);
    const int column = std::clamp(wholeColumn, 0, std::max(0, free - m_fillerMinimum));
    const int filler = std::clamp(m_fillerPreferred, 0, std::max(0, free - column));
    const int top = column + fillerGap + filler;

    resize(panelWidth, top + footerPart);
    placeColumn({0, 0, panelWidth, column}, textWidth, wholeColumn);
    if (m_filler)
        m_filler->setGeometry(0, column + fillerGap, panelWidth, filler);
    m_footer->setGeometry(kPadding - SheetFooter::kOverhang, top + kFooterGap, footerWidth,
                          footerHeight);
    update();
}

void SheetPanel::placeColumn(const QRect &shown, int textWidth, int height)
{
    m_area->setGeometry(shown);
    m_area->widget()->resize(shown.width(), height);
    int y = kPadding;
    for (const Block &block : m_blocks) {
        const int blockHeight = heightOf(*block.widget, textWidth);
        y += block.gap;
        block.widget->setGeometry(kPadding, y, textWidth, blockHeight);
        y += blockHeight;
    }
    m_scrollBar->adapt();
    if (height > shown.height())
        m_scrollBar->flash();
}

void SheetPanel::reveal(const QWidget &control)
{
    if (!m_area->widget()->isAncestorOf(&control))
        return;
    const QPoint centre = control.geometry().center();
    // What is higher than the room shows its middle.
    const int reach = std::min(control.height() / 2 + spacing::k8, m_area->height() / 2);
    m_area->ensureVisible(centre.x(), centre.y(), 0, reach);
}

void SheetPanel::paintSurface(QPainter &painter)
{
    const bool isDark = isDarkDesktop();
    const NeutralColors colors = neutralColors(isDark);
    painter.setRenderHint(QPainter::Antialiasing);
    m_shadow.draw(painter, surfaceRect(), kRadius);
    const QRectF panel = geometry();
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.ground);
    painter.drawRoundedRect(panel, kRadius, kRadius);
    if (!isDark)
        return;
    // A shadow is not seen on a dark ground.
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(withAlpha(colors.text, kDarkEdgeAlpha), 1));
    painter.drawRoundedRect(panel.adjusted(0.5, 0.5, -0.5, -0.5), kRadius - 0.5, kRadius - 0.5);
}

void SheetPanel::paintEvent(QPaintEvent *)
{
    // Says that the column goes on beneath; a list begins with a line of its own.
    if (m_filler || m_area->verticalScrollBar()->maximum() <= 0)
        return;
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(this);
    drawHairline(painter, m_area->geometry().adjusted(0, 0, 0, 1), Qt::BottomEdge,
                 hairlineColor(colors.text, colors.ground));
}

void SheetPanel::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        m_scrollBar->setForeground(neutralColors(isDarkDesktop()).text);
}

} // namespace lorva
