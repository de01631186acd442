// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceValue.h"
#include "platform/SqliteConnection.h"

#include <QDeadlineTimer>

#include <map>

namespace lorva {

/// The preference file: a table of key, kind and value.
///
/// Written ahead to a log, or through a rollback journal where the file system cannot carry a log
/// (network volumes). Thread: one at a time. Failure: that of SqliteConnection.
class PreferenceDatabase
{
public:
    /// The name of the file in its folder.
    static constexpr char kFileName[] = "preferences.sqlite";

    /// Opens `folder`/preferences.sqlite, making folder and file where they are missing. A file
    /// that is no database, or one too damaged to read, is first moved aside under its name with
    /// the date added, so that nothing is lost. Where it cannot be written it is opened for
    /// reading. Waits for the locks of others until `deadline`.
    static Result<PreferenceDatabase> open(const FilePath &folder, QDeadlineTimer deadline);

    /// Set when it was opened for reading only.
    const std::optional<Error> &whyReadOnly() const { return m_whyReadOnly; }
    /// The file has been moved or deleted under us.
    bool hasMoved() const { return m_connection.hasMoved(); }
    /// Until when what follows waits for the locks of others.
    void setDeadline(QDeadlineTimer deadline) { m_connection.setDeadline(deadline); }

    /// Nothing when the key is absent.
    Result<std::optional<PreferenceRow>> read(const QString &key);
    Result<std::map<QString, PreferenceRow>> readAll();
    /// Nothing removes the key.
    Result<void> write(const QString &key, const std::optional<PreferenceRow> &row);

    /// Takes the write lock, so that what is read until commit() stays true.
    Result<void> begin();
    Result<void> commit();
    void rollBack();

    /// A number that another connection's commit changes, and our own do not.
    Result<QByteArray> dataVersion();

private:
    explicit PreferenceDatabase(SqliteConnection connection);
    static Result<PreferenceDatabase> openFile(const FilePath &file,
                                               SqliteConnection::Access access,
                                               QDeadlineTimer deadline);
    static Result<PreferenceDatabase> openUnmoved(const FilePath &file, QDeadlineTimer deadline);
    static Result<PreferenceDatabase> openDamaged(const FilePath &file, QDeadlineTimer deadline);
    static Result<PreferenceDatabase> openForReading(const FilePath &file, const Error &why,
                                                     QDeadlineTimer deadline);
    Result<void> checkSoundness();
    Result<void> checkShape();
    Result<void> makeTable();
    void writeAhead();
    Result<void> runOnly(const char *statement, std::span<const QByteArray> values = {});

    SqliteConnection m_connection;
    std::optional<Error> m_whyReadOnly;
};

} // namespace lorva
