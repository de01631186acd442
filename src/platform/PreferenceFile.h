// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/PreferenceDatabase.h"

#include <QHash>

#include <chrono>

namespace lorva {

/// The preference database as one process meets it over time: opened again when it could not be or
/// has gone, waited for no longer than agreed, and its last failure kept.
///
/// Failures are logged once under `lorva.platform.preferences`. Thread: one at a time.
class PreferenceFile
{
public:
    using Values = QHash<QString, std::optional<PreferenceRow>>;

    /// Over `folder`/preferences.sqlite.
    PreferenceFile(FilePath folder, std::chrono::milliseconds patience);

    /// Nothing when the key is absent. What cannot be read gives the last value known here, so that
    /// a lock or a failing disk does not look like an empty library; within a transaction it also
    /// makes commit() fail.
    std::optional<PreferenceRow> read(const QString &key);
    /// The last values known here when it cannot be read.
    std::map<QString, PreferenceRow> readAll();

    /// Until when an operation that starts now may wait for the locks of others: as long as agreed,
    /// or not at all where the last wait was in vain.
    QDeadlineTimer usualDeadline() const;

    /// Starts a transaction on the file that the path names now. When false there is none.
    bool begin(QDeadlineTimer deadline);
    void write(const QString &key, const std::optional<PreferenceRow> &row);
    /// Ends it. When false nothing since begin() was written.
    bool commit();

    /// True once after another connection has written, another file has taken the place, or what
    /// could not be read can be read again.
    bool takeChangesElsewhere();
    /// What was given may be wrong, as values could not be read, or a look was put off.
    bool hasMissedValues() const { return !m_database || m_missedKey || m_isLookPutOff; }

    FilePath path() const { return m_folder.child(PreferenceDatabase::kFileName); }
    /// What is wrong now, with the path.
    const std::optional<Error> &failure() const;

private:
    bool ensureWritable(QDeadlineTimer deadline);
    void take(PreferenceDatabase database);
    void closeIfDamaged();
    void noteFailure(std::optional<Error> &place, const Error &error) const;
    bool readsMissedValue();

    const FilePath m_folder;
    const std::chrono::milliseconds m_patience;
    std::optional<PreferenceDatabase> m_database;
    QByteArray m_dataVersion;
    /// Since it could not be opened: when looking at it is worth a try.
    QDeadlineTimer m_nextLook;
    bool m_isLookPutOff = false;
    std::optional<Error> m_openFailure;
    std::optional<Error> m_readFailure;
    std::optional<Error> m_writeFailure;
    /// The last one that could not be read, until a look finds that it can.
    std::optional<QString> m_missedKey;
    Values m_known;
    Values m_uncommitted;
    bool m_isInTransaction = false;
    bool m_hasTransactionFailed = false;
    bool m_isOther = false;
};

} // namespace lorva
