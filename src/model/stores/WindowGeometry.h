// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QRect>
#include <QSize>

#include <optional>

namespace lorva {

/// Where the main window opens, in logical pixels.
///
/// A saved frame is used as it stands. Without one the window takes `wanted`, or what
/// `visibleFrame` (the screen without panels; empty when there is no screen) has room for with 20
/// left on every side, centred on it. Either way a side below `minimum` grows to it, and the window
/// is then centred.
QRect mainWindowFrame(const std::optional<QRect> &saved, const QRect &visibleFrame,
                      QSize minimum = {960, 800}, QSize wanted = {1720, 920});

} // namespace lorva
