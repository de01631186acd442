// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QByteArrayView>

#include <memory>
#include <span>
#include <vector>

struct sqlite3;

namespace lorva {

/// One connection to an SQLite file.
///
/// Owns: the connection. Thread: one at a time.
/// Failure: malformed for a file that is no database or a damaged one, permissionDenied where it
/// cannot be opened or written, invalidValue for a statement that does not fit the file's tables,
/// ioFailure for the rest (a full disk, a lock that stays held).
class SqliteConnection
{
public:
    using Row = std::vector<QByteArray>;

    enum class Access {
        readWrite, ///< makes the file when it is missing
        immutable, ///< reads a file in a folder that we cannot write, without locks
    };

    static Result<SqliteConnection> open(const FilePath &file, Access access);

    /// Runs one statement with `values` bound as blobs, in order, and gives all rows, every column
    /// as bytes.
    Result<std::vector<Row>> run(const char *statement, std::span<const QByteArray> values = {});

private:
    struct Close
    {
        void operator()(sqlite3 *connection) const;
    };

    explicit SqliteConnection(sqlite3 *connection);
    Error lastError() const;

    std::unique_ptr<sqlite3, Close> m_connection;
};

} // namespace lorva
