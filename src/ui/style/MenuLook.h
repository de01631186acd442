// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <functional>
#include <optional>

class QAbstractButton;
class QKeyEvent;
class QMenu;
class QWidget;

namespace lorva {

/// A menu in the look of the house (neutral ground, hairline, radius, rows of 26, a check mark
/// where chosen), light or dark with the desktop. Thread: main.
QMenu *makeMenu(QWidget *parent);
/// Gives the look to a menu that exists, submenus included.
void applyMenuLook(QMenu &menu);

/// A name as the text of an entry: in one line of bounded width, its ampersands shown.
QString menuEntryText(const QString &name);

/// A menu of which one entry holds (nothing: none), for a button that it hangs from; it dies when
/// it is closed, and `choose` gets the index of the entry that was chosen. Whoever opens it places
/// it.
QMenu *makeChoiceMenu(QAbstractButton &button, const QStringList &entries,
                      std::optional<int> current, const std::function<void(int)> &choose);
/// The keys that open such a menu: Return, Enter, Space, up and down.
bool isMenuKey(const QKeyEvent &event);

} // namespace lorva
