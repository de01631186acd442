// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The keyboard: what keys do in each phase, and where Tab goes.

#include "ui/quiz/FontQuizViewController.h"

#include "ui/style/TextButton.h"

#include <QKeyEvent>

namespace lorva {

namespace {

/// The number that a key press types, on whatever keyboard; 0 for none.
int typedNumber(const QKeyEvent &event)
{
    if (event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        return 0;
    const QString text = event.text();
    return text.size() == 1 ? text[0].digitValue() : text.toInt();
}

bool isReturn(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

} // namespace

void FontQuizViewController::introKey(const QKeyEvent &event)
{
    if (isReturn(event) || event.key() == Qt::Key_Space)
        start();
}

void FontQuizViewController::playingKey(const QKeyEvent &event)
{
    if (event.key() == Qt::Key_Space)
        return skip();
    if (event.key() == Qt::Key_Backspace)
        return takeBack();
    choose(typedNumber(event));
}

/// A busy X11 client tells repeats as releases and presses of the same moment.
bool FontQuizViewController::isHeldStill(const QKeyEvent &event) const
{
    return event.timestamp() != 0 && event.timestamp() == m_releasedAt
        && event.key() == m_releasedKey;
}

void FontQuizViewController::keyReleaseEvent(QKeyEvent *event)
{
    event->accept();
    m_releasedAt = event->timestamp();
    m_releasedKey = event->key();
}

void FontQuizViewController::keyPressEvent(QKeyEvent *event)
{
    // Nothing that lies below hears of a key.
    event->accept();
    if (event->key() == Qt::Key_Escape)
        return close();
    // A key that is held down must not sort one font after the other.
    if (event->isAutoRepeat() || isHeldStill(*event))
        return;
    // Buttons leave Return to whoever holds them.
    if (isReturn(*event) && focusWidget() == m_closeButton)
        return m_closeButton->click();
    if (m_phase == Phase::intro)
        introKey(*event);
    else if (m_phase == Phase::playing)
        playingKey(*event);
    else if (event->key() == Qt::Key_Backspace)
        takeBack();
}

bool FontQuizViewController::focusNextPrevChild(bool next)
{
    QWidget *const from = focusWidget() ? focusWidget() : this;
    const auto step = [next](QWidget *widget) {
        return next ? widget->nextInFocusChain() : widget->previousInFocusChain();
    };
    for (QWidget *widget = step(from); widget != from; widget = step(widget)) {
        if (isAncestorOf(widget) && widget->isVisible() && widget->isEnabled()
            && (widget->focusPolicy() & Qt::TabFocus)) {
            widget->setFocus(next ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            break;
        }
    }
    return true;
}

} // namespace lorva
