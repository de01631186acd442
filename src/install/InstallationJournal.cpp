// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/InstallationJournal.h"

#include "base/AtomicFile.h"
#include "base/Json.h"
#include "base/WholeFile.h"

#include <unistd.h>

namespace lorva {

namespace {

/// A run of every font that anyone owns fits.
constexpr qint64 kMostBytes = 64LL * 1024 * 1024;

struct CopyEntry
{
    FilePath from;
    FilePath to;
};

struct StoredJournal
{
    std::vector<CopyEntry> copies;
    std::vector<FilePath> withdrawn;
};

template <class Fields, JsonRecordOf<CopyEntry> Record>
void jsonFields(Fields &fields, Record &entry)
{
    fields("from", entry.from);
    fields("to", entry.to);
}

template <class Fields, JsonRecordOf<StoredJournal> Record>
void jsonFields(Fields &fields, Record &journal)
{
    fields("copies", journal.copies);
    fields("withdrawn", journal.withdrawn);
}

} // namespace

InstallationJournal InstallationJournal::read(const FilePath &file)
{
    InstallationJournal journal;
    Result<QByteArray> bytes = readWholeFile(file, kMostBytes);
    if (!bytes)
        return journal;
    const Result<StoredJournal> stored = decodeJson<StoredJournal>(*std::move(bytes));
    if (!stored)
        return journal;
    for (const CopyEntry &entry : stored->copies)
        journal.copies.insert_or_assign(entry.to, entry.from);
    journal.withdrawn.insert(stored->withdrawn.begin(), stored->withdrawn.end());
    return journal;
}

Result<void> InstallationJournal::add(const FilePath &file) const
{
    if (isEmpty())
        return {};
    InstallationJournal all = read(file);
    for (const auto &[to, from] : copies)
        all.copies.insert_or_assign(to, from);
    all.withdrawn.insert(withdrawn.begin(), withdrawn.end());

    StoredJournal stored;
    for (const auto &[to, from] : all.copies)
        stored.copies.push_back({from, to});
    stored.withdrawn.assign(all.withdrawn.begin(), all.withdrawn.end());
    if (Result<void> made = makeFolders(file.parent()); !made)
        return made;
    return writeFileAtomically(file, encodeJson(stored));
}

void InstallationJournal::remove(const FilePath &file)
{
    ::unlink(file.c_str());
}

} // namespace lorva
