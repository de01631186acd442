// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/Organization.h"

#include <optional>

namespace lorva {

/// What became of one collection or style category.
struct GroupingChange
{
    QString id;
    /// Nothing where it did not, or does not, exist.
    std::optional<QString> nameBefore;
    std::optional<QString> nameAfter;
    /// Its place in the list, where it came or went.
    qsizetype place = 0;
    /// Each with its place in the list after, or before.
    std::vector<std::pair<qsizetype, QString>> joined;
    std::vector<std::pair<qsizetype, QString>> left;

    bool operator==(const GroupingChange &) const = default;
};

/// What became of one entry of a map; nothing where it did not, or does not, exist.
struct EntryChange
{
    QString key;
    std::optional<QString> before;
    std::optional<QString> after;

    bool operator==(const EntryChange &) const = default;
};

/// The difference between two organisations, entry by entry, so that it can be undone after others
/// have changed other entries.
struct OrganizationEdit
{
    std::vector<GroupingChange> collections;
    std::vector<GroupingChange> styleCategories;
    std::vector<EntryChange> foundryOverrides;
    std::vector<EntryChange> foundryNames;
    QStringList dismissed;
    QStringList broughtBack;

    bool isEmpty() const;
    /// What undoes it.
    OrganizationEdit inverted() const;
    bool operator==(const OrganizationEdit &) const = default;
};

/// What leads from `before` to `after`.
OrganizationEdit difference(const Organization &before, const Organization &after);

/// Does to `organization` what the edit says, where that is still possible: members that have gone
/// already, groupings that exist already are passed over. A grouping that is created or renamed to
/// a name that another one has meanwhile gets a free one ("Posters 2"). A family that joins a style
/// category leaves the one it is in. The order of collections and of categories is kept as
/// described at Organization.
void apply(const OrganizationEdit &edit, Organization &organization);

} // namespace lorva
