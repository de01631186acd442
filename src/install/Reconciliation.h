// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/InstallationRuns.h"

namespace lorva {

/// What brings the books into line with the disk.
///
/// Mends the disk as far as the books know better: registrations whose file has gone are withdrawn,
/// lost ones made again, links that the books do not know taken in, what killed processes left of
/// copies removed. Gives what is to be written down, so that origins, registrations and the methods
/// of `families` are what is there; families that are not given keep what the books say. The caller
/// holds the run lock, and removes the journal when the changes are in the books. Nothing is done,
/// and nothing given, where everything is in line already. Thread: any but the main one.
FontInstallationStore::Changes reconciled(const FontFamilyList &families,
                                          const InstallationTools &tools);

/// What the books lack of a run whose process died before they were written, by its journal. The
/// caller holds the run lock. Thread: any but the main one.
FontInstallationStore::Changes unfinishedChanges(const InstallationTools &tools);

/// What of reconciled() changes files, without changing any: for whoever wants to know.
struct DiskFindings
{
    /// In the books, but the file has gone.
    std::vector<FilePath> goneFiles;
    /// In the books, but without a link.
    std::vector<FilePath> lostRegistrations;
    /// Links that the books do not know, to files that are there.
    std::vector<FilePath> unknownRegistrations;
    /// Links that the books do not know, to files that have gone.
    std::vector<FilePath> brokenRegistrations;
    /// Copies in the books that have gone from the Fonts folder.
    std::vector<FilePath> goneCopies;
};
DiskFindings lookAtDisk(const InstallationTools &tools);

} // namespace lorva
