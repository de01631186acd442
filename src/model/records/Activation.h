// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <optional>

namespace lorva {

/// How a font file is made available to all programs.
enum class InstallMethod { copy, registerInPlace };

/// Whether a family is available to all programs, and how it came to be.
///
/// Always true: an inactive one has no method and is not mixed.
class FontFamilyActivation
{
public:
    /// Inactive.
    FontFamilyActivation() = default;
    static FontFamilyActivation inactive() { return {}; }
    /// No method: active without a recorded one, as a system family is. Mixed: only some of the
    /// family's styles are active.
    static FontFamilyActivation active(std::optional<InstallMethod> method, bool isMixed)
    {
        return {true, method, isMixed};
    }

    bool isActive() const { return m_isActive; }
    std::optional<InstallMethod> method() const { return m_method; }
    bool isMixed() const { return m_isMixed; }

    bool operator==(const FontFamilyActivation &) const = default;

private:
    FontFamilyActivation(bool isActive, std::optional<InstallMethod> method, bool isMixed)
        : m_isActive(isActive)
        , m_method(method)
        , m_isMixed(isMixed)
    {
    }

    bool m_isActive = false;
    std::optional<InstallMethod> m_method;
    bool m_isMixed = false;
};

} // namespace lorva
