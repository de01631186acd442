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
    return membersOf(m_foundries.shown, id);
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

Result<OrganizationEdit> LibraryOrganization::change(Change change)
{
    Result<OrganizationStore::Outcome> outcome = m_store.change(std::move(change));
    if (!outcome)
        return tl::unexpected(std::move(outcome).error());
    show(std::move(outcome->after));
    return std::move(outcome->edit);
}

bool LibraryOrganization::reload()
{
    Organization stored = m_store.load();
    if (stored == m_organization)
        return false;
    show(std::move(stored));
    return true;
}

void LibraryOrganization::show(Organization organization)
{
    const Organization before = std::exchange(m_organization, std::move(organization));
    if (before.collections != m_organization.collections)
        m_cachedCollectionMemberSets.clear();
    if (before.styleCategories != m_organization.styleCategories)
        m_styleIDByFamily = idByFamily(m_organization.styleCategories);
    if (before.foundries != m_organization.foundries)
        correctFoundries();
}

void LibraryOrganization::setDerivedFoundries(std::vector<FoundryCollectionRecord> derived)
{
    m_derivedFoundries = std::move(derived);
    correctFoundries();
}

void LibraryOrganization::correctFoundries()
{
    m_foundries = correctedFoundries(m_derivedFoundries, m_organization.foundries);
    m_foundryIDByFamily = idByFamily(m_foundries.shown);
}

std::optional<LibraryOrganization::Unclassified> LibraryOrganization::unclassified() const
{
    if (m_styles.isClassified())
        return std::nullopt;
    return Unclassified{m_organization.styleCategories, m_styles.wasClassifiedByV2()};
}

bool LibraryOrganization::finishClassification(
    const Unclassified &from, std::vector<FontStyleCategoryRecord> classified,
    std::function<std::vector<FontStyleCategoryRecord>(const Unclassified &)> again)
{
    auto isDone = std::make_shared<bool>(false);
    // A copy of the store: the change may be made again when this object has gone.
    const auto classify = [styles = m_styles, from, classified = std::move(classified),
                           again = std::move(again), isDone](Organization &organization) mutable {
        *isDone = !styles.isClassified();
        if (!*isDone)
            return Result<void>();
        const Unclassified now{organization.styleCategories, styles.wasClassifiedByV2()};
        organization.styleCategories = now == from ? classified : again(now);
        styles.setClassified();
        return Result<void>();
    };
    static_cast<void>(change(classify));
    return *isDone;
}

} // namespace lorva
