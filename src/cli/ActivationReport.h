// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "cli/ActivationSubjects.h"
#include "install/InstallationOutcome.h"

namespace lorva::cli {

/// What activate or deactivate did, or would do, for people and programs.
struct ActivationReport
{
    struct File
    {
        FilePath fileURL;
        /// What became of it: "copied", "registered", "trashed", …
        QString outcome;
    };

    bool isDryRun = false;
    QStringList families;
    /// Other families with faces in these files: what happens to the files happens to them.
    QStringList alsoFamilies;
    std::vector<File> files;
    FileReasons failures;
};

/// The names of the families of `catalog`, but for `families`, with a face in one of `files`.
QStringList familiesSharing(const std::vector<FilePath> &files, const QStringList &families,
                            const std::vector<FontFamilyRecord> &catalog);

void addFiles(const std::vector<FilePath> &files, const QString &outcome, ActivationReport &report);
void addFailures(const InstallationFailures &failures, ActivationReport &report);

/// Prints the report, one line on standard error for each failure included, and gives the exit
/// code. `nothingToDo` is what there is to say when neither anything was done nor failed.
int printReport(const ActivationReport &report, bool isJson, const QString &nothingToDo);

} // namespace lorva::cli
