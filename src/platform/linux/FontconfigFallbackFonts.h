// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/FallbackFontLocator.h"

#include <memory>

namespace lorva {

/// Fontconfig's choice of fonts for characters: its order for a sans serif of the wished language,
/// weight and slant, or for its emoji family where the characters want to be shown as emoji; of
/// those that are readable the ones with all characters first, then those with the first character.
///
/// Loads a full configuration of its own when first asked (tens of milliseconds), because the
/// process's current one may be cut down to the interface's fonts. Keeps that and some orders;
/// fonts installed later are not seen. Thread: any; fontconfig works behind a lock.
class FontconfigFallbackFonts final : public FallbackFontLocator
{
public:
    FontconfigFallbackFonts();
    ~FontconfigFallbackFonts() override;

    /// The process's own, so that its configuration is loaded once; made when first asked for.
    static std::shared_ptr<const FontconfigFallbackFonts> shared();

    std::vector<Location> fontsFor(const Wish &wish) const override;

private:
    struct Orders;
    const std::unique_ptr<Orders> m_orders;
};

} // namespace lorva
