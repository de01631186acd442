// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/CardPointer.h"

#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/RubberBand.h"

#include <QApplication>
#include <QMouseEvent>

#include <algorithm>
#include <chrono>

namespace lorva {

namespace {

constexpr std::chrono::milliseconds kFrame{16};
/// This near to the edge a rubber band scrolls, the faster the nearer.
constexpr int kEdge = 32;
constexpr int kMostPerFrame = 48;

BrowserSelection::Band bandOf(Qt::KeyboardModifiers modifiers)
{
    if (modifiers & Qt::ControlModifier)
        return BrowserSelection::Band::toggle;
    return modifiers & Qt::ShiftModifier ? BrowserSelection::Band::add
                                         : BrowserSelection::Band::replace;
}

bool isPlain(Qt::KeyboardModifiers modifiers)
{
    return !(modifiers & (Qt::ControlModifier | Qt::ShiftModifier));
}

int edgeSpeed(int y, int height)
{
    const int beyond = y < kEdge ? y - kEdge : std::max(y - (height - kEdge), 0);
    return std::clamp(beyond, -kMostPerFrame, kMostPerFrame);
}

} // namespace

CardPointer::CardPointer(BrowserCollectionView &view)
    : QObject(&view)
    , m_view(view)
    , m_band(new RubberBand(view.viewport()))
{
    m_edgeScroll.setInterval(kFrame);
    connect(&m_edgeScroll, &QTimer::timeout, this, &CardPointer::scrollAtEdges);
    m_editDelay.setSingleShot(true);
    connect(&m_editDelay, &QTimer::timeout, this, &CardPointer::edit);
}

CardPointer::Press CardPointer::pressOf(const QMouseEvent &event) const
{
    Press press;
    press.at = event.position().toPoint();
    press.content = m_view.contentPoint(press.at);
    press.index = m_view.arrangement().indexAt(press.content);
    press.before = m_view.selection();
    press.band = bandOf(event.modifiers());
    press.takesFamilies = press.index >= 0 && isPlain(event.modifiers());
    return press;
}

void CardPointer::press(const QMouseEvent &event)
{
    end();
    const bool isFocusPress = std::exchange(m_isFocusPress, false);
    if (event.button() != Qt::LeftButton)
        return;
    m_press = pressOf(event);
    select(*m_press, event.modifiers(), isFocusPress);
}

void CardPointer::select(Press &press, Qt::KeyboardModifiers modifiers, bool isFocusPress)
{
    BrowserSelection selection = press.before;
    const bool isControl = modifiers & Qt::ControlModifier;
    if (modifiers & Qt::ShiftModifier) {
        selection.extendTo(press.index,
                           isControl ? BrowserSelection::Others::keep
                                     : BrowserSelection::Others::drop);
    } else if (isControl) {
        selection.toggle(press.index);
    } else if (!selection.isSelected(press.index)) {
        selection.choose(press.index);
    } else {
        // A drag may follow, which takes all of them along.
        press.choosesOnRelease = true;
        press.editsOnRelease = selection.count() == 1 && !isFocusPress;
    }
    m_view.setSelection(selection);
}

void CardPointer::move(const QMouseEvent &event)
{
    if (!m_press || !(event.buttons() & Qt::LeftButton))
        return;
    m_position = event.position().toPoint();
    const int distance = (m_position - m_press->at).manhattanLength();
    if (m_band->isHidden() && distance < QApplication::startDragDistance())
        return;
    if (m_press->takesFamilies) {
        m_press.reset();
        if (m_view.onDragWanted)
            m_view.onDragWanted();
        return;
    }
    stretchBand();
    const bool isAtEdge = edgeSpeed(m_position.y(), m_view.viewport()->height()) != 0;
    if (!isAtEdge)
        m_edgeScroll.stop();
    else if (!m_edgeScroll.isActive())
        m_edgeScroll.start();
}

void CardPointer::stretchBand()
{
    const QPoint now = m_view.contentPoint(m_position);
    const QRect covered = QRect(m_press->content, QSize(1, 1)).united(QRect(now, QSize(1, 1)));
    m_band->setForeground(m_view.foreground());
    m_band->setGeometry(m_view.viewportRect(covered));
    m_band->show();
    m_band->raise();
    BrowserSelection selection = m_press->before;
    selection.applyBand(m_view.arrangement().itemsIn(covered), m_press->band);
    m_view.setSelection(selection);
}

void CardPointer::scrollAtEdges()
{
    const int speed = edgeSpeed(m_position.y(), m_view.viewport()->height());
    m_view.setScrollOffset(m_view.scrollOffset() + speed);
}

void CardPointer::scrolled()
{
    forgetClick();
    if (m_press && !m_band->isHidden())
        stretchBand();
}

void CardPointer::release(const QMouseEvent &event)
{
    if (!m_press || event.button() != Qt::LeftButton)
        return;
    const Press press = *m_press;
    const bool wasBand = !m_band->isHidden();
    end();
    if (wasBand || !press.choosesOnRelease)
        return;
    BrowserSelection selection = m_view.selection();
    selection.choose(press.index);
    m_view.setSelection(selection);
    if (press.editsOnRelease && m_view.isOnSpecimen(press.index, press.at)) {
        m_editID = selection.currentID();
        m_editDelay.start(QApplication::doubleClickInterval());
    }
}

void CardPointer::doubleClick(const QMouseEvent &event)
{
    const int index = m_view.arrangement().indexAt(m_view.contentPoint(event.position().toPoint()));
    if (event.button() != Qt::LeftButton || !isPlain(event.modifiers()) || index < 0) {
        press(event);
        return;
    }
    end();
    BrowserSelection selection = m_view.selection();
    selection.choose(index);
    m_view.setSelection(selection);
    if (m_view.onDoubleClick)
        m_view.onDoubleClick();
}

void CardPointer::edit()
{
    const BrowserSelection &selection = m_view.selection();
    const bool isStillMeant = selection.count() == 1 && selection.currentID() == m_editID;
    if (isStillMeant && m_view.hasFocus() && m_view.onEditWanted)
        m_view.onEditWanted();
}

void CardPointer::end()
{
    m_press.reset();
    m_band->hide();
    m_edgeScroll.stop();
    m_editDelay.stop();
}

bool CardPointer::cancelBand()
{
    if (!m_press || m_band->isHidden())
        return false;
    const BrowserSelection before = m_press->before;
    end();
    m_view.setSelection(before);
    return true;
}

} // namespace lorva
