// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "model/records/FontFamilyList.h"

#include <QHash>
#include <QString>
#include <QThreadPool>

#include <atomic>
#include <future>
#include <optional>

namespace lorva {

/// The last complete catalog: what the library shows until the next scan has ended.
struct CatalogSnapshot
{
    /// In the order that the model holds them.
    FontFamilyList families = makeFamilyList();
    /// Manufacturer name by family name.
    QHash<QString, QString> manufacturers;

    /// Compares the families themselves.
    bool operator==(const CatalogSnapshot &other) const;
};

/// {"families":[…],"manufacturers":{…}}. Thread: any.
QByteArray encodeSnapshot(const CatalogSnapshot &snapshot);
/// Fails as a whole, with the place of the damage. Thread: any.
Result<CatalogSnapshot> decodeSnapshot(QByteArray json);

/// Keeps the catalog snapshot in one file.
///
/// Writes are made one at a time, at low priority, in the order in which they were asked for; the
/// destructor waits for them. Knows nothing of scans. Failure: silent; the previous file stays
/// whole.
class CatalogCache
{
public:
    /// Makes the folder of `file`, with any missing parents.
    explicit CatalogCache(FilePath file);
    ~CatalogCache();
    CatalogCache(const CatalogCache &) = delete;
    CatalogCache &operator=(const CatalogCache &) = delete;

    const FilePath &fileURL() const { return m_fileURL; }
    /// Returns at once. Thread: any.
    void save(CatalogSnapshot snapshot);
    /// True once the save that ended last did not work. Thread: any.
    bool hasFailed() const { return m_hasFailed; }
    /// Begins to read the file on another thread, for the next load() to take: at a start there is
    /// other work to do meanwhile. To be called before the first save().
    void prefetch();
    /// Nothing when the file is missing, cannot be read or does not decode. Thread: any, one at a
    /// time; it takes its time.
    std::optional<CatalogSnapshot> load();

private:
    const FilePath m_fileURL;
    std::atomic<bool> m_hasFailed = false;
    QThreadPool m_ioQueue;
    std::future<std::optional<CatalogSnapshot>> m_prefetched;
};

} // namespace lorva
