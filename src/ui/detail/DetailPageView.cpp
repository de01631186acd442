// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailPageView.h"

#include "ui/browser/SmoothScroller.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace lorva {

namespace {

constexpr int kMargin = spacing::k48;
constexpr int kWheelStep = 24;
/// Of a page, what stays in sight when one turns it.
constexpr int kKeptOfPage = 48;
constexpr int kMostPasses = 2;

} // namespace

DetailPageView::DetailPageView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_overlay(new OverlayScrollBar(this))
    , m_scroller(new SmoothScroller(verticalScrollBar()))
{
    setObjectName(QStringLiteral("DetailPageView"));
    setFrameShape(QFrame::NoFrame);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Sections take the pane's colours, not those of a list.
    viewport()->setBackgroundRole(QPalette::Window);
    viewport()->setAutoFillBackground(false);
    setFocusPolicy(Qt::StrongFocus);
    m_overlay->follow(verticalScrollBar());
}

void DetailPageView::addSection(DetailSection *section, int gap)
{
    section->setParent(viewport());
    m_places.push_back({section, gap, 0, 0});
    connect(section, &DetailSection::heightChanged, this, &DetailPageView::layOut);
    connect(section, &DetailSection::revealWanted, this,
            [this, section](const QRect &rect) { reveal(*section, rect); });
}

void DetailPageView::setForeground(const QColor &color)
{
    m_overlay->setForeground(color);
}

/// Sections may find out about their height while they are placed; they are measured once more
/// then, not for ever.
void DetailPageView::layOut()
{
    m_mustMeasure = true;
    if (m_isLayingOut)
        return;
    m_isLayingOut = true;
    for (int pass = 0; pass < kMostPasses && std::exchange(m_mustMeasure, false); ++pass) {
        measure();
        placeSections();
    }
    m_isLayingOut = false;
    m_overlay->adapt();
}

void DetailPageView::measure()
{
    const int width = std::max(viewport()->width() - 2 * kMargin, 1);
    int y = 0;
    for (Place &place : m_places) {
        place.height = place.section->isHidden() ? 0 : place.section->heightFor(width);
        if (place.height > 0)
            y += place.gap;
        place.top = y;
        y += place.height;
    }
    const int whole = y + kMargin;
    QScrollBar *bar = verticalScrollBar();
    bar->setSingleStep(kWheelStep);
    bar->setPageStep(std::max(viewport()->height() - kKeptOfPage, kWheelStep));
    bar->setRange(0, std::max(whole - viewport()->height(), 0));
}

void DetailPageView::placeSections()
{
    const int width = std::max(viewport()->width() - 2 * kMargin, 1);
    const int offset = scrollOffset();
    for (const Place &place : m_places) {
        if (place.section->isHidden())
            continue;
        const int top = place.top - offset;
        place.section->setGeometry(kMargin, top, width, place.height);
        place.section->setVisibleBand(std::clamp(-top, 0, place.height),
                                      std::clamp(viewport()->height() - top, 0, place.height));
    }
}

int DetailPageView::scrollOffset() const
{
    return verticalScrollBar()->value();
}

void DetailPageView::setScrollOffset(int offset)
{
    m_scroller->stop();
    verticalScrollBar()->setValue(offset);
}

int DetailPageView::topOf(const DetailSection &section) const
{
    const auto found = std::ranges::find(m_places, &section, &Place::section);
    return found == m_places.end() ? 0 : found->top;
}

void DetailPageView::reveal(const DetailSection &section, const QRect &rect)
{
    const int top = topOf(section) + rect.top() - spacing::k20;
    const int bottom = topOf(section) + rect.bottom() + spacing::k20;
    const int height = viewport()->height();
    if (top < scrollOffset() || bottom - top > height)
        setScrollOffset(top);
    else if (bottom > scrollOffset() + height)
        setScrollOffset(bottom - height);
}

void DetailPageView::resizeEvent(QResizeEvent *)
{
    layOut();
}

void DetailPageView::scrollContentsBy(int, int)
{
    placeSections();
    m_overlay->flash();
}

void DetailPageView::wheelEvent(QWheelEvent *event)
{
    m_scroller->wheel(*event, QApplication::wheelScrollLines() * verticalScrollBar()->singleStep());
    event->accept();
}

/// Wheel events of the sections end here too; the viewport must not hand them to the scroll bar.
bool DetailPageView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
    return QAbstractScrollArea::viewportEvent(event);
}

void DetailPageView::keyPressEvent(QKeyEvent *event)
{
    if (!m_scroller->key(*event))
        event->ignore();
}

} // namespace lorva
