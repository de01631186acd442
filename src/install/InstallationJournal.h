// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <map>
#include <set>

namespace lorva {

/// What a run is about to do to files, written before it does so and removed once the books say
/// what it did. What is left of a run whose process died tells reconcile what was meant.
///
/// Entries say what may have happened, not what has. Thread: any, by whoever holds the run lock.
struct InstallationJournal
{
    /// Where each copy comes from, by the copy's path.
    std::map<FilePath, FilePath> copies;
    /// Files whose registration is withdrawn.
    std::set<FilePath> withdrawn;

    bool isEmpty() const { return copies.empty() && withdrawn.empty(); }
    bool operator==(const InstallationJournal &) const = default;

    /// Empty when there is none, or none that can be read: then nothing is known.
    static InstallationJournal read(const FilePath &file);
    /// Writes this and what `file` holds already. Fails as writeFileAtomically(); the folder is
    /// made if it is missing.
    Result<void> add(const FilePath &file) const;
    static void remove(const FilePath &file);
};

} // namespace lorva
