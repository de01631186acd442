// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationStore.h"

#include "model/records/StyleCategories.h"
#include "model/stores/CollectionStore.h"
#include "model/stores/FoundryStore.h"
#include "model/stores/StyleStore.h"
#include "platform/PreferenceStore.h"

#include <QCoreApplication>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(OrganizationStore)
};

/// The stores of the parts, as copies: a change that has to wait may run after the originals.
struct Parts
{
    CollectionStore collections;
    StyleStore styles;
    FoundryStore foundries;
};

/// What the stores hold, and what to know when it is replaced.
struct Present
{
    Organization organization;
    StoredState collections;
    StoredState styles;
};

Present presentIn(Parts &parts)
{
    auto collections = parts.collections.stored();
    auto styles = parts.styles.stored();
    const StoredState collectionsState = storedState(collections.has_value());
    const StoredState stylesState = storedState(styles.has_value());
    return {{std::move(collections).value_or(std::vector<FontCollectionRecord>()),
             styles ? *std::move(styles) : defaultStyleCategories(), parts.foundries.corrections()},
            collectionsState,
            stylesState};
}

void saveDifferences(const Present &before, const Organization &after, Parts &parts)
{
    if (after.collections != before.organization.collections)
        parts.collections.save(after.collections, before.collections);
    if (after.styleCategories != before.organization.styleCategories)
        parts.styles.save(after.styleCategories, before.styles);
    if (after.foundries != before.organization.foundries)
        parts.foundries.save(after.foundries);
}

/// One change, until it is written.
struct Change
{
    std::function<Result<void>(Organization &)> command;
    Result<OrganizationStore::Outcome> outcome =
        failure(ErrorKind::ioFailure, Texts::tr("the preferences took no change"));
    /// What the caller was told that it did; nothing until then.
    std::optional<OrganizationEdit> told;
};

Result<OrganizationStore::Outcome> make(const Change &change, Parts &parts)
{
    const Present before = presentIn(parts);
    Organization after = before.organization;
    if (Result<void> result = change.command(after); !result)
        return tl::unexpected<Error>(std::move(result.error()));
    saveDifferences(before, after, parts);
    OrganizationEdit edit = difference(before.organization, after);
    return OrganizationStore::Outcome{std::move(after), std::move(edit)};
}

void makeAgain(const OrganizationEdit &edit, Parts &parts)
{
    if (edit.isEmpty())
        return;
    const Present before = presentIn(parts);
    Organization after = before.organization;
    apply(edit, after);
    saveDifferences(before, after, parts);
}

} // namespace

OrganizationStore::OrganizationStore(PreferenceStore &preferences, CollectionStore &collections,
                                     StyleStore &styles, FoundryStore &foundries)
    : m_preferences(preferences)
    , m_collections(collections)
    , m_styles(styles)
    , m_foundries(foundries)
{
}

Organization OrganizationStore::load() const
{
    return {m_collections.load(), m_styles.load(), m_foundries.corrections()};
}

Result<OrganizationStore::Outcome> OrganizationStore::change(
    std::function<Result<void>(Organization &)> change)
{
    const auto made = std::make_shared<Change>();
    made->command = std::move(change);
    m_preferences.inTransaction(
        [parts = Parts{m_collections, m_styles, m_foundries}, made]() mutable {
            if (made->told)
                makeAgain(*made->told, parts);
            else
                made->outcome = make(*made, parts);
        });
    Result<Outcome> outcome = std::move(made->outcome);
    made->told = outcome ? outcome->edit : OrganizationEdit();
    made->command = nullptr;
    return outcome;
}

} // namespace lorva
