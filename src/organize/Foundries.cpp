// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/Foundries.h"

#include "organize/FoundryNames.h"
#include "organize/NameOrder.h"

#include <algorithm>
#include <tuple>
#include <utility>

namespace lorva {

namespace {

/// Families of one maker, who may write the name in several ways.
struct Group
{
    QString name;
    /// The families whose maker is written exactly so.
    qsizetype familiesOfName = 0;
    QStringList families;
};

std::vector<Group> groupsByName(const QHash<QString, QString> &manufacturersByFamily)
{
    QHash<QString, QStringList> families;
    for (auto each = manufacturersByFamily.cbegin(); each != manufacturersByFamily.cend(); ++each) {
        const QString name = foundryNameOf(each.key(), each.value());
        if (!name.isEmpty())
            families[name].append(each.key());
    }
    std::vector<Group> groups;
    groups.reserve(size_t(families.size()));
    for (auto each = families.cbegin(); each != families.cend(); ++each)
        groups.push_back({each.key(), each.value().size(), each.value()});
    return groups;
}

/// The name that stays is the shortest; of equally long ones that of the most families, then the
/// lower one. So it does not depend on the order in which groups are merged.
bool isNameBetter(const Group &left, const Group &right)
{
    return std::forward_as_tuple(left.name.size(), right.familiesOfName, left.name)
        < std::forward_as_tuple(right.name.size(), left.familiesOfName, right.name);
}

void merge(Group &group, Group &&other)
{
    if (isNameBetter(other, group)) {
        group.name = other.name;
        group.familiesOfName = other.familiesOfName;
    }
    group.families += other.families;
}

/// What decides whether two names share a stem.
struct Stem
{
    /// The first character in lower case. It can say more than the beginning of `lower`: that of
    /// "İ" is two characters long.
    QString bucket;
    QString lower;

    explicit Stem(const QString &name)
    {
        const QString composed = name.normalized(QString::NormalizationForm_C);
        const int unitsOfFirst = composed.front().isHighSurrogate() ? 2 : 1;
        bucket = composed.left(unitsOfFirst).toLower();
        lower = composed.toLower();
    }
    bool operator<(const Stem &other) const
    {
        return std::tie(bucket, lower) < std::tie(other.bucket, other.lower);
    }
    bool begins(const Stem &other) const
    {
        return bucket == other.bucket && other.lower.startsWith(lower);
    }
};

/// Two names are one foundry if one begins with the other. In sorted order all that begin with a
/// name follow it, and the names that begin one name begin each other; so one pass finds what
/// comparing each with each would, and what hangs together only through a third one.
std::vector<Group> mergedByStem(std::vector<Group> groups)
{
    std::vector<std::pair<Stem, Group>> sorted;
    sorted.reserve(groups.size());
    for (Group &group : groups) {
        Stem stem(group.name);
        sorted.emplace_back(std::move(stem), std::move(group));
    }
    std::sort(sorted.begin(), sorted.end(),
              [](const auto &left, const auto &right) { return left.first < right.first; });
    std::vector<Group> merged;
    const Stem *shortest = nullptr;
    for (auto &[stem, group] : sorted) {
        if (shortest && shortest->begins(stem)) {
            merge(merged.back(), std::move(group));
            continue;
        }
        shortest = &stem;
        merged.push_back(std::move(group));
    }
    return merged;
}

/// Names that differ in nothing but punctuation have one id, and corrections cannot tell them
/// apart.
QHash<QString, Group> mergedByID(std::vector<Group> groups)
{
    QHash<QString, Group> byID;
    byID.reserve(qsizetype(groups.size()));
    for (Group &group : groups) {
        const QString id = foundryID(group.name);
        const auto found = byID.find(id);
        if (found == byID.end())
            byID.emplace(id, std::move(group));
        else
            merge(*found, std::move(group));
    }
    return byID;
}

} // namespace

std::vector<FoundryCollectionRecord> deriveFoundries(
    const QHash<QString, QString> &manufacturersByFamily, int minimumFamilies)
{
    const NameOrder order;
    QHash<QString, Group> groups = mergedByID(mergedByStem(groupsByName(manufacturersByFamily)));
    groups.removeIf(
        [minimumFamilies](const auto &each) { return each->families.size() < minimumFamilies; });
    std::vector<FoundryCollectionRecord> foundries;
    foundries.reserve(size_t(groups.size()));
    for (auto each = groups.begin(); each != groups.end(); ++each) {
        order.sort(each->families);
        foundries.push_back({each.key(), each->name, each->families});
    }
    order.sortByName(foundries);
    return foundries;
}

} // namespace lorva
