// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/FallingLettersOnboarding.h"

#include "model/LorvaAppModel.h"
#include "ui/onboarding/LetterFall.h"
#include "ui/onboarding/LetterSupply.h"
#include "ui/onboarding/OnboardingOverlay.h"
#include "ui/onboarding/WindowReveal.h"
#include "ui/preview/FontResolver.h"
#include "ui/style/ReducedMotion.h"

namespace lorva {

FallingLettersOnboarding::FallingLettersOnboarding(LorvaAppModel &model,
                                                   std::shared_ptr<FontResolver> resolver,
                                                   std::shared_ptr<FrameClock> clock)
    : m_model(model)
    , m_resolver(std::move(resolver))
    , m_clock(clock ? std::move(clock) : std::make_shared<TimerFrameClock>())
{
}

FallingLettersOnboarding::~FallingLettersOnboarding()
{
    // One that has ended goes by itself.
    if (m_overlay && !m_overlay->hasEnded())
        delete m_overlay;
}

std::unique_ptr<LetterFall> FallingLettersOnboarding::makeFall(QSize size) const
{
    return std::make_unique<LetterFall>(std::make_unique<LetterSupply>(m_model, m_resolver), size);
}

void FallingLettersOnboarding::show(QWidget &mainWindow, const WelcomeText &text,
                                    std::function<void(End)> ended)
{
    using Placement = OnboardingOverlay::Placement;
    m_overlay =
        new OnboardingOverlay(mainWindow, canFadeWindows() ? Placement::window : Placement::inside,
                              text, m_clock, std::move(ended));
    m_overlay->begin(prefersReducedMotion(&mainWindow) ? nullptr : makeFall(mainWindow.size()));
}

QWidget *FallingLettersOnboarding::overlay()
{
    return m_overlay;
}

void FallingLettersOnboarding::settleForPicture(bool showsCard)
{
    if (m_overlay && !m_overlay->hasEnded())
        m_overlay->settleForPicture(makeFall(m_overlay->size()), showsCard);
}

} // namespace lorva
