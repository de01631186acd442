// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

class QKeyEvent;
class QMainWindow;
class QMenuBar;

namespace lorva {

/// Keeps a menu bar out of the way: hidden until Alt is pressed and released alone, or F10, and
/// hidden again when it has been used. Does nothing where the desktop shows the bar's menus itself.
/// Thread: main.
class MenuBarReveal final : public QObject
{
    Q_OBJECT
public:
    /// Takes over where the bar stands. Owns neither.
    MenuBarReveal(QMainWindow &window, QMenuBar &bar);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void watchKeys();
    bool keyPressed(const QKeyEvent &key);
    bool keyReleased(const QKeyEvent &key);
    void open();
    void hideWhenUnused();
    void color();

    QMainWindow &m_window;
    QMenuBar &m_bar;
    bool m_altIsAlone = false;
    /// Has the focus again after the bar.
    QPointer<QWidget> m_focusBefore;
};

} // namespace lorva
