// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ValuePreferenceStore.h"

#include <memory>

namespace lorva {

class FilePath;

/// The user's preferences in one SQLite file, shared by all our processes of the user.
///
/// Every read asks the file, so that what another process wrote is seen at once. Every write is one
/// immediate transaction of its own, or part of the one that inTransaction() opens.
/// Failure: a file that is no database is moved aside with its date, and the defaults are used.
/// What cannot be written (no space, no permission) is kept in memory, and this process's reads see
/// it. Thread: main. Several stores, of one process or many, may use one file.
class SqlitePreferenceStore final : public ValuePreferenceStore
{
public:
    /// Over `applicationSupport`/preferences.sqlite; folder and file are made when they are
    /// missing.
    explicit SqlitePreferenceStore(const FilePath &applicationSupport);
    ~SqlitePreferenceStore() override;

    /// A call inside another's `change` is part of the outer one. When the transaction cannot be
    /// had or completed, its writes stay in memory.
    void inTransaction(const std::function<void()> &change) override;

private:
    struct Private;

    std::optional<PreferenceValue> value(const QString &key) const override;
    void setValue(const QString &key, const std::optional<PreferenceValue> &value) override;

    const std::unique_ptr<Private> d;
};

} // namespace lorva
