// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/SqlitePreferenceStore.h"

#include "platform/PreferenceDatabase.h"

#include <QLoggingCategory>

namespace lorva {

Q_LOGGING_CATEGORY(preferenceLog, "lorva.platform.preferences", QtWarningMsg)

namespace {

using PendingValues = QHash<QString, std::optional<PreferenceRow>>;

void logFailure(const char *what, const Error &error)
{
    qCWarning(preferenceLog).noquote() << what << error.detail;
}

} // namespace

struct SqlitePreferenceStore::Private
{
    std::optional<PreferenceDatabase> database;
    /// What could not be written; outlives the attempt until the same key is written with success.
    PendingValues unwritten;
    /// The writes of the transaction that is open, for the case that it cannot be completed.
    PendingValues inTransaction;
    bool isTransactionOpen = false;
    bool hasTransactionFailed = false;

    std::optional<PreferenceRow> read(const QString &key);
    void write(const QString &key, const std::optional<PreferenceRow> &row);
    void begin();
    void end();
    bool commit();
};

std::optional<PreferenceRow> SqlitePreferenceStore::Private::read(const QString &key)
{
    for (const PendingValues *pending : {&inTransaction, &unwritten}) {
        if (const auto found = pending->constFind(key); found != pending->cend())
            return *found;
    }
    if (!database)
        return std::nullopt;
    Result<std::optional<PreferenceRow>> row = database->read(key);
    if (!row) {
        logFailure("a preference could not be read:", row.error());
        return std::nullopt;
    }
    return *std::move(row);
}

void SqlitePreferenceStore::Private::write(const QString &key,
                                           const std::optional<PreferenceRow> &row)
{
    inTransaction.insert(key, row);
    if (!database || hasTransactionFailed)
        return;
    if (const Result<void> written = database->write(key, row); !written) {
        logFailure("a preference could not be written:", written.error());
        hasTransactionFailed = true;
    }
}

void SqlitePreferenceStore::Private::begin()
{
    isTransactionOpen = true;
    hasTransactionFailed = !database;
    if (!database)
        return;
    if (const Result<void> begun = database->begin(); !begun) {
        logFailure("the preferences could not be locked:", begun.error());
        hasTransactionFailed = true;
    }
}

bool SqlitePreferenceStore::Private::commit()
{
    if (hasTransactionFailed)
        return false;
    const Result<void> committed = database->commit();
    if (!committed)
        logFailure("the preferences could not be written:", committed.error());
    return committed.has_value();
}

void SqlitePreferenceStore::Private::end()
{
    const bool isWritten = commit();
    if (!isWritten && database)
        database->rollBack();
    for (auto write = inTransaction.cbegin(); write != inTransaction.cend(); ++write) {
        if (isWritten)
            unwritten.remove(write.key());
        else
            unwritten.insert(write.key(), write.value());
    }
    inTransaction.clear();
    isTransactionOpen = false;
}

SqlitePreferenceStore::SqlitePreferenceStore(const FilePath &applicationSupport)
    : d(std::make_unique<Private>())
{
    Result<PreferenceDatabase> database = PreferenceDatabase::open(applicationSupport);
    if (database)
        d->database.emplace(std::move(*database));
    else
        logFailure("the preferences could not be opened:", database.error());
}

SqlitePreferenceStore::~SqlitePreferenceStore() = default;

std::optional<PreferenceValue> SqlitePreferenceStore::value(const QString &key) const
{
    const std::optional<PreferenceRow> row = d->read(key);
    return row ? preferenceOfRow(*row) : std::nullopt;
}

void SqlitePreferenceStore::setValue(const QString &key,
                                     const std::optional<PreferenceValue> &value)
{
    const std::optional<PreferenceRow> row =
        value ? std::optional(rowOfPreference(*value)) : std::nullopt;
    inTransaction([&] { d->write(key, row); });
}

void SqlitePreferenceStore::inTransaction(const std::function<void()> &change)
{
    if (d->isTransactionOpen) {
        change();
        return;
    }
    d->begin();
    change();
    d->end();
}

} // namespace lorva
