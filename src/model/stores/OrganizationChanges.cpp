// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationChanges.h"

#include "model/records/StyleCategories.h"
#include "model/stores/CollectionStore.h"
#include "model/stores/OrganizationNames.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

/// `text` translated, with `value` in its place, on one line.
QString worded(const char *text, const QString &value)
{
    return QCoreApplication::translate("OrganizationChanges", text).arg(cleanedName(value));
}

/// What one kind of grouping calls itself in errors.
struct Wording
{
    const char *unknown;
    const char *nameTaken;
    const char *idTaken;
};

constexpr Wording kCollectionWording{
    QT_TRANSLATE_NOOP("OrganizationChanges", "there is no collection with the id “%1”"),
    QT_TRANSLATE_NOOP("OrganizationChanges", "there is a collection with the name “%1” already"),
    QT_TRANSLATE_NOOP("OrganizationChanges", "there is a collection with the id “%1” already")};
constexpr Wording kCategoryWording{
    QT_TRANSLATE_NOOP("OrganizationChanges", "there is no style category with the id “%1”"),
    QT_TRANSLATE_NOOP("OrganizationChanges",
                      "there is a style category with the name “%1” already"),
    QT_TRANSLATE_NOOP("OrganizationChanges", "there is a style category with the id “%1” already")};

const Wording &wordingOf(const std::vector<FontCollectionRecord> &)
{
    return kCollectionWording;
}

const Wording &wordingOf(const std::vector<FontStyleCategoryRecord> &)
{
    return kCategoryWording;
}

template <class Grouping>
Grouping *find(std::vector<Grouping> &groupings, const QString &id)
{
    const auto found = std::find_if(groupings.begin(), groupings.end(),
                                    [&](const Grouping &each) { return each.id == id; });
    return found == groupings.end() ? nullptr : &*found;
}

template <class Grouping>
Result<Grouping *> findOrFail(std::vector<Grouping> &groupings, const QString &id)
{
    if (Grouping *const found = find(groupings, id))
        return found;
    return failure(ErrorKind::notFound, worded(wordingOf(groupings).unknown, id));
}

Result<QString> usableName(const QString &name)
{
    const QString cleaned = cleanedName(name);
    if (cleaned.isEmpty())
        return failure(ErrorKind::invalidValue,
                       QCoreApplication::translate("OrganizationChanges", "the name is empty"));
    return cleaned;
}

/// The cleaned name, if no grouping but that of `ownID` has it.
template <class Grouping>
Result<QString> freeName(const std::vector<Grouping> &groupings, const QString &ownID,
                         const QString &name)
{
    const Result<QString> cleaned = usableName(name);
    if (!cleaned)
        return cleaned;
    const QString comparable = comparableName(*cleaned);
    for (const Grouping &each : groupings) {
        if (each.id != ownID && comparableName(each.name) == comparable)
            return failure(ErrorKind::invalidValue,
                           worded(wordingOf(groupings).nameTaken, each.name));
    }
    return cleaned;
}

template <class Grouping>
Result<void> create(std::vector<Grouping> &groupings, const QString &id, const QString &name)
{
    if (find(groupings, id))
        return failure(ErrorKind::invalidValue, worded(wordingOf(groupings).idTaken, id));
    Result<QString> free = freeName(groupings, id, name);
    if (!free)
        return tl::unexpected<Error>(std::move(free.error()));
    groupings.push_back({id, *std::move(free), {}});
    return {};
}

template <class Grouping>
Result<void> rename(std::vector<Grouping> &groupings, const QString &id, const QString &name)
{
    const Result<Grouping *> found = findOrFail(groupings, id);
    if (!found)
        return tl::unexpected<Error>(found.error());
    Result<QString> free = freeName(groupings, id, name);
    if (!free)
        return tl::unexpected<Error>(std::move(free.error()));
    (*found)->name = *std::move(free);
    return {};
}

template <class Grouping>
Result<void> remove(std::vector<Grouping> &groupings, const QString &id)
{
    const Result<Grouping *> found = findOrFail(groupings, id);
    if (!found)
        return tl::unexpected<Error>(found.error());
    groupings.erase(groupings.begin() + (*found - groupings.data()));
    return {};
}

Result<void> failForDefault(const QString &id)
{
    if (!isDefaultStyleCategory(id))
        return {};
    return failure(ErrorKind::invalidValue,
                   worded(QT_TRANSLATE_NOOP("OrganizationChanges",
                                            "the style category “%1” cannot be renamed or deleted"),
                          id));
}

/// Each once, in the order given, without empty ones and without those in `except`.
QStringList distinctNames(const QStringList &familyNames, QSet<QString> except = {})
{
    QStringList out;
    except.insert(QString());
    for (const QString &name : familyNames) {
        if (except.contains(name))
            continue;
        except.insert(name);
        out.append(name);
    }
    return out;
}

QSet<QString> setOf(const QStringList &names)
{
    return {names.begin(), names.end()};
}

/// Leaves the list alone, and shared, where it holds none of them.
void removeNames(const QSet<QString> &unwanted, QStringList &names)
{
    names.removeIf([&](const QString &name) { return unwanted.contains(name); });
}

} // namespace

Result<void> createCollection(Organization &organization, const QString &id, const QString &name)
{
    Result<void> result = create(organization.collections, id, name);
    if (result)
        sortByName(organization.collections);
    return result;
}

Result<void> renameCollection(Organization &organization, const QString &id, const QString &name)
{
    Result<void> result = rename(organization.collections, id, name);
    if (result)
        sortByName(organization.collections);
    return result;
}

Result<void> deleteCollection(Organization &organization, const QString &id)
{
    return remove(organization.collections, id);
}

Result<void> addFamilies(Organization &organization, const QString &collectionID,
                         const QStringList &familyNames)
{
    const auto found = findOrFail(organization.collections, collectionID);
    if (!found)
        return tl::unexpected<Error>(found.error());
    QStringList &members = (*found)->familyNames;
    members += distinctNames(familyNames, setOf(members));
    return {};
}

Result<void> removeFamilies(Organization &organization, const QString &collectionID,
                            const QStringList &familyNames)
{
    const auto found = findOrFail(organization.collections, collectionID);
    if (!found)
        return tl::unexpected<Error>(found.error());
    removeNames(setOf(familyNames), (*found)->familyNames);
    return {};
}

Result<void> setFamilies(Organization &organization, const QString &collectionID,
                         const QStringList &familyNames)
{
    const auto found = findOrFail(organization.collections, collectionID);
    if (!found)
        return tl::unexpected<Error>(found.error());
    (*found)->familyNames = distinctNames(familyNames);
    return {};
}

Result<void> createStyleCategory(Organization &organization, const QString &id, const QString &name)
{
    return create(organization.styleCategories, id, name);
}

Result<void> renameStyleCategory(Organization &organization, const QString &id, const QString &name)
{
    if (Result<void> allowed = failForDefault(id); !allowed)
        return allowed;
    return rename(organization.styleCategories, id, name);
}

Result<void> deleteStyleCategory(Organization &organization, const QString &id)
{
    if (Result<void> allowed = failForDefault(id); !allowed)
        return allowed;
    return remove(organization.styleCategories, id);
}

Result<void> setStyle(Organization &organization, const QStringList &familyNames,
                      const std::optional<QString> &categoryID)
{
    if (categoryID) {
        if (const auto found = findOrFail(organization.styleCategories, *categoryID); !found)
            return tl::unexpected<Error>(found.error());
    }
    const QSet<QString> moved = setOf(familyNames);
    for (FontStyleCategoryRecord &category : organization.styleCategories) {
        if (category.id == categoryID)
            insertFamilyNames(category.familyNames,
                              distinctNames(familyNames, setOf(category.familyNames)));
        else
            removeNames(moved, category.familyNames);
    }
    return {};
}

void setFoundry(Organization &organization, const QStringList &familyNames,
                const QString &foundryID)
{
    for (const QString &name : distinctNames(familyNames))
        organization.foundries.overrides.insert(name, foundryID);
}

void resetFoundry(Organization &organization, const QStringList &familyNames)
{
    for (const QString &name : familyNames)
        organization.foundries.overrides.remove(name);
}

Result<void> renameFoundry(Organization &organization, const QString &foundryID,
                           const std::optional<QString> &name)
{
    if (!name) {
        organization.foundries.names.remove(foundryID);
        return {};
    }
    Result<QString> usable = usableName(*name);
    if (!usable)
        return tl::unexpected<Error>(std::move(usable.error()));
    if (!foundryID.isEmpty())
        organization.foundries.names.insert(foundryID, *std::move(usable));
    return {};
}

void dismissFoundry(Organization &organization, const QString &foundryID)
{
    if (!foundryID.isEmpty())
        organization.foundries.dismissed.insert(foundryID);
}

void bringBackFoundry(Organization &organization, const QString &foundryID)
{
    organization.foundries.dismissed.remove(foundryID);
}

} // namespace lorva
