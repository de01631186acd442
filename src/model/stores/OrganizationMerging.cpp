// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/StyleCategories.h"
#include "model/stores/CollectionStore.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/OrganizationFile.h"
#include "model/stores/OrganizationNames.h"

#include <QSet>

#include <optional>

namespace lorva {

namespace {

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
        if (!id.isEmpty())
            m_placeByID.insert(id, place);
        const QString key = comparableName(name);
        if (!m_placeByName.contains(key))
            m_placeByName.insert(key, place);
    }
    /// Of the same id, else of the same name.
    std::optional<size_t> find(const QString &id, const QString &name) const
    {
        if (const auto found = m_placeByID.constFind(id); found != m_placeByID.cend())
            return *found;
        if (const auto found = m_placeByName.constFind(comparableName(name));
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
        sortFamilyNames(category.familyNames);
}

template <class Record>
void adoptIDs(std::vector<Record> &records, const QSet<QString> &newIDs,
              const std::vector<Record> &present)
{
    QSet<QString> taken;
    for (const Record &each : records)
        taken.insert(each.id);
    const GroupingIndex index(present);
    for (Record &each : records) {
        const auto place = newIDs.contains(each.id) ? index.find({}, each.name) : std::nullopt;
        const QString id = place ? present[*place].id : QString();
        if (id.isEmpty() || taken.contains(id))
            continue;
        taken.insert(id);
        each.id = id;
    }
}

} // namespace

void adoptIDs(OrganizationFile &file, const Organization &present)
{
    adoptIDs(file.organization.collections, file.newIDs, present.collections);
    adoptIDs(file.organization.styleCategories, file.newIDs, present.styleCategories);
    // In the order that equal organisations have, whatever the ids of two of one name are.
    sortByName(file.organization.collections);
}

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
