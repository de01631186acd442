// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/ValuePreferenceStore.h"

namespace lorva {

template <class T>
std::optional<T> ValuePreferenceStore::valueOfKind(const QString &key) const
{
    const std::optional<PreferenceRow> stored = row(key);
    const std::optional<PreferenceValue> held = stored ? preferenceOfRow(*stored) : std::nullopt;
    const T *const wanted = held ? std::get_if<T>(&*held) : nullptr;
    return wanted ? std::optional<T>(*wanted) : std::nullopt;
}

std::optional<QByteArray> ValuePreferenceStore::data(const QString &key) const
{
    return valueOfKind<QByteArray>(key);
}

std::optional<QString> ValuePreferenceStore::string(const QString &key) const
{
    return valueOfKind<QString>(key);
}

std::optional<QStringList> ValuePreferenceStore::stringArray(const QString &key) const
{
    return valueOfKind<QStringList>(key);
}

std::optional<QHash<QString, QString>> ValuePreferenceStore::stringDictionary(
    const QString &key) const
{
    return valueOfKind<QHash<QString, QString>>(key);
}

std::optional<bool> ValuePreferenceStore::boolean(const QString &key) const
{
    return valueOfKind<bool>(key);
}

bool ValuePreferenceStore::contains(const QString &key) const
{
    return row(key).has_value();
}

void ValuePreferenceStore::setData(const QString &key, const QByteArray &value)
{
    setValue(key, value);
}

void ValuePreferenceStore::setString(const QString &key, const QString &value)
{
    setValue(key, value);
}

void ValuePreferenceStore::setStringArray(const QString &key, const QStringList &value)
{
    setValue(key, value);
}

void ValuePreferenceStore::setStringDictionary(const QString &key,
                                               const QHash<QString, QString> &value)
{
    setValue(key, value);
}

void ValuePreferenceStore::setBoolean(const QString &key, bool value)
{
    setValue(key, value);
}

void ValuePreferenceStore::remove(const QString &key)
{
    setRow(key, std::nullopt);
}

void ValuePreferenceStore::setValue(const QString &key, const PreferenceValue &value)
{
    setRow(key, rowOfPreference(value));
}

void ValuePreferenceStore::keepUnreadable(const QString &key)
{
    inTransaction([this, key] { keepRow(key); });
}

void ValuePreferenceStore::keepRow(const QString &key)
{
    const std::optional<PreferenceRow> kept = row(key);
    QString place = key % QStringLiteral(".unreadable");
    for (int count = 2; kept; ++count) {
        const std::optional<PreferenceRow> held = row(place);
        if (!held)
            setRow(place, kept);
        if (!held || held == kept)
            return;
        place = key % QStringLiteral(".unreadable.") % QString::number(count);
    }
}

PreferenceStoreStatus::Entry ValuePreferenceStore::entryOf(const QString &key,
                                                           const PreferenceRow &row)
{
    return {key, row.kind, row.value.size(), preferenceOfRow(row).has_value()};
}

} // namespace lorva
