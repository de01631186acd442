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
using Wait = PreferenceFile::Wait;

/// More than these are not tried again with each new change, which would take longer and longer.
constexpr size_t kMostTriedWithAChange = 32;

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
    /// What the changes that run now have written so far.
    Values written;
    Target target = Target::none;
    bool hasMetOthers = false;

    std::optional<PreferenceRow> read(const QString &key);
    void write(const QString &key, const std::optional<PreferenceRow> &row);
    bool writeAll(size_t inMemory, Wait wait);
    void runInMemory(const Change &change);
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
    return file.read(key);
}

void SqlitePreferenceStore::Private::write(const QString &key,
                                           const std::optional<PreferenceRow> &row)
{
    written.insert(key, row);
    if (target == Target::file)
        file.write(key, row);
}

/// Makes all waiting changes in one transaction; the first `inMemory` of them are in the overlay.
bool SqlitePreferenceStore::Private::writeAll(size_t inMemory, Wait wait)
{
    if (!file.begin(wait))
        return false;
    target = Target::file;
    const std::span<const Change> changes(waiting);
    runAll(changes.first(inMemory));
    const bool isAsBefore = written == overlay;
    runAll(changes.subspan(inMemory));
    target = Target::none;
    written.clear();
    if (!file.commit())
        return false;
    hasMetOthers = hasMetOthers || !isAsBefore;
    overlay.clear();
    waiting.clear();
    return true;
}

void SqlitePreferenceStore::Private::runInMemory(const Change &change)
{
    target = Target::memory;
    change();
    target = Target::none;
    overlay.insert(std::exchange(written, {}));
}

SqlitePreferenceStore::SqlitePreferenceStore(const FilePath &applicationSupport,
                                             std::chrono::milliseconds patience)
    : d(new Private{PreferenceFile(applicationSupport, patience), {}, {}, {}})
{
}

SqlitePreferenceStore::~SqlitePreferenceStore() = default;

std::optional<PreferenceRow> SqlitePreferenceStore::row(const QString &key) const
{
    return d->read(key);
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
    const size_t inMemory = d->waiting.size();
    d->waiting.push_back(std::move(change));
    const Wait wait = inMemory == 0 ? Wait::patiently : Wait::notAtAll;
    if (inMemory <= kMostTriedWithAChange && d->writeAll(inMemory, wait))
        return;
    d->runInMemory(d->waiting.back());
    if (onChangeWaits)
        onChangeWaits();
}

bool SqlitePreferenceStore::writeWaitingChanges()
{
    if (d->waiting.empty())
        return true;
    return d->target == Private::Target::none && d->writeAll(d->waiting.size(), Wait::notAtAll);
}

bool SqlitePreferenceStore::takeChangesElsewhere()
{
    const bool isFileOther = d->file.takeChangesElsewhere();
    return std::exchange(d->hasMetOthers, false) || isFileOther;
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
    status.file = d->file.path();
    status.movedAside = preferencesAside(d->file.path());
    status.failure = d->file.failure();
    status.waitingChanges = int(d->waiting.size());
    return status;
}

} // namespace lorva
