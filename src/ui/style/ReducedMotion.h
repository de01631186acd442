// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

class QWidget;

namespace lorva {

// Thread: main.

/// True when the desktop (through the widget's style) asks that nothing moves.
bool prefersReducedMotion(const QWidget *widget);

/// Decides in the desktop's place; nothing gives the decision back to it.
void setReducedMotionOverride(std::optional<bool> reduced);

} // namespace lorva
