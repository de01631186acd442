// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

/// Has all threads of the process share one heap, instead of one for each thread: what a worker of
/// a scan has used is then used again by the window rather than kept for that worker's return. To
/// be called before any other thread begins.
void keepMemoryTogether();

} // namespace lorva
