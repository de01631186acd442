// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/FontCatalogLoader.h"
#include "cli/Arguments.h"
#include "cli/Console.h"

#include <chrono>

namespace lorva::cli {

/// The folders of the `--folder` options. Fails for one that does not exist, is none or cannot be
/// read, and with usage for an empty name.
Result<std::vector<FilePath>> givenFolders(const Arguments &arguments);

/// The user's watched folders, and then `given`. Watched folders that cannot be looked up are left
/// out with a line on standard error, or without one for commands that say so themselves.
enum class LookupTrouble { isTold, isToldElsewhere };
std::vector<FilePath> withWatchedFolders(std::vector<FilePath> given,
                                         LookupTrouble trouble = LookupTrouble::isTold);

/// A loader over this machine's fonts and this user's parse cache.
enum class CacheUse { readOnly, readAndSave };
FontCatalogLoader::Dependencies machineFonts(CacheUse cacheUse);

/// Shows the phases of a scan on a terminal, each new one at once, else twenty times a second.
class ScanProgress
{
public:
    /// Null where nobody would see it.
    FontCatalogLoader::ProgressCallback callback();

private:
    void show(const FontScanPhase &phase);

    ProgressLine m_line;
    std::optional<FontScanPhase::Kind> m_shownKind;
    std::chrono::steady_clock::time_point m_shownAt;
};

} // namespace lorva::cli
