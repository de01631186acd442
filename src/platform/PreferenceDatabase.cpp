// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/PreferenceDatabase.h"

#include "base/WholeFile.h"
#include "platform/PreferenceFilesAside.h"

#include <QCoreApplication>

#include <array>
#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(PreferenceDatabase)
};

using Access = SqliteConnection::Access;

/// Shared while a file is opened, exclusive while a damaged one is moved: a process that starts
/// then must not make a new file whose log the mover takes for the damaged one's.
class FolderLock
{
public:
    enum class Kind { shared = LOCK_SH, exclusive = LOCK_EX };

    FolderLock(const FilePath &folder, Kind kind, QDeadlineTimer deadline)
        : m_descriptor(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    {
        while (m_descriptor >= 0 && ::flock(m_descriptor, int(kind) | LOCK_NB) != 0) {
            m_isHeldByOther = errno == EWOULDBLOCK && deadline.hasExpired();
            // A file system without locks must do without.
            if (m_isHeldByOther || errno != EWOULDBLOCK)
                return;
            ::usleep(2000);
        }
    }
    ~FolderLock()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Q_DISABLE_COPY_MOVE(FolderLock)

    bool isHeldByOther() const { return m_isHeldByOther; }

private:
    const int m_descriptor;
    bool m_isHeldByOther = false;
};

bool isDamaged(const Result<PreferenceDatabase> &database)
{
    return !database && database.error().kind == ErrorKind::malformed;
}

/// A lock that is held passes; a file behind it is not to be read past it.
bool isWorthReading(const Error &whyNotWritten)
{
    return whyNotWritten.kind == ErrorKind::permissionDenied
        || whyNotWritten.kind == ErrorKind::ioFailure;
}

} // namespace

PreferenceDatabase::PreferenceDatabase(SqliteConnection connection)
    : m_connection(std::move(connection))
{
}

Result<PreferenceDatabase> PreferenceDatabase::open(const FilePath &folder, QDeadlineTimer deadline)
{
    const Result<void> made = makeFolders(folder);
    const FilePath file = folder.child(kFileName);
    Result<PreferenceDatabase> database = openUnmoved(file, deadline);
    if (isDamaged(database))
        database = openDamaged(file, deadline);
    if (!database && isWorthReading(database.error()))
        database = openForReading(file, database.error(), deadline);
    if (!database && !made)
        return tl::unexpected(made.error());
    if (database && !database->m_whyReadOnly && database->m_connection.isReadOnly())
        database->m_whyReadOnly =
            Error{ErrorKind::permissionDenied, Texts::tr("the file cannot be written")};
    return database;
}

Result<PreferenceDatabase> PreferenceDatabase::openUnmoved(const FilePath &file,
                                                           QDeadlineTimer deadline)
{
    const FolderLock lock(file.parent(), FolderLock::Kind::shared, deadline);
    if (lock.isHeldByOther())
        return failure(ErrorKind::cancelled, Texts::tr("another process is moving a damaged file"));
    return openFile(file, Access::readWrite, deadline);
}

Result<PreferenceDatabase> PreferenceDatabase::openDamaged(const FilePath &file,
                                                           QDeadlineTimer deadline)
{
    const FolderLock lock(file.parent(), FolderLock::Kind::exclusive, deadline);
    // Another process may have mended it while this one waited for the lock.
    Result<PreferenceDatabase> database = openFile(file, Access::readWrite, deadline);
    if (isDamaged(database) && !lock.isHeldByOther() && movePreferencesAside(file))
        return openFile(file, Access::readWrite, deadline);
    return database;
}

Result<PreferenceDatabase> PreferenceDatabase::openForReading(const FilePath &file,
                                                              const Error &why,
                                                              QDeadlineTimer deadline)
{
    Result<PreferenceDatabase> database = openFile(file, Access::immutable, deadline);
    if (!database)
        return tl::unexpected(why);
    database->m_whyReadOnly = why;
    return database;
}

Result<PreferenceDatabase> PreferenceDatabase::openFile(const FilePath &file, Access access,
                                                        QDeadlineTimer deadline)
{
    Result<SqliteConnection> connection = SqliteConnection::open(file, access, deadline);
    if (!connection)
        return tl::unexpected(connection.error());
    PreferenceDatabase database(std::move(*connection));
    // Whose file it is comes first: another program's database is not to be changed.
    Result<void> done = database.checkSoundness();
    if (done)
        done = database.checkShape();
    if (done && access == Access::readWrite)
        done = database.makeTable();
    if (!done)
        return tl::unexpected(done.error());
    return database;
}

Result<void> PreferenceDatabase::checkSoundness()
{
    // Three megabytes take less than a millisecond.
    const auto checked = m_connection.run("PRAGMA quick_check(1)");
    if (!checked)
        return tl::unexpected(checked.error());
    if (checked->empty() || checked->front().front() != "ok")
        return failure(ErrorKind::malformed, Texts::tr("the database is damaged"));
    return {};
}

Result<void> PreferenceDatabase::checkShape()
{
    const auto tables =
        m_connection.run("SELECT name FROM sqlite_schema WHERE name = 'preferences'");
    if (!tables)
        return tl::unexpected(tables.error());
    if (tables->empty())
        return {};
    Result<void> shaped = runOnly("SELECT key, kind, value FROM preferences LIMIT 0");
    if (!shaped && shaped.error().kind == ErrorKind::invalidValue)
        return failure(ErrorKind::malformed, shaped.error().detail);
    return shaped;
}

Result<void> PreferenceDatabase::makeTable()
{
    static constexpr char kMakeTable[] =
        "CREATE TABLE IF NOT EXISTS preferences"
        " (key TEXT PRIMARY KEY NOT NULL, kind TEXT NOT NULL, value BLOB NOT NULL)";
    // Asking for the log fails on some file systems only at the next use, so the old journal is the
    // answer to any trouble but damage and a lock.
    writeAhead();
    Result<void> made = runOnly(kMakeTable);
    if (made || made.error().kind == ErrorKind::malformed
        || made.error().kind == ErrorKind::cancelled)
        return made;
    static_cast<void>(m_connection.run("PRAGMA synchronous=FULL"));
    static_cast<void>(m_connection.run("PRAGMA journal_mode=DELETE"));
    return runOnly(kMakeTable);
}

void PreferenceDatabase::writeAhead()
{
    const auto mode = m_connection.run("PRAGMA journal_mode=WAL");
    // A killed process loses nothing that it has committed. With the log, waiting for the disk only
    // at checkpoints is as safe from damage as waiting at each commit: a power cut may take the
    // last changes, whole ones. In return no change waits for a slow disk.
    if (mode && !mode->empty() && mode->front().front() == "wal")
        static_cast<void>(m_connection.run("PRAGMA synchronous=NORMAL"));
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

Result<std::map<QString, PreferenceRow>> PreferenceDatabase::readAll()
{
    const auto rows = m_connection.run("SELECT key, kind, value FROM preferences");
    if (!rows)
        return tl::unexpected(rows.error());
    std::map<QString, PreferenceRow> all;
    for (const SqliteConnection::Row &row : *rows)
        all.insert_or_assign(QString::fromUtf8(row[0]), PreferenceRow{row[1], row[2]});
    return all;
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
    return runOnly(row ? kReplace : kRemove, values);
}

Result<void> PreferenceDatabase::begin()
{
    return runOnly("BEGIN IMMEDIATE");
}

Result<void> PreferenceDatabase::commit()
{
    return runOnly("COMMIT");
}

void PreferenceDatabase::rollBack()
{
    // A failed commit may already have ended the transaction.
    static_cast<void>(m_connection.run("ROLLBACK"));
}

Result<QByteArray> PreferenceDatabase::dataVersion()
{
    const auto rows = m_connection.run("PRAGMA data_version");
    if (!rows)
        return tl::unexpected(rows.error());
    return rows->empty() ? QByteArray() : rows->front().front();
}

Result<void> PreferenceDatabase::runOnly(const char *statement, std::span<const QByteArray> values)
{
    const auto done = m_connection.run(statement, values);
    if (!done)
        return tl::unexpected(done.error());
    return {};
}

} // namespace lorva
