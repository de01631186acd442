// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/ValuePreferenceStore.h"

namespace lorva {

template <class T>
std::optional<T> ValuePreferenceStore::valueOfKind(const QString &key) const
{
    const std::optional<PreferenceValue> held = value(key);
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
    setValue(key, std::nullopt);
}

} // namespace lorva
