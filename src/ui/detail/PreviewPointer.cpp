// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the pointer does to the large preview: clicks, drags and drops.

#include "ui/detail/DetailPreviewView.h"
#include "ui/FontFamilyPasteboard.h"

#include <QApplication>
#include <QClipboard>
#include <QCursor>
#include <QDropEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QTimerEvent>

namespace lorva {

namespace {

constexpr int kAutoscrollMs = 40;

} // namespace

void DetailPreviewView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        event->setAccepted(event->button() == Qt::MiddleButton);
        return;
    }
    finishComposing();
    const QPoint at = event->position().toPoint();
    const bool isThird = isThirdClick(at);
    m_sinceDoubleClick.invalidate();
    press(at, isThird ? SelectionUnit::paragraph : SelectionUnit::character,
          event->modifiers().testFlag(Qt::ShiftModifier));
}

void DetailPreviewView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return mousePressEvent(event);
    m_sinceDoubleClick.start();
    m_doubleClickAt = event->position().toPoint();
    press(m_doubleClickAt, SelectionUnit::word, false);
}

bool DetailPreviewView::isThirdClick(QPoint at) const
{
    return m_sinceDoubleClick.isValid()
        && m_sinceDoubleClick.elapsed() < QApplication::doubleClickInterval()
        && (at - m_doubleClickAt).manhattanLength() < QApplication::startDragDistance();
}

void DetailPreviewView::press(QPoint at, SelectionUnit unit, bool extends)
{
    m_motion.forget();
    const PreviewPlacement &placed = placement();
    if (extends) {
        m_drag = Drag{SelectionUnit::character, {m_edit.anchor(), m_edit.anchor()}, at};
        dragTo(at);
    } else if (unit == SelectionUnit::character) {
        const TextPosition position = positionAt(at);
        m_drag = Drag{unit, {position.index, position.index}, at};
        m_edit.moveTo(position);
        settle(m_edit.text());
    } else {
        const int cluster = clusterAt(placed.carets, at - placed.origin);
        m_drag = Drag{unit, unitAt(placed.carets, m_edit.text(), cluster, unit), at};
        select(m_drag->first.first, m_drag->first.second);
    }
}

void DetailPreviewView::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_drag || !event->buttons().testFlag(Qt::LeftButton))
        return;
    dragTo(event->position().toPoint());
    const bool isOutside =
        m_bandBottom > m_bandTop && (m_drag->at.y() < m_bandTop || m_drag->at.y() >= m_bandBottom);
    if (!isOutside)
        m_autoscroll.stop();
    else if (!m_autoscroll.isActive())
        m_autoscroll.start(kAutoscrollMs, this);
}

/// Beyond the page's edge the text goes on by under the pointer.
void DetailPreviewView::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_autoscroll.timerId())
        return DetailSection::timerEvent(event);
    if (m_drag)
        dragTo(mapFromGlobal(QCursor::pos()));
    else
        m_autoscroll.stop();
}

void DetailPreviewView::dragTo(QPoint at)
{
    m_drag->at = at;
    const auto [firstStart, firstEnd] = m_drag->first;
    const PreviewPlacement &placed = placement();
    if (m_drag->unit == SelectionUnit::character) {
        m_edit.moveTo(positionAt(at), EditableText::Selecting::yes);
        settle(m_edit.text());
        return;
    }
    const int cluster = clusterAt(placed.carets, at - placed.origin);
    const auto [start, end] = unitAt(placed.carets, m_edit.text(), cluster, m_drag->unit);
    if (start < firstStart)
        select(firstEnd, start);
    else
        select(firstStart, std::max(firstEnd, end));
}

void DetailPreviewView::mouseReleaseEvent(QMouseEvent *event)
{
    const QClipboard *clipboard = QGuiApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection()) {
        finishComposing();
        const QString before = m_edit.text();
        m_edit.moveTo(positionAt(event->position()));
        paste(clipboard->mimeData(QClipboard::Selection));
        settle(before);
    }
    if (event->button() != Qt::LeftButton || !m_drag)
        return;
    m_drag.reset();
    m_autoscroll.stop();
    shareSelection();
}

/// Families are for the sidebar; their names are not meant as a text.
bool DetailPreviewView::takesDrop(const QMimeData &source) const
{
    return source.hasText() && !source.hasUrls() && fontFamilyNames(source).isEmpty();
}

void DetailPreviewView::dragEnterEvent(QDragEnterEvent *event)
{
    if (takesDrop(*event->mimeData()))
        event->acceptProposedAction();
}

void DetailPreviewView::dragMoveEvent(QDragMoveEvent *event)
{
    m_dropAt = positionAt(event->position());
    update();
    event->acceptProposedAction();
}

void DetailPreviewView::dragLeaveEvent(QDragLeaveEvent *)
{
    m_dropAt.reset();
    update();
}

void DetailPreviewView::dropEvent(QDropEvent *event)
{
    finishComposing();
    const TextPosition at = positionAt(event->position());
    m_dropAt.reset();
    // What comes from elsewhere is copied; taking it away there is for whoever gave it.
    event->setDropAction(Qt::CopyAction);
    event->accept();
    setFocus(Qt::MouseFocusReason);
    const QString before = m_edit.text();
    m_edit.moveTo(at);
    m_motion.forget();
    paste(event->mimeData());
    settle(before);
}

} // namespace lorva
