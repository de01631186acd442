// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/PersistedCache.h"

#include <memory>

namespace lorva {

/// Writes the parse cache in the background, at low priority, one write at a time.
///
/// A save that is asked for while one runs is made when that one ends; of several, only the last.
/// Owns: its thread; the destructor waits until the last cache asked for is written. Thread: any.
/// Failure: the previous file stays whole, and hasFailed() says so until the next save works.
class CacheSaver
{
public:
    /// Makes the folder of `file`, with any missing parents; where that fails, each save tries
    /// again.
    explicit CacheSaver(FilePath file);
    ~CacheSaver();
    CacheSaver(const CacheSaver &) = delete;
    CacheSaver &operator=(const CacheSaver &) = delete;

    const FilePath &file() const;
    /// Returns at once.
    void save(PersistedCache cache);
    /// Returns when nothing waits to be written any more; fails as the last save did.
    Result<void> finish();
    bool hasFailed() const;

private:
    struct Private;
    std::unique_ptr<Private> d;
};

} // namespace lorva
