// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/CharacterGridLayout.h"

class QEvent;
class QKeyEvent;

namespace lorva {

// What keys mean in the cells. Thread: any.

/// Arrows, Home, End (with Control: of all cells), pages; nothing for other keys. Mirrored, the
/// next cell is to the left.
std::optional<CellMove> moveOf(const QKeyEvent &event, bool isMirrored);
/// Return, Enter, Space.
bool isPressKey(const QKeyEvent &event);
/// Takes the key for copying before the window's menu does. True when it did.
bool claimCopyKey(QEvent &event);

} // namespace lorva
