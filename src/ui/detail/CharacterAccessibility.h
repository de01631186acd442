// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

class CharacterCellsView;

// The cells to assistive technology: a list that counts all of them, whether they are in sight or
// not. Thread: main.

/// Once for the process; more often does nothing.
void installCharacterAccessibility();
/// Another cell is current, or the cells got the keyboard.
void announceCurrent(CharacterCellsView &view);
/// Other cells.
void announceCells(CharacterCellsView &view);

} // namespace lorva
