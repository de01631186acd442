// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <vector>

namespace lorva {

/// Name of the folder, inside the user's font folder, that holds one link per registered font file.
/// What lies there is our own book-keeping, not a place where fonts live: walks leave it out.
inline constexpr char kRegisteredLinksFolderName[] = "lorva-registered";

/// The folders that matter to a font manager, as values, so that rules about them are tested with
/// any paths.
struct PlatformFolders
{
    FilePath home;
    /// Where a user's own fonts go.
    FilePath userFonts;
    FilePath allUsersFonts;
    /// Folders whose fonts belong to the system; an activation never writes there.
    std::vector<FilePath> systemFonts;
    /// Our own data: preferences, caches. Ends in "Lorva".
    FilePath applicationSupport;

    /// Where registration keeps its links.
    FilePath registeredLinks() const { return userFonts.child(kRegisteredLinksFolderName); }
    /// What scans learned from font files.
    FilePath parseCache() const { return applicationSupport.child("parse-cache.json"); }
    /// Held while fonts are switched on or off.
    FilePath activationLock() const { return applicationSupport.child("activation.lock"); }
    /// What the run under way is about to do, for whoever finds that it never ended.
    FilePath activationJournal() const
    {
        return applicationSupport.child("activation-journal.json");
    }
    /// What was switched on and off, and when.
    FilePath activationHistory() const
    {
        return applicationSupport.child("activation-history.jsonl");
    }
    /// The catalog that the window shows until its scan has ended.
    FilePath catalogSnapshot() const { return applicationSupport.child("catalog.json"); }
};

} // namespace lorva
