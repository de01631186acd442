// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The way from files to what is shown: snapshot, scan, result.

#include "model/LorvaAppModel.h"

#include "base/RunThen.h"
#include "base/Trace.h"
#include "model/LibraryWatcher.h"
#include "platform/FreeMemory.h"
#include "platform/ThreadPriority.h"

#include <QPointer>

#include <algorithm>

namespace lorva {

namespace {

/// More than fit on a large screen.
constexpr size_t kFamiliesOfAScreen = 100;

} // namespace

void LorvaAppModel::loadCatalog()
{
    m_catalogReconcileTask.stop();
    // Nobody waits for that one any more, and this one would wait behind it. What it has read is
    // kept.
    if (m_isLoading)
        m_fontLibraryService->cancelLoad();
    m_loadIsOutdated = false;
    m_isLoading = true;
    m_loadAwaitsActivations = false;
    m_loadingText.clear();
    const qint64 generation = ++m_loadGeneration;
    m_installationService->setWatchedFolders(foldersToScan());
    changed();
    if (m_catalogCache && !std::exchange(m_snapshotWasRead, true))
        showSnapshot(generation);
    else
        scan(generation);
}

void LorvaAppModel::requestCatalogReconcile()
{
    m_catalogReconcileTask.start();
}

/// A load that runs is let end: folders in which something changes all the time would never show.
void LorvaAppModel::reconcileCatalog()
{
    m_loadIsOutdated = m_isLoading;
    if (m_isLoading)
        return;
    readWatchedFolders();
    loadCatalog();
}

/// The scan waits for that: on two cores it would only delay the first picture.
void LorvaAppModel::showSnapshot(qint64 generation)
{
    const auto read = [cache = m_catalogCache.get(), service = m_fontLibraryService.get(),
                       state = m_installationService->state()](const std::stop_token &) {
        Catalog catalog = readSnapshot(*cache, *service);
        // Cards of active families show in another way: those of the first screen know at once.
        if (catalog) {
            const std::vector<FontFamilyRecord> &families = *catalog->snapshot.families;
            for (size_t i = 0; i < std::min(families.size(), kFamiliesOfAScreen); ++i)
                static_cast<void>(state->activation(families[i]));
        }
        return catalog;
    };
    runThen(m_pool, this, read, [this, generation](Catalog catalog) {
        // A later load may have been quicker.
        if (catalog && m_catalogGeneration == 0) {
            installCatalog(std::move(catalog));
            m_snapshotIsCurrent = true;
            // What the last process knew is nothing new.
            for (LoadWaiter &waiter : m_loadWaiters)
                waiter.known.unite(familyNames());
            traceMoment("snapshot shown");
            changed();
            indexSnapshot();
        }
        if (generation == m_loadGeneration)
            scan(generation);
    });
}

/// The snapshot is on the screen before what only searches, foundries and two of the sources need.
void LorvaAppModel::indexSnapshot()
{
    struct Worked
    {
        std::shared_ptr<const LibraryIndex> index;
        ShownFoundries foundries;
        std::shared_ptr<const FamilyActivations> activations;
    };
    const auto work = [catalog = m_catalog, state = m_installationService->state(),
                       corrections =
                           m_organization.organization().foundries](const std::stop_token &) {
        lowerThisThreadsPriority();
        std::shared_ptr<const LibraryIndex> index = makeLibraryIndex(catalog->snapshot);
        return Worked{index, shownFoundries(*index, corrections),
                      activationsOf(catalog->snapshot.families, *state)};
    };
    runThen(m_quietPool, this, work, [this, generation = m_catalogGeneration](Worked worked) {
        if (generation != m_catalogGeneration)
            return;
        m_index = std::move(worked.index);
        m_activations = std::move(worked.activations);
        m_organization.setIndex(m_index, std::move(worked.foundries));
        ++m_activationGeneration;
        membershipChanged();
    });
}

void LorvaAppModel::scan(qint64 generation)
{
    m_scanBegan = std::chrono::system_clock::now();
    m_fontLibraryService->loadCatalog(
        foldersToScan(),
        [this, generation](const FontScanPhase &phase) {
            if (generation != m_loadGeneration) {
                // It had not begun when its successor was asked for.
                m_fontLibraryService->cancelLoad();
                return;
            }
            m_loadingText = phase.text();
            Q_EMIT scanProgressed(phase);
            // Once cards are on the screen, a scan says nothing until it has a result.
            if (allFamilies()->empty())
                changed();
        },
        [this, generation](FontCatalogResult result) {
            if (generation == m_loadGeneration)
                applyCatalog(std::move(result));
        });
}

void LorvaAppModel::applyCatalog(FontCatalogResult result)
{
    m_installationService->setWatchedFontURLs(result.watchedFontURLs);
    const CatalogCircumstances circumstances{m_catalog, m_index, m_installationService->state(),
                                             m_organization.organization().foundries,
                                             m_organization.unclassified()};
    auto work = [result = std::move(result), circumstances,
                 service = m_fontLibraryService.get()](const std::stop_token &) mutable {
        return makeReady(std::move(result), circumstances, *service);
    };
    runThen(m_pool, this, std::move(work),
            [this, generation = m_loadGeneration](const Catalog &catalog) {
                if (generation == m_loadGeneration)
                    finishLoad(catalog);
            });
}

void LorvaAppModel::finishLoad(const Catalog &catalog)
{
    const bool isSaved = m_snapshotIsCurrent && catalog->isAsBefore;
    // Even an equal one: faces that could not be found are then looked for again.
    installCatalog(catalog);
    m_snapshotIsCurrent = isSaved;
    finishClassification(catalog);
    m_organization.setIndex(m_index, catalog->foundries);
    ++m_membershipGeneration;
    m_installationService->reconcile(
        allFamilies(),
        [model = QPointer(this), state = catalog->activationState, generation = m_loadGeneration] {
            if (!model || generation != model->m_loadGeneration)
                return;
            model->m_loadAwaitsActivations = model->m_installationService->state() != state;
            if (model->m_loadAwaitsActivations)
                model->refreshActivations();
            else
                model->endLoad();
        });
}

void LorvaAppModel::endLoad()
{
    m_isLoading = false;
    m_loadingText.clear();
    validateSelection();
    traceMoment("catalog applied");
    changed();
    saveSnapshot();
    if (m_libraryWatcher)
        m_libraryWatcher->watch(foldersToScan(), m_scanBegan);
    if (std::exchange(m_loadIsOutdated, false))
        requestCatalogReconcile();
    answerLoadWaiters(false);
}

void LorvaAppModel::whenLoaded(std::function<void(std::optional<int>)> done)
{
    m_loadWaiters.push_back({familyNames(), std::move(done)});
}

bool LorvaAppModel::isFirstLoadCancelled() const
{
    return m_hasCancelledLoad && !m_isLoading && allFamilies()->empty()
        && !m_catalog->watchedFontURLs;
}

void LorvaAppModel::cancelLoad()
{
    if (!m_isLoading)
        return;
    // Results that are on their way are of an earlier load from now on.
    ++m_loadGeneration;
    m_fontLibraryService->cancelLoad();
    m_isLoading = false;
    m_hasCancelledLoad = true;
    // If only they were missing, they follow as after any change.
    m_loadAwaitsActivations = false;
    m_loadingText.clear();
    changed();
    if (std::exchange(m_loadIsOutdated, false))
        requestCatalogReconcile();
    answerLoadWaiters(true);
}

QSet<QString> LorvaAppModel::familyNames() const
{
    QSet<QString> names;
    names.reserve(qsizetype(allFamilies()->size()));
    for (const FontFamilyRecord &family : *allFamilies())
        names.insert(family.familyName);
    return names;
}

void LorvaAppModel::answerLoadWaiters(bool isCancelled)
{
    std::vector<LoadWaiter> waiters = std::exchange(m_loadWaiters, {});
    const QPointer<LorvaAppModel> self(this);
    for (const LoadWaiter &waiter : waiters) {
        // An answer may end the model, or begin the next load.
        if (!self)
            return;
        std::optional<int> newFamilies;
        if (!isCancelled)
            newFamilies = int(std::ranges::count_if(*allFamilies(), [&](const auto &family) {
                return !waiter.known.contains(family.familyName);
            }));
        waiter.done(newFamilies);
    }
}

void LorvaAppModel::installCatalog(Catalog catalog)
{
    const TraceStage stage("catalog: install");
    m_fontLibraryService->setFamilies(catalog->prepared);
    m_index = catalog->index;
    m_activations = catalog->activations;
    m_catalog.swap(catalog);
    ++m_catalogGeneration;
    ++m_activationGeneration;
    // Letting go of a large catalog takes longer than a frame.
    auto letGo = [old = std::move(catalog)](const std::stop_token &) mutable {
        const TraceStage freeing("catalog: let the old one go");
        old.reset();
        returnFreeMemory();
        return true;
    };
    runThen(m_pool, this, std::move(letGo), [](bool) {});
}

void LorvaAppModel::finishClassification(const Catalog &catalog)
{
    if (!catalog->unclassified)
        return;
    m_organization.finishClassification(
        *catalog->unclassified, catalog->classified,
        [families = allFamilies()](const LibraryOrganization::Unclassified &from) {
            return classified(families, from);
        });
}

void LorvaAppModel::saveSnapshot()
{
    if (!m_catalogCache || (m_snapshotIsCurrent && !m_catalogCache->hasFailed()))
        return;
    m_catalogCache->save(m_catalog->snapshot);
    m_snapshotIsCurrent = true;
}

const FontFamilyRecord *LorvaAppModel::family(const QString &name) const
{
    if (m_index) {
        const std::optional<quint32> place = m_index->place(name);
        return place ? &(*allFamilies())[*place] : nullptr;
    }
    const auto found = std::ranges::find(*allFamilies(), name, &FontFamilyRecord::familyName);
    return found == allFamilies()->end() ? nullptr : &*found;
}

std::optional<FontFamilyActivation> LorvaAppModel::activation(const FontFamilyRecord &family) const
{
    // Nothing that has to be looked up on the disk.
    if (!m_index || !m_activations)
        return m_installationService->state()->knownActivation(family);
    const std::optional<quint32> place = m_index->place(family.familyName);
    return place ? (*m_activations)[*place] : std::nullopt;
}

void LorvaAppModel::becomeActive()
{
    reconcileActivation();
    if (m_libraryWatcher && !m_isLoading && !m_libraryWatcher->isComplete())
        requestCatalogReconcile();
}

void LorvaAppModel::reconcileActivation()
{
    // Its end does the same.
    if (m_isLoading)
        return;
    m_installationService->reconcile(allFamilies(), [model = QPointer(this)] {
        if (model)
            model->refreshActivations();
    });
}

void LorvaAppModel::activationMayHaveChanged()
{
    // A worker finds which they are now; cards and sources follow.
    ++m_activationGeneration;
    changed();
    refreshActivations();
    requestCatalogReconcile();
}

void LorvaAppModel::refreshActivations()
{
    const auto work = [families = allFamilies(),
                       state = m_installationService->state()](const std::stop_token &) {
        lowerThisThreadsPriority();
        return activationsOf(families, *state);
    };
    runThen(m_quietPool, this, work,
            [this, wanted = ++m_activationRun,
             catalog = m_catalogGeneration](std::shared_ptr<const FamilyActivations> activations) {
                if (wanted != m_activationRun || catalog != m_catalogGeneration)
                    return;
                m_activations = std::move(activations);
                ++m_activationGeneration;
                if (std::exchange(m_loadAwaitsActivations, false)) {
                    endLoad();
                    return;
                }
                validateSelection();
                changed();
            });
}

} // namespace lorva
