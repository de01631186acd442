// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceValue.h"
#include "platform/SqliteConnection.h"

namespace lorva {

/// The preference file: a table of key, kind and value.
///
/// Written ahead to a log, or through a rollback journal where the file system cannot carry a log
/// (network volumes). Thread: one at a time.
class PreferenceDatabase
{
public:
    /// Opens `folder`/preferences.sqlite, making folder and file where they are missing. A file
    /// that is no database, or one too damaged to read, is first moved aside under its name with
    /// the date added, so that nothing is lost. Where it cannot be written it is opened for
    /// reading.
    static Result<PreferenceDatabase> open(const FilePath &folder);

    /// Nothing when the key is absent.
    Result<std::optional<PreferenceRow>> read(const QString &key);
    /// Nothing removes the key.
    Result<void> write(const QString &key, const std::optional<PreferenceRow> &row);

    /// Takes the write lock, so that what is read until commit() stays true.
    Result<void> begin();
    Result<void> commit();
    void rollBack();

private:
    explicit PreferenceDatabase(SqliteConnection connection);
    static Result<PreferenceDatabase> openFile(const FilePath &file,
                                               SqliteConnection::Access access);
    Result<void> checkSoundness();
    Result<void> makeTable();

    SqliteConnection m_connection;
};

} // namespace lorva
