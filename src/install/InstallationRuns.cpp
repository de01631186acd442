// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/InstallationRuns.h"

#include "base/WholeFile.h"
#include "install/RunSteps.h"
#include "platform/FileTransfer.h"

#include <algorithm>

namespace lorva {

namespace {

enum class CopyOutcome { copied, skippedExistingDest };

/// One file to copy into the user's Fonts folder.
struct CopyPlanItem
{
    FilePath source;
    FilePath dest;
};

std::vector<CopyPlanItem> copyPlan(const std::vector<FilePath> &files, const FilePath &fontsFolder,
                                   InstallationOutcome &outcome)
{
    std::vector<CopyPlanItem> plan;
    for (const FilePath &file : files) {
        if (const auto why = whyNotInBooks(file))
            outcome.failures.emplace(file, *why);
        else
            plan.push_back({file, fontsFolder.child(file.fileName())});
    }
    return plan;
}

InstallationJournal journalOf(const std::vector<CopyPlanItem> &plan)
{
    InstallationJournal journal;
    for (const CopyPlanItem &item : plan) {
        if (!isTaken(item.dest))
            journal.copies.emplace(item.dest, item.source);
    }
    return journal;
}

tl::expected<CopyOutcome, InstallationError> copyItem(const CopyPlanItem &item)
{
    if (isMissing(item.source))
        return tl::unexpected(fileNotFound());
    if (isTaken(item.dest))
        return CopyOutcome::skippedExistingDest;
    const Result<Transfer> copied = copyToNewFile(item.source, item.dest);
    if (!copied && copied.error().kind == ErrorKind::notFound && isMissing(item.source))
        return tl::unexpected(fileNotFound());
    if (!copied)
        return tl::unexpected(ownError(copied.error()));
    return *copied == Transfer::done ? CopyOutcome::copied : CopyOutcome::skippedExistingDest;
}

void copyInto(const CopyPlanItem &item, InstallationResult &result)
{
    const auto outcome = copyItem(item);
    if (!outcome) {
        result.outcome.failures.emplace(item.source, outcome.error());
    } else if (*outcome == CopyOutcome::skippedExistingDest) {
        result.outcome.filesSkipped.push_back(item.source);
    } else {
        result.outcome.filesDone.push_back(item.source);
        result.changes.origins[item.dest] = item.source;
    }
}

} // namespace

void InstallationTools::countFiles(size_t count) const
{
    if (filesDealtWith)
        filesDealtWith->fetch_add(int(count), std::memory_order_relaxed);
}

void InstallationTools::countAllBut(size_t left, size_t total) const
{
    if (filesDealtWith)
        filesDealtWith->store(int(total - std::min(left, total)), std::memory_order_relaxed);
}

InstallationResult copyToFontsFolder(const std::vector<FilePath> &files,
                                     const InstallationTools &tools)
{
    InstallationResult result;
    const FilePath folder = tools.folders.userFonts;
    const std::vector<CopyPlanItem> plan = copyPlan(files, folder, result.outcome);
    if (const Result<void> made = makeFolders(folder); !made) {
        failAll(files, ownError(made.error()), result.outcome);
        return result;
    }
    tools.countFiles(files.size() - plan.size());
    note(journalOf(plan), tools);
    for (const CopyPlanItem &item : plan) {
        if (tools.stop.stop_requested()) {
            result.outcome.filesLeft.push_back(item.source);
            continue;
        }
        copyInto(item, result);
        tools.countFiles(1);
    }
    return result;
}

InstallationResult registerInPlace(const std::vector<FilePath> &files,
                                   const InstallationTools &tools)
{
    // Links of files that the books do not know are taken in by reconcile; no journal is needed.
    InstallationResult result;
    registerFiles(files, tools, result);
    return result;
}

} // namespace lorva
