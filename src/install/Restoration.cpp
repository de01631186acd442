// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/InstallationRuns.h"

#include "base/WholeFile.h"
#include "install/FileIdentity.h"
#include "install/RunSteps.h"
#include "platform/FileTransfer.h"
#include "platform/Trash.h"

#include <QCoreApplication>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Restoration)
};

using Copy = WithdrawnFonts::Copy;

InstallationJournal journalOf(const WithdrawnFonts &withdrawn)
{
    InstallationJournal journal;
    for (const Copy &copy : withdrawn.copies) {
        if (copy.origin && !isTaken(copy.entry))
            journal.copies.emplace(copy.entry, *copy.origin);
    }
    return journal;
}

InstallationError notInTrash()
{
    return ownError(InstallationError::fileNotFound, Texts::tr("It is not in the Trash any more"));
}

InstallationError errorOf(const Error &error)
{
    if (error.kind == ErrorKind::notFound)
        return notInTrash();
    if (error.kind == ErrorKind::invalidValue)
        return ownError(InstallationError::isNotSafe,
                        Texts::tr("Another file has taken its place"));
    return ownError(error);
}

tl::expected<Transfer, InstallationError> bringBack(const Copy &copy, Trash &trash)
{
    // The Trash may have been emptied, and another file of that name thrown away since.
    if (!copy.identity.isEmpty() && identityOf(copy.place) != copy.identity)
        return tl::unexpected(notInTrash());
    if (const Result<void> made = makeFolders(copy.entry.parent()); !made)
        return tl::unexpected(ownError(made.error()));
    const Result<void> taken = trash.takeFromTrash(copy.place, copy.entry);
    if (taken)
        return Transfer::done;
    if (taken.error().kind == ErrorKind::invalidValue && haveEqualBytes(copy.place, copy.entry))
        return Transfer::destinationExists;
    return tl::unexpected(errorOf(taken.error()));
}

void restoreCopy(const Copy &copy, Trash &trash, InstallationResult &result)
{
    const auto outcome = bringBack(copy, trash);
    if (!outcome) {
        result.outcome.failures.insert_or_assign(copy.entry, outcome.error());
    } else if (*outcome == Transfer::destinationExists) {
        result.outcome.filesSkipped.push_back(copy.entry);
    } else {
        result.outcome.filesDone.push_back(copy.entry);
        if (copy.origin)
            result.changes.origins[copy.entry] = copy.origin;
    }
}

} // namespace

InstallationResult restoreWithdrawn(const WithdrawnFonts &withdrawn, const QStringList &families,
                                    const InstallationTools &tools)
{
    InstallationResult result;
    note(journalOf(withdrawn), tools);
    for (const Copy &copy : withdrawn.copies) {
        if (tools.stop.stop_requested()) {
            result.outcome.filesLeft.push_back(copy.entry);
            continue;
        }
        restoreCopy(copy, *tools.trash, result);
        tools.countFiles(1);
    }
    registerFiles(withdrawn.registrations, tools, result);
    if (result.outcome.filesDone.empty())
        return result;
    for (const QString &family : families) {
        const auto method = withdrawn.methods.find(family);
        if (method != withdrawn.methods.end())
            result.changes.methods[family] = method->second;
    }
    return result;
}

} // namespace lorva
