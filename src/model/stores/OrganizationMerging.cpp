// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Folding.h"
#include "model/stores/CollectionStore.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/OrganizationFile.h"

#include <QSet>

#include <algorithm>
#include <optional>

namespace lorva {

namespace {

/// Equal for names that nobody would tell apart.
QString nameKey(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

/// The groupings of a list by id and by name.
class GroupingIndex
{
public:
    template <class Record>
    explicit GroupingIndex(const std::vector<Record> &records)
    {
        for (size_t place = 0; place < records.size(); ++place)
            add(records[place].id, records[place].name, place);
    }

    void add(const QString &id, const QString &name, size_t place)
    {
        m_placeByID.insert(id, place);
        const QString key = nameKey(name);
        if (!m_placeByName.contains(key))
            m_placeByName.insert(key, place);
    }
    /// Of the same id, else of the same name.
    std::optional<size_t> find(const QString &id, const QString &name) const
    {
        if (const auto found = m_placeByID.constFind(id); found != m_placeByID.cend())
            return *found;
        if (const auto found = m_placeByName.constFind(nameKey(name));
            found != m_placeByName.cend())
            return *found;
        return std::nullopt;
    }

private:
    QHash<QString, size_t> m_placeByID;
    QHash<QString, size_t> m_placeByName;
};

void addMembers(QStringList &members, const QStringList &added)
{
    QSet<QString> known(members.cbegin(), members.cend());
    for (const QString &name : added) {
        const qsizetype before = known.size();
        known.insert(name);
        if (!name.isEmpty() && known.size() != before)
            members.push_back(name);
    }
}

/// The place of each of `imported` in `records`, where those that are new have been added, empty.
template <class Record>
std::vector<size_t> placesIn(std::vector<Record> &records, const std::vector<Record> &imported)
{
    GroupingIndex index(records);
    std::vector<size_t> places;
    places.reserve(imported.size());
    for (const Record &each : imported) {
        std::optional<size_t> place = index.find(each.id, each.name);
        if (!place) {
            place = records.size();
            records.push_back({each.id, each.name, {}});
            index.add(each.id, each.name, *place);
        }
        places.push_back(*place);
    }
    return places;
}

void mergeCollections(const std::vector<FontCollectionRecord> &imported,
                      std::vector<FontCollectionRecord> &collections)
{
    const std::vector<size_t> places = placesIn(collections, imported);
    for (size_t i = 0; i < imported.size(); ++i)
        addMembers(collections[places[i]].familyNames, imported[i].familyNames);
    sortByName(collections);
}

void sortFamilies(QStringList &names)
{
    const NameCollator collator;
    std::vector<std::pair<QByteArray, QString>> keyed;
    keyed.reserve(size_t(names.size()));
    for (const QString &name : std::as_const(names))
        keyed.emplace_back(collator.sortKey(name), name);
    std::sort(keyed.begin(), keyed.end());
    names.clear();
    for (auto &[key, name] : keyed)
        names.push_back(std::move(name));
}

/// Each family ends in one category: the last that names it.
void mergeStyleCategories(const std::vector<FontStyleCategoryRecord> &imported,
                          std::vector<FontStyleCategoryRecord> &categories)
{
    const std::vector<size_t> places = placesIn(categories, imported);
    QHash<QString, size_t> categoryOf;
    for (size_t i = 0; i < imported.size(); ++i) {
        for (const QString &name : imported[i].familyNames)
            categoryOf.insert(name, places[i]);
    }
    for (FontStyleCategoryRecord &category : categories)
        category.familyNames.removeIf([&](const QString &n) { return categoryOf.contains(n); });
    for (auto entry = categoryOf.cbegin(); entry != categoryOf.cend(); ++entry) {
        if (!entry.key().isEmpty())
            categories[entry.value()].familyNames.push_back(entry.key());
    }
    for (FontStyleCategoryRecord &category : categories)
        sortFamilies(category.familyNames);
}

} // namespace

void merge(const Organization &imported, Organization &organization)
{
    mergeCollections(imported.collections, organization.collections);
    mergeStyleCategories(imported.styleCategories, organization.styleCategories);
    organization.foundries.overrides.insert(imported.foundries.overrides);
    organization.foundries.names.insert(imported.foundries.names);
    organization.foundries.dismissed.unite(imported.foundries.dismissed);
}

std::map<QString, SourceDisplaySettings> mergedDisplaySettings(const OrganizationFile &imported,
                                                               const Organization &organization)
{
    const GroupingIndex index(organization.collections);
    std::map<QString, SourceDisplaySettings> settings = imported.displaySettings;
    for (const FontCollectionRecord &collection : imported.organization.collections) {
        const std::optional<size_t> place = index.find(collection.id, collection.name);
        if (!place)
            continue;
        auto entry = settings.extract(displaySettingsKey(BrowserSource::collection(collection.id)));
        if (entry.empty())
            continue;
        const QString &id = organization.collections[*place].id;
        entry.key() = displaySettingsKey(BrowserSource::collection(id));
        settings.insert(std::move(entry));
    }
    return settings;
}

} // namespace lorva
