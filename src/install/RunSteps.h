// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/InstallationJournal.h"
#include "install/InstallationRuns.h"

namespace lorva {

// What the runs are put together from. Thread: any but the main one.

InstallationError ownError(InstallationError::Code code, const QString &description);
InstallationError ownError(const Error &error);
InstallationError fileNotFound();

/// Links are followed. A file that cannot be looked at is not missing.
bool isMissing(const FilePath &file);
/// Something has the name, a link that leads nowhere included.
bool isTaken(const FilePath &name);

/// The books are text.
std::optional<InstallationError> whyNotInBooks(const FilePath &file);

/// Writes the journal. A run goes on without: it is only missed when the process dies before the
/// books are written, and a full disk must not keep anyone from switching fonts off.
void note(const InstallationJournal &journal, const InstallationTools &tools);

/// Those of `files` that have not failed yet fail.
void failAll(const std::vector<FilePath> &files, const InstallationError &error,
             InstallationOutcome &outcome);

/// Registers those of `files` that are there, and counts them. What the run is ended before is
/// among the files left.
void registerFiles(const std::vector<FilePath> &files, const InstallationTools &tools,
                   InstallationResult &result);

} // namespace lorva
