// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/FoundryStore.h"

#include "model/stores/OrganizationChanges.h"
#include "platform/PreferenceStore.h"

namespace lorva {

namespace {

using Dictionary = QHash<QString, QString>;

QSet<QString> usableSet(const std::optional<QStringList> &stored)
{
    const QStringList members = stored.value_or(QStringList());
    QSet<QString> out(members.begin(), members.end());
    out.remove(QString());
    return out;
}

Dictionary usableDictionary(const std::optional<Dictionary> &stored)
{
    Dictionary out = stored.value_or(Dictionary());
    out.remove(QString());
    return out;
}

/// Names as a person could have typed them: what is shown can be exported and imported.
Dictionary usableNames(const std::optional<Dictionary> &stored)
{
    Dictionary out = usableDictionary(stored);
    for (QString &name : out)
        name = cleanedName(name);
    out.removeIf([](const auto &entry) { return entry.value().isEmpty(); });
    return out;
}

/// Sorted, so that equal sets are stored alike.
void replaceSet(PreferenceStore &defaults, const QString &key, const QSet<QString> &value)
{
    const std::optional<QStringList> stored = defaults.stringArray(key);
    if (usableSet(stored) == value)
        return;
    if (!stored)
        defaults.keepUnreadable(key);
    QStringList sorted(value.begin(), value.end());
    sorted.sort();
    defaults.setStringArray(key, sorted);
}

/// `usable` gives what counts of what is stored; when that is `value`, nothing is written.
void replaceDictionary(PreferenceStore &defaults, const QString &key, const Dictionary &value,
                       Dictionary (*usable)(const std::optional<Dictionary> &))
{
    const std::optional<Dictionary> stored = defaults.stringDictionary(key);
    if (usable(stored) == value)
        return;
    if (!stored)
        defaults.keepUnreadable(key);
    defaults.setStringDictionary(key, value);
}

void setMember(PreferenceStore &defaults, const QString &key, const QString &member, bool isMember)
{
    if (member.isEmpty())
        return;
    defaults.inTransaction([&defaults, key, member, isMember] {
        QSet<QString> set = usableSet(defaults.stringArray(key));
        if (isMember)
            set.insert(member);
        else
            set.remove(member);
        replaceSet(defaults, key, set);
    });
}

void setEntry(PreferenceStore &defaults, const QString &key, const QString &name,
              const std::optional<QString> &value)
{
    if (name.isEmpty())
        return;
    defaults.inTransaction([&defaults, key, name, value] {
        Dictionary dictionary = usableDictionary(defaults.stringDictionary(key));
        if (value)
            dictionary.insert(name, *value);
        else
            dictionary.remove(name);
        replaceDictionary(defaults, key, dictionary, usableDictionary);
    });
}

} // namespace

FoundryStore::FoundryStore(PreferenceStore &defaults, QString dismissedKey,
                           QString collapsedGroupsKey, QString overridesKey,
                           QString nameOverridesKey)
    : m_defaults(defaults)
    , m_dismissedKey(std::move(dismissedKey))
    , m_collapsedGroupsKey(std::move(collapsedGroupsKey))
    , m_overridesKey(std::move(overridesKey))
    , m_nameOverridesKey(std::move(nameOverridesKey))
{
}

QSet<QString> FoundryStore::dismissed() const
{
    return usableSet(m_defaults.stringArray(m_dismissedKey));
}

void FoundryStore::setDismissed(const QString &foundryID, bool isDismissed)
{
    setMember(m_defaults, m_dismissedKey, foundryID, isDismissed);
}

QSet<QString> FoundryStore::collapsedGroups() const
{
    return usableSet(m_defaults.stringArray(m_collapsedGroupsKey));
}

void FoundryStore::setCollapsed(const QString &group, bool isCollapsed)
{
    setMember(m_defaults, m_collapsedGroupsKey, group, isCollapsed);
}

QHash<QString, QString> FoundryStore::overrides() const
{
    return usableDictionary(m_defaults.stringDictionary(m_overridesKey));
}

void FoundryStore::setOverride(const QString &familyName, const std::optional<QString> &foundryID)
{
    setEntry(m_defaults, m_overridesKey, familyName, foundryID);
}

QHash<QString, QString> FoundryStore::nameOverrides() const
{
    return usableNames(m_defaults.stringDictionary(m_nameOverridesKey));
}

void FoundryStore::setNameOverride(const QString &foundryID, const std::optional<QString> &name)
{
    if (!name || !cleanedName(*name).isEmpty())
        setEntry(m_defaults, m_nameOverridesKey, foundryID, name);
}

FoundryCorrections FoundryStore::corrections() const
{
    return {overrides(), nameOverrides(), dismissed()};
}

void FoundryStore::save(const FoundryCorrections &corrections)
{
    m_defaults.inTransaction([store = *this, corrections] {
        replaceDictionary(store.m_defaults, store.m_overridesKey, corrections.overrides,
                          usableDictionary);
        replaceDictionary(store.m_defaults, store.m_nameOverridesKey, corrections.names,
                          usableNames);
        replaceSet(store.m_defaults, store.m_dismissedKey, corrections.dismissed);
    });
}

} // namespace lorva
