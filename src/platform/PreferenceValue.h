// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

namespace lorva {

/// What one preference may hold.
using PreferenceValue =
    std::variant<QByteArray, QString, QStringList, QHash<QString, QString>, bool>;

/// A preference as a database row: the name of its kind, and its value as bytes.
struct PreferenceRow
{
    QByteArray kind;
    QByteArray value;

    bool operator==(const PreferenceRow &) const = default;
};

/// Texts as UTF-8, arrays and dictionaries as JSON, booleans as "0" or "1", data as it is.
PreferenceRow rowOfPreference(const PreferenceValue &value);

/// Nothing for an unknown kind (a later version's) or a damaged value.
std::optional<PreferenceValue> preferenceOfRow(const PreferenceRow &row);

} // namespace lorva
