// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/CollectionStore.h"
#include "model/stores/OrganizationEdit.h"

#include "model/records/StyleCategories.h"
#include "model/stores/TakenNames.h"

#include <algorithm>

namespace lorva {

namespace {

using Places = std::vector<std::pair<qsizetype, QString>>;

bool isCreation(const GroupingChange &change)
{
    return !change.nameBefore && change.nameAfter;
}

bool isDeletion(const GroupingChange &change)
{
    return change.nameBefore && !change.nameAfter;
}

bool isRenaming(const GroupingChange &change)
{
    return change.nameBefore != change.nameAfter;
}

QSet<QString> namesOf(const Places &places)
{
    QSet<QString> out;
    for (const auto &[place, name] : places)
        out.insert(name);
    return out;
}

/// The members that join. One that only moves within the list does so if it is still there.
Places joining(const GroupingChange &change, const QSet<QString> &present,
               const QSet<QString> &leaving)
{
    Places out;
    std::copy_if(change.joined.begin(), change.joined.end(), std::back_inserter(out),
                 [&](const auto &entry) {
                     return present.contains(entry.second) == leaving.contains(entry.second);
                 });
    return out;
}

/// `kept` with each of `joined`, which go up, at its place as far as there are that many.
QStringList merged(const QStringList &kept, const Places &joined)
{
    QStringList out;
    out.reserve(kept.size() + qsizetype(joined.size()));
    auto next = joined.begin();
    for (const QString &name : kept) {
        for (; next != joined.end() && next->first <= out.size(); ++next)
            out.append(next->second);
        out.append(name);
    }
    for (; next != joined.end(); ++next)
        out.append(next->second);
    return out;
}

void changeMembers(const GroupingChange &change, QStringList &members)
{
    if (change.joined.empty() && change.left.empty())
        return;
    const QSet<QString> present(members.cbegin(), members.cend());
    const QSet<QString> leaving = namesOf(change.left);
    members.removeIf([&](const QString &name) { return leaving.contains(name); });
    members = merged(members, joining(change, present, leaving));
}

template <class Grouping>
auto findGrouping(std::vector<Grouping> &groupings, const QString &id)
{
    return std::find_if(groupings.begin(), groupings.end(),
                        [&](const Grouping &each) { return each.id == id; });
}

template <class Grouping>
void create(const GroupingChange &change, std::vector<Grouping> &groupings)
{
    const auto place =
        groupings.begin() + std::clamp<qsizetype>(change.place, 0, qsizetype(groupings.size()));
    groupings.insert(place, {change.id, *change.nameAfter, merged({}, change.joined)});
}

/// Makes the grouping, or changes the one that is there; false when neither is possible any more.
template <class Grouping>
bool createOrChange(const GroupingChange &change, std::vector<Grouping> &groupings)
{
    const auto found = findGrouping(groupings, change.id);
    const bool exists = found != groupings.end();
    if (exists == isCreation(change))
        return false;
    if (!exists) {
        create(change, groupings);
        return true;
    }
    if (isRenaming(change))
        found->name = *change.nameAfter;
    changeMembers(change, found->familyNames);
    return true;
}

/// The changes that were done, but deletions. These come first, so that the places of what is
/// created are right.
template <class Grouping>
std::vector<const GroupingChange *> applyChanges(const std::vector<GroupingChange> &changes,
                                                 std::vector<Grouping> &groupings)
{
    for (const GroupingChange &change : changes) {
        if (isDeletion(change))
            std::erase_if(groupings, [&](const Grouping &each) { return each.id == change.id; });
    }
    std::vector<const GroupingChange *> done;
    for (const GroupingChange &change : changes) {
        if (!isDeletion(change) && createOrChange(change, groupings))
            done.push_back(&change);
    }
    return done;
}

bool hasFixedName(const FontCollectionRecord &)
{
    return false;
}

bool hasFixedName(const FontStyleCategoryRecord &category)
{
    return isDefaultStyleCategory(category.id);
}

/// What was created or renamed gets another name where others have its name by now. Those that
/// trade names do not count for each other.
template <class Grouping>
void freeNames(const std::vector<const GroupingChange *> &done, std::vector<Grouping> &groupings)
{
    QSet<QString> named;
    for (const GroupingChange *const change : done) {
        if (isRenaming(*change))
            named.insert(change->id);
    }
    TakenNames taken;
    std::vector<Grouping *> renamed;
    for (Grouping &each : groupings) {
        if (named.contains(each.id) && !hasFixedName(each))
            renamed.push_back(&each);
        else if (!named.isEmpty())
            taken.insert(each.name);
    }
    for (Grouping *const each : renamed) {
        if (taken.contains(each->name))
            each->name = taken.freeName(each->name);
        taken.insert(each->name);
    }
}

void applyToCollections(const std::vector<GroupingChange> &changes,
                        std::vector<FontCollectionRecord> &collections)
{
    const auto done = applyChanges(changes, collections);
    freeNames(done, collections);
    if (std::any_of(done.begin(), done.end(), [](const auto *each) { return isRenaming(*each); }))
        sortByName(collections);
}

/// Takes families that joined a category out of all others.
void leaveOthers(const std::vector<const GroupingChange *> &done,
                 std::vector<FontStyleCategoryRecord> &categories)
{
    QHash<QString, QSet<QString>> joinedByCategory;
    QSet<QString> joined;
    for (const GroupingChange *const change : done)
        joined += joinedByCategory[change->id] = namesOf(change->joined);
    if (joined.isEmpty())
        return;
    for (FontStyleCategoryRecord &category : categories) {
        const QSet<QString> own = joinedByCategory.value(category.id);
        category.familyNames.removeIf(
            [&](const QString &name) { return joined.contains(name) && !own.contains(name); });
    }
}

/// The places in an edit are those of the moment when it was made; what others added since may have
/// moved them.
void applyToCategories(const std::vector<GroupingChange> &changes,
                       std::vector<FontStyleCategoryRecord> &categories)
{
    if (changes.empty())
        return;
    QSet<QString> sortedOnes;
    for (const FontStyleCategoryRecord &category : categories) {
        if (areFamilyNamesSorted(category.familyNames))
            sortedOnes.insert(category.id);
    }
    const auto done = applyChanges(changes, categories);
    freeNames(done, categories);
    leaveOthers(done, categories);
    for (FontStyleCategoryRecord &category : categories) {
        if (sortedOnes.contains(category.id))
            sortFamilyNames(category.familyNames);
    }
}

void applyToEntries(const std::vector<EntryChange> &changes, QHash<QString, QString> &entries)
{
    for (const EntryChange &change : changes) {
        if (change.after)
            entries.insert(change.key, *change.after);
        else
            entries.remove(change.key);
    }
}

} // namespace

void apply(const OrganizationEdit &edit, Organization &organization)
{
    applyToCollections(edit.collections, organization.collections);
    applyToCategories(edit.styleCategories, organization.styleCategories);
    applyToEntries(edit.foundryOverrides, organization.foundries.overrides);
    applyToEntries(edit.foundryNames, organization.foundries.names);
    for (const QString &id : edit.dismissed)
        organization.foundries.dismissed.insert(id);
    for (const QString &id : edit.broughtBack)
        organization.foundries.dismissed.remove(id);
}

} // namespace lorva
