// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationStore.h"

#include "model/stores/CollectionStore.h"
#include "model/stores/FoundryStore.h"
#include "model/stores/StyleStore.h"
#include "platform/PreferenceStore.h"

namespace lorva {

namespace {

/// The stores of the parts, as copies: a change that has to wait may run after the originals.
struct Parts
{
    CollectionStore collections;
    StyleStore styles;
    FoundryStore foundries;
};

Organization loaded(Parts &parts)
{
    return {parts.collections.load(), parts.styles.load(), parts.foundries.corrections()};
}

void saveDifferences(const Organization &before, const Organization &after, Parts &parts)
{
    if (after.collections != before.collections)
        parts.collections.save(after.collections);
    if (after.styleCategories != before.styleCategories)
        parts.styles.save(after.styleCategories);
    if (after.foundries != before.foundries)
        parts.foundries.save(after.foundries);
}

Result<OrganizationStore::Outcome> changed(
    Parts &parts, const std::function<Result<void>(Organization &)> &change)
{
    const Organization before = loaded(parts);
    Organization after = before;
    if (Result<void> result = change(after); !result)
        return tl::unexpected<Error>(std::move(result.error()));
    saveDifferences(before, after, parts);
    OrganizationEdit edit = difference(before, after);
    return OrganizationStore::Outcome{std::move(after), std::move(edit)};
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
    const auto result = std::make_shared<Result<Outcome>>(
        failure(ErrorKind::ioFailure, QStringLiteral("the preferences took no change")));
    m_preferences.inTransaction([parts = Parts{m_collections, m_styles, m_foundries},
                                 change = std::move(change),
                                 result]() mutable { *result = changed(parts, change); });
    return std::move(*result);
}

} // namespace lorva
