// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

namespace lorva {

/// The per-user key-value store: what the user chose, kept across starts.
///
/// A getter gives nothing when the key is absent or holds another kind of value. A write that fails
/// is dropped silently (and logged under `lorva.platform.preferences`). Thread: main.
class PreferenceStore
{
public:
    virtual ~PreferenceStore() = default;

    virtual std::optional<QByteArray> data(const QString &key) const = 0;
    virtual std::optional<QString> string(const QString &key) const = 0;
    virtual std::optional<QStringList> stringArray(const QString &key) const = 0;
    virtual std::optional<QHash<QString, QString>> stringDictionary(const QString &key) const = 0;
    virtual std::optional<bool> boolean(const QString &key) const = 0;

    virtual void setData(const QString &key, const QByteArray &value) = 0;
    virtual void setString(const QString &key, const QString &value) = 0;
    virtual void setStringArray(const QString &key, const QStringList &value) = 0;
    virtual void setStringDictionary(const QString &key, const QHash<QString, QString> &value) = 0;
    virtual void setBoolean(const QString &key, bool value) = 0;
    virtual void remove(const QString &key) = 0;

    /// Runs `change` as one unit: no other process's write falls between its reads and its writes.
    virtual void inTransaction(const std::function<void()> &change) = 0;
};

} // namespace lorva
