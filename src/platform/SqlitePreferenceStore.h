// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/ValuePreferenceStore.h"

#include <chrono>
#include <memory>

namespace lorva {

class FilePath;

/// The user's preferences in one SQLite file, shared by all our processes of the user.
///
/// Every read asks the file, so that what another process wrote is seen at once; one that fails
/// gives the last value that this process knows. Every write is one immediate transaction of its
/// own, or part of the one that inTransaction() opens.
/// Failure: a file that is no database is moved aside with its date, and the defaults are used.
/// What cannot be written waits in memory, in order, and is made again if the file then holds other
/// values than it was made on. Thread: main. Several stores, of one process or many, may use one
/// file.
class SqlitePreferenceStore final : public ValuePreferenceStore
{
public:
    /// What a window can wait before people notice.
    static constexpr std::chrono::milliseconds kPatience{250};

    /// Over `applicationSupport`/preferences.sqlite; folder and file are made when they are
    /// missing. Waits for another process's lock at most `patience` for one change.
    explicit SqlitePreferenceStore(const FilePath &applicationSupport,
                                   std::chrono::milliseconds patience = kPatience);
    ~SqlitePreferenceStore() override;

    void inTransaction(std::function<void()> change) override;
    bool writeWaitingChanges() override;
    bool writeLastChanges(std::chrono::milliseconds patience) override;
    bool takeChangesElsewhere() override;
    bool hasMissedValues() const override;
    std::optional<FilePath> file() const override;
    PreferenceStoreStatus status() const override;

private:
    struct Private;

    std::optional<PreferenceRow> row(const QString &key) const override;
    void setRow(const QString &key, const std::optional<PreferenceRow> &row) override;

    const std::unique_ptr<Private> d;
};

} // namespace lorva
