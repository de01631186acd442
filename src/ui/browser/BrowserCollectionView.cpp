// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserCollectionView.h"

#include "ui/browser/BrowserAccessibility.h"
#include "ui/browser/CardPointer.h"
#include "ui/browser/CardSlide.h"
#include "ui/browser/FontCardContentView.h"
#include "ui/browser/FontCollectionItem.h"
#include "ui/browser/SmoothScroller.h"
#include "ui/style/Hairline.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Palette.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/ReducedMotion.h"

#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

#include <cmath>

namespace lorva {

namespace {

/// What the scroll bar's arrows and one line of a wheel move.
constexpr int kLineStep = 40;
/// Cards kept for the next scroll beyond those on screen.
constexpr size_t kMaxSpareItems = 12;
/// Width changes up to this are jitter of the window system, not a resize.
constexpr int kIgnoredWidthChange = 1;
constexpr qsizetype kLongestTip = 1000;

/// Names come from fonts: what looks like markup in them is shown, not obeyed.
QString shownAsItIs(const QString &tip)
{
    return plainToolTip(tip.left(kLongestTip));
}

} // namespace

BrowserCollectionView::BrowserCollectionView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_overlay(new OverlayScrollBar(this))
    , m_scroller(new SmoothScroller(verticalScrollBar()))
    , m_slide(new CardSlide(this))
    , m_pointer(new CardPointer(*this))
{
    installBrowserAccessibility();
    setObjectName(QStringLiteral("BrowserCollectionView"));
    setAccessibleName(tr("Fonts"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(kLineStep);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setAutoFillBackground(false);
    m_overlay->follow(verticalScrollBar());
}

BrowserCollectionView::~BrowserCollectionView() = default;

void BrowserCollectionView::setContent(const Content &content)
{
    const bool itemsChanged = content.ids != items();
    const bool isRearranged = content.mode != m_mode || content.pointSize != m_pointSize;
    const auto anchors = itemsChanged || isRearranged ? currentAnchors() : std::vector<Anchor>();
    const auto places =
        itemsChanged && content.animates ? placesOfCards() : QHash<FontCollectionItem *, QPoint>();
    const QString previous = m_selection.currentID();
    m_mode = content.mode;
    m_pointSize = content.pointSize;
    if (itemsChanged)
        replaceItems(content.ids);
    else if (!content.ids.isSharedWith(items()))
        // Equal names, but the old ones would hold on to the memory of a library that is gone.
        m_selection.setItems(content.ids);
    m_selection.mirror(content.selectedID);
    if (itemsChanged || isRearranged)
        relayout(anchors);
    reconfigureVisibleItems();
    // Without any a slide that runs goes on to its end.
    if (!places.isEmpty())
        slideFrom(places);
    if (itemsChanged)
        announceItems(*this);
    if (m_selection.currentID() != previous)
        announceSelection(*this);
}

/// Cards are handed over by family, so that what stays on screen is not set anew.
void BrowserCollectionView::replaceItems(const QStringList &ids)
{
    m_pointer->end();
    QHash<QString, FontCollectionItem *> byID;
    for (const auto &[index, item] : m_visible)
        byID.insert(items().at(index), item);
    m_visible.clear();
    m_selection.setItems(ids);
    for (auto it = byID.cbegin(); it != byID.cend(); ++it) {
        if (const int index = m_selection.indexOf(it.key()); index >= 0) {
            m_visible.emplace(index, it.value());
        } else {
            it.value()->hide();
            m_spare.push_back(it.value());
        }
    }
}

QHash<FontCollectionItem *, QPoint> BrowserCollectionView::placesOfCards() const
{
    QHash<FontCollectionItem *, QPoint> places;
    for (const auto &[index, item] : m_visible)
        places.insert(item, item->pos());
    return places;
}

/// Only cards that stay on screen: their number is bounded, and the eye knows where they were.
void BrowserCollectionView::slideFrom(const QHash<FontCollectionItem *, QPoint> &places)
{
    std::vector<CardSlide::Move> moves;
    for (const auto &[index, item] : m_visible) {
        const auto from = places.constFind(item);
        if (from != places.cend() && *from != item->pos())
            moves.push_back({item, *from, item->pos()});
    }
    if (!prefersReducedMotion(this))
        m_slide->start(std::move(moves));
}

void BrowserCollectionView::setSelection(const BrowserSelection &selection)
{
    if (selection == m_selection)
        return;
    const QString previous = m_selection.currentID();
    m_pointer->forgetClick();
    m_selection = selection;
    reconfigureVisibleItems();
    announceSelection(*this);
    if (selection.currentID() != previous && onSelectionChanged)
        onSelectionChanged(selection.currentID());
}

int BrowserCollectionView::focusIndex() const
{
    const int current = m_selection.current();
    return current >= 0 ? current : m_layout.firstInSight(scrollOffset(), viewport()->height());
}

void BrowserCollectionView::setColors(const QColor &foreground, const QColor &background)
{
    if (foreground == m_foreground && background == m_background)
        return;
    m_foreground = foreground;
    m_background = background;
    m_overlay->setForeground(foreground);
    // What lies beneath is painted first where anything of it may be seen.
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent, background.alpha() == 255);
    viewport()->update();
}

void BrowserCollectionView::reconfigureVisibleItems()
{
    if (!configureItem)
        return;
    for (const auto &[index, item] : m_visible)
        configureItem(*item, index);
}

int BrowserCollectionView::scrollOffset() const
{
    return verticalScrollBar()->value();
}

void BrowserCollectionView::setScrollOffset(int offset)
{
    m_scroller->stop();
    verticalScrollBar()->setValue(offset);
}

int BrowserCollectionView::scrollOffsetShowing(int index) const
{
    const QRect card = m_layout.cardRect(index);
    const int top = scrollOffset();
    if (card.top() < top)
        return card.top();
    const bool isBelow = card.bottom() >= top + viewport()->height();
    return isBelow ? std::min(card.top(), card.bottom() + 1 - viewport()->height()) : top;
}

void BrowserCollectionView::scrollToItem(int index)
{
    setScrollOffset(scrollOffsetShowing(index));
}

QPoint BrowserCollectionView::contentPoint(QPoint viewportPoint) const
{
    const QRect point(viewportPoint, QSize(1, 1));
    const QRect logical = QStyle::visualRect(layoutDirection(), viewport()->rect(), point);
    return logical.topLeft() + QPoint(0, scrollOffset());
}

QRect BrowserCollectionView::viewportRect(const QRect &contentRect) const
{
    return QStyle::visualRect(layoutDirection(), viewport()->rect(),
                              contentRect.translated(0, -scrollOffset()));
}

FontCollectionItem *BrowserCollectionView::visibleItem(int index) const
{
    const auto found = m_visible.find(index);
    return found == m_visible.end() ? nullptr : found->second;
}

bool BrowserCollectionView::isOnSpecimen(int index, QPoint viewportPoint) const
{
    const FontCollectionItem *item = visibleItem(index);
    return item && item->contentView().specimenRect().contains(viewportPoint - item->pos());
}

/// The selected card, when in sight, is what the eye rests on; else the first one in sight that
/// stays.
std::vector<BrowserCollectionView::Anchor> BrowserCollectionView::currentAnchors() const
{
    std::vector<Anchor> anchors;
    if (items().isEmpty() || scrollOffset() == 0)
        return anchors;
    const int top = scrollOffset();
    const auto range = m_layout.visibleRange(top, viewport()->height());
    const auto add = [&](int index) {
        const double offset = m_layout.cardRect(index).top() - top;
        anchors.push_back({items().at(index), offset / m_layout.rowHeight()});
    };
    const int selected = m_selection.current();
    if (selected >= range.first && selected < range.last)
        add(selected);
    for (int index = range.first; index < std::min(range.last, int(items().size())); ++index)
        add(index);
    return anchors;
}

void BrowserCollectionView::relayout(const std::vector<Anchor> &anchors)
{
    m_layout = BrowserLayout(m_mode, viewport()->width(), m_pointSize, int(items().size()));
    const int overflow = std::max(m_layout.contentHeight() - viewport()->height(), 0);
    {
        const QSignalBlocker blocker(verticalScrollBar());
        verticalScrollBar()->setPageStep(viewport()->height());
        verticalScrollBar()->setRange(0, overflow);
        const auto anchor = std::ranges::find_if(
            anchors, [this](const Anchor &each) { return m_selection.indexOf(each.id) >= 0; });
        if (anchor != anchors.end()) {
            const double top = m_layout.cardRect(m_selection.indexOf(anchor->id)).top()
                - anchor->offset * m_layout.rowHeight();
            verticalScrollBar()->setValue(int(std::lround(top)));
        }
    }
    m_overlay->adapt();
    placeVisibleItems();
    viewport()->update();
}

void BrowserCollectionView::placeVisibleItems()
{
    m_slide->stop();
    const int top = scrollOffset();
    const auto range = m_layout.visibleRange(top, viewport()->height());
    for (auto it = m_visible.begin(); it != m_visible.end();) {
        if (it->first >= range.first && it->first < range.last) {
            ++it;
            continue;
        }
        it->second->hide();
        m_spare.push_back(it->second);
        it = m_visible.erase(it);
    }
    for (int index = range.first; index < range.last; ++index) {
        const QRect place = viewportRect(m_layout.cardRect(index));
        if (const auto found = m_visible.find(index); found != m_visible.end()) {
            found->second->setGeometry(place);
            found->second->show();
            continue;
        }
        FontCollectionItem *item = takeSpareItem();
        item->setGeometry(place);
        m_visible.emplace(index, item);
        // Shown first: a hidden widget does not learn its size, and a request for pixels names it.
        item->show();
        if (configureItem)
            configureItem(*item, index);
    }
    while (m_spare.size() > kMaxSpareItems) {
        delete m_spare.back();
        m_spare.pop_back();
    }
    if (onItemsPlaced)
        onItemsPlaced();
}

FontCollectionItem *BrowserCollectionView::takeSpareItem()
{
    if (m_spare.empty())
        return makeItem(viewport());
    FontCollectionItem *item = m_spare.back();
    m_spare.pop_back();
    return item;
}

bool BrowserCollectionView::viewportEvent(QEvent *event)
{
    if (event->type() == QEvent::Paint) {
        paintViewport(static_cast<QPaintEvent *>(event)->rect());
        return true;
    }
    if (event->type() == QEvent::ToolTip)
        return showToolTip(*static_cast<QHelpEvent *>(event));
    return QAbstractScrollArea::viewportEvent(event);
}

/// Cards let the pointer through, so that the view speaks for them.
bool BrowserCollectionView::showToolTip(const QHelpEvent &event)
{
    for (const auto &[index, item] : m_visible) {
        if (!item->geometry().contains(event.pos()))
            continue;
        if (const QString tip = item->toolTip(); !tip.isEmpty()) {
            QToolTip::showText(event.globalPos(), shownAsItIs(tip), viewport(), item->geometry());
            return true;
        }
    }
    QToolTip::hideText();
    return true;
}

void BrowserCollectionView::paintViewport(const QRect &exposed)
{
    QPainter painter(viewport());
    painter.fillRect(exposed, m_background);
    paintEndOfGrid(painter);
}

/// Cards draw the lines to their left and above; what the last row leaves open is closed here.
void BrowserCollectionView::paintEndOfGrid(QPainter &painter) const
{
    if (items().isEmpty())
        return;
    const QColor color = hairlineColor(m_foreground, m_background);
    const QRect last = m_layout.cardRect(int(items().size()) - 1).translated(0, -scrollOffset());
    const int rest = viewport()->width() - last.right() - 1;
    const auto mirrored = [&](const QRect &logical) {
        return QStyle::visualRect(layoutDirection(), viewport()->rect(), logical);
    };
    const QRect below(0, last.bottom() + 1, viewport()->width(), m_layout.rowHeight());
    drawHairline(painter, below, Qt::TopEdge, color);
    if (rest <= 0)
        return;
    const QRect open = mirrored({last.right() + 1, last.top(), rest, last.height()});
    if (m_layout.rows() > 1)
        drawHairline(painter, open, Qt::TopEdge, color);
    const bool isMirrored = layoutDirection() == Qt::RightToLeft;
    drawHairline(painter, open, isMirrored ? Qt::RightEdge : Qt::LeftEdge, color);
}

void BrowserCollectionView::resizeEvent(QResizeEvent *event)
{
    m_overlay->adapt();
    const int widthChange = std::abs(viewport()->width() - m_layout.contentWidth());
    const bool heightChanged = event->size().height() != event->oldSize().height();
    if (widthChange <= kIgnoredWidthChange && !heightChanged && m_layout.itemCount() > 0)
        return;
    const int columns = m_layout.columns();
    relayout(currentAnchors());
    if (m_layout.columns() != columns)
        reconfigureVisibleItems();
}

void BrowserCollectionView::scrollContentsBy(int, int)
{
    placeVisibleItems();
    m_pointer->scrolled();
    // Without a current card the focus is at the first one in sight.
    if (m_showsFocus && m_selection.current() < 0)
        reconfigureVisibleItems();
    // Where no card stands, the lines that close the grid have moved.
    viewport()->update();
    m_overlay->flash();
}

void BrowserCollectionView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        relayout(currentAnchors());
}

} // namespace lorva
