// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Json.h"
#include "platform/PreferenceStore.h"

namespace lorva {

/// Logs, under `lorva.model.stores`, why the value under `key` counts for nothing.
void noteUnreadable(const QString &key, const Error &why);

/// The value that is kept as JSON under `key`; nothing when it is absent, of another kind, or does
/// not decode.
template <class T>
std::optional<T> storedJson(const PreferenceStore &defaults, const QString &key)
{
    const std::optional<QByteArray> json = defaults.data(key);
    if (!json)
        return std::nullopt;
    Result<T> value = decodeJson<T>(*json);
    if (value)
        return *std::move(value);
    noteUnreadable(key, value.error());
    return std::nullopt;
}

/// Keeps `value` as JSON under `key`. What is there and cannot be read is put aside first; what is
/// the same already is not written. The caller has opened a transaction.
template <class T>
void storeJson(PreferenceStore &defaults, const QString &key, const T &value)
{
    const QByteArray json = encodeJson(value);
    if (defaults.data(key) == json)
        return;
    if (!storedJson<T>(defaults, key))
        defaults.keepUnreadable(key);
    defaults.setData(key, json);
}

} // namespace lorva
