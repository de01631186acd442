// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverScrollView.h"

#include "ui/browser/SmoothScroller.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace lorva {

DiscoverScrollView::DiscoverScrollView(QWidget *parent)
    : QScrollArea(parent)
    , m_overlay(new OverlayScrollBar(this))
    , m_scroller(new SmoothScroller(verticalScrollBar()))
{
    setObjectName(QStringLiteral("scrollView"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::StrongFocus);
    verticalScrollBar()->setSingleStep(spacing::k24);
    m_overlay->follow(verticalScrollBar());
}

void DiscoverScrollView::setForeground(const QColor &color)
{
    m_overlay->setForeground(color);
}

void DiscoverScrollView::adaptScrollBar()
{
    m_overlay->adapt();
}

void DiscoverScrollView::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    m_overlay->flash();
    if (onScrolled)
        onScrolled();
}

void DiscoverScrollView::wheelEvent(QWheelEvent *event)
{
    m_scroller->wheel(*event, QApplication::wheelScrollLines() * verticalScrollBar()->singleStep());
    event->accept();
}

void DiscoverScrollView::keyPressEvent(QKeyEvent *event)
{
    if (!m_scroller->key(*event))
        event->ignore();
}

} // namespace lorva
