// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/LibraryIndex.h"
#include "model/stores/OrganizationEdit.h"
#include "model/stores/OrganizationStore.h"
#include "organize/Foundries.h"

#include <QHash>
#include <QSet>

#include <functional>
#include <span>

namespace lorva {

class StyleStore;

/// Foundries as they are shown, and the corrections that they come from.
struct ShownFoundries
{
    FoundryCorrections corrections;
    CorrectedFoundries foundries;
    QHash<QString, QString> idByFamily;
};

/// The foundries that the fonts name, with the user's corrections. Families that were moved to one
/// count once they are in the catalog. Thread: any; with thousands of corrections it takes its
/// time.
ShownFoundries shownFoundries(const LibraryIndex &index, const FoundryCorrections &corrections);

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
        return m_foundries.foundries.shown;
    }
    /// Those that the user hid.
    const std::vector<FoundryCollectionRecord> &dismissedFoundries() const
    {
        return m_foundries.foundries.dismissed;
    }
    const QHash<QString, QString> &foundryIDByFamily() const { return m_foundries.idByFamily; }

    /// The members of a grouping; null when there is none of that id.
    const QStringList *collectionMembers(const QString &id) const;
    const QStringList *styleMembers(const QString &id) const;
    const QStringList *foundryMembers(const QString &id) const;
    /// The members of a collection as a set, kept until the organisation changes; empty for an
    /// unknown id.
    const QSet<QString> &collectionMemberSet(const QString &id) const;

    using Change = std::function<Result<void>(Organization &)>;
    struct Outcome
    {
        /// Empty when there was nothing to do.
        OrganizationEdit edit;
        /// What is shown is other than before: by the edit, or by what others had written.
        bool isOther = false;
    };
    /// Changes what is stored and shows it.
    Result<Outcome> change(Change change);
    /// Reads the stores anew. True when something is different.
    bool reload();

    /// `foundries` were worked out from the index; if the corrections are others by now, they are
    /// again.
    void setIndex(std::shared_ptr<const LibraryIndex> index, ShownFoundries foundries);

    /// The categories that a classification starts from; nothing once it has been done.
    struct Unclassified
    {
        std::vector<FontStyleCategoryRecord> categories;
        bool isCjkOnly = false;

        bool operator==(const Unclassified &) const = default;
    };
    std::optional<Unclassified> unclassified() const;
    /// Stores the categories as classified if nobody has done so or changed them since; then
    /// `again` has to say what comes of the present ones.
    void finishClassification(
        const Unclassified &from, std::vector<FontStyleCategoryRecord> classified,
        std::function<std::vector<FontStyleCategoryRecord>(const Unclassified &)> again);

private:
    bool show(Organization organization);

    OrganizationStore &m_store;
    StyleStore &m_styles;
    Organization m_organization;
    /// Null until it is known.
    std::shared_ptr<const LibraryIndex> m_index;
    ShownFoundries m_foundries;
    QHash<QString, QString> m_styleIDByFamily;
    mutable QHash<QString, QSet<QString>> m_cachedCollectionMemberSets;
};

} // namespace lorva
