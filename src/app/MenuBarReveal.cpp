// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/MenuBarReveal.h"

#include "ui/sheets/AlertSheet.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QWindow>

namespace lorva {

MenuBarReveal::MenuBarReveal(QMainWindow &window, QMenuBar &bar)
    : m_window(window)
    , m_bar(bar)
{
    m_window.setMenuBar(&m_bar);
    if (m_bar.isNativeMenuBar())
        return;
    m_bar.hide();
    m_bar.setFont(interfaceFont(InterfaceSize::body));
    color();
    m_bar.installEventFilter(this);
    m_window.installEventFilter(this);
    watchKeys();
    for (const QAction *action : m_bar.actions())
        connect(action->menu(), &QMenu::aboutToHide, this, &MenuBarReveal::hideWhenUnused,
                Qt::QueuedConnection);
}

/// The window as the display knows it: it meets every key first, whichever widget has the focus.
void MenuBarReveal::watchKeys()
{
    m_window.winId();
    m_window.windowHandle()->installEventFilter(this);
}

bool MenuBarReveal::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::WinIdChange:
        if (watched == &m_window && m_window.windowHandle())
            watchKeys();
        return false;
    case QEvent::PaletteChange:
        if (watched == &m_window)
            color();
        return false;
    case QEvent::FocusOut:
        m_altIsAlone = false;
        if (watched == &m_bar)
            QMetaObject::invokeMethod(this, &MenuBarReveal::hideWhenUnused, Qt::QueuedConnection);
        return false;
    case QEvent::MouseButtonPress:
    case QEvent::Wheel:
        m_altIsAlone = false;
        return false;
    case QEvent::KeyPress:
        if (watched == &m_bar)
            QMetaObject::invokeMethod(this, &MenuBarReveal::hideWhenUnused, Qt::QueuedConnection);
        return watched->isWindowType() && keyPressed(*static_cast<QKeyEvent *>(event));
    case QEvent::KeyRelease:
        return watched->isWindowType() && keyReleased(*static_cast<QKeyEvent *>(event));
    default:
        return false;
    }
}

bool MenuBarReveal::keyPressed(const QKeyEvent &key)
{
    const bool isFree = !m_bar.isVisible() && !hasAlertSheet(m_window);
    m_altIsAlone = isFree && key.key() == Qt::Key_Alt && !(key.modifiers() & ~Qt::AltModifier);
    if (!isFree || key.key() != Qt::Key_F10 || key.modifiers() != Qt::NoModifier)
        return false;
    open();
    return true;
}

bool MenuBarReveal::keyReleased(const QKeyEvent &key)
{
    if (key.key() != Qt::Key_Alt || !std::exchange(m_altIsAlone, false))
        return false;
    open();
    return true;
}

void MenuBarReveal::open()
{
    m_focusBefore = m_window.focusWidget();
    m_bar.show();
    m_bar.setFocus(Qt::MenuBarFocusReason);
    m_bar.setActiveAction(m_bar.actions().constFirst());
}

void MenuBarReveal::hideWhenUnused()
{
    if (QApplication::activePopupWidget() || (m_bar.hasFocus() && m_bar.activeAction()))
        return;
    if (m_bar.hasFocus() && m_focusBefore)
        m_focusBefore->setFocus(Qt::MenuBarFocusReason);
    m_bar.hide();
}

void MenuBarReveal::color()
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPalette palette = m_bar.palette();
    palette.setColor(QPalette::Window, colors.sidebar);
    palette.setColor(QPalette::Button, colors.sidebar);
    for (const auto role : {QPalette::WindowText, QPalette::ButtonText, QPalette::Text})
        palette.setColor(role, colors.text);
    m_bar.setPalette(palette);
}

} // namespace lorva
