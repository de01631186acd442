// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

/// From here on this process and its threads, those that are there included, can compute and use
/// the descriptors that they have. See runConfined() for what is stopped and what is refused. For
/// good. False when the kernel has no such filters, or does not let us set one. Thread: any.
bool installSystemCallFilter();

} // namespace lorva
