// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/InstallationRuns.h"

#include "base/SystemError.h"
#include "base/WholeFile.h"
#include "install/FailureBox.h"
#include "install/FolderEntries.h"
#include "install/FontPlaces.h"
#include "install/InstallationJournal.h"
#include "platform/FileTransfer.h"
#include "platform/FolderEntries.h"
#include "platform/FontRegistrar.h"
#include "platform/Trash.h"

#include <QLoggingCategory>

#include <algorithm>
#include <cerrno>
#include <set>

#include <sys/stat.h>
#include <unistd.h>

Q_LOGGING_CATEGORY(installationRunsLog, "lorva.install.runs", QtCriticalMsg)

namespace lorva {

namespace {

enum class CopyOutcome { copied, skippedExistingDest };

InstallationError ownError(InstallationError::Code code, const QString &description)
{
    return {InstallationError::ownDomain(), code, description};
}

InstallationError fileNotFound()
{
    return ownError(InstallationError::fileNotFound, QStringLiteral("File not found"));
}

InstallationError ownError(const Error &error)
{
    return ownError(InstallationError::otherFailure, error.detail);
}

/// Links are followed. A file that cannot be looked at is not missing.
bool isMissing(const FilePath &file)
{
    struct stat info;
    return ::stat(file.c_str(), &info) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

bool isNoFile(const FilePath &path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode);
}

bool isTaken(const FilePath &name)
{
    struct stat info;
    return ::lstat(name.c_str(), &info) == 0;
}

/// The books are text.
std::optional<InstallationError> whyNotInBooks(const FilePath &file)
{
    if (file.isUtf8())
        return std::nullopt;
    return ownError(InstallationError::otherFailure,
                    QStringLiteral("the file's path is no UTF-8 text"));
}

/// A run goes on without: it is only missed when the process dies before the books are written, and
/// a full disk must not keep anyone from switching fonts off.
void note(const InstallationJournal &journal, const InstallationTools &tools)
{
    if (const Result<void> written = journal.add(tools.folders.activationJournal()); !written)
        qCWarning(installationRunsLog).noquote() << written.error().detail;
}

void failAll(const std::vector<FilePath> &files, const InstallationError &error,
             InstallationOutcome &outcome)
{
    for (const FilePath &file : files)
        outcome.failures.emplace(file, error);
}

// --- Copying ---

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

// --- Withdrawing ---

/// What the run is to do, sorted out before the first file is touched.
struct WithdrawalPlan
{
    /// The registration to withdraw, by the file that was handed in.
    std::map<FilePath, FilePath> registrations;
    /// The Fonts-folder entries to remove, each with the files that it stands for.
    std::map<FilePath, std::vector<FilePath>> entries;
};

/// The path under which the books know the file as registered.
std::optional<FilePath> registrationOf(const FilePath &file, const ActivationBooks &books)
{
    const QSet<FilePath> &registered = books.contents().registeredURLs;
    if (registered.contains(file))
        return file;
    const FilePath resolved = realPath(file).value_or(file);
    return registered.contains(resolved) ? std::optional(resolved) : std::nullopt;
}

WithdrawalPlan withdrawalPlan(const std::vector<FilePath> &files, const ActivationBooks &books,
                              InstallationOutcome &outcome)
{
    WithdrawalPlan plan;
    for (const FilePath &file : files) {
        const FileActivationClass meaning = books.classify(file);
        if (meaning == FileActivationClass::copied) {
            const Result<FilePath> entry = books.fontsFolderEntry(file);
            if (entry)
                plan.entries[*entry].push_back(file);
            else
                outcome.failures.emplace(
                    file, ownError(InstallationError::isNotSafe, entry.error().detail));
        }
        // A copied file that is registered as well would stay active.
        const bool mayBeRegistered =
            meaning == FileActivationClass::registered || meaning == FileActivationClass::copied;
        if (const auto path = mayBeRegistered ? registrationOf(file, books) : std::nullopt)
            plan.registrations.emplace(file, *path);
    }
    return plan;
}

InstallationJournal journalOf(const WithdrawalPlan &plan)
{
    InstallationJournal journal;
    for (const auto &[file, path] : plan.registrations)
        journal.withdrawn.insert(path);
    return journal;
}

void unregister(const WithdrawalPlan &plan, FontRegistrar &registrar, InstallationResult &result)
{
    if (plan.registrations.empty())
        return;
    std::vector<FilePath> paths;
    paths.reserve(plan.registrations.size());
    for (const auto &[file, path] : plan.registrations)
        paths.push_back(path);
    const BatchRegistration batch = unregisterAll(paths, registrar);
    for (const auto &[file, path] : plan.registrations) {
        const auto failed = batch.failures.find(path);
        if (failed != batch.failures.end())
            result.outcome.failures.insert_or_assign(file, failed->second);
        else if (batch.unattributed)
            result.outcome.failures.insert_or_assign(file, *batch.unattributed);
        else
            result.changes.registeredURLs[path] = false;
    }
}

/// The folder, made and with links resolved, if copies may be moved there.
tl::expected<FilePath, InstallationError> usableDestination(const FilePath &destination,
                                                            const PlatformFolders &folders)
{
    if (const Result<void> checked = checkDestination(destination, folders); !checked)
        return tl::unexpected(ownError(checked.error()));
    if (const Result<void> made = makeFolders(destination); !made)
        return tl::unexpected(ownError(made.error()));
    return realPath(destination).value_or(destination);
}

Result<void> moveUnderFreeName(const FilePath &entry, const FilePath &folder)
{
    for (int number = 1;; ++number) {
        const QByteArray name = freeNameCandidate(entry.fileName(), number);
        const Result<Transfer> moved = moveToNewFile(entry, folder.child(name));
        if (!moved)
            return tl::unexpected(moved.error());
        if (*moved == Transfer::done)
            return {};
    }
}

void removeEntries(const WithdrawalPlan &plan, const std::optional<FilePath> &destination,
                   const InstallationTools &tools, InstallationResult &result)
{
    const auto folder = destination
        ? usableDestination(*destination, tools.folders).map([](FilePath found) {
              return std::optional(std::move(found));
          })
        : tl::expected<std::optional<FilePath>, InstallationError>(std::nullopt);
    for (const auto &[entry, files] : plan.entries) {
        if (tools.stop.stop_requested())
            return;
        if (!folder) {
            failAll(files, folder.error(), result.outcome);
            continue;
        }
        const Result<void> removed =
            *folder ? moveUnderFreeName(entry, **folder) : tools.trash->moveToTrash(entry);
        if (!removed) {
            failAll(files, ownError(removed.error()), result.outcome);
            continue;
        }
        if (tools.books->contents().origins.contains(entry))
            result.changes.origins[entry] = std::nullopt;
    }
}

/// Those of `files` that were planned for and have not failed.
std::vector<FilePath> filesDone(const std::vector<FilePath> &files, const WithdrawalPlan &plan,
                                const InstallationFailures &failures)
{
    std::set<FilePath> planned;
    for (const auto &[file, path] : plan.registrations)
        planned.insert(file);
    for (const auto &[entry, sources] : plan.entries)
        planned.insert(sources.begin(), sources.end());
    std::vector<FilePath> done;
    std::copy_if(files.begin(), files.end(), std::back_inserter(done), [&](const FilePath &file) {
        return planned.contains(file) && !failures.contains(file);
    });
    return done;
}

/// The folder itself with links resolved, or the one that it is to be made in, however far up.
FilePath existingFolder(FilePath folder)
{
    std::optional<FilePath> real = realPath(folder);
    while (!real) {
        folder = folder.parent();
        real = realPath(folder);
    }
    return *std::move(real);
}

} // namespace

Result<void> checkDestination(const FilePath &destination, const PlatformFolders &folders)
{
    const FilePath existing = existingFolder(destination);
    struct stat info;
    if (::stat(existing.c_str(), &info) == 0 && !S_ISDIR(info.st_mode))
        return failure(ErrorKind::invalidValue,
                       QString(existing.displayText() % QStringLiteral(" is no folder")));
    const FontPlaces places(folders);
    // What is to be made in a folder that exists may be a Fonts folder as well.
    for (const FilePath &folder : {existing, destination}) {
        if (places.placeOf(folder.child("font")) != FontPlace::elsewhere)
            return failure(ErrorKind::invalidValue,
                           QStringLiteral("%1 lies in a Fonts folder, where fonts are active")
                               .arg(destination.displayText()));
    }
    if (::access(existing.c_str(), W_OK | X_OK) != 0)
        return systemFailure(errno, "write into", existing);
    return {};
}

QByteArray freeNameCandidate(const QByteArray &fileName, int number)
{
    constexpr qsizetype kLongestName = 255;
    const qsizetype added = number == 1 ? 0 : 1 + QByteArray::number(number).size();
    return numberedName(cutName(fileName, kLongestName - added), number);
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
    note(journalOf(plan), tools);
    for (const CopyPlanItem &item : plan) {
        if (tools.stop.stop_requested())
            break;
        copyInto(item, result);
    }
    return result;
}

InstallationResult registerInPlace(const std::vector<FilePath> &files,
                                   const InstallationTools &tools)
{
    InstallationResult result;
    std::vector<FilePath> present;
    for (const FilePath &file : files) {
        if (const auto why = whyNotInBooks(file))
            result.outcome.failures.emplace(file, *why);
        else if (isMissing(file))
            result.outcome.failures.emplace(file, fileNotFound());
        else if (isNoFile(file))
            result.outcome.failures.emplace(
                file,
                ownError(InstallationError::otherFailure,
                         QStringLiteral("%1 is not a regular file").arg(file.displayText())));
        else
            present.push_back(file);
    }
    // Links of files that the books do not know are taken in by reconcile; no journal is needed.
    BatchRegistration batch = registerAll(present, *tools.registrar);
    if (batch.unattributed)
        failAll(present, *batch.unattributed, result.outcome);
    result.outcome.failures.merge(batch.failures);
    for (const FilePath &file : present) {
        if (result.outcome.failures.contains(file))
            continue;
        result.changes.registeredURLs[file] = true;
        result.outcome.filesDone.push_back(file);
    }
    return result;
}

InstallationResult withdraw(const std::vector<FilePath> &files,
                            const std::optional<FilePath> &destination,
                            const InstallationTools &tools)
{
    InstallationResult result;
    const WithdrawalPlan plan = withdrawalPlan(files, *tools.books, result.outcome);
    note(journalOf(plan), tools);
    unregister(plan, *tools.registrar, result);
    removeEntries(plan, destination, tools, result);
    result.outcome.filesDone = filesDone(files, plan, result.outcome.failures);
    return result;
}

} // namespace lorva
