// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>

#include <optional>
#include <span>

namespace lorva {

/// Nothing for a saved frame of more than 16,384 points a side: no desktop is as large, and the
/// memory for its pixels would not be there.
std::optional<QRect> plausibleFrame(const std::optional<QRect> &saved);

/// `frame` as it stands if the user can take hold of it on one of the screens (their visible
/// areas), else moved to the middle of the nearest one: the screen that it was left on may be gone.
/// Never resized; without screens as it stands. Units: points.
QRect keptReachable(const QRect &frame, std::span<const QRect> screens);

} // namespace lorva
