// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "catalog/CatalogTypes.h"
#include "commands/CommandPresenter.h"

#include <map>

namespace lorva {

/// What a scan has come to, when somebody asked for it.
struct IndexingCompletion
{
    QString title;
    QString body;
    bool operator==(const IndexingCompletion &) const = default;
};

/// What is said before a scan has reported anything: "Scanning fonts…".
ProgressState scanBegins();
/// Text and bar for a scan's phase: a bar only where done of at least one is known.
ProgressState scanProgress(const FontScanPhase &phase);
/// "Added 2 fonts", or that none was new. Families are counted.
IndexingCompletion indexingCompletion(int newFamilies);

/// The question for folders to watch. Its prompt is "Watch".
FolderQuestion watchFoldersQuestion();
/// A path for people: the home folder as "~".
QString folderText(const FilePath &folder);
/// Which folders could not be added, and why, a line each; empty for none.
QString refusedFoldersText(const std::map<FilePath, Error> &failures);

} // namespace lorva
