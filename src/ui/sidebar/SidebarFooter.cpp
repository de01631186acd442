// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarFooter.h"

#include "ui/style/Hairline.h"
#include "ui/style/IconButton.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>

namespace lorva {

SidebarFooter::SidebarFooter(QWidget *parent)
    : QWidget(parent)
    , m_addFolder(new IconButton(QStringLiteral("folder.badge.plus"), tr("Add Folder…"), this))
    , m_menuButton(new IconButton(QStringLiteral("ellipsis.circle"), tr("Menu"), this))
{
    setObjectName(QStringLiteral("SidebarFooter"));
    m_addFolder->setObjectName(QStringLiteral("addFolderButton"));
    m_menuButton->setObjectName(QStringLiteral("mainMenuButton"));
    m_menuButton->hide();
    connect(m_addFolder, &QAbstractButton::clicked, this, [this] {
        if (onAddFolder)
            onAddFolder();
    });
    connect(m_menuButton, &QAbstractButton::clicked, this, &SidebarFooter::openMenu);
    applyColors();
}

void SidebarFooter::setMainMenu(QMenu *menu)
{
    m_menu = menu;
    m_menuButton->setVisible(menu);
}

/// Above the button: below it the screen may end.
void SidebarFooter::openMenu()
{
    const int up = m_menu->sizeHint().height() + spacing::k4;
    const QPoint corner(isRightToLeft() ? m_menuButton->width() - m_menu->sizeHint().width() : 0,
                        -up);
    m_menu->popup(m_menuButton->mapToGlobal(corner));
}

void SidebarFooter::applyColors()
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    m_addFolder->setColors(colors.text, colors.sidebar);
    m_menuButton->setColors(colors.text, colors.sidebar);
    update();
}

void SidebarFooter::resizeEvent(QResizeEvent *)
{
    const auto place = [this](QWidget *button, int left) {
        const QSize size = button->sizeHint();
        const QRect logical(QPoint(left, (height() - size.height()) / 2), size);
        button->setGeometry(QStyle::visualRect(layoutDirection(), rect(), logical));
    };
    place(m_menuButton, width() - spacing::k12 - m_menuButton->sizeHint().width());
    place(m_addFolder, spacing::k12);
}

void SidebarFooter::paintEvent(QPaintEvent *)
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.fillRect(rect(), colors.sidebar);
    const QColor line = hairlineColor(colors.text, colors.sidebar);
    const Qt::Edge trailing = isRightToLeft() ? Qt::LeftEdge : Qt::RightEdge;
    drawHairline(painter, rect(), trailing, line);
    // Up to that line, so that the crossing is not darker than the lines.
    const double end = 1 / devicePixelRatioF();
    const QRectF before =
        rect().toRectF().adjusted(isRightToLeft() ? end : 0, 0, isRightToLeft() ? 0 : -end, 0);
    drawHairline(painter, before, Qt::TopEdge, line);
}

void SidebarFooter::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        applyColors();
    QWidget::changeEvent(event);
}

} // namespace lorva
