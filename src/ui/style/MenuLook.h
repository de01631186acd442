// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

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

} // namespace lorva
