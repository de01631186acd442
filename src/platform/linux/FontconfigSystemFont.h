// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/AvailableFonts.h"

#include <mutex>

namespace lorva {

/// The desktop's interface font: what its settings name, else fontconfig's choice for a sans serif.
///
/// Asked once and kept for the process: the interface does not change its font while it runs. Reads
/// the process's current fontconfig configuration, and loads the system's if there is none yet.
/// Only formats that the type engine reads are given. Thread: any.
class FontconfigSystemFont final : public SystemFontLocator
{
public:
    Location systemFont() const override;

private:
    mutable std::once_flag m_once;
    mutable Location m_location;
};

} // namespace lorva
