// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Json.h"
#include "model/stores/StoredState.h"
#include "platform/PreferenceStore.h"

namespace lorva {

/// Logs, under `lorva.model.stores`, why the value under `key` counts for nothing.
void noteUnreadable(const QString &key, const Error &why);

/// The value that is kept as JSON under `key`; nothing when it is absent, of another kind, or does
/// not decode.
template <class T>
std::optional<T> storedJson(const PreferenceStore &defaults, const QString &key)
{
    std::optional<QByteArray> json = defaults.data(key);
    if (!json)
        return std::nullopt;
    Result<T> value = decodeJson<T>(*std::move(json));
    if (value)
        return *std::move(value);
    noteUnreadable(key, value.error());
    return std::nullopt;
}

/// Keeps `value` as JSON under `key`. What is there and cannot be read is put aside first; what is
/// the same already is not written. The caller has opened a transaction. One that says what is
/// there spares large values another read.
template <class T>
void storeJson(PreferenceStore &defaults, const QString &key, const T &value,
               StoredState present = StoredState::unknown)
{
    const QByteArray json = encodeJson(value);
    if (present == StoredState::unknown) {
        if (defaults.data(key) == json)
            return;
        present = storedState(storedJson<T>(defaults, key).has_value());
    }
    if (present == StoredState::unreadable)
        defaults.keepUnreadable(key);
    defaults.setData(key, json);
}

} // namespace lorva
