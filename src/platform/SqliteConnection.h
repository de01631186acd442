// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QByteArrayView>
#include <QDeadlineTimer>

#include <chrono>
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
/// cancelled where another connection's lock was still held at the deadline, ioFailure for the rest
/// (a full disk, an I/O error).
class SqliteConnection
{
public:
    using Row = std::vector<QByteArray>;

    enum class Access {
        readWrite, ///< makes the file when it is missing
        immutable, ///< reads a file in a folder that we cannot write, without locks
    };

    /// Another process holds its lock for milliseconds; a disk that is busy may take longer.
    static constexpr std::chrono::milliseconds kUsualPatience{3000};

    static Result<SqliteConnection> open(const FilePath &file, Access access,
                                         QDeadlineTimer deadline = QDeadlineTimer(kUsualPatience));

    /// Until when statements wait for the locks of others. One that has passed means not at all.
    void setDeadline(QDeadlineTimer deadline) { m_deadline = deadline; }

    /// Runs one statement with `values` bound as blobs, in order, and gives all rows, every column
    /// as bytes.
    Result<std::vector<Row>> run(const char *statement, std::span<const QByteArray> values = {});

    bool isReadOnly() const;
    /// The path no longer names the file that is open: what is written would go nowhere.
    bool hasMoved() const;

private:
    struct Close
    {
        void operator()(sqlite3 *connection) const;
    };

    SqliteConnection(sqlite3 *connection, QDeadlineTimer deadline);
    Error lastError() const;
    QString lastDetail() const;

    std::unique_ptr<sqlite3, Close> m_connection;
    QDeadlineTimer m_deadline;
};

} // namespace lorva
