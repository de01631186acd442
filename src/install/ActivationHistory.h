// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QDateTime>
#include <QStringList>

#include <optional>
#include <vector>

namespace lorva {

/// One run that switched fonts on or off.
struct ActivationHistoryEntry
{
    enum class Action {
        copied,
        registered,
        /// Copies to the Trash, registrations withdrawn.
        deactivated,
        /// Copies to `destination`.
        moved,
        /// A de-activation was undone.
        restored
    };
    struct File
    {
        FilePath path;
        /// What was done to it.
        enum class Fate { done, skipped, failed, left } fate = Fate::done;
        /// Why it failed; otherwise empty.
        QString reason;
        bool operator==(const File &) const = default;
    };

    /// UTC, to the millisecond.
    QDateTime when;
    Action action = Action::copied;
    QStringList families;
    std::optional<FilePath> destination;
    std::vector<File> files;

    bool operator==(const ActivationHistoryEntry &) const = default;
};

/// "copied", "deactivated"; "done", "left": as the file has them.
QString historyName(ActivationHistoryEntry::Action action);
QString historyName(ActivationHistoryEntry::File::Fate fate);

/// What was switched on and off on this computer, kept in a file that grows by a line a run, and is
/// cut to its newer half when it exceeds kLargestSize.
///
/// Lines that do not decode are left out, and kept in the file. Paths are kept byte for byte.
/// Thread: any; append() by whoever holds the run lock.
class ActivationHistory
{
public:
    static constexpr qint64 kLargestSize = 4LL * 1024 * 1024;

    explicit ActivationHistory(FilePath file);

    /// The newest first, at most `limit`. Empty when there is no file; fails with
    /// permissionDenied or ioFailure.
    Result<std::vector<ActivationHistoryEntry>> read(size_t limit = 10'000) const;
    /// Fails as the system does; the folder is made if it is missing.
    Result<void> append(const ActivationHistoryEntry &entry) const;

private:
    const FilePath m_file;
};

/// The entries as a table for spreadsheets: one line per file, comma-separated, UTF-8, quoted as
/// RFC 4180 says, with a heading line. Of many families the first five are named. Cells that a
/// spreadsheet would take for a formula are quoted with an apostrophe.
QByteArray historyAsCsv(const std::vector<ActivationHistoryEntry> &entries);

} // namespace lorva
