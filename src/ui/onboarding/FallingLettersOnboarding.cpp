// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/FallingLettersOnboarding.h"

#include "model/LorvaAppModel.h"
#include "ui/preview/FontResolver.h"

namespace lorva {

FallingLettersOnboarding::FallingLettersOnboarding(LorvaAppModel &model,
                                                   std::shared_ptr<FontResolver> resolver)
    : m_model(model)
    , m_resolver(std::move(resolver))
{
}

FallingLettersOnboarding::~FallingLettersOnboarding() = default;

void FallingLettersOnboarding::show(QWidget &, const WelcomeText &, std::function<void(End)> ended)
{
    ended(End::absent);
}

QWidget *FallingLettersOnboarding::overlay()
{
    return nullptr;
}

} // namespace lorva
