// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/LaunchOptions.h"
#include "model/records/BrowserSource.h"

#include <optional>

namespace lorva {

class LorvaAppModel;

/// Makes the model show what a start asks for, and what can only be shown once the library is known
/// (a foundry, a family) as soon as it is.
///
/// What the user has chosen meanwhile stays. Does not own the model, which must outlive it. Thread:
/// main.
class LaunchChoices
{
public:
    explicit LaunchChoices(LorvaAppModel &model)
        : m_model(model)
    {
    }

    /// Fails when the logo cannot be read; all else is taken over nevertheless.
    Result<void> apply(const LaunchOptions &options);
    /// After every change of the model.
    void catchUp();

private:
    bool selectSource();
    void selectFamily();
    void openDetail();

    LorvaAppModel &m_model;
    std::optional<LaunchSource> m_wantedSource;
    /// Selected when the wanted one was asked for.
    BrowserSource m_sourceBefore;
    std::optional<QString> m_wantedFamily;
    std::optional<QString> m_wantedDetail;
};

} // namespace lorva
