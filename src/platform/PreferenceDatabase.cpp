// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/PreferenceDatabase.h"

#include "base/WholeFile.h"

#include <QDateTime>
#include <QLoggingCategory>

#include <array>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

Q_LOGGING_CATEGORY(preferenceFileLog, "lorva.platform.preferences", QtWarningMsg)

namespace {

using Access = SqliteConnection::Access;

constexpr char kFileName[] = "preferences.sqlite";

/// Held while a damaged file is moved, so that two starting processes do not move each other's new
/// one.
class FolderLock
{
public:
    explicit FolderLock(const FilePath &folder)
        : m_descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        if (m_descriptor >= 0)
            ::flock(m_descriptor, LOCK_EX);
    }
    ~FolderLock()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY_MOVE(FolderLock)

private:
    const int m_descriptor;
};

/// "preferences.sqlite.damaged-20260131-120000", with a number while the name is taken.
FilePath freeNameFor(const FilePath &file)
{
    const QByteArray date = QDateTime::currentDateTime().toString(u"yyyyMMdd-HHmmss").toLatin1();
    const QByteArray base = file.bytes() + ".damaged-" + date;
    QByteArray name = base;
    struct stat info;
    for (int count = 2; ::lstat(name.constData(), &info) == 0; ++count)
        name = base + '-' + QByteArray::number(count);
    return FilePath(name);
}

bool moveAside(const FilePath &file)
{
    const FilePath aside = freeNameFor(file);
    if (::rename(file.c_str(), aside.c_str()) != 0)
        return false;
    qCWarning(preferenceFileLog).noquote()
        << "the preferences could not be read; they were moved to" << aside.displayText();
    // The log belongs to the file; beside a new one it would be read as damage.
    for (const char *suffix : {"-wal", "-shm", "-journal"})
        ::rename(QByteArray(file.bytes() + suffix).constData(),
                 QByteArray(aside.bytes() + suffix).constData());
    return true;
}

} // namespace

PreferenceDatabase::PreferenceDatabase(SqliteConnection connection)
    : m_connection(std::move(connection))
{
}

Result<PreferenceDatabase> PreferenceDatabase::open(const FilePath &folder)
{
    // Without the folder, opening says what is wrong.
    static_cast<void>(makeFolders(folder));
    const FilePath file = folder.child(kFileName);
    Result<PreferenceDatabase> database = openFile(file, Access::readWrite);
    if (!database && database.error().kind == ErrorKind::malformed) {
        const FolderLock lock(folder);
        // Another process may have mended it while this one waited for the lock.
        database = openFile(file, Access::readWrite);
        if (!database && database.error().kind == ErrorKind::malformed && moveAside(file))
            database = openFile(file, Access::readWrite);
    }
    if (!database && database.error().kind != ErrorKind::malformed)
        database = openFile(file, Access::immutable);
    return database;
}

Result<PreferenceDatabase> PreferenceDatabase::openFile(const FilePath &file, Access access)
{
    Result<SqliteConnection> connection = SqliteConnection::open(file, access);
    if (!connection)
        return tl::unexpected(connection.error());
    PreferenceDatabase database(std::move(*connection));
    // Whose file it is comes first: another program's database is not to be changed.
    Result<void> done = database.checkSoundness();
    if (done && access == Access::readWrite)
        done = database.makeTable();
    if (!done)
        return tl::unexpected(done.error());
    return database;
}

Result<void> PreferenceDatabase::checkSoundness()
{
    const auto checked = m_connection.run("PRAGMA quick_check(1)");
    if (!checked)
        return tl::unexpected(checked.error());
    if (checked->empty() || checked->front().front() != "ok")
        return failure(ErrorKind::malformed, QStringLiteral("the database is damaged"));
    const auto tables =
        m_connection.run("SELECT name FROM sqlite_schema WHERE name = 'preferences'");
    if (!tables)
        return tl::unexpected(tables.error());
    if (tables->empty())
        return {};
    const auto shaped = m_connection.run("SELECT key, kind, value FROM preferences LIMIT 0");
    if (!shaped && shaped.error().kind == ErrorKind::invalidValue)
        return failure(ErrorKind::malformed, shaped.error().detail);
    if (!shaped)
        return tl::unexpected(shaped.error());
    return {};
}

Result<void> PreferenceDatabase::makeTable()
{
    static constexpr char kMakeTable[] =
        "CREATE TABLE IF NOT EXISTS preferences"
        " (key TEXT PRIMARY KEY NOT NULL, kind TEXT NOT NULL, value BLOB NOT NULL)";
    // Asking for the log fails on some file systems only at the next use, so the old journal is the
    // answer to any trouble but damage.
    static_cast<void>(m_connection.run("PRAGMA journal_mode=WAL"));
    Result<std::vector<SqliteConnection::Row>> made = m_connection.run(kMakeTable);
    if (!made && made.error().kind != ErrorKind::malformed) {
        static_cast<void>(m_connection.run("PRAGMA journal_mode=DELETE"));
        made = m_connection.run(kMakeTable);
    }
    if (!made)
        return tl::unexpected(made.error());
    return {};
}

Result<std::optional<PreferenceRow>> PreferenceDatabase::read(const QString &key)
{
    const std::array<QByteArray, 1> values{key.toUtf8()};
    auto rows = m_connection.run("SELECT kind, value FROM preferences WHERE key = CAST(?1 AS TEXT)",
                                 values);
    if (!rows)
        return tl::unexpected(rows.error());
    if (rows->empty())
        return std::optional<PreferenceRow>();
    SqliteConnection::Row &row = rows->front();
    return PreferenceRow{row[0], row[1]};
}

Result<void> PreferenceDatabase::write(const QString &key, const std::optional<PreferenceRow> &row)
{
    static constexpr char kRemove[] = "DELETE FROM preferences WHERE key = CAST(?1 AS TEXT)";
    static constexpr char kReplace[] =
        "INSERT INTO preferences (key, kind, value)"
        " VALUES (CAST(?1 AS TEXT), CAST(?2 AS TEXT), ?3)"
        " ON CONFLICT (key) DO UPDATE SET kind = excluded.kind, value = excluded.value";
    std::vector<QByteArray> values{key.toUtf8()};
    if (row)
        values.insert(values.end(), {row->kind, row->value});
    const auto done = m_connection.run(row ? kReplace : kRemove, values);
    if (!done)
        return tl::unexpected(done.error());
    return {};
}

Result<void> PreferenceDatabase::begin()
{
    const auto done = m_connection.run("BEGIN IMMEDIATE");
    if (!done)
        return tl::unexpected(done.error());
    return {};
}

Result<void> PreferenceDatabase::commit()
{
    const auto done = m_connection.run("COMMIT");
    if (!done)
        return tl::unexpected(done.error());
    return {};
}

void PreferenceDatabase::rollBack()
{
    // A failed commit may already have ended the transaction.
    static_cast<void>(m_connection.run("ROLLBACK"));
}

} // namespace lorva
