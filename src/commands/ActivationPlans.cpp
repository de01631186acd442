// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/ActivationPlans.h"

#include <algorithm>

namespace lorva {

namespace {

using Class = FileActivationClass;
using State = std::optional<FamilyActivationState>;

template <class TakesPart, class IsSwitched>
std::vector<FontFamilyRecord> chosen(const std::vector<FontFamilyRecord> &asked,
                                     const ActivationBooks &books, TakesPart takesPart,
                                     IsSwitched isSwitched)
{
    std::vector<FontFamilyRecord> families;
    for (const FontFamilyRecord &each : asked) {
        if (!takesPart(books.activationState(each)))
            continue;
        FontFamilyRecord family = each;
        std::erase_if(family.styles, [&](const FontStyleRecord &style) {
            return !style.fileURL || !isSwitched(books.classify(*style.fileURL));
        });
        if (!family.styles.empty())
            families.push_back(std::move(family));
    }
    return families;
}

bool isInactive(Class meaning)
{
    return meaning == Class::watchedInactive;
}

} // namespace

bool takesPartInActivation(const State &state)
{
    return !state || (state->method && state->isPartlyInactive);
}

bool takesPartInDeactivation(const State &state)
{
    return state && state->method;
}

std::vector<FontFamilyRecord> familiesToActivate(const std::vector<FontFamilyRecord> &asked,
                                                 const ActivationBooks &books)
{
    return chosen(asked, books, takesPartInActivation, isInactive);
}

std::vector<FontFamilyRecord> familiesToComplete(const std::vector<FontFamilyRecord> &asked,
                                                 const ActivationBooks &books)
{
    const auto takesPart = [](const State &state) { return state && state->isPartlyInactive; };
    return chosen(asked, books, takesPart, isInactive);
}

std::vector<FontFamilyRecord> familiesToDeactivate(const std::vector<FontFamilyRecord> &asked,
                                                   const ActivationBooks &books)
{
    return chosen(asked, books, takesPartInDeactivation, [](Class meaning) {
        return meaning == Class::copied || meaning == Class::registered;
    });
}

void ActivationOffer::add(const std::optional<FontFamilyActivation> &activation)
{
    // Nothing is known of it, or the system has it.
    if (!activation || (activation->isActive() && !activation->method()))
        return;
    activates = activates || !activation->isActive();
    activatesRemaining = activatesRemaining || activation->isMixed();
    deactivates = deactivates || activation->isActive();
}

} // namespace lorva
