// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserCollectionView.h"

#include "ui/browser/CardPointer.h"
#include "ui/browser/LetterJump.h"
#include "ui/browser/SmoothScroller.h"
#include "ui/style/ControlColors.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

namespace lorva {

namespace {

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

bool isPage(BrowserLayout::Step step)
{
    return step == BrowserLayout::Step::pageUp || step == BrowserLayout::Step::pageDown;
}

/// Where a key starts without a selection, the card itself is what it selects.
bool startsAtFirstInSight(BrowserLayout::Step step)
{
    return step != BrowserLayout::Step::home && step != BrowserLayout::Step::end;
}

Qt::KeyboardModifiers modifiersOf(const QKeyEvent &event)
{
    return event.modifiers() & ~Qt::KeypadModifier;
}

bool isMenuKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Menu
        || (event.key() == Qt::Key_F10 && modifiersOf(event) == Qt::ShiftModifier);
}

template <class Callback>
void call(const Callback &callback)
{
    if (callback)
        callback();
}

} // namespace

void BrowserCollectionView::keyPressEvent(QKeyEvent *event)
{
    m_pointer->forgetClick();
    if (pressCommand(*event) || pressStep(*event))
        return;
    if (const QString letter = jumpLetter(*event); !letter.isEmpty()) {
        if (onLetterKey)
            onLetterKey(letter);
        return;
    }
    QAbstractScrollArea::keyPressEvent(event);
}

bool BrowserCollectionView::pressCommand(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        call(onActivateSelection);
        return true;
    }
    if (isMenuKey(event)) {
        openMenuAtCurrent();
        return true;
    }
    if (event.key() == Qt::Key_Escape)
        return m_pointer->cancelBand();
    if (event.key() == Qt::Key_F2 && modifiersOf(event) == Qt::NoModifier) {
        call(onEditWanted);
        return true;
    }
    if (event.matches(QKeySequence::Copy)) {
        call(onCopyWanted);
        return true;
    }
    if (!event.matches(QKeySequence::SelectAll))
        return false;
    BrowserSelection selection = m_selection;
    selection.selectAll();
    setSelection(selection);
    return true;
}

bool BrowserCollectionView::pressStep(const QKeyEvent &event)
{
    const auto step = stepFor(event, layoutDirection());
    const auto modifiers = modifiersOf(event);
    const bool extends = modifiers == Qt::ShiftModifier;
    if (!step || items().isEmpty() || !(extends || modifiers == Qt::NoModifier))
        return false;
    const int current = m_selection.current();
    const int index = current < 0 && startsAtFirstInSight(*step)
        ? focusIndex()
        : m_layout.neighbour(current, *step, viewport()->height());
    BrowserSelection selection = m_selection;
    if (extends)
        selection.extendTo(index);
    else
        selection.choose(index);
    setSelection(selection);
    if (isPage(*step))
        m_scroller->glideTo(scrollOffsetShowing(index));
    else
        scrollToItem(index);
    return true;
}

void BrowserCollectionView::openMenuAtCurrent()
{
    const int index = m_selection.current();
    if (index < 0 || !onMenuWanted)
        return;
    scrollToItem(index);
    const QPoint centre = viewportRect(m_layout.cardRect(index)).center();
    onMenuWanted(viewport()->mapToGlobal(centre));
}

void BrowserCollectionView::contextMenuEvent(QContextMenuEvent *event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        openMenuAtCurrent();
        return;
    }
    const int index = m_layout.indexAt(contentPoint(event->pos()));
    if (index < 0 || !onMenuWanted)
        return;
    BrowserSelection selection = m_selection;
    selection.chooseForMenu(index);
    setSelection(selection);
    onMenuWanted(event->globalPos());
}

void BrowserCollectionView::wheelEvent(QWheelEvent *event)
{
    const int lines = QApplication::wheelScrollLines();
    m_scroller->wheel(*event, lines * verticalScrollBar()->singleStep());
    event->accept();
}

void BrowserCollectionView::mousePressEvent(QMouseEvent *event)
{
    setShowsFocus(false);
    m_pointer->press(*event);
}

void BrowserCollectionView::mouseMoveEvent(QMouseEvent *event)
{
    m_pointer->move(*event);
}

void BrowserCollectionView::mouseReleaseEvent(QMouseEvent *event)
{
    m_pointer->release(*event);
}

void BrowserCollectionView::mouseDoubleClickEvent(QMouseEvent *event)
{
    m_pointer->doubleClick(*event);
}

void BrowserCollectionView::focusInEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusInEvent(event);
    const Qt::FocusReason reason = event->reason();
    if (reason == Qt::MouseFocusReason || reason == Qt::ActiveWindowFocusReason)
        m_pointer->expectFocusPress();
    setShowsFocus(showsFocusRing(reason, m_showsFocus));
}

void BrowserCollectionView::focusOutEvent(QFocusEvent *event)
{
    QAbstractScrollArea::focusOutEvent(event);
    m_pointer->forgetClick();
    // What another window or a menu takes comes back as it was.
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        setShowsFocus(false);
}

void BrowserCollectionView::setShowsFocus(bool showsFocus)
{
    if (showsFocus == m_showsFocus)
        return;
    m_showsFocus = showsFocus;
    reconfigureVisibleItems();
}

} // namespace lorva
