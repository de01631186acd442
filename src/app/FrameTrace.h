// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace lorva {

/// While tracing (LORVA_TRACE) every repaint of `window` becomes a stage "frame", from the first
/// widget that is painted until the picture is handed to the screen. Otherwise does nothing, and
/// costs nothing later. Thread: main.
void traceFrames(QWidget &window);

} // namespace lorva
