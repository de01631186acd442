// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <span>

namespace lorva {

/// `frame` as it stands if the user can take hold of it on one of the screens (their visible
/// areas), else moved to the middle of the nearest one: the screen that it was left on may be gone.
/// Never resized; without screens as it stands. Units: points.
QRect keptReachable(const QRect &frame, std::span<const QRect> screens);

} // namespace lorva
