// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/StyleStore.h"

#include "model/records/StyleCategories.h"
#include "model/stores/StoredGroupings.h"

#include <algorithm>

namespace lorva {

namespace {

using Categories = std::vector<FontStyleCategoryRecord>;

/// What is stored, as this version wants it.
struct UpToDate
{
    Categories categories;
    bool isChanged = false;
    /// The families have to be sorted by their names again.
    bool wantsClassification = false;
};

auto findCategory(Categories &categories, const QString &id)
{
    return std::find_if(categories.begin(), categories.end(),
                        [&](const FontStyleCategoryRecord &each) { return each.id == id; });
}

/// "Rounded" was once the fifth category. It gave way to "Script", and its members did not fit.
void replaceRounded(UpToDate &out)
{
    const auto rounded = findCategory(out.categories, QStringLiteral("rounded"));
    if (rounded == out.categories.end())
        return;
    *rounded = {QStringLiteral("script"), QStringLiteral("Script"), {}};
    out.categories = joinedByID(std::move(out.categories));
    out.isChanged = true;
    out.wantsClassification = true;
}

void relabelSans(UpToDate &out)
{
    const auto sans = findCategory(out.categories, QStringLiteral("sans"));
    const QString label = QStringLiteral("Sans-Serif");
    if (sans == out.categories.end() || sans->name == label)
        return;
    sans->name = label;
    out.isChanged = true;
}

/// A default one that others left without a name keeps its own.
void take(const FontStyleCategoryRecord &stored, FontStyleCategoryRecord &category)
{
    category.familyNames = stored.familyNames;
    if (!cleanedName(stored.name).isEmpty())
        category.name = stored.name;
}

/// The default ones first, those that are missing empty; then the user's own as they stood.
void putInOrder(UpToDate &out)
{
    Categories ordered = defaultStyleCategories();
    for (FontStyleCategoryRecord &each : ordered) {
        const auto stored = findCategory(out.categories, each.id);
        if (stored == out.categories.end())
            out.isChanged = true;
        else
            take(*stored, each);
    }
    for (FontStyleCategoryRecord &each : out.categories) {
        if (!isDefaultStyleCategory(each.id))
            ordered.push_back(std::move(each));
    }
    out.categories = std::move(ordered);
}

std::optional<UpToDate> storedUpToDate(const PreferenceStore &defaults, const QString &key)
{
    std::optional<Categories> stored = storedGroupings<FontStyleCategoryRecord>(defaults, key);
    if (!stored)
        return std::nullopt;
    UpToDate out{*std::move(stored)};
    replaceRounded(out);
    relabelSans(out);
    putInOrder(out);
    makeNamesUsable(out.categories);
    return out;
}

} // namespace

StyleStore::StyleStore(PreferenceStore &defaults, QString stylesKey, QString classifiedKey,
                       QString legacyClassifiedV2Key)
    : m_defaults(defaults)
    , m_stylesKey(std::move(stylesKey))
    , m_classifiedKey(std::move(classifiedKey))
    , m_legacyClassifiedV2Key(std::move(legacyClassifiedV2Key))
{
}

Categories StyleStore::load()
{
    std::optional<Categories> categories = stored();
    return categories ? *std::move(categories) : defaultStyleCategories();
}

std::optional<Categories> StyleStore::stored()
{
    std::optional<UpToDate> present = storedUpToDate(m_defaults, m_stylesKey);
    if (!present)
        return std::nullopt;
    if (!present->isChanged)
        return std::move(present->categories);

    const auto categories = std::make_shared<Categories>(std::move(present->categories));
    m_defaults.inTransaction(
        [&defaults = m_defaults, key = m_stylesKey, flag = m_classifiedKey, categories] {
            // Another process may have been here since.
            const std::optional<UpToDate> stored = storedUpToDate(defaults, key);
            if (!stored)
                return;
            if (stored->wantsClassification)
                defaults.remove(flag);
            if (stored->isChanged)
                storeJson(defaults, key, stored->categories, StoredState::readable);
            *categories = stored->categories;
        });
    return *categories;
}

void StyleStore::save(const Categories &categories, StoredState present)
{
    m_defaults.inTransaction([&defaults = m_defaults, key = m_stylesKey, categories, present] {
        storeJson(defaults, key, categories, present);
    });
}

bool StyleStore::isClassified() const
{
    return m_defaults.boolean(m_classifiedKey).value_or(false);
}

void StyleStore::setClassified()
{
    m_defaults.inTransaction([&defaults = m_defaults, key = m_classifiedKey] {
        const std::optional<bool> present = defaults.boolean(key);
        if (!present)
            defaults.keepUnreadable(key);
        if (present != true)
            defaults.setBoolean(key, true);
    });
}

bool StyleStore::wasClassifiedByV2() const
{
    return m_defaults.boolean(m_legacyClassifiedV2Key).value_or(false);
}

} // namespace lorva
