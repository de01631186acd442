// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontInstallationService.h"

#include "base/NotificationCentre.h"
#include "base/RunThen.h"
#include "install/EitherStop.h"
#include "install/FailureBox.h"
#include "install/InstallationJournal.h"
#include "install/InstallationProgress.h"
#include "install/Reconciliation.h"
#include "install/RunFamilies.h"
#include "install/RunHistory.h"
#include "platform/FontRegistrar.h"
#include "platform/RunLock.h"
#include "platform/Trash.h"

#include <QCoreApplication>
#include <QPointer>

#include <algorithm>

namespace lorva {

struct FontInstallationService::Job
{
    /// Ends it between two files, or before its turn.
    std::stop_token cancelled;
    /// While it waits: has the service told that it need not.
    std::unique_ptr<std::stop_callback<std::function<void()>>> whenCancelled;
    /// May be null.
    std::shared_ptr<InstallationProgress> progress;
    /// Nothing: it only looks, and needs no lock.
    std::optional<std::chrono::milliseconds> patience;
    /// On a worker, under the lock.
    std::function<InstallationResult(const InstallationTools &)> work;
    /// Instead of `work`, when the lock could not be had.
    std::function<InstallationResult(const Error &)> workWithoutLock;
    /// On the main thread, when the books are written; told whether they are others than before.
    std::function<void(InstallationOutcome, bool isOther)> end;
};

struct FontInstallationService::Plan
{
    /// What it is, for the history.
    ActivationHistoryEntry entry;
    std::vector<FilePath> files;
    /// On a worker; gets `files`.
    std::function<InstallationResult(const std::vector<FilePath> &, const InstallationTools &)>
        work;
    /// False for one that is refused.
    bool belongsToHistory = true;
};

struct FontInstallationService::Ended
{
    InstallationResult result;
    FontsFolderListing fontsFolder;
};

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontInstallationService)
};

/// So that copies of the work share them.
std::shared_ptr<const std::vector<FontFamilyRecord>> shared(std::vector<FontFamilyRecord> families)
{
    return std::make_shared<const std::vector<FontFamilyRecord>>(std::move(families));
}

bool isSame(const ActivationBooks::Contents &one, const ActivationBooks::Contents &other)
{
    return one.fontsFolder == other.fontsFolder && one.watchedFolders == other.watchedFolders
        && one.watchedFontURLs == other.watchedFontURLs
        && one.registeredURLs == other.registeredURLs && one.methods == other.methods
        && one.origins == other.origins;
}

/// What a run of `files` comes to that was cancelled before it began.
InstallationResult left(const std::vector<FilePath> &files)
{
    InstallationResult result;
    result.outcome.filesLeft = files;
    return result;
}

/// What a run of `files` comes to that cannot begin.
InstallationResult failed(const std::vector<FilePath> &files, const Error &why)
{
    const bool isBusy = why.kind == ErrorKind::cancelled;
    const InstallationError error{
        InstallationError::ownDomain(),
        isBusy ? InstallationError::isBusy : InstallationError::otherFailure,
        isBusy ? Texts::tr("another program is switching fonts on or off") : why.detail};
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

FontInstallationService::~FontInstallationService()
{
    cancelRuns();
}

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
    job.whenCancelled.reset();
    if (!job.patience) {
        work(std::move(job), nullptr);
        return;
    }
    const auto takeLock = [file = m_dependencies.folders.activationLock(), patience = *job.patience,
                           cancelled = job.cancelled](const std::stop_token &stop) {
        const EitherStop either(stop, cancelled);
        return RunLock::take(file, patience, either.token()).map([](RunLock lock) {
            return std::make_shared<RunLock>(std::move(lock));
        });
    };
    runThen(m_pool, this, takeLock,
            [this, job = std::move(job)](Result<std::shared_ptr<RunLock>> lock) mutable {
                // Whoever had it may have written to the books.
                m_store->dropCaches();
                const QPointer<FontInstallationService> self(this);
                if (lock && job.progress)
                    job.progress->begin();
                if (self)
                    work(std::move(job), std::move(lock));
            });
}

void FontInstallationService::work(Job job, Result<std::shared_ptr<RunLock>> lock)
{
    const auto atWork = [run = job.work, otherwise = job.workWithoutLock, lock,
                         dependencies = m_dependencies, cancelled = job.cancelled,
                         counter = job.progress ? job.progress->counter() : nullptr,
                         books = contents({})](const std::stop_token &stop) mutable {
        const EitherStop either(stop, cancelled);
        const FilePath fonts = dependencies.folders.userFonts;
        books.fontsFolder = listFontsFolder(fonts);
        const InstallationTools tools{
            dependencies.folders, dependencies.registrar,
            dependencies.trash,   std::make_shared<ActivationBooks>(std::move(books)),
            either.token(),       counter};
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
    QSet<QString> own;
    std::erase_if(families, [&](const FontFamilyRecord &family) {
        const QString &name = family.familyName;
        if (own.contains(name))
            return false;
        if (m_inFlightFamilies.contains(name))
            return true;
        own.insert(name);
        m_inFlightFamilies.insert(name);
        names.append(name);
        return false;
    });
    return names;
}

FontInstallationService::Run FontInstallationService::run(Plan plan, Done done, Progress progress)
{
    std::stop_source stop;
    m_runs.push_back(stop);
    Job job;
    job.patience = kPatience;
    job.cancelled = stop.get_token();
    job.whenCancelled =
        std::make_unique<std::stop_callback<std::function<void()>>>(job.cancelled, [this] {
            QMetaObject::invokeMethod(
                this, [this] { endCancelledJobs(); }, Qt::QueuedConnection);
        });
    if (progress)
        job.progress =
            std::make_shared<InstallationProgress>(int(plan.files.size()), std::move(progress));
    // Shared: it names every file of what may be a whole library.
    const auto whole = std::make_shared<const Plan>(std::move(plan));
    job.work = [whole](const InstallationTools &tools) {
        const std::vector<FilePath> &files = whole->files;
        InstallationResult result =
            tools.stop.stop_requested() ? left(files) : whole->work(files, tools);
        tools.countAllBut(result.outcome.filesLeft.size(), files.size());
        if (whole->belongsToHistory)
            addToHistory(whole->entry, files, result.outcome, tools.folders.activationHistory());
        return result;
    };
    job.workWithoutLock = [whole, cancelled = job.cancelled](const Error &why) {
        return cancelled.stop_requested() ? left(whole->files) : failed(whole->files, why);
    };
    job.end = [this, whole, stop, shown = job.progress,
               done = std::move(done)](InstallationOutcome outcome, bool) {
        endRun(*whole, stop, shown.get(), std::move(outcome), done);
    };
    enqueue(std::move(job));
    return Run(std::move(stop));
}

void FontInstallationService::endRun(const Plan &plan, const std::stop_source &stop,
                                     InstallationProgress *progress, InstallationOutcome outcome,
                                     const Done &done)
{
    for (const QString &name : plan.entry.families)
        m_inFlightFamilies.remove(name);
    std::erase(m_runs, stop);
    const QPointer<FontInstallationService> self(this);
    if (progress)
        progress->end();
    if (!self)
        return;
    outcome.families = plan.entry.families;
    NotificationCentre::shared().post(changeNotification());
    if (done)
        done(std::move(outcome));
}

/// They need not wait for their turn. Whoever is told may destroy the service.
void FontInstallationService::endCancelledJobs()
{
    const QPointer<FontInstallationService> self(this);
    while (self) {
        const auto found = std::ranges::find_if(
            m_jobs, [](const Job &job) { return job.cancelled.stop_requested(); });
        if (found == m_jobs.end())
            return;
        const Job job = std::move(*found);
        m_jobs.erase(found);
        job.end(job.workWithoutLock({ErrorKind::cancelled, {}}).outcome, false);
    }
}

void FontInstallationService::cancelRuns()
{
    // Copies: a run that ends takes itself out.
    for (std::stop_source &run : std::vector(m_runs))
        run.request_stop();
}

FontInstallationService::Run FontInstallationService::activate(
    std::vector<FontFamilyRecord> families, InstallMethod method, Done done, Progress progress)
{
    using Action = ActivationHistoryEntry::Action;
    const bool copies = method == InstallMethod::copy;
    const QStringList names = takeOff(families);
    const Action action = copies ? Action::copied : Action::registered;
    Plan plan{{{}, action, names, {}, {}}, ActivationBooks::filesOf(families), {}};
    plan.work = [families = shared(std::move(families)), method,
                 copies](const std::vector<FilePath> &files, const InstallationTools &tools) {
        InstallationResult result =
            copies ? copyToFontsFolder(files, tools) : registerInPlace(files, tools);
        setMethods(filesByFamily(*families), method, result);
        return result;
    };
    return run(std::move(plan), std::move(done), std::move(progress));
}

FontInstallationService::Run FontInstallationService::activateByCopying(
    std::vector<FontFamilyRecord> families, Done done, Progress progress)
{
    return activate(std::move(families), InstallMethod::copy, std::move(done), std::move(progress));
}

FontInstallationService::Run FontInstallationService::activateInPlace(
    std::vector<FontFamilyRecord> families, Done done, Progress progress)
{
    return activate(std::move(families), InstallMethod::registerInPlace, std::move(done),
                    std::move(progress));
}

FontInstallationService::Run FontInstallationService::deactivate(
    std::vector<FontFamilyRecord> families, std::optional<FilePath> destination, Done done,
    Progress progress)
{
    using Action = ActivationHistoryEntry::Action;
    const QStringList names = takeOff(families);
    const Action action = destination ? Action::moved : Action::deactivated;
    Plan plan{{{}, action, names, destination, {}}, ActivationBooks::filesOf(families), {}};
    plan.work = [families = shared(std::move(families)), destination = std::move(destination)](
                    const std::vector<FilePath> &files, const InstallationTools &tools) {
        InstallationResult result = withdraw(files, destination, tools);
        removeMethods(filesByFamily(*families), *tools.books, result);
        return result;
    };
    return run(std::move(plan), std::move(done), std::move(progress));
}

FontInstallationService::Run FontInstallationService::restore(WithdrawnFonts withdrawn,
                                                              QStringList families, Done done,
                                                              Progress progress)
{
    const bool isBusy = !families.isEmpty()
        && std::ranges::all_of(families, [this](const QString &name) { return isInFlight(name); });
    families.removeIf([this](const QString &name) { return isInFlight(name); });
    families.removeDuplicates();
    for (const QString &name : std::as_const(families))
        m_inFlightFamilies.insert(name);
    Plan plan{{{}, ActivationHistoryEntry::Action::restored, families, {}, {}}, {}, {}};
    for (const WithdrawnFonts::Copy &copy : withdrawn.copies)
        plan.files.push_back(copy.entry);
    plan.files.insert(plan.files.end(), withdrawn.registrations.begin(),
                      withdrawn.registrations.end());
    plan.belongsToHistory = !isBusy;
    plan.work = [withdrawn = std::move(withdrawn), families,
                 isBusy](const std::vector<FilePath> &files, const InstallationTools &tools) {
        return isBusy ? failed(files, {ErrorKind::cancelled, {}})
                      : restoreWithdrawn(withdrawn, families, tools);
    };
    return run(std::move(plan), std::move(done), std::move(progress));
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
