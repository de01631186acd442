// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/ActivationBooks.h"
#include "install/FontInstallationStore.h"
#include "install/InstallationOutcome.h"

#include <atomic>
#include <memory>
#include <stop_token>

namespace lorva {

class FontRegistrar;
class Trash;

/// What a run works with, and what it knows. By value or shared: a run goes on when its service has
/// gone.
struct InstallationTools
{
    PlatformFolders folders;
    std::shared_ptr<FontRegistrar> registrar;
    std::shared_ptr<Trash> trash;
    std::shared_ptr<const ActivationBooks> books;
    /// Ends a run between two files; what it has done by then is in its result.
    std::stop_token stop;
    /// How many files the run has dealt with, for others to look at; may be null.
    std::shared_ptr<std::atomic<int>> filesDealtWith = {};

    void countFiles(size_t count) const;
    /// For the end, when files that failed together need not have been counted one by one.
    void countAllBut(size_t left, size_t total) const;
};

/// What a run has done to files, and what is to be written down about it.
struct InstallationResult
{
    /// Its families are left to the caller.
    InstallationOutcome outcome;
    FontInstallationStore::Changes changes;
};

// The runs. Each writes the journal before it touches a file; the caller holds the run lock, and
// removes the journal when the changes are in the books. `files` are distinct. Thread: any but the
// main one.

/// Copies files into the user's Fonts folder, which is made if it is missing, under their own
/// names. A name that is taken there is left alone, and no failure.
InstallationResult copyToFontsFolder(const std::vector<FilePath> &files,
                                     const InstallationTools &tools);

/// Registers files where they lie. One that is registered already is no failure.
InstallationResult registerInPlace(const std::vector<FilePath> &files,
                                   const InstallationTools &tools);

/// Withdraws registrations, and moves copies out of the Fonts folders: to the Trash, which its
/// outcome tells how to undo, or into `destination` under a free name. What the user does not
/// control is left alone. A folder inside a Fonts folder is no destination.
InstallationResult withdraw(const std::vector<FilePath> &files,
                            const std::optional<FilePath> &destination,
                            const InstallationTools &tools);

/// Brings back what withdraw() gave: copies from the Trash to where they lay, and registrations;
/// then says the methods of `families` again. What is there with the same bytes is skipped, and
/// nothing is replaced. Files are told by the path of the copy, or of the registered file.
InstallationResult restoreWithdrawn(const WithdrawnFonts &withdrawn, const QStringList &families,
                                    const InstallationTools &tools);

/// Nothing is wrong with `destination` as a folder for copies that are switched off: it, or the one
/// that it is to be made in, is a folder that can be written to, and no fonts are active there.
/// Makes nothing. Fails with invalidValue or as the system does.
Result<void> checkDestination(const FilePath &destination, const PlatformFolders &folders);

/// The entry's name for the `number`th try, from 1 on: "font.otf", "font 2.otf", cut to the length
/// that names may have.
QByteArray freeNameCandidate(const QByteArray &fileName, int number);

} // namespace lorva
