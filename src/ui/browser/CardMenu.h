// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FamilyMenu.h"

class QMenu;

namespace lorva {

/// The menu of one card, or of all selected ones: style, collections, foundry, and switching on and
/// off.
///
/// Its submenus are filled when they open, so that it is there at once however many foundries there
/// are. The state it was made from is kept. Thread: main. `delegate` must outlive the menu.
QMenu *makeCardMenu(const FontBrowserState &state, const QStringList &familyNames,
                    FontBrowserDelegate &delegate, QWidget *parent);

} // namespace lorva
