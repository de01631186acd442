// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "model/stores/OrganizationEdit.h"

#include <functional>

namespace lorva {

class CollectionStore;
class FoundryStore;
class PreferenceStore;
class StyleStore;

/// The user's organisation as a whole, over the stores of its parts: a change sees what every
/// process has written, and is written with all its parts or not at all.
///
/// Holds references to the stores, which outlive it, and no cache. Thread: main.
class OrganizationStore
{
public:
    OrganizationStore(PreferenceStore &preferences, CollectionStore &collections,
                      StyleStore &styles, FoundryStore &foundries);

    Organization load() const;

    /// What one change did.
    struct Outcome
    {
        Organization after;
        /// Empty when there was nothing to do.
        OrganizationEdit edit;
    };

    /// Reads the organisation, lets `change` change it, and writes the parts that differ, in one
    /// transaction. When `change` fails nothing is written, and its error is the result.
    ///
    /// `change` may run twice before this returns, but not later: what cannot be written now is
    /// made again as the edit that the caller got, in what others have made of the organisation by
    /// then (apply()). What the user saw done is not refused, nor what was refused done.
    Result<Outcome> change(std::function<Result<void>(Organization &)> change);

private:
    PreferenceStore &m_preferences;
    CollectionStore &m_collections;
    StyleStore &m_styles;
    FoundryStore &m_foundries;
};

} // namespace lorva
