// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/ActivationBooks.h"
#include "install/FontInstallationStore.h"
#include "install/InstallationOutcome.h"

#include <QObject>
#include <QThreadPool>

#include <chrono>
#include <deque>
#include <stop_token>

namespace lorva {

class FontRegistrar;
class InstallationProgress;
class RunLock;
struct InstallationResult;
struct InstallationTools;
class Trash;

/// Switches fonts on for the whole system and off again, and knows which are.
///
/// Activation copies files into the user's Fonts folder or registers them where they lie;
/// de-activation moves the copies to the Trash or to a folder, and withdraws registrations. No font
/// file is ever replaced or deleted. One run at a time per home, also across processes; a file that
/// fails does not stop the others. The books are written before a run's `done` is called
/// (InstallationOutcome::areBooksWritten says when the preferences could not take them yet); what a
/// process that dies in between leaves undone in the books, reconcile() mends.
///
/// Each run is taken into the history (ActivationHistory), whatever became of its files.
///
/// Owns: a thread for the runs. Thread: main; every operation returns at once, and its `done` is
/// called later on the main thread, unless the service has gone by then: it waits for the file
/// that a run is at, and reconcile() finds what the run has done.
class FontInstallationService final : public QObject, public ActivationProvider
{
    Q_OBJECT
public:
    struct Dependencies
    {
        PlatformFolders folders;
        std::shared_ptr<FontRegistrar> registrar;
        std::shared_ptr<Trash> trash;
        /// False: reconcile() looks and changes nothing, for a picture of what is there.
        bool reconcilesBooks = true;
    };

    /// How long a run waits for one of another process before its files fail.
    static constexpr std::chrono::milliseconds kPatience{30'000};

    FontInstallationService(std::unique_ptr<FontInstallationStore> store, Dependencies dependencies,
                            QObject *parent = nullptr);
    ~FontInstallationService() override;

    // What is known now

    /// For workers, and for everything that the books say. Never null.
    std::shared_ptr<const ActivationBooks> books() const { return m_books; }
    std::shared_ptr<const ActivationState> state() const override { return m_books; }
    FontInstallationService *installationService() override { return this; }
    bool isInFlight(const QString &familyName) const;
    std::optional<InstallMethod> defaultMethod() const;
    void setDefaultMethod(std::optional<InstallMethod> method);

    void setWatchedFolders(std::vector<FilePath> folders) override;
    void setWatchedFontURLs(QSet<FilePath> urls) override;

    // Runs. Each takes the families that are not in flight, with those of their styles whose files
    // are to be switched; posts changeNotification() when its books are written, and then calls
    // `done`.

    using Done = std::function<void(InstallationOutcome)>;
    /// How many files of how many are dealt with: none when the run begins, and what it came to
    /// before its `done`. A run that never begins tells nothing. Thread: main, at most some thirty
    /// times a second.
    using Progress = std::function<void(int done, int total)>;
    /// Ends a run after the file that it is at; what was done by then is in the books, and in the
    /// outcome. Copies stand for the same run. Does nothing for one that has ended.
    class Run
    {
    public:
        Run() = default;
        explicit Run(std::stop_source stop)
            : m_stop(std::move(stop))
        {
        }
        void cancel() { m_stop.request_stop(); }

    private:
        std::stop_source m_stop{std::nostopstate};
    };

    Run activateByCopying(std::vector<FontFamilyRecord> families, Done done,
                          Progress progress = {});
    Run activateInPlace(std::vector<FontFamilyRecord> families, Done done, Progress progress = {});
    /// Without `destination` copies go to the Trash; they should then have known origins
    /// (ActivationBooks::areAllOriginsKnown()), though nothing depends on it.
    Run deactivate(std::vector<FontFamilyRecord> families, std::optional<FilePath> destination,
                   Done done, Progress progress = {});
    /// Brings back what a de-activation took: copies from the Trash to where they lay, and
    /// registrations. Failures are told by the path of the copy, or of the registered file.
    /// What lies there already with the same bytes is skipped. `families` are those of the run, for
    /// the books and the outcome: those in flight are left out of both, and when all are in flight,
    /// nothing is done and every file fails with isBusy.
    Run restore(WithdrawnFonts withdrawn, QStringList families, Done done, Progress progress = {});
    /// Cancels every run, those that wait too.
    void cancelRuns();
    /// A run that switches fonts is under way or waiting; false when the `done` of the last one is
    /// called.
    bool hasRuns() const { return !m_runs.empty(); }
    /// Registers all at once, without books, for whoever keeps them.
    void batchRegister(const std::vector<FilePath> &files,
                       std::function<void(BatchRegistration)> done);

    /// Brings books and disk into line: drops registrations whose file has gone, makes those again
    /// that were lost, finishes the books of a run whose process died, and lets the methods say
    /// what the families are. Writes only what differs.
    void reconcile(const FontFamilyList &families, std::function<void()> done) override;
    /// Other processes have changed the preferences.
    void takeChangesElsewhere() override;

private:
    struct Job;
    /// One run that switches fonts.
    struct Plan;
    /// What a worker hands back.
    struct Ended;

    void enqueue(Job job);
    void beginNext();
    void work(Job job, Result<std::shared_ptr<RunLock>> lock);
    bool finish(Ended &ended, bool hasLock);
    void endCancelledJobs();
    Run run(Plan plan, Done done, Progress progress);
    Run activate(std::vector<FontFamilyRecord> families, InstallMethod method, Done done,
                 Progress progress);
    void endRun(const Plan &plan, const std::stop_source &stop, InstallationProgress *progress,
                InstallationOutcome outcome, const Done &done);
    QStringList takeOff(std::vector<FontFamilyRecord> &families);
    void setBooks(FontsFolderListing fontsFolder);
    ActivationBooks::Contents contents(FontsFolderListing fontsFolder) const;

    const std::unique_ptr<FontInstallationStore> m_store;
    const Dependencies m_dependencies;
    std::shared_ptr<const ActivationBooks> m_books;
    QSet<QString> m_inFlightFamilies;
    /// One after the other: each begins with the books that the one before it has left.
    std::deque<Job> m_jobs;
    bool m_isBusy = false;
    /// What ends each run that has not told its end yet.
    std::vector<std::stop_source> m_runs;
    QThreadPool m_pool;
};

} // namespace lorva
