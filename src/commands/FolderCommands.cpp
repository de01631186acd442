// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/FolderCommands.h"

#include "base/NotificationCentre.h"
#include "commands/OrganizationAlerts.h"
#include "commands/ScanProgress.h"
#include "model/LorvaAppModel.h"

#include <QCoreApplication>
#include <QPointer>

namespace lorva {

namespace {

/// Folders that are being added, from the first request to the alert. Requests that come meanwhile
/// join it: one sheet, one count.
struct Addition
{
    /// Whose folders are being looked at.
    int requests = 0;
    /// A scan is waited for.
    bool isScanning = false;
    bool isCancelled = false;
    /// How many families were new in the scans that have ended; nothing while none has.
    std::optional<int> newFamilies;
    std::vector<WatchedFolder> added;
    std::map<FilePath, Error> failures;

    bool isOver() const { return requests == 0 && !isScanning; }
};

Alert completionAlert(int newFamilies)
{
    const IndexingCompletion completion = indexingCompletion(newFamilies);
    return {Alert::Style::informational,
            completion.title,
            completion.body,
            {{QCoreApplication::translate("FolderCommands", "OK"), Alert::Role::accept}}};
}

} // namespace

struct FolderCommands::Private
{
    using Run = std::shared_ptr<Addition>;

    Private(FolderCommands &owner, LorvaAppModel &itsModel, CommandPresenter &itsPresenter)
        : q(owner)
        , model(itsModel)
        , presenter(itsPresenter)
    {
    }

    void show(std::function<void()> cancel);
    void hideAfterCancel();
    void join(const std::vector<FilePath> &folders);
    void take(const Run &run, AddedFolders added);
    void awaitScan(const Run &run);
    void end(const Run &run);
    void cancel(const Run &run);
    void takeBack(const std::vector<WatchedFolder> &added);
    void awaitFirstFamilies();

    FolderCommands &q;
    LorvaAppModel &model;
    CommandPresenter &presenter;
    bool isAsking = false;
    bool isFirstLoad = false;
    Run addition;
    std::unique_ptr<ProgressDisplay> progress;
    /// Its Cancel is being pressed: it goes when that call is over.
    std::unique_ptr<ProgressDisplay> cancelled;
};

/// In place of what is shown already: there is one sheet.
void FolderCommands::Private::show(std::function<void()> cancel)
{
    isFirstLoad = false;
    progress.reset();
    progress = presenter.showProgress(scanBegins(), std::move(cancel));
}

void FolderCommands::Private::hideAfterCancel()
{
    cancelled = std::move(progress);
    const auto letGo = [this] { cancelled.reset(); };
    QMetaObject::invokeMethod(&q, letGo, Qt::QueuedConnection);
}

void FolderCommands::Private::join(const std::vector<FilePath> &folders)
{
    if (!addition) {
        addition = std::make_shared<Addition>();
        show([this, run = addition] { cancel(run); });
    }
    ++addition->requests;
    model.addWatchedFolders(folders, [self = QPointer(&q), run = addition](AddedFolders added) {
        if (self)
            self->d->take(run, std::move(added));
    });
}

void FolderCommands::Private::take(const Run &run, AddedFolders added)
{
    --run->requests;
    if (run->isCancelled) {
        if (added.hasBegunScan)
            model.cancelLoad();
        takeBack(added.records);
        return;
    }
    run->added.insert(run->added.end(), added.records.begin(), added.records.end());
    run->failures.merge(std::move(added.failures));
    // One that is waited for already hands on to the one that has begun now.
    if (added.hasBegunScan && !run->isScanning)
        awaitScan(run);
    end(run);
}

void FolderCommands::Private::awaitScan(const Run &run)
{
    run->isScanning = true;
    model.whenLoaded([self = QPointer(&q), run](std::optional<int> newFamilies) {
        if (!self || run->isCancelled)
            return;
        run->isScanning = false;
        // Ended by somebody else: there is nothing to tell.
        if (newFamilies)
            run->newFamilies = run->newFamilies.value_or(0) + *newFamilies;
        self->d->end(run);
    });
}

void FolderCommands::Private::end(const Run &run)
{
    if (!run->isOver())
        return;
    addition.reset();
    progress.reset();
    if (!run->failures.empty())
        presenter.showAlert(refusedChangeAlert(refusedFoldersText(run->failures)), {});
    if (run->newFamilies)
        presenter.showAlert(completionAlert(*run->newFamilies), {});
}

/// As if the folders had never been chosen.
void FolderCommands::Private::cancel(const Run &run)
{
    if (run->isCancelled || run != addition)
        return;
    run->isCancelled = true;
    addition.reset();
    hideAfterCancel();
    if (run->isScanning)
        model.cancelLoad();
    takeBack(run->added);
}

void FolderCommands::Private::takeBack(const std::vector<WatchedFolder> &added)
{
    // One that somebody else has removed by now is gone as it should be.
    for (const WatchedFolder &folder : added)
        static_cast<void>(model.removeWatchedFolder(folder.id));
}

void FolderCommands::Private::awaitFirstFamilies()
{
    if (isFirstLoad && (!model.isLoading() || !model.allFamilies()->empty())) {
        isFirstLoad = false;
        progress.reset();
    }
}

FolderCommands::FolderCommands(LorvaAppModel &model, CommandPresenter &presenter, QObject *parent)
    : QObject(parent)
    , d(std::make_unique<Private>(*this, model, presenter))
{
    connect(&model, &LorvaAppModel::scanProgressed, this, [this](const FontScanPhase &phase) {
        if (d->progress)
            d->progress->update(scanProgress(phase));
    });
    NotificationCentre::shared().observe(LorvaAppModel::changeNotification(), this,
                                         [this](const void *sender) {
                                             if (sender == &d->model)
                                                 d->awaitFirstFamilies();
                                         });
}

FolderCommands::~FolderCommands() = default;

void FolderCommands::addFolders()
{
    if (d->isAsking || !d->presenter.isAvailable())
        return;
    d->isAsking = true;
    d->presenter.askFolders(watchFoldersQuestion(),
                            [self = QPointer(this)](const std::vector<FilePath> &folders) {
                                if (!self)
                                    return;
                                self->d->isAsking = false;
                                self->addFolders(folders);
                            });
}

void FolderCommands::addFolders(const std::vector<FilePath> &folders)
{
    if (!folders.empty() && d->presenter.isAvailable())
        d->join(folders);
}

void FolderCommands::showFirstLoad()
{
    if (d->addition || d->isFirstLoad || !d->model.isLoading() || !d->model.allFamilies()->empty())
        return;
    d->show([this] {
        // What comes now belongs to something else.
        d->isFirstLoad = false;
        d->hideAfterCancel();
        d->model.cancelLoad();
    });
    d->isFirstLoad = true;
}

} // namespace lorva
