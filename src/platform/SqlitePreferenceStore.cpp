// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/SqlitePreferenceStore.h"

#include "platform/PreferenceFile.h"
#include "platform/PreferenceFilesAside.h"

#include <span>
#include <utility>

namespace lorva {

namespace {

using Change = std::function<void()>;
using Values = PreferenceFile::Values;

void runAll(std::span<const Change> changes)
{
    for (const Change &change : changes)
        change();
}

} // namespace

struct SqlitePreferenceStore::Private
{
    enum class Target {
        none, ///< no change is running
        file,
        memory,
    };

    PreferenceFile file;
    std::vector<Change> waiting;
    /// What the waiting changes have made of the values; nothing for a key that they removed.
    Values overlay;
    /// What the waiting changes have read in the file. As long as it holds the same, they would
    /// make the same overlay.
    Values basis;
    /// They read different values of one key, so that no state of the file is their basis.
    bool isBasisTorn = false;
    /// What the changes that run now have written so far.
    Values written;
    /// The change that ran last wrote something.
    bool hasWritten = false;
    Target target = Target::none;
    bool hasMetOthers = false;

    std::optional<PreferenceRow> read(const QString &key);
    std::optional<PreferenceRow> readFile(const QString &key);
    void write(const QString &key, const std::optional<PreferenceRow> &row);

    bool writeAll(size_t earlier);
    void writeEarlier(size_t count);
    void makeAgain(size_t count);
    bool isBasisInFile();
    void runInMemory(const Change &change);
    void dropLast();
    void forget();
};

std::optional<PreferenceRow> SqlitePreferenceStore::Private::read(const QString &key)
{
    if (const auto found = written.constFind(key); found != written.cend())
        return *found;
    // Changes that are made again start from what the file holds now.
    if (target != Target::file) {
        if (const auto found = overlay.constFind(key); found != overlay.cend())
            return *found;
    }
    return readFile(key);
}

std::optional<PreferenceRow> SqlitePreferenceStore::Private::readFile(const QString &key)
{
    std::optional<PreferenceRow> row = file.read(key);
    if (target == Target::none)
        return row;
    const auto earlier = basis.constFind(key);
    if (earlier == basis.cend())
        basis.insert(key, row);
    else
        isBasisTorn = isBasisTorn || *earlier != row;
    return row;
}

void SqlitePreferenceStore::Private::write(const QString &key,
                                           const std::optional<PreferenceRow> &row)
{
    hasWritten = true;
    written.insert(key, row);
    if (target == Target::file)
        file.write(key, row);
}

/// Ends the transaction that has begun with all waiting changes; the first `earlier` of them are in
/// the overlay. When it fails, the overlay is what they came to now.
bool SqlitePreferenceStore::Private::writeAll(size_t earlier)
{
    target = Target::file;
    writeEarlier(earlier);
    hasWritten = false;
    runAll(std::span<const Change>(waiting).subspan(earlier));
    target = Target::none;
    overlay = std::exchange(written, {});
    if (!file.commit())
        return false;
    forget();
    return true;
}

/// A disk that is full shows at the end of a transaction only. So each new try must cost no more
/// than the writing, however many changes wait and however long each takes.
void SqlitePreferenceStore::Private::writeEarlier(size_t count)
{
    if (!isBasisInFile()) {
        makeAgain(count);
        return;
    }
    written = overlay;
    for (auto each = overlay.cbegin(); each != overlay.cend(); ++each)
        file.write(each.key(), *each);
}

void SqlitePreferenceStore::Private::makeAgain(size_t count)
{
    basis.clear();
    isBasisTorn = false;
    runAll(std::span<const Change>(waiting).first(count));
    hasMetOthers = hasMetOthers || written != overlay;
}

bool SqlitePreferenceStore::Private::isBasisInFile()
{
    bool isSame = !isBasisTorn;
    for (auto each = basis.cbegin(); isSame && each != basis.cend(); ++each)
        isSame = file.read(each.key()) == *each;
    return isSame;
}

void SqlitePreferenceStore::Private::runInMemory(const Change &change)
{
    target = Target::memory;
    hasWritten = false;
    change();
    target = Target::none;
    overlay.insert(std::exchange(written, {}));
}

/// What was refused is not to be made later, when nobody expects it any more.
void SqlitePreferenceStore::Private::dropLast()
{
    waiting.pop_back();
    if (waiting.empty())
        forget();
}

void SqlitePreferenceStore::Private::forget()
{
    waiting.clear();
    overlay.clear();
    basis.clear();
    isBasisTorn = false;
}

SqlitePreferenceStore::SqlitePreferenceStore(const FilePath &applicationSupport,
                                             std::chrono::milliseconds patience)
    : d(new Private{PreferenceFile(applicationSupport, patience), {}, {}, {}, {}, {}})
{
}

SqlitePreferenceStore::~SqlitePreferenceStore() = default;

std::optional<PreferenceRow> SqlitePreferenceStore::row(const QString &key) const
{
    std::optional<PreferenceRow> row = d->read(key);
    if (d->file.hasMissedValues() && onValuesMissed)
        onValuesMissed();
    return row;
}

void SqlitePreferenceStore::setRow(const QString &key, const std::optional<PreferenceRow> &row)
{
    inTransaction([this, key, row] { d->write(key, row); });
}

void SqlitePreferenceStore::inTransaction(Change change)
{
    if (d->target != Private::Target::none) {
        change();
        return;
    }
    const size_t earlier = d->waiting.size();
    d->waiting.push_back(std::move(change));
    if (!d->file.begin(earlier == 0 ? d->file.usualDeadline() : QDeadlineTimer()))
        d->runInMemory(d->waiting.back());
    else if (d->writeAll(earlier))
        return;
    if (!d->hasWritten)
        d->dropLast();
    else if (onChangeWaits)
        onChangeWaits();
}

bool SqlitePreferenceStore::writeWaitingChanges()
{
    return writeLastChanges({});
}

bool SqlitePreferenceStore::writeLastChanges(std::chrono::milliseconds patience)
{
    if (d->waiting.empty())
        return true;
    return d->target == Private::Target::none && d->file.begin(QDeadlineTimer(patience))
        && d->writeAll(d->waiting.size());
}

bool SqlitePreferenceStore::takeChangesElsewhere()
{
    const bool isFileOther = d->file.takeChangesElsewhere();
    return std::exchange(d->hasMetOthers, false) || isFileOther;
}

bool SqlitePreferenceStore::hasMissedValues() const
{
    return d->file.hasMissedValues();
}

std::optional<FilePath> SqlitePreferenceStore::file() const
{
    return d->file.path();
}

PreferenceStoreStatus SqlitePreferenceStore::status() const
{
    std::map<QString, PreferenceRow> rows = d->file.readAll();
    for (auto each = d->overlay.cbegin(); each != d->overlay.cend(); ++each) {
        rows.erase(each.key());
        if (*each)
            rows.emplace(each.key(), **each);
    }
    PreferenceStoreStatus status;
    for (const auto &[key, row] : rows)
        status.entries.push_back(entryOf(key, row));
    status.file = file();
    status.movedAside = preferencesAside(d->file.path());
    status.failure = d->file.failure();
    status.waitingChanges = int(d->waiting.size());
    return status;
}

} // namespace lorva
