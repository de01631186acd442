// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/onboarding/OnboardingOverlayController.h"

#include <QPointer>
#include <QSize>

#include <memory>

namespace lorva {

class FontResolver;
class FrameClock;
class LetterFall;
class LorvaAppModel;
class OnboardingOverlay;

/// The welcome: letters of the user's own fonts fall and pile up, then the card with the text, then
/// the program. Any key skips the scene; with reduced motion there is only the card.
///
/// Does not own the model, which must outlive it. What is shown belongs to the main window; when
/// the controller goes before its end, it goes, too, and nobody is told. Thread: main.
class FallingLettersOnboarding final : public OnboardingOverlayController
{
public:
    /// `clock`: what moves it; null: sixty frames a second.
    FallingLettersOnboarding(LorvaAppModel &model, std::shared_ptr<FontResolver> resolver,
                             std::shared_ptr<FrameClock> clock = nullptr);
    ~FallingLettersOnboarding() override;

    void show(QWidget &mainWindow, const WelcomeText &text,
              std::function<void(End)> ended) override;
    QWidget *overlay() override;
    /// After show(): the letters lie still, all of them, whatever the desktop says about motion,
    /// and the card is there or not. Takes seconds.
    void settleForPicture(bool showsCard) override;

private:
    std::unique_ptr<LetterFall> makeFall(QSize size) const;

    LorvaAppModel &m_model;
    const std::shared_ptr<FontResolver> m_resolver;
    const std::shared_ptr<FrameClock> m_clock;
    QPointer<OnboardingOverlay> m_overlay;
};

} // namespace lorva
