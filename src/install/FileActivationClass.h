// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

namespace lorva {

/// What a font file means to activation.
enum class FileActivationClass {
    /// Lives in a Fonts folder or has a namesake there: active, until that file is removed.
    copied,
    /// Active because it was registered in place.
    registered,
    /// Lies in a watched folder and is not active.
    watchedInactive,
    /// Anything else: active through the system, which the user does not control here.
    system,
};

} // namespace lorva
