// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/InstallationRuns.h"

#include "base/SystemError.h"
#include "base/WholeFile.h"
#include "install/FailureBox.h"
#include "install/FileIdentity.h"
#include "install/FolderEntries.h"
#include "install/FontPlaces.h"
#include "install/RunSteps.h"
#include "platform/FileTransfer.h"
#include "platform/FolderEntries.h"
#include "platform/Trash.h"

#include <QCoreApplication>

#include <algorithm>
#include <cerrno>
#include <set>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Withdrawal)
};

/// What the run is to do, sorted out before the first file is touched.
struct WithdrawalPlan
{
    /// The registration to withdraw, by the file that was handed in.
    std::map<FilePath, FilePath> registrations;
    /// The Fonts-folder entries to remove, each with the files that it stands for.
    std::map<FilePath, std::vector<FilePath>> entries;
    /// The files that an entry stands for.
    std::set<FilePath> copied;
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

/// Reads files, so that it may take long; of no use once the run is to stop.
WithdrawalPlan withdrawalPlan(const std::vector<FilePath> &files, const InstallationTools &tools,
                              InstallationOutcome &outcome)
{
    WithdrawalPlan plan;
    const ActivationBooks &books = *tools.books;
    for (const FilePath &file : files) {
        if (tools.stop.stop_requested())
            break;
        const FileActivationClass meaning = books.classify(file);
        if (meaning == FileActivationClass::copied) {
            const Result<FilePath> entry = books.fontsFolderEntry(file);
            if (entry) {
                plan.entries[*entry].push_back(file);
                plan.copied.insert(file);
            } else {
                outcome.failures.emplace(
                    file, ownError(InstallationError::isNotSafe, entry.error().detail));
            }
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

/// Withdraws what was planned.
class Withdrawal
{
public:
    Withdrawal(WithdrawalPlan plan, const InstallationTools &tools, InstallationResult &result)
        : m_plan(std::move(plan))
        , m_tools(tools)
        , m_result(result)
    {
    }

    /// Counts those of `files` that nothing is to be done for.
    void countOthers(const std::vector<FilePath> &files) const;
    void unregister();
    void removeEntries(const std::optional<FilePath> &destination);
    /// Says which of `files` are done, and which are left.
    void sortOut(const std::vector<FilePath> &files);

private:
    using Folder = tl::expected<std::optional<FilePath>, InstallationError>;

    void takeUnregistered(const std::vector<FilePath> &files, const BatchRegistration &ended);
    Folder folderFor(const std::optional<FilePath> &destination) const;
    tl::expected<void, InstallationError> remove(const FilePath &entry, const Folder &folder);
    Result<void> throwAway(const FilePath &entry);

    const WithdrawalPlan m_plan;
    const InstallationTools &m_tools;
    InstallationResult &m_result;
    std::set<FilePath> m_left;
};

void Withdrawal::countOthers(const std::vector<FilePath> &files) const
{
    for (const FilePath &file : files) {
        if (!m_plan.registrations.contains(file) && !m_plan.copied.contains(file))
            m_tools.countFiles(1);
    }
}

void Withdrawal::unregister()
{
    std::vector<FilePath> files;
    std::vector<FilePath> paths;
    for (const auto &[file, path] : m_plan.registrations) {
        files.push_back(file);
        paths.push_back(path);
    }
    BatchRegistration ended;
    size_t next = 0;
    if (!files.empty() && !m_tools.stop.stop_requested())
        ended = unregisterAll(paths, *m_tools.registrar, [&] {
            // One that is a copy as well has its entry to come.
            if (!m_plan.copied.contains(files[next++]))
                m_tools.countFiles(1);
            return !m_tools.stop.stop_requested();
        });
    takeUnregistered(files, ended);
}

void Withdrawal::takeUnregistered(const std::vector<FilePath> &files,
                                  const BatchRegistration &ended)
{
    const bool hasStopped = m_tools.stop.stop_requested();
    for (size_t i = 0; i < files.size(); ++i) {
        const FilePath &path = m_plan.registrations.at(files[i]);
        const auto failed = ended.failures.find(path);
        if (failed != ended.failures.end())
            m_result.outcome.failures.insert_or_assign(files[i], failed->second);
        else if (ended.unattributed)
            m_result.outcome.failures.insert_or_assign(files[i], *ended.unattributed);
        else if (hasStopped && i >= ended.filesDealtWith)
            m_left.insert(files[i]);
        else if (m_result.changes.registeredURLs.insert_or_assign(path, false).second)
            m_result.outcome.withdrawn.registrations.push_back(path);
    }
}

Withdrawal::Folder Withdrawal::folderFor(const std::optional<FilePath> &destination) const
{
    if (!destination)
        return std::nullopt;
    return usableDestination(*destination, m_tools.folders).map([](FilePath found) {
        return std::optional(std::move(found));
    });
}

Result<void> Withdrawal::throwAway(const FilePath &entry)
{
    const Result<FilePath> place = m_tools.trash->moveToTrash(entry);
    if (!place)
        return tl::unexpected(place.error());
    const QHash<FilePath, FilePath> &origins = m_tools.books->contents().origins;
    const auto origin = origins.constFind(entry);
    m_result.outcome.withdrawn.copies.push_back(
        {entry, *place, origin == origins.cend() ? std::nullopt : std::optional(*origin),
         identityOf(*place)});
    return {};
}

tl::expected<void, InstallationError> Withdrawal::remove(const FilePath &entry,
                                                         const Folder &folder)
{
    if (!folder)
        return tl::unexpected(folder.error());
    const Result<void> removed = *folder ? moveUnderFreeName(entry, **folder) : throwAway(entry);
    if (!removed)
        return tl::unexpected(ownError(removed.error()));
    return {};
}

void Withdrawal::removeEntries(const std::optional<FilePath> &destination)
{
    const bool hasNothingToDo = m_plan.entries.empty() || m_tools.stop.stop_requested();
    const Folder folder = hasNothingToDo ? Folder() : folderFor(destination);
    for (const auto &[entry, files] : m_plan.entries) {
        if (m_tools.stop.stop_requested()) {
            m_left.insert(files.begin(), files.end());
            continue;
        }
        const auto removed = remove(entry, folder);
        if (!removed)
            failAll(files, removed.error(), m_result.outcome);
        else if (m_tools.books->contents().origins.contains(entry))
            m_result.changes.origins[entry] = std::nullopt;
        m_tools.countFiles(files.size());
    }
}

void Withdrawal::sortOut(const std::vector<FilePath> &files)
{
    InstallationOutcome &outcome = m_result.outcome;
    for (const FilePath &file : files) {
        const bool isPlanned = m_plan.registrations.contains(file) || m_plan.copied.contains(file);
        if (!isPlanned || outcome.failures.contains(file))
            continue;
        (m_left.contains(file) ? outcome.filesLeft : outcome.filesDone).push_back(file);
    }
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
                       Texts::tr("%1 is no folder").arg(existing.displayText()));
    const FontPlaces places(folders);
    // What is to be made in a folder that exists may be a Fonts folder as well.
    for (const FilePath &folder : {existing, destination}) {
        if (places.placeOf(folder.child("font")) != FontPlace::elsewhere)
            return failure(ErrorKind::invalidValue,
                           Texts::tr("%1 lies in a Fonts folder, where fonts are active")
                               .arg(destination.displayText()));
    }
    if (::access(existing.c_str(), W_OK | X_OK) != 0)
        return systemFailure(errno, FileAction::writeInto, existing);
    return {};
}

QByteArray freeNameCandidate(const QByteArray &fileName, int number)
{
    constexpr qsizetype kLongestName = 255;
    const qsizetype added = number == 1 ? 0 : 1 + QByteArray::number(number).size();
    return numberedName(cutName(fileName, kLongestName - added), number);
}

InstallationResult withdraw(const std::vector<FilePath> &files,
                            const std::optional<FilePath> &destination,
                            const InstallationTools &tools)
{
    InstallationResult result;
    WithdrawalPlan plan = withdrawalPlan(files, tools, result.outcome);
    if (tools.stop.stop_requested()) {
        result.outcome.failures.clear();
        result.outcome.filesLeft = files;
        return result;
    }
    note(journalOf(plan), tools);
    Withdrawal withdrawal(std::move(plan), tools, result);
    withdrawal.countOthers(files);
    withdrawal.unregister();
    withdrawal.removeEntries(destination);
    withdrawal.sortOut(files);
    if (destination)
        result.outcome.withdrawn = {};
    return result;
}

} // namespace lorva
