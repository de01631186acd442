// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationEdit.h"

#include <algorithm>

namespace lorva {

namespace {

using Places = std::vector<std::pair<qsizetype, QString>>;
using Dictionary = QHash<QString, QString>;

/// The names with their places, but those in `except`; the first one's place is `first`.
Places placesOf(const QStringList &names, qsizetype first, const QSet<QString> &except = {})
{
    Places out;
    for (qsizetype i = 0; i < names.size(); ++i) {
        if (!except.contains(names[i]))
            out.emplace_back(first + i, names[i]);
    }
    return out;
}

QStringList thoseIn(const QSet<QString> &wanted, const QStringList &names)
{
    QStringList out;
    std::copy_if(names.begin(), names.end(), std::back_inserter(out),
                 [&](const QString &name) { return wanted.contains(name); });
    return out;
}

/// How many names the lists begin, and then end, with alike. Mostly that is all but one.
std::pair<qsizetype, qsizetype> sharedEnds(const QStringList &before, const QStringList &after)
{
    const qsizetype head =
        std::mismatch(before.begin(), before.end(), after.begin(), after.end()).first
        - before.begin();
    const qsizetype tail =
        std::mismatch(before.rbegin(), before.rend() - head, after.rbegin(), after.rend() - head)
            .first
        - before.rbegin();
    return {head, tail};
}

/// Members of both lists whose order is another have left, and joined anew.
void noteMembers(const QStringList &before, const QStringList &after, GroupingChange &change)
{
    const auto [head, tail] = sharedEnds(before, after);
    const QStringList was = before.mid(head, before.size() - head - tail);
    const QStringList is = after.mid(head, after.size() - head - tail);
    const QSet<QString> wasSet(was.begin(), was.end());
    const QSet<QString> isSet(is.begin(), is.end());
    const bool isReordered = thoseIn(isSet, was) != thoseIn(wasSet, is);
    change.left = placesOf(was, head, isReordered ? QSet<QString>() : isSet);
    change.joined = placesOf(is, head, isReordered ? QSet<QString>() : wasSet);
}

bool isNothing(const GroupingChange &change)
{
    return change.nameBefore == change.nameAfter && change.joined.empty() && change.left.empty();
}

template <class Grouping>
QHash<QString, const Grouping *> byID(const std::vector<Grouping> &groupings)
{
    QHash<QString, const Grouping *> out;
    for (const Grouping &each : groupings)
        out.insert(each.id, &each);
    return out;
}

template <class Grouping>
GroupingChange changeOf(const Grouping &before, const Grouping &after)
{
    GroupingChange out{before.id, before.name, after.name, 0, {}, {}};
    // Lists that nobody touched share their data.
    if (before.familyNames.constData() != after.familyNames.constData())
        noteMembers(before.familyNames, after.familyNames, out);
    return out;
}

template <class Grouping>
std::vector<GroupingChange> groupingChanges(const std::vector<Grouping> &before,
                                            const std::vector<Grouping> &after)
{
    std::vector<GroupingChange> out;
    const auto oldOnes = byID(before);
    const auto newOnes = byID(after);
    for (size_t i = 0; i < before.size(); ++i) {
        const Grouping &old = before[i];
        if (const Grouping *const now = newOnes.value(old.id))
            out.push_back(changeOf(old, *now));
        else
            out.push_back({old.id, old.name, {}, qsizetype(i), {}, placesOf(old.familyNames, 0)});
    }
    std::erase_if(out, isNothing);
    for (size_t i = 0; i < after.size(); ++i) {
        const Grouping &now = after[i];
        if (!oldOnes.contains(now.id))
            out.push_back({now.id, {}, now.name, qsizetype(i), placesOf(now.familyNames, 0), {}});
    }
    return out;
}

std::optional<QString> entry(const Dictionary &dictionary, const QString &key)
{
    const auto found = dictionary.constFind(key);
    return found == dictionary.cend() ? std::nullopt : std::optional(*found);
}

/// Sorted by key.
std::vector<EntryChange> entryChanges(const Dictionary &before, const Dictionary &after)
{
    if (before.isSharedWith(after))
        return {};
    std::vector<EntryChange> out;
    for (auto each = before.cbegin(); each != before.cend(); ++each) {
        std::optional<QString> now = entry(after, each.key());
        if (now != *each)
            out.push_back({each.key(), *each, std::move(now)});
    }
    for (auto each = after.cbegin(); each != after.cend(); ++each) {
        if (!before.contains(each.key()))
            out.push_back({each.key(), {}, *each});
    }
    std::sort(out.begin(), out.end(),
              [](const auto &left, const auto &right) { return left.key < right.key; });
    return out;
}

QStringList sortedDifference(const QSet<QString> &set, const QSet<QString> &without)
{
    const QSet<QString> left = set - without;
    QStringList out(left.begin(), left.end());
    out.sort();
    return out;
}

void invert(GroupingChange &change)
{
    std::swap(change.nameBefore, change.nameAfter);
    std::swap(change.joined, change.left);
}

void invert(EntryChange &change)
{
    std::swap(change.before, change.after);
}

template <class Change>
void invertAll(std::vector<Change> &changes)
{
    for (Change &change : changes)
        invert(change);
}

} // namespace

bool OrganizationEdit::isEmpty() const
{
    return *this == OrganizationEdit();
}

OrganizationEdit OrganizationEdit::inverted() const
{
    OrganizationEdit out = *this;
    invertAll(out.collections);
    invertAll(out.styleCategories);
    invertAll(out.foundryOverrides);
    invertAll(out.foundryNames);
    std::swap(out.dismissed, out.broughtBack);
    return out;
}

OrganizationEdit difference(const Organization &before, const Organization &after)
{
    const FoundryCorrections &was = before.foundries;
    const FoundryCorrections &is = after.foundries;
    return {groupingChanges(before.collections, after.collections),
            groupingChanges(before.styleCategories, after.styleCategories),
            entryChanges(was.overrides, is.overrides),
            entryChanges(was.names, is.names),
            sortedDifference(is.dismissed, was.dismissed),
            sortedDifference(was.dismissed, is.dismissed)};
}

} // namespace lorva
