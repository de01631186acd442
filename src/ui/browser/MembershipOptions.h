// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/ActivationPlans.h"
#include "ui/browser/FontBrowserState.h"

#include <vector>

namespace lorva {

// What the menu of a card offers. Not part of the card's own configuration: with two thousand
// foundries that would be tens of thousands of records for every screenful of cards that scrolls
// by, for a menu that is hardly ever opened. Thread: main.

struct StyleMembershipOption
{
    QString id;
    QString name;
    /// All of the families are members; likewise below.
    bool isMember = false;
    bool operator==(const StyleMembershipOption &) const = default;
};

struct CollectionMembershipOption
{
    QString id;
    QString name;
    bool isMember = false;
    bool operator==(const CollectionMembershipOption &) const = default;
};

struct FoundryMembershipOption
{
    QString id;
    QString name;
    bool isMember = false;
    bool operator==(const FoundryMembershipOption &) const = default;
};

/// In the order of the state; without families nothing is a member.
std::vector<StyleMembershipOption> styleOptions(const FontBrowserState &state,
                                                const QStringList &familyNames);
std::vector<CollectionMembershipOption> collectionOptions(const FontBrowserState &state,
                                                          const QStringList &familyNames);
std::vector<FoundryMembershipOption> foundryOptions(const FontBrowserState &state,
                                                    const QStringList &familyNames);

/// What the families can be switched to, by what is known of them.
ActivationOffer activationOffer(const FontBrowserState &state, const QStringList &familyNames);

} // namespace lorva
