// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "model/records/Organization.h"

#include <optional>

namespace lorva {

// The changes that a person makes, on values. One that fails leaves the organisation as it was:
// notFound for an unknown id, invalidValue for a name that cannot be. The details are fit to be
// shown. Thread: any.

/// The most characters that a name may have; what is longer is cut between characters.
inline constexpr int kLongestName = 255;

/// `name` on one line: control characters, line breaks and marks that turn the direction of text
/// become spaces or go, white space is trimmed and joined, and what is longer than kLongestName is
/// cut. Empty when nothing is left.
QString cleanedName(const QString &name);

/// A random identifier for a new grouping: a UUID, lower case, without braces.
QString newGroupingID();

/// `base` if no collection has that name, whatever its case, else `base` with the lowest free
/// number ("Untitled 2").
QString freeCollectionName(const Organization &organization, const QString &base);

/// Fails for an empty name and for one that another collection has, whatever its case. `id` comes
/// from newGroupingID().
Result<void> createCollection(Organization &organization, const QString &id, const QString &name);
/// As with createCollection(); its own name in another case is a new name.
Result<void> renameCollection(Organization &organization, const QString &id, const QString &name);
Result<void> deleteCollection(Organization &organization, const QString &id);
/// Families that are members already stay where they are; names that are empty are passed over.
Result<void> addFamilies(Organization &organization, const QString &collectionID,
                         const QStringList &familyNames);
Result<void> removeFamilies(Organization &organization, const QString &collectionID,
                            const QStringList &familyNames);
/// Makes these the members, in this order, each once.
Result<void> setFamilies(Organization &organization, const QString &collectionID,
                         const QStringList &familyNames);

// Style categories of the user's own. The default ones can be neither renamed nor deleted.

Result<void> createStyleCategory(Organization &organization, const QString &id,
                                 const QString &name);
Result<void> renameStyleCategory(Organization &organization, const QString &id,
                                 const QString &name);
/// Its families are in no category then.
Result<void> deleteStyleCategory(Organization &organization, const QString &id);
/// Puts each family into exactly that category, or into none. A category's families are kept sorted
/// by name.
Result<void> setStyle(Organization &organization, const QStringList &familyNames,
                      const std::optional<QString> &categoryID);

/// Moves families to a foundry, whatever their fonts say; an empty id: to none.
void setFoundry(Organization &organization, const QStringList &familyNames,
                const QString &foundryID);
/// Lets the fonts say it again.
void resetFoundry(Organization &organization, const QStringList &familyNames);
/// Nothing takes the user's name away. Fails for an empty name.
Result<void> renameFoundry(Organization &organization, const QString &foundryID,
                           const std::optional<QString> &name);
void dismissFoundry(Organization &organization, const QString &foundryID);
void bringBackFoundry(Organization &organization, const QString &foundryID);

} // namespace lorva
