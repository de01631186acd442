// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/stores/OrganizationEdit.h"
#include "model/stores/OrganizationStore.h"
#include "organize/Foundries.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <span>

namespace lorva {

class StyleStore;

/// The user's organisation as the model shows it: what is stored, and what follows from it and the
/// catalog.
///
/// Holds references to the stores, which outlive it. Thread: main.
class LibraryOrganization
{
public:
    LibraryOrganization(OrganizationStore &store, StyleStore &styles);

    const Organization &organization() const { return m_organization; }
    const QHash<QString, QString> &styleIDByFamily() const { return m_styleIDByFamily; }
    const std::vector<FoundryCollectionRecord> &foundryCollections() const
    {
        return m_foundries.shown;
    }
    /// Those that the user hid.
    const std::vector<FoundryCollectionRecord> &dismissedFoundries() const
    {
        return m_foundries.dismissed;
    }
    const QHash<QString, QString> &foundryIDByFamily() const { return m_foundryIDByFamily; }

    /// The members of a grouping; null when there is none of that id.
    const QStringList *collectionMembers(const QString &id) const;
    const QStringList *styleMembers(const QString &id) const;
    const QStringList *foundryMembers(const QString &id) const;
    /// The members of a collection as a set, kept until the organisation changes; empty for an
    /// unknown id.
    const QSet<QString> &collectionMemberSet(const QString &id) const;

    using Change = std::function<Result<void>(Organization &)>;
    /// Changes what is stored and shows it. The edit is empty when there was nothing to do.
    Result<OrganizationEdit> change(Change change);
    /// Reads the stores anew. True when something is different.
    bool reload();

    void setDerivedFoundries(std::vector<FoundryCollectionRecord> derived);

    /// The categories that a classification starts from; nothing once it has been done.
    struct Unclassified
    {
        std::vector<FontStyleCategoryRecord> categories;
        bool isCjkOnly = false;

        bool operator==(const Unclassified &) const = default;
    };
    std::optional<Unclassified> unclassified() const;
    /// Stores the categories as classified if nobody has done so or changed them since; then
    /// `again` has to say what comes of the present ones. True when anything was stored.
    bool finishClassification(
        const Unclassified &from, std::vector<FontStyleCategoryRecord> classified,
        std::function<std::vector<FontStyleCategoryRecord>(const Unclassified &)> again);

private:
    void show(Organization organization);
    void correctFoundries();

    OrganizationStore &m_store;
    StyleStore &m_styles;
    Organization m_organization;
    std::vector<FoundryCollectionRecord> m_derivedFoundries;
    CorrectedFoundries m_foundries;
    QHash<QString, QString> m_styleIDByFamily;
    QHash<QString, QString> m_foundryIDByFamily;
    mutable QHash<QString, QSet<QString>> m_cachedCollectionMemberSets;
};

} // namespace lorva
