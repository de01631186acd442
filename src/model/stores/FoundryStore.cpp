// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/FoundryStore.h"

#include "platform/PreferenceStore.h"

namespace lorva {

namespace {

using Dictionary = QHash<QString, QString>;

QSet<QString> storedSet(const PreferenceStore &defaults, const QString &key)
{
    const QStringList stored = defaults.stringArray(key).value_or(QStringList());
    QSet<QString> out(stored.begin(), stored.end());
    out.remove(QString());
    return out;
}

/// Sorted, so that equal sets are stored alike.
void storeSet(PreferenceStore &defaults, const QString &key, const QSet<QString> &value)
{
    if (!defaults.stringArray(key))
        defaults.keepUnreadable(key);
    QStringList sorted(value.begin(), value.end());
    sorted.sort();
    defaults.setStringArray(key, sorted);
}

Dictionary storedDictionary(const PreferenceStore &defaults, const QString &key)
{
    Dictionary out = defaults.stringDictionary(key).value_or(Dictionary());
    out.remove(QString());
    return out;
}

void storeDictionary(PreferenceStore &defaults, const QString &key, const Dictionary &value)
{
    if (!defaults.stringDictionary(key))
        defaults.keepUnreadable(key);
    defaults.setStringDictionary(key, value);
}

void replaceSet(PreferenceStore &defaults, const QString &key, const QSet<QString> &value)
{
    if (storedSet(defaults, key) != value)
        storeSet(defaults, key, value);
}

void replaceDictionary(PreferenceStore &defaults, const QString &key, const Dictionary &value)
{
    if (storedDictionary(defaults, key) != value)
        storeDictionary(defaults, key, value);
}

void setMember(PreferenceStore &defaults, const QString &key, const QString &member, bool isMember)
{
    if (member.isEmpty())
        return;
    defaults.inTransaction([&defaults, key, member, isMember] {
        QSet<QString> set = storedSet(defaults, key);
        if (set.contains(member) == isMember)
            return;
        if (isMember)
            set.insert(member);
        else
            set.remove(member);
        storeSet(defaults, key, set);
    });
}

void setEntry(PreferenceStore &defaults, const QString &key, const QString &name,
              const std::optional<QString> &value)
{
    if (name.isEmpty())
        return;
    defaults.inTransaction([&defaults, key, name, value] {
        Dictionary dictionary = storedDictionary(defaults, key);
        if (value)
            dictionary.insert(name, *value);
        else
            dictionary.remove(name);
        replaceDictionary(defaults, key, dictionary);
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
    return storedSet(m_defaults, m_dismissedKey);
}

void FoundryStore::setDismissed(const QString &foundryID, bool isDismissed)
{
    setMember(m_defaults, m_dismissedKey, foundryID, isDismissed);
}

QSet<QString> FoundryStore::collapsedGroups() const
{
    return storedSet(m_defaults, m_collapsedGroupsKey);
}

void FoundryStore::setCollapsed(const QString &group, bool isCollapsed)
{
    setMember(m_defaults, m_collapsedGroupsKey, group, isCollapsed);
}

QHash<QString, QString> FoundryStore::overrides() const
{
    return storedDictionary(m_defaults, m_overridesKey);
}

void FoundryStore::setOverride(const QString &familyName, const std::optional<QString> &foundryID)
{
    setEntry(m_defaults, m_overridesKey, familyName, foundryID);
}

QHash<QString, QString> FoundryStore::nameOverrides() const
{
    return storedDictionary(m_defaults, m_nameOverridesKey);
}

void FoundryStore::setNameOverride(const QString &foundryID, const std::optional<QString> &name)
{
    if (!name || !name->isEmpty())
        setEntry(m_defaults, m_nameOverridesKey, foundryID, name);
}

FoundryCorrections FoundryStore::corrections() const
{
    return {overrides(), nameOverrides(), dismissed()};
}

void FoundryStore::save(const FoundryCorrections &corrections)
{
    m_defaults.inTransaction([store = *this, corrections] {
        replaceDictionary(store.m_defaults, store.m_overridesKey, corrections.overrides);
        replaceDictionary(store.m_defaults, store.m_nameOverridesKey, corrections.names);
        replaceSet(store.m_defaults, store.m_dismissedKey, corrections.dismissed);
    });
}

} // namespace lorva
