// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/ActivationProvider.h"
#include "platform/PlatformFolders.h"

namespace lorva {

/// Activation as the catalog alone knows it: what the system offers is active without a recorded
/// method, what only lies in a watched folder is inactive. A watched folder inside a font folder of
/// the system switches nothing off.
class CatalogActivation final : public ActivationProvider
{
public:
    explicit CatalogActivation(PlatformFolders folders);
    ~CatalogActivation() override;

    std::shared_ptr<const ActivationState> state() const override;
    void setWatchedFolders(std::vector<FilePath> folders) override;
    void setWatchedFontURLs(QSet<FilePath> urls) override;
    /// There is nothing to look at.
    void reconcile(const FontFamilyList &families, std::function<void()> done) override;

private:
    struct State;

    std::shared_ptr<const State> m_state;
};

} // namespace lorva
