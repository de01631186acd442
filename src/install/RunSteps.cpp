// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/RunSteps.h"

#include "install/FailureBox.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>

#include <cerrno>

#include <sys/stat.h>

Q_LOGGING_CATEGORY(installationRunsLog, "lorva.install.runs", QtCriticalMsg)

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(RunSteps)
};

/// For so long files are looked at before what was found is registered in one go. On a disk that is
/// thousands of files, and the pass over the link folder, with its wait for the disk, is made once
/// or twice; on a slow volume it is few, and nobody who cancels waits for the others.
constexpr std::chrono::milliseconds kLookBeforeRegistering{30};

bool isNoFile(const FilePath &path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode);
}

std::optional<InstallationError> whyNotRegistered(const FilePath &file)
{
    if (const auto why = whyNotInBooks(file))
        return why;
    if (isMissing(file))
        return fileNotFound();
    if (isNoFile(file))
        return ownError(InstallationError::otherFailure,
                        Texts::tr("%1 is not a regular file").arg(file.displayText()));
    return std::nullopt;
}

/// Looks at files from the `next`th on, and gives those that can be registered.
std::vector<FilePath> nextBatch(const std::vector<FilePath> &files, size_t &next,
                                const InstallationTools &tools, InstallationOutcome &outcome)
{
    std::vector<FilePath> batch;
    QElapsedTimer looking;
    looking.start();
    while (next < files.size() && !looking.hasExpired(kLookBeforeRegistering.count())
           && !tools.stop.stop_requested()) {
        const FilePath &file = files[next++];
        if (const auto why = whyNotRegistered(file)) {
            outcome.failures.emplace(file, *why);
            tools.countFiles(1);
        } else {
            batch.push_back(file);
        }
    }
    return batch;
}

void takeRegistered(const std::vector<FilePath> &batch, BatchRegistration ended,
                    const InstallationTools &tools, InstallationResult &result)
{
    const bool hasStopped = tools.stop.stop_requested();
    for (size_t i = 0; i < batch.size(); ++i) {
        const FilePath &file = batch[i];
        const auto failed = ended.failures.find(file);
        if (failed != ended.failures.end()) {
            result.outcome.failures.insert_or_assign(file, failed->second);
        } else if (ended.unattributed) {
            result.outcome.failures.insert_or_assign(file, *ended.unattributed);
        } else if (hasStopped && i >= ended.filesDealtWith) {
            result.outcome.filesLeft.push_back(file);
        } else {
            result.changes.registeredURLs[file] = true;
            result.outcome.filesDone.push_back(file);
        }
    }
}

void registerBatch(const std::vector<FilePath> &batch, const InstallationTools &tools,
                   InstallationResult &result)
{
    if (batch.empty())
        return;
    BatchRegistration ended;
    if (!tools.stop.stop_requested())
        ended = registerAll(batch, *tools.registrar, [&tools] {
            tools.countFiles(1);
            return !tools.stop.stop_requested();
        });
    takeRegistered(batch, std::move(ended), tools, result);
}

} // namespace

InstallationError ownError(InstallationError::Code code, const QString &description)
{
    return {InstallationError::ownDomain(), code, description};
}

InstallationError ownError(const Error &error)
{
    return ownError(InstallationError::otherFailure, error.detail);
}

InstallationError fileNotFound()
{
    return ownError(InstallationError::fileNotFound, Texts::tr("File not found"));
}

bool isMissing(const FilePath &file)
{
    struct stat info;
    return ::stat(file.c_str(), &info) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

bool isTaken(const FilePath &name)
{
    struct stat info;
    return ::lstat(name.c_str(), &info) == 0;
}

std::optional<InstallationError> whyNotInBooks(const FilePath &file)
{
    if (file.isUtf8())
        return std::nullopt;
    return ownError(InstallationError::otherFailure, Texts::tr("the file's path is no UTF-8 text"));
}

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

void registerFiles(const std::vector<FilePath> &files, const InstallationTools &tools,
                   InstallationResult &result)
{
    size_t next = 0;
    while (next < files.size() && !tools.stop.stop_requested())
        registerBatch(nextBatch(files, next, tools, result.outcome), tools, result);
    result.outcome.filesLeft.insert(result.outcome.filesLeft.end(),
                                    files.begin() + std::ptrdiff_t(next), files.end());
}

} // namespace lorva
