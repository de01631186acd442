// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserCollectionView.h"

#include "ui/browser/FontCollectionItem.h"
#include "ui/browser/OverlayScrollBar.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyle>
#include <QToolTip>

#include <cmath>

namespace lorva {

namespace {

constexpr int kWheelStep = 40;
/// Cards kept for the next scroll beyond those on screen.
constexpr size_t kMaxSpareItems = 12;
/// Width changes up to this are jitter of the window system, not a resize.
constexpr int kIgnoredWidthChange = 1;

std::optional<BrowserLayout::Step> stepFor(const QKeyEvent &event, Qt::LayoutDirection direction)
{
    const bool mirrored = direction == Qt::RightToLeft;
    switch (event.key()) {
    case Qt::Key_Left:
        return mirrored ? BrowserLayout::Step::right : BrowserLayout::Step::left;
    case Qt::Key_Right:
        return mirrored ? BrowserLayout::Step::left : BrowserLayout::Step::right;
    case Qt::Key_Up:
        return BrowserLayout::Step::up;
    case Qt::Key_Down:
        return BrowserLayout::Step::down;
    case Qt::Key_PageUp:
        return BrowserLayout::Step::pageUp;
    case Qt::Key_PageDown:
        return BrowserLayout::Step::pageDown;
    case Qt::Key_Home:
        return BrowserLayout::Step::home;
    case Qt::Key_End:
        return BrowserLayout::Step::end;
    default:
        return std::nullopt;
    }
}

} // namespace

BrowserCollectionView::BrowserCollectionView(QWidget *parent)
    : QAbstractScrollArea(parent)
    , m_overlay(new OverlayScrollBar(this))
{
    setObjectName(QStringLiteral("BrowserCollectionView"));
    setAccessibleName(tr("Fonts"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setSingleStep(kWheelStep);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    m_overlay->follow(verticalScrollBar());
}

BrowserCollectionView::~BrowserCollectionView() = default;

void BrowserCollectionView::setContent(const Content &content)
{
    const bool itemsChanged = content.ids != m_ids;
    const bool isRearranged = content.mode != m_mode || content.pointSize != m_pointSize;
    const auto anchors = itemsChanged || isRearranged ? currentAnchors() : std::vector<Anchor>();
    m_mode = content.mode;
    m_pointSize = content.pointSize;
    m_selectedID = content.selectedID;
    if (itemsChanged)
        replaceItems(content.ids);
    else if (!content.ids.isSharedWith(m_ids))
        // Equal names, but the old ones would hold on to the memory of a library that is gone.
        setIds(content.ids);
    if (itemsChanged || isRearranged)
        relayout(anchors);
    reconfigureVisibleItems();
}

void BrowserCollectionView::setIds(const QStringList &ids)
{
    m_ids = ids;
    m_indexByID.clear();
    m_indexByID.reserve(ids.size());
    for (int index = 0; index < ids.size(); ++index)
        m_indexByID.insert(ids.at(index), index);
}

/// Cards are handed over by family, so that what stays on screen is not set anew.
void BrowserCollectionView::replaceItems(const QStringList &ids)
{
    QHash<QString, FontCollectionItem *> byID;
    for (const auto &[index, item] : m_visible)
        byID.insert(m_ids.at(index), item);
    m_visible.clear();
    setIds(ids);
    for (auto it = byID.cbegin(); it != byID.cend(); ++it) {
        if (const auto found = m_indexByID.constFind(it.key()); found != m_indexByID.cend()) {
            m_visible.emplace(*found, it.value());
        } else {
            it.value()->hide();
            m_spare.push_back(it.value());
        }
    }
}

void BrowserCollectionView::setColors(const QColor &foreground, const QColor &background)
{
    if (foreground == m_foreground && background == m_background)
        return;
    m_foreground = foreground;
    m_background = background;
    m_overlay->setForeground(foreground);
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
    verticalScrollBar()->setValue(offset);
}

void BrowserCollectionView::scrollToItem(int index)
{
    const QRect card = m_layout.cardRect(index);
    const int top = scrollOffset();
    if (card.top() < top)
        setScrollOffset(card.top());
    else if (card.bottom() >= top + viewport()->height())
        setScrollOffset(std::min(card.top(), card.bottom() + 1 - viewport()->height()));
}

/// The selected card, when in sight, is what the eye rests on; else the first one in sight that
/// stays.
std::vector<BrowserCollectionView::Anchor> BrowserCollectionView::currentAnchors() const
{
    std::vector<Anchor> anchors;
    if (m_ids.isEmpty() || scrollOffset() == 0)
        return anchors;
    const int top = scrollOffset();
    const auto range = m_layout.visibleRange(top, viewport()->height());
    const auto add = [&](int index) {
        const double offset = m_layout.cardRect(index).top() - top;
        anchors.push_back({m_ids.at(index), offset / m_layout.rowHeight()});
    };
    const int selected = m_indexByID.value(m_selectedID, -1);
    if (selected >= range.first && selected < range.last)
        add(selected);
    for (int index = range.first; index < std::min(range.last, int(m_ids.size())); ++index)
        add(index);
    return anchors;
}

void BrowserCollectionView::relayout(const std::vector<Anchor> &anchors)
{
    m_layout = BrowserLayout(m_mode, viewport()->width(), m_pointSize, int(m_ids.size()));
    const int overflow = std::max(m_layout.contentHeight() - viewport()->height(), 0);
    {
        const QSignalBlocker blocker(verticalScrollBar());
        verticalScrollBar()->setPageStep(viewport()->height());
        verticalScrollBar()->setRange(0, overflow);
        const auto anchor = std::ranges::find_if(
            anchors, [this](const Anchor &each) { return m_indexByID.contains(each.id); });
        if (anchor != anchors.end()) {
            const double top = m_layout.cardRect(m_indexByID.value(anchor->id)).top()
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
        const QRect place = m_layout.cardRect(index).translated(0, -top);
        const QRect mirrored = QStyle::visualRect(layoutDirection(), viewport()->rect(), place);
        if (const auto found = m_visible.find(index); found != m_visible.end()) {
            found->second->setGeometry(mirrored);
            found->second->show();
            continue;
        }
        FontCollectionItem *item = takeSpareItem();
        item->setGeometry(mirrored);
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
        if (item->geometry().contains(event.pos()) && !item->toolTip().isEmpty()) {
            QToolTip::showText(event.globalPos(), item->toolTip(), viewport(), item->geometry());
            return true;
        }
    }
    QToolTip::hideText();
    return true;
}

void BrowserCollectionView::paintViewport(const QRect &exposed)
{
    QPainter painter(viewport());
    if (m_background.alpha() < 255)
        painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(exposed, m_background);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    paintEndOfGrid(painter);
}

/// Cards draw the lines to their left and above; what the last row leaves open is closed here.
void BrowserCollectionView::paintEndOfGrid(QPainter &painter) const
{
    if (m_ids.isEmpty())
        return;
    const QColor color = hairlineColor(m_foreground, m_background);
    const QRect last = m_layout.cardRect(int(m_ids.size()) - 1).translated(0, -scrollOffset());
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
    // Where no card stands, the lines that close the grid have moved.
    viewport()->update();
    m_overlay->flash();
}

void BrowserCollectionView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (onActivateSelection)
            onActivateSelection();
        return;
    }
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    if (const auto step = stepFor(*event, layoutDirection()); step && modifiers == Qt::NoModifier) {
        const int current = m_indexByID.value(m_selectedID, -1);
        select(m_layout.neighbour(current, *step, viewport()->height()));
        return;
    }
    QAbstractScrollArea::keyPressEvent(event);
}

void BrowserCollectionView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QAbstractScrollArea::mousePressEvent(event);
        return;
    }
    const QRect point(event->position().toPoint(), QSize(1, 1));
    const QPoint logical =
        QStyle::visualRect(layoutDirection(), viewport()->rect(), point).topLeft();
    select(m_layout.indexAt(logical + QPoint(0, scrollOffset())));
}

void BrowserCollectionView::mouseDoubleClickEvent(QMouseEvent *event)
{
    mousePressEvent(event);
    if (event->button() == Qt::LeftButton && !m_selectedID.isEmpty() && onDoubleClick)
        onDoubleClick();
}

void BrowserCollectionView::changeEvent(QEvent *event)
{
    QAbstractScrollArea::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        relayout(currentAnchors());
}

void BrowserCollectionView::select(int index)
{
    const QString id = index < 0 ? QString() : m_ids.at(index);
    if (index >= 0)
        scrollToItem(index);
    if (id == m_selectedID)
        return;
    m_selectedID = id;
    if (onSelectionChanged)
        onSelectionChanged(id);
}

} // namespace lorva
