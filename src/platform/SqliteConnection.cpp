// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/SqliteConnection.h"

#include <sqlite3.h>

namespace lorva {

namespace {

struct FinalizeStatement
{
    void operator()(sqlite3_stmt *statement) const { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

ErrorKind kindOfCode(int code)
{
    switch (code & 0xff) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
        return ErrorKind::malformed;
    case SQLITE_CANTOPEN:
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
        return ErrorKind::permissionDenied;
    case SQLITE_ERROR:
        return ErrorKind::invalidValue;
    case SQLITE_BUSY:
        return ErrorKind::cancelled;
    default:
        return ErrorKind::ioFailure;
    }
}

QByteArray columnBytes(sqlite3_stmt *statement, int column)
{
    const void *const bytes = sqlite3_column_blob(statement, column);
    return {static_cast<const char *>(bytes), sqlite3_column_bytes(statement, column)};
}

SqliteConnection::Row currentRow(sqlite3_stmt *statement)
{
    SqliteConnection::Row row;
    for (int column = 0; column < sqlite3_column_count(statement); ++column)
        row.push_back(columnBytes(statement, column));
    return row;
}

void bindValues(sqlite3_stmt *statement, std::span<const QByteArray> values)
{
    int place = 1;
    for (const QByteArray &value : values) // which outlive the statement: no copy
        sqlite3_bind_blob64(statement, place++, value.constData(), sqlite3_uint64(value.size()),
                            SQLITE_STATIC);
}

} // namespace

void SqliteConnection::Close::operator()(sqlite3 *connection) const
{
    sqlite3_close(connection);
}

SqliteConnection::SqliteConnection(sqlite3 *connection, QDeadlineTimer deadline)
    : m_connection(connection)
    , m_deadline(deadline)
{
}

Error SqliteConnection::lastError() const
{
    sqlite3 *const connection = m_connection.get();
    return {kindOfCode(sqlite3_extended_errcode(connection)), lastDetail()};
}

/// With the system's reason where there is one: "disk I/O error (No space left on device)".
QString SqliteConnection::lastDetail() const
{
    sqlite3 *const connection = m_connection.get();
    const QString detail = QString::fromUtf8(sqlite3_errmsg(connection));
    const int code = sqlite3_extended_errcode(connection) & 0xff;
    const int reason = sqlite3_system_errno(connection);
    if (reason == 0 || (code != SQLITE_IOERR && code != SQLITE_CANTOPEN))
        return detail;
    return QStringLiteral("%1 (%2)").arg(detail, qt_error_string(reason));
}

Result<SqliteConnection> SqliteConnection::open(const FilePath &file, Access access,
                                                QDeadlineTimer deadline)
{
    const bool isImmutable = access == Access::immutable;
    const int flags = SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX
        | (isImmutable ? SQLITE_OPEN_READONLY : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
    QByteArray url = file.toUrl();
    if (isImmutable)
        url.append("?immutable=1");
    sqlite3 *opened = nullptr;
    const int code = sqlite3_open_v2(url.constData(), &opened, flags, nullptr);
    SqliteConnection connection(opened, deadline);
    if (!opened)
        return failure(ErrorKind::ioFailure, QString::fromUtf8(sqlite3_errstr(SQLITE_NOMEM)));
    if (code != SQLITE_OK)
        return tl::unexpected(connection.lastError());
    return connection;
}

Result<std::vector<SqliteConnection::Row>> SqliteConnection::run(const char *statement,
                                                                 std::span<const QByteArray> values)
{
    sqlite3_busy_timeout(m_connection.get(), int(m_deadline.remainingTime()));
    sqlite3_stmt *prepared = nullptr;
    if (sqlite3_prepare_v2(m_connection.get(), statement, -1, &prepared, nullptr) != SQLITE_OK)
        return tl::unexpected(lastError());
    const StatementHandle handle(prepared);
    bindValues(prepared, values);

    std::vector<Row> rows;
    int code = sqlite3_step(prepared);
    for (; code == SQLITE_ROW; code = sqlite3_step(prepared))
        rows.push_back(currentRow(prepared));
    if (code != SQLITE_DONE)
        return tl::unexpected(lastError());
    return rows;
}

bool SqliteConnection::isReadOnly() const
{
    return sqlite3_db_readonly(m_connection.get(), "main") == 1;
}

bool SqliteConnection::hasMoved() const
{
    int isMoved = 0;
    sqlite3_file_control(m_connection.get(), "main", SQLITE_FCNTL_HAS_MOVED, &isMoved);
    return isMoved != 0;
}

} // namespace lorva
