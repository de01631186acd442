// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceStore.h"
#include "platform/PreferenceValue.h"

namespace lorva {

/// A preference store over two functions: give a row, put a row.
class ValuePreferenceStore : public PreferenceStore
{
public:
    std::optional<QByteArray> data(const QString &key) const final;
    std::optional<QString> string(const QString &key) const final;
    std::optional<QStringList> stringArray(const QString &key) const final;
    std::optional<QHash<QString, QString>> stringDictionary(const QString &key) const final;
    std::optional<bool> boolean(const QString &key) const final;
    bool contains(const QString &key) const final;

    void setData(const QString &key, const QByteArray &value) final;
    void setString(const QString &key, const QString &value) final;
    void setStringArray(const QString &key, const QStringList &value) final;
    void setStringDictionary(const QString &key, const QHash<QString, QString> &value) final;
    void setBoolean(const QString &key, bool value) final;
    void remove(const QString &key) final;
    void keepUnreadable(const QString &key) final;

protected:
    static PreferenceStoreStatus::Entry entryOf(const QString &key, const PreferenceRow &row);

private:
    /// Nothing when the key is absent.
    virtual std::optional<PreferenceRow> row(const QString &key) const = 0;
    /// Nothing removes the key.
    virtual void setRow(const QString &key, const std::optional<PreferenceRow> &row) = 0;

    void setValue(const QString &key, const PreferenceValue &value);
    void keepRow(const QString &key);
    template <class T>
    std::optional<T> valueOfKind(const QString &key) const;
};

} // namespace lorva
