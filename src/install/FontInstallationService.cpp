// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontInstallationService.h"

#include "base/NotificationCentre.h"
#include "base/RunThen.h"
#include "install/FailureBox.h"
#include "install/InstallationJournal.h"
#include "install/Reconciliation.h"
#include "platform/FontRegistrar.h"
#include "platform/RunLock.h"
#include "platform/Trash.h"

#include <algorithm>

namespace lorva {

struct FontInstallationService::Job
{
    /// Nothing: it only looks, and needs no lock.
    std::optional<std::chrono::milliseconds> patience;
    /// On a worker, under the lock.
    std::function<InstallationResult(const InstallationTools &)> work;
    /// Instead of `work`, when the lock could not be had.
    std::function<InstallationResult(const Error &)> workWithoutLock;
    /// On the main thread, when the books are written; told whether they are others than before.
    std::function<void(InstallationOutcome, bool isOther)> end;
};

struct FontInstallationService::Ended
{
    InstallationResult result;
    FontsFolderListing fontsFolder;
};

namespace {

std::vector<FilePath> filesOf(const std::vector<FontFamilyRecord> &families)
{
    std::vector<FontStyleRecord> styles;
    for (const FontFamilyRecord &family : families)
        styles.insert(styles.end(), family.styles.begin(), family.styles.end());
    return ActivationBooks::filesOf(styles);
}

bool isSame(const ActivationBooks::Contents &one, const ActivationBooks::Contents &other)
{
    return one.fontsFolder == other.fontsFolder && one.watchedFolders == other.watchedFolders
        && one.watchedFontURLs == other.watchedFontURLs
        && one.registeredURLs == other.registeredURLs && one.methods == other.methods
        && one.origins == other.origins;
}

/// What a run of `files` comes to that cannot begin.
InstallationResult failed(const std::vector<FilePath> &files, const Error &why)
{
    const bool isBusy = why.kind == ErrorKind::cancelled;
    const InstallationError error{
        InstallationError::ownDomain(),
        isBusy ? InstallationError::isBusy : InstallationError::otherFailure,
        isBusy ? QStringLiteral("another program is switching fonts on or off") : why.detail};
    InstallationResult result;
    for (const FilePath &file : files)
        result.outcome.failures.emplace(file, error);
    return result;
}

} // namespace

FontInstallationService::FontInstallationService(std::unique_ptr<FontInstallationStore> store,
                                                 Dependencies dependencies, QObject *parent)
    : QObject(parent)
    , m_store(std::move(store))
    , m_dependencies(std::move(dependencies))
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.installation"));
    m_pool.setMaxThreadCount(1);
    setBooks(listFontsFolder(m_dependencies.folders.userFonts, FontLinks::areLeftOut));
}

FontInstallationService::~FontInstallationService() = default;

bool FontInstallationService::isInFlight(const QString &familyName) const
{
    return m_inFlightFamilies.contains(familyName);
}

std::optional<InstallMethod> FontInstallationService::defaultMethod() const
{
    return m_store->defaultMethod();
}

void FontInstallationService::setDefaultMethod(std::optional<InstallMethod> method)
{
    m_store->setDefaultMethod(method);
}

// --- The books ---

ActivationBooks::Contents FontInstallationService::contents(FontsFolderListing fontsFolder) const
{
    ActivationBooks::Contents contents;
    contents.folders = m_dependencies.folders;
    contents.fontsFolder = std::move(fontsFolder);
    if (m_books) {
        contents.watchedFolders = m_books->contents().watchedFolders;
        contents.watchedFontURLs = m_books->contents().watchedFontURLs;
    }
    contents.registeredURLs = m_store->registeredURLs();
    contents.methods = m_store->methods();
    contents.origins = m_store->origins();
    return contents;
}

/// Equal ones stay the same object: what was worked out from them holds.
void FontInstallationService::setBooks(FontsFolderListing fontsFolder)
{
    ActivationBooks::Contents present = contents(std::move(fontsFolder));
    if (m_books && isSame(present, m_books->contents()))
        m_books->forgetClassified();
    else
        m_books = std::make_shared<const ActivationBooks>(std::move(present));
}

void FontInstallationService::setWatchedFolders(std::vector<FilePath> folders)
{
    ActivationBooks::Contents present = m_books->contents();
    if (std::exchange(present.watchedFolders, std::move(folders)) != present.watchedFolders)
        m_books = std::make_shared<const ActivationBooks>(std::move(present));
}

void FontInstallationService::setWatchedFontURLs(QSet<FilePath> urls)
{
    ActivationBooks::Contents present = m_books->contents();
    if (std::exchange(present.watchedFontURLs, std::move(urls)) != present.watchedFontURLs)
        m_books = std::make_shared<const ActivationBooks>(std::move(present));
}

// --- One job after the other ---

void FontInstallationService::enqueue(Job job)
{
    m_jobs.push_back(std::move(job));
    if (!m_isBusy)
        beginNext();
}

void FontInstallationService::beginNext()
{
    m_isBusy = !m_jobs.empty();
    if (!m_isBusy)
        return;
    Job job = std::move(m_jobs.front());
    m_jobs.pop_front();
    if (!job.patience) {
        work(std::move(job), nullptr);
        return;
    }
    const auto takeLock = [file = m_dependencies.folders.activationLock(),
                           patience = *job.patience](const std::stop_token &stop) {
        return RunLock::take(file, patience, stop).map([](RunLock lock) {
            return std::make_shared<RunLock>(std::move(lock));
        });
    };
    runThen(m_pool, this, takeLock,
            [this, job = std::move(job)](Result<std::shared_ptr<RunLock>> lock) mutable {
                // Whoever had it may have written to the books.
                m_store->dropCaches();
                work(std::move(job), std::move(lock));
            });
}

void FontInstallationService::work(Job job, Result<std::shared_ptr<RunLock>> lock)
{
    const auto atWork = [run = job.work, otherwise = job.workWithoutLock, lock,
                         dependencies = m_dependencies,
                         books = contents({})](const std::stop_token &stop) mutable {
        const FilePath fonts = dependencies.folders.userFonts;
        books.fontsFolder = listFontsFolder(fonts);
        const InstallationTools tools{dependencies.folders, dependencies.registrar,
                                      dependencies.trash,
                                      std::make_shared<ActivationBooks>(std::move(books)), stop};
        // A run whose process died may have left work for the books; this one's plan comes next.
        FontInstallationStore::Changes left =
            lock && *lock ? unfinishedChanges(tools) : FontInstallationStore::Changes();
        InstallationResult result = lock ? run(tools) : otherwise(lock.error());
        result.changes.registeredURLs.merge(left.registeredURLs);
        result.changes.origins.merge(left.origins);
        return Ended{std::move(result), listFontsFolder(fonts)};
    };
    runThen(m_pool, this, atWork, [this, job = std::move(job), lock](Ended ended) mutable {
        const bool isOther = finish(ended, lock && *lock);
        lock = nullptr;
        // Whoever is told may open a dialog for long, or destroy the service.
        const auto end = std::move(job.end);
        InstallationOutcome outcome = std::move(ended.result.outcome);
        beginNext();
        end(std::move(outcome), isOther);
    });
}

/// True when the books are others than before.
bool FontInstallationService::finish(Ended &ended, bool hasLock)
{
    m_store->change(ended.result.changes);
    ended.result.outcome.areBooksWritten = m_store->isWritten();
    // A change that waits for its file could still be lost.
    if (hasLock && ended.result.outcome.areBooksWritten)
        InstallationJournal::remove(m_dependencies.folders.activationJournal());
    const std::shared_ptr<const ActivationBooks> before = m_books;
    setBooks(std::move(ended.fontsFolder));
    return m_books != before;
}

// --- Runs ---

/// Leaves out the families that are under way, and gives the names of the others.
QStringList FontInstallationService::takeOff(std::vector<FontFamilyRecord> &families)
{
    QStringList names;
    std::erase_if(families, [&](const FontFamilyRecord &family) {
        const bool isInFlight =
            m_inFlightFamilies.contains(family.familyName) && !names.contains(family.familyName);
        if (!isInFlight && !names.contains(family.familyName)) {
            m_inFlightFamilies.insert(family.familyName);
            names.append(family.familyName);
        }
        return isInFlight;
    });
    return names;
}

void FontInstallationService::run(std::vector<FontFamilyRecord> families,
                                  std::optional<InstallMethod> method, Work work, Done done)
{
    const QStringList names = takeOff(families);
    const std::vector<FilePath> files = filesOf(families);
    Job job;
    job.patience = kPatience;
    job.work = [files, names, method, work = std::move(work)](const InstallationTools &tools) {
        InstallationResult result = work(files, tools);
        for (const QString &name : names)
            result.changes.methods[name] = method;
        return result;
    };
    job.workWithoutLock = [files](const Error &why) { return failed(files, why); };
    job.end = [this, names, done = std::move(done)](InstallationOutcome outcome, bool) {
        for (const QString &name : names)
            m_inFlightFamilies.remove(name);
        outcome.families = names;
        NotificationCentre::shared().post(changeNotification());
        if (done)
            done(std::move(outcome));
    };
    enqueue(std::move(job));
}

void FontInstallationService::activateByCopying(std::vector<FontFamilyRecord> families, Done done)
{
    run(std::move(families), InstallMethod::copy, copyToFontsFolder, std::move(done));
}

void FontInstallationService::activateInPlace(std::vector<FontFamilyRecord> families, Done done)
{
    run(std::move(families), InstallMethod::registerInPlace, lorva::registerInPlace,
        std::move(done));
}

void FontInstallationService::deactivate(std::vector<FontFamilyRecord> families,
                                         std::optional<FilePath> destination, Done done)
{
    const auto work = [destination = std::move(destination)](const std::vector<FilePath> &files,
                                                             const InstallationTools &tools) {
        return withdraw(files, destination, tools);
    };
    run(std::move(families), std::nullopt, work, std::move(done));
}

void FontInstallationService::batchRegister(const std::vector<FilePath> &files,
                                            std::function<void(BatchRegistration)> done)
{
    const auto batch = std::make_shared<BatchRegistration>();
    Job job;
    job.patience = kPatience;
    job.work = [files, batch](const InstallationTools &tools) {
        *batch = registerAll(files, *tools.registrar);
        return InstallationResult();
    };
    job.workWithoutLock = [files, batch](const Error &why) {
        batch->failures = failed(files, why).outcome.failures;
        return InstallationResult();
    };
    job.end = [batch, done = std::move(done)](const InstallationOutcome &, bool) {
        if (done)
            done(std::move(*batch));
    };
    enqueue(std::move(job));
}

// --- Looking ---

void FontInstallationService::reconcile(const FontFamilyList &families, std::function<void()> done)
{
    Job job;
    // What another process is about to do would only look like damage.
    if (m_dependencies.reconcilesBooks)
        job.patience = std::chrono::milliseconds(0);
    job.work = [families,
                mayChange = m_dependencies.reconcilesBooks](const InstallationTools &tools) {
        InstallationResult result;
        if (mayChange)
            result.changes = reconciled(families, tools);
        return result;
    };
    job.workWithoutLock = [](const Error &) { return InstallationResult(); };
    job.end = [done = std::move(done)](const InstallationOutcome &, bool) {
        if (done)
            done();
    };
    enqueue(std::move(job));
}

void FontInstallationService::takeChangesElsewhere()
{
    m_store->dropCaches();
    Job job;
    job.work = [](const InstallationTools &) { return InstallationResult(); };
    job.end = [](const InstallationOutcome &, bool isOther) {
        if (isOther)
            NotificationCentre::shared().post(changeNotification());
    };
    enqueue(std::move(job));
}

} // namespace lorva
