// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

class BrowserCollectionView;

// The cards to assistive technology: a list that counts all of them, whether they are on screen or
// not. Thread: main.

/// Once for the process; more often does nothing.
void installBrowserAccessibility();
/// Another card is current, or others are selected.
void announceSelection(BrowserCollectionView &view);
/// Other cards.
void announceItems(BrowserCollectionView &view);

} // namespace lorva
