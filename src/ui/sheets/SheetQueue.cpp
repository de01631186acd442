// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetQueue.h"

#include "ui/sheets/Sheet.h"

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace lorva {

SheetQueue::SheetQueue(QWidget &window)
    : QObject(&window)
{
    qApp->installEventFilter(this);
}

SheetQueue *SheetQueue::find(const QWidget &widget)
{
    return widget.window()->findChild<SheetQueue *>(QString(), Qt::FindDirectChildrenOnly);
}

SheetQueue &SheetQueue::of(QWidget &widget)
{
    SheetQueue *queue = find(widget);
    return queue ? *queue : *new SheetQueue(*widget.window());
}

void SheetQueue::add(Show show)
{
    m_waiting.push_back(std::move(show));
    if (!m_isShowing)
        showNext();
}

void SheetQueue::showNext()
{
    while (!m_isShowing && !m_waiting.empty()) {
        const Show show = std::move(m_waiting.front());
        m_waiting.pop_front();
        m_isShowing = true;
        m_shown = show(*this);
        m_isShowing = !m_shown.isNull();
    }
    if (m_shown)
        connect(m_shown, &QObject::destroyed, this, [this, gone = m_shown.data()] {
            if (m_isShowing && (!m_shown || m_shown == gone))
                finish();
        });
}

void SheetQueue::finish(const std::function<void()> &answer)
{
    const QPointer<SheetQueue> self(this);
    if (m_shown)
        m_shown->disconnect(this);
    m_shown.clear();
    m_isShowing = false;
    if (answer)
        answer();
    if (self && !m_isShowing)
        showNext();
}

void SheetQueue::cancelAll()
{
    m_waiting.clear();
    const QPointer<QObject> shown = m_shown;
    finish();
    if (auto *sheet = qobject_cast<Sheet *>(shown.data())) {
        sheet->dismiss();
    } else if (auto *dialog = qobject_cast<QDialog *>(shown.data())) {
        disconnect(dialog, &QDialog::finished, nullptr, nullptr);
        dialog->reject();
    }
}

Qt::FocusReason SheetQueue::focusReason() const
{
    return m_wasKey ? Qt::TabFocusReason : Qt::OtherFocusReason;
}

bool SheetQueue::eventFilter(QObject *watched, QEvent *event)
{
    // A key that is a shortcut comes only as an override.
    if (event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride)
        m_wasKey = true;
    else if (event->type() == QEvent::MouseButtonPress)
        m_wasKey = false;
    return QObject::eventFilter(watched, event);
}

} // namespace lorva
