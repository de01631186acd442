// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>

#include <deque>
#include <functional>

class QWidget;

namespace lorva {

/// Whatever asks or tells something in one window, one after the other: sheets of every kind, and
/// file dialogs.
///
/// A child of its window; with the window everything that waits goes unanswered. Thread: main.
class SheetQueue final : public QObject
{
    Q_OBJECT
public:
    /// Makes the thing and shows it; null: no longer wanted.
    using Show = std::function<QObject *(SheetQueue &queue)>;

    /// The queue of the widget's window; made when there is none.
    static SheetQueue &of(QWidget &widget);
    static SheetQueue *find(const QWidget &widget);

    /// `show` is called when its turn comes: at once when nothing is shown. What it shows ends with
    /// finish(), or by being deleted.
    void add(Show show);
    /// What is shown has gone. `answer` is called before the next one comes: what it says may
    /// decide about that.
    void finish(const std::function<void()> &answer = {});
    /// Takes away what is shown, and what waits, unanswered: whom it was for has gone.
    void cancelAll();
    bool isShowing() const { return m_isShowing; }
    /// The reason for which a control that is shown now gets the focus: the keyboard, if it was
    /// used last.
    Qt::FocusReason focusReason() const;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit SheetQueue(QWidget &window);
    void showNext();

    std::deque<Show> m_waiting;
    QPointer<QObject> m_shown;
    bool m_isShowing = false;
    bool m_wasKey = false;
};

} // namespace lorva
