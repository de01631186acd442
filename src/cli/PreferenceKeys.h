// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "model/stores/OrganizationEdit.h"
#include "platform/PreferenceValue.h"

#include <vector>

namespace lorva {
class PreferenceStore;
}

namespace lorva::cli {

/// What one command shows or changes of what the user sorted, or switched on.
enum class OrganizationPart {
    none,
    collections,
    styles,
    foundries,
    displaySettings,
    activation,
    watchedFolders,
};

/// A key under which this version keeps something.
struct KnownPreference
{
    QString key;
    /// The name of its kind: "data".
    QByteArray kind;
    /// What it holds of what the user sorted.
    OrganizationPart part = OrganizationPart::none;
    /// What a value of that kind holds, for people: "3 entries". Fails when it does not decode.
    Result<QString> (*describe)(const PreferenceValue &value) = nullptr;
    /// Whether the edit writes it; null where none does.
    bool (*isChangedBy)(const OrganizationEdit &edit) = nullptr;
};

const std::vector<KnownPreference> &knownPreferences();

/// describe() of a stored row; fails for another kind and for damage, too.
Result<QString> describeStored(const KnownPreference &known, const PreferenceRow &row);
/// Fails when the key holds something that cannot be read.
Result<void> checkStored(const KnownPreference &known, const PreferenceStore &preferences);

} // namespace lorva::cli
