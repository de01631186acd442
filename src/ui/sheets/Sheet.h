// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/sheets/SheetPanel.h"

#include <QPointer>
#include <QWidget>

#include <vector>

class QPushButton;

namespace lorva {

/// What every sheet over a window shares: the dimmed ground, and the panel with what it says.
///
/// Lies inside the window and covers it, so that it looks the same on every desktop. Keeps the
/// keyboard's focus until it is dismissed, and gives it back then. Shown by the window's
/// SheetQueue. Thread: main.
class Sheet : public QWidget
{
    Q_OBJECT
public:
    ~Sheet() override;

    /// Takes the focus and fades in. `reason`: how what is focused first got there.
    void present(Qt::FocusReason reason = Qt::OtherFocusReason);
    /// Hides it, gives the focus back, and deletes it later. Once; more does nothing.
    void dismiss();
    bool isDismissed() const { return m_isDismissed; }

protected:
    /// `name`: of the object; its parts are called after it.
    Sheet(QWidget &window, const QString &name, QAccessible::Role role);

    SheetPanel &panel() { return *m_panel; }
    /// The heading of the column, and the panel's name for assistive technology.
    void addHeading(const QString &text);
    /// More quietly; nothing for an empty text.
    SheetText *addBody(const QString &text);
    /// Smaller and quieter still.
    SheetText *addNote(const QString &text);
    /// Tab goes through what is added, in that order. The first button of a footer stands at its
    /// end.
    void addStop(QWidget *control) { m_stops.push_back(control); }
    void addButton(QPushButton *button);
    /// What Return presses, wherever the focus is.
    void setDefaultButton(QPushButton *button) { m_default = button; }
    /// Without it the default button, else the sheet itself.
    void setFirstFocus(QWidget *control) { m_firstFocus = control; }
    /// The name of a part as an object.
    QString partName(QLatin1String part) const;

    /// Escape.
    virtual void cancel() = 0;
    void layOut();

    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void closePopups();
    void fadeIn();
    void setProgress(double progress);
    void takeFocus();
    void keepFocus(QWidget *now);

    QPointer<QWidget> m_focusBefore;
    SheetPanel *m_panel;
    std::vector<QWidget *> m_stops;
    QPushButton *m_default = nullptr;
    QWidget *m_firstFocus = nullptr;
    Qt::FocusReason m_firstReason = Qt::OtherFocusReason;
    double m_progress = 1.0;
    bool m_isDismissed = false;
};

} // namespace lorva
