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

namespace lorva {

class FontRegistrar;
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
/// Owns: a thread for the runs. Thread: main; every operation returns at once, and its `done` is
/// called later on the main thread, unless the service has gone by then.
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
    bool isInFlight(const QString &familyName) const;
    std::optional<InstallMethod> defaultMethod() const;
    void setDefaultMethod(std::optional<InstallMethod> method);

    void setWatchedFolders(std::vector<FilePath> folders) override;
    void setWatchedFontURLs(QSet<FilePath> urls) override;

    // Runs. Each takes the families that are not in flight, with those of their styles whose files
    // are to be switched; posts changeNotification() when its books are written, and then calls
    // `done`.

    using Done = std::function<void(InstallationOutcome)>;
    void activateByCopying(std::vector<FontFamilyRecord> families, Done done);
    void activateInPlace(std::vector<FontFamilyRecord> families, Done done);
    /// Without `destination` copies go to the Trash; they should then have known origins
    /// (ActivationBooks::areAllOriginsKnown()), though nothing depends on it.
    void deactivate(std::vector<FontFamilyRecord> families, std::optional<FilePath> destination,
                    Done done);
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
    /// Does something to files on a worker.
    using Work = std::function<InstallationResult(const std::vector<FilePath> &files,
                                                  const InstallationTools &tools)>;
    struct Job;
    /// What a worker hands back.
    struct Ended;

    void enqueue(Job job);
    void beginNext();
    void work(Job job, Result<std::shared_ptr<RunLock>> lock);
    bool finish(Ended &ended, bool hasLock);
    void run(std::vector<FontFamilyRecord> families, std::optional<InstallMethod> method, Work work,
             Done done);
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
    QThreadPool m_pool;
};

} // namespace lorva
