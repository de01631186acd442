// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/CharacterGridLayout.h"

class QKeyEvent;

namespace lorva {

// What keys mean in the cells. Thread: any.

/// Arrows, Home, End (with Control: of all cells), pages; nothing for other keys. Mirrored, the
/// next cell is to the left.
std::optional<CellMove> moveOf(const QKeyEvent &event, bool isMirrored);
/// Return, Enter, Space.
bool isPressKey(const QKeyEvent &event);

} // namespace lorva
