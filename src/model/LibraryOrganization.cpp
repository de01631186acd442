// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LibraryOrganization.h"

#include "model/stores/StyleStore.h"

#include <algorithm>

namespace lorva {

namespace {

template <class Records>
const QStringList *membersOf(const Records &records, const QString &id)
{
    const auto found =
        std::ranges::find_if(records, [&](const auto &record) { return record.id == id; });
    return found == records.end() ? nullptr : &found->familyNames;
}

/// A family that two groupings name is of the first.
template <class Records>
QHash<QString, QString> idByFamily(const Records &records)
{
    QHash<QString, QString> ids;
    for (const auto &record : records) {
        for (const QString &family : record.familyNames) {
            if (!ids.contains(family))
                ids.insert(family, record.id);
        }
    }
    return ids;
}

} // namespace

ShownFoundries shownFoundries(const LibraryIndex &index, const FoundryCorrections &corrections)
{
    FoundryCorrections here = corrections;
    here.overrides.removeIf(
        [&](const auto &entry) { return !index.placeByFamily.contains(entry.key()); });
    ShownFoundries shown{corrections, correctedFoundries(index.derivedFoundries, here), {}};
    shown.idByFamily = idByFamily(shown.foundries.shown);
    return shown;
}

LibraryOrganization::LibraryOrganization(OrganizationStore &store, StyleStore &styles)
    : m_store(store)
    , m_styles(styles)
{
    show(m_store.load());
}

const QStringList *LibraryOrganization::collectionMembers(const QString &id) const
{
    return membersOf(m_organization.collections, id);
}

const QStringList *LibraryOrganization::styleMembers(const QString &id) const
{
    return membersOf(m_organization.styleCategories, id);
}

const QStringList *LibraryOrganization::foundryMembers(const QString &id) const
{
    return membersOf(m_foundries.foundries.shown, id);
}

const QSet<QString> &LibraryOrganization::collectionMemberSet(const QString &id) const
{
    const auto known = m_cachedCollectionMemberSets.constFind(id);
    if (known != m_cachedCollectionMemberSets.cend())
        return *known;
    const QStringList *members = collectionMembers(id);
    return *m_cachedCollectionMemberSets.insert(
        id, members ? QSet<QString>(members->begin(), members->end()) : QSet<QString>());
}

Result<LibraryOrganization::Outcome> LibraryOrganization::change(Change change)
{
    Result<OrganizationStore::Outcome> outcome = m_store.change(std::move(change));
    if (!outcome)
        return tl::unexpected(std::move(outcome).error());
    const bool isOther = show(std::move(outcome->after));
    return Outcome{std::move(outcome->edit), isOther};
}

bool LibraryOrganization::reload()
{
    return show(m_store.load());
}

/// True when it is other than what was shown.
bool LibraryOrganization::show(Organization organization)
{
    const Organization before = std::exchange(m_organization, std::move(organization));
    const bool hasOtherCollections = before.collections != m_organization.collections;
    const bool hasOtherStyles = before.styleCategories != m_organization.styleCategories;
    const bool hasOtherFoundries = before.foundries != m_organization.foundries;
    if (hasOtherCollections)
        m_cachedCollectionMemberSets.clear();
    if (hasOtherStyles)
        m_styleIDByFamily = idByFamily(m_organization.styleCategories);
    if (hasOtherFoundries && m_index)
        m_foundries = shownFoundries(*m_index, m_organization.foundries);
    return hasOtherCollections || hasOtherStyles || hasOtherFoundries;
}

void LibraryOrganization::setIndex(std::shared_ptr<const LibraryIndex> index,
                                   ShownFoundries foundries)
{
    m_index = std::move(index);
    m_foundries = foundries.corrections == m_organization.foundries
        ? std::move(foundries)
        : shownFoundries(*m_index, m_organization.foundries);
}

std::optional<LibraryOrganization::Unclassified> LibraryOrganization::unclassified() const
{
    if (m_styles.isClassified())
        return std::nullopt;
    return Unclassified{m_organization.styleCategories, m_styles.wasClassifiedByV2()};
}

void LibraryOrganization::finishClassification(
    const Unclassified &from, std::vector<FontStyleCategoryRecord> classified,
    std::function<std::vector<FontStyleCategoryRecord>(const Unclassified &)> again)
{
    // A copy of the store: the change may be made again when this object has gone.
    const auto classify = [styles = m_styles, from, classified = std::move(classified),
                           again = std::move(again)](Organization &organization) {
        const Unclassified now{organization.styleCategories, styles.wasClassifiedByV2()};
        if (!styles.isClassified())
            organization.styleCategories = now == from ? classified : again(now);
        return Result<void>();
    };
    static_cast<void>(change(classify));
    // Last: a process that ends in between only leaves it to be done once more.
    m_styles.setClassified();
}

} // namespace lorva
