// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <chrono>
#include <functional>
#include <optional>
#include <vector>

namespace lorva {

/// How a preference store fares, for whoever looks after it.
struct PreferenceStoreStatus
{
    struct Entry
    {
        QString key;
        /// The name of its kind: "data", "string", …
        QByteArray kind;
        qint64 size = 0;
        /// Of a known kind, and whole.
        bool isReadable = true;

        bool operator==(const Entry &) const = default;
    };

    /// As PreferenceStore::file().
    std::optional<FilePath> file;
    /// Sorted by key. Those that end in ".unreadable" were kept when they were replaced.
    std::vector<Entry> entries;
    /// Damaged files that were moved aside, oldest first.
    std::vector<FilePath> movedAside;
    /// Why the store could not be opened, or last could not be read or written.
    std::optional<Error> failure;
    /// Changes that are only in memory so far.
    int waitingChanges = 0;
};

/// The per-user key-value store: what the user chose, kept across starts.
///
/// A getter gives nothing when the key is absent or holds another kind of value. What cannot be
/// written (no space, no permission, a lock that stays held) is silent, logged under
/// `lorva.platform.preferences`, and waits in memory, where this process's reads see it. Thread:
/// main.
class PreferenceStore
{
public:
    virtual ~PreferenceStore() = default;

    virtual std::optional<QByteArray> data(const QString &key) const = 0;
    virtual std::optional<QString> string(const QString &key) const = 0;
    virtual std::optional<QStringList> stringArray(const QString &key) const = 0;
    virtual std::optional<QHash<QString, QString>> stringDictionary(const QString &key) const = 0;
    virtual std::optional<bool> boolean(const QString &key) const = 0;
    /// Whether the key holds anything, of whatever kind.
    virtual bool contains(const QString &key) const = 0;

    virtual void setData(const QString &key, const QByteArray &value) = 0;
    virtual void setString(const QString &key, const QString &value) = 0;
    virtual void setStringArray(const QString &key, const QStringList &value) = 0;
    virtual void setStringDictionary(const QString &key, const QHash<QString, QString> &value) = 0;
    virtual void setBoolean(const QString &key, bool value) = 0;
    virtual void remove(const QString &key) = 0;
    /// Copies what the key holds, as it is and of whatever kind, to "<key>.unreadable", before it
    /// is replaced by someone who cannot read it. A different value that is kept there already
    /// stays, and the new one gets a number ("<key>.unreadable.2"). Does nothing for an absent key.
    virtual void keepUnreadable(const QString &key) = 0;

    /// Runs `change` as one unit: no other process's write falls between its reads and its writes.
    ///
    /// When it cannot be written now, `change` has run on what is in memory, and runs again, over
    /// what the store holds by then, once that can be written. So it owns what it captures, and
    /// what it writes depends on nothing but that and what it reads here: while that is the same,
    /// what it wrote is taken as it is. One that writes nothing does not wait. It may run twice
    /// before this returns; the last run is the one that counts. A call inside another's `change`
    /// is part of the outer one.
    virtual void inTransaction(std::function<void()> change) = 0;

    /// Tries to write what waits in memory, without waiting for anyone's lock. True when nothing
    /// waits any more.
    virtual bool writeWaitingChanges() = 0;
    /// The same, for the last time: waits up to `patience` for the locks of others.
    virtual bool writeLastChanges(std::chrono::milliseconds /*patience*/)
    {
        return writeWaitingChanges();
    }
    /// True once after values have changed without a call of this object's setters: another process
    /// wrote, a change that had waited met other values than it was first made on, or what could
    /// not be read can be read again.
    virtual bool takeChangesElsewhere() = 0;
    /// Values could not be read, so that absent or old ones were given, or the last look came too
    /// soon after one in vain: takeChangesElsewhere() is to be asked again, though nothing may tell
    /// when.
    virtual bool hasMissedValues() const { return false; }
    /// Where the values are kept; nothing for a store in memory.
    virtual std::optional<FilePath> file() const { return std::nullopt; }
    /// Reads every value.
    virtual PreferenceStoreStatus status() const = 0;

    /// Called after a change has begun to wait in memory, for whoever sees to it that
    /// writeWaitingChanges() is tried again.
    std::function<void()> onChangeWaits;
    /// Called after a read while hasMissedValues() is true.
    std::function<void()> onValuesMissed;
};

} // namespace lorva
