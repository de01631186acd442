// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/onboarding/OnboardingOverlayController.h"

#include <memory>

namespace lorva {

class FontResolver;
class LorvaAppModel;

/// The welcome: letters of the user's own fonts fall and pile up, then the card with the text, then
/// the program. Any key skips the scene; with reduced motion there is only the card.
///
/// Does not own the model, which must outlive it. Thread: main.
class FallingLettersOnboarding final : public OnboardingOverlayController
{
public:
    FallingLettersOnboarding(LorvaAppModel &model, std::shared_ptr<FontResolver> resolver);
    ~FallingLettersOnboarding() override;

    void show(QWidget &mainWindow, const WelcomeText &text,
              std::function<void(End)> ended) override;
    QWidget *overlay() override;

private:
    LorvaAppModel &m_model;
    const std::shared_ptr<FontResolver> m_resolver;
};

} // namespace lorva
