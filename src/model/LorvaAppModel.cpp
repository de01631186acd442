// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LorvaAppModel.h"

#include "base/Folding.h"
#include "base/NotificationCentre.h"
#include "base/RunThen.h"
#include "base/Trace.h"
#include "platform/FreeMemory.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// The families in the order that the user's language sorts their names. Thread: worker.
FontFamilyList sortedByName(std::vector<FontFamilyRecord> families)
{
    const NameCollator collator;
    std::vector<std::pair<QByteArray, size_t>> keys;
    keys.reserve(families.size());
    for (size_t i = 0; i < families.size(); ++i)
        keys.emplace_back(collator.sortKey(families[i].familyName), i);
    std::stable_sort(keys.begin(), keys.end(),
                     [](const auto &a, const auto &b) { return a.first < b.first; });
    std::vector<FontFamilyRecord> sorted;
    sorted.reserve(families.size());
    for (const auto &[key, index] : keys)
        sorted.push_back(std::move(families[index]));
    return makeFamilyList(std::move(sorted));
}

} // namespace

QByteArray LorvaAppModel::changeNotification()
{
    return QByteArrayLiteral("vantrel.merid.lorvaAppModelDidChange");
}

LorvaAppModel::LorvaAppModel(std::unique_ptr<FontLibraryService> fontLibraryService,
                             std::unique_ptr<ActivationProvider> activation,
                             std::unique_ptr<CatalogCache> catalogCache, QObject *parent)
    : QObject(parent)
    , m_fontLibraryService(std::move(fontLibraryService))
    , m_activation(std::move(activation))
    , m_catalogCache(std::move(catalogCache))
    , m_catalog(std::make_shared<ReadyCatalog>())
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.model"));
    m_pool.setMaxThreadCount(1);
}

LorvaAppModel::~LorvaAppModel() = default;

void LorvaAppModel::loadCatalog()
{
    m_isLoading = true;
    m_loadingText.clear();
    const qint64 generation = ++m_loadGeneration;
    changed();
    if (m_catalogCache && !std::exchange(m_snapshotWasRead, true))
        showSnapshot(generation);
    else
        scan(generation);
}

/// The scan waits for that: on two cores it would only delay the first picture.
void LorvaAppModel::showSnapshot(qint64 generation)
{
    m_activation->setWatchedFolders(m_watchedFolders);
    const auto read = [cache = m_catalogCache.get(),
                       service = m_fontLibraryService.get()](const std::stop_token &) {
        std::optional<CatalogSnapshot> snapshot = cache->load();
        if (!snapshot)
            return Catalog();
        ReadyCatalog ready;
        ready.snapshot = *std::move(snapshot);
        ready.prepared = service->prepareFamilies(ready.snapshot.families);
        return Catalog(std::make_shared<ReadyCatalog>(std::move(ready)));
    };
    runThen(m_pool, this, read, [this, generation](Catalog catalog) {
        // A later load may have been quicker.
        if (catalog && m_catalogGeneration == 0) {
            installCatalog(std::move(catalog));
            m_snapshotIsCurrent = true;
            traceMoment("snapshot shown");
            changed();
        }
        if (generation == m_loadGeneration)
            scan(generation);
    });
}

void LorvaAppModel::scan(qint64 generation)
{
    m_fontLibraryService->loadCatalog(
        m_watchedFolders,
        [this, generation](const FontScanPhase &phase) {
            if (generation != m_loadGeneration)
                return;
            m_loadingText = phase.text();
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
    const qint64 generation = m_loadGeneration;
    auto makeReady = [result = std::move(result), present = m_catalog,
                      service = m_fontLibraryService.get()](const std::stop_token &) mutable {
        const TraceStage stage("catalog: sort and compare");
        ReadyCatalog ready;
        ready.snapshot = {sortedByName(std::move(result.families)), result.manufacturers};
        ready.watchedFontURLs = result.watchedFontURLs;
        ready.isAsBefore = ready.snapshot == present->snapshot;
        ready.prepared = service->prepareFamilies(ready.snapshot.families);
        return Catalog(std::make_shared<ReadyCatalog>(std::move(ready)));
    };
    runThen(m_pool, this, std::move(makeReady), [this, generation](Catalog catalog) {
        if (generation == m_loadGeneration)
            finishLoad(std::move(catalog));
    });
}

void LorvaAppModel::finishLoad(Catalog catalog)
{
    const bool isSaved = m_snapshotIsCurrent && catalog->isAsBefore;
    m_activation->setWatchedFontURLs(catalog->watchedFontURLs);
    // Even an equal one: faces that could not be found are then looked for again.
    installCatalog(std::move(catalog));
    m_snapshotIsCurrent = isSaved;
    m_isLoading = false;
    m_loadingText.clear();
    traceMoment("catalog applied");
    changed();
    saveSnapshot();
}

void LorvaAppModel::installCatalog(Catalog catalog)
{
    const TraceStage stage("catalog: install");
    m_fontLibraryService->setFamilies(catalog->prepared);
    m_catalog.swap(catalog);
    ++m_catalogGeneration;
    ++m_activationGeneration;
    validateSelection();
    // Letting go of a large catalog takes longer than a frame.
    auto letGo = [old = std::move(catalog)](const std::stop_token &) mutable {
        const TraceStage freeing("catalog: let the old one go");
        old.reset();
        returnFreeMemory();
        return true;
    };
    runThen(m_pool, this, std::move(letGo), [](bool) {});
}

void LorvaAppModel::saveSnapshot()
{
    if (!m_catalogCache || (m_snapshotIsCurrent && !m_catalogCache->hasFailed()))
        return;
    m_catalogCache->save(m_catalog->snapshot);
    m_snapshotIsCurrent = true;
}

FontFamilyList LorvaAppModel::visibleFamilies()
{
    const VisibleFamiliesStamp stamp{
        m_selectedSource, {}, m_catalogGeneration, m_activationGeneration, m_membershipGeneration};
    if (m_cachedVisibleFamilies && m_visibleFamiliesStamp == stamp)
        return m_cachedVisibleFamilies;
    m_cachedVisibleFamilies = familiesOfSource();
    m_visibleFamiliesStamp = stamp;
    return m_cachedVisibleFamilies;
}

FontFamilyList LorvaAppModel::familiesOfSource() const
{
    const auto kind = m_selectedSource.kind();
    if (kind == BrowserSource::Kind::discover)
        return makeFamilyList();
    if (kind != BrowserSource::Kind::active && kind != BrowserSource::Kind::inactive)
        return allFamilies();
    const bool wantsActive = kind == BrowserSource::Kind::active;
    std::vector<FontFamilyRecord> matching;
    for (const FontFamilyRecord &family : *allFamilies()) {
        const auto state = activation(family);
        if (state && state->isActive() == wantsActive)
            matching.push_back(family);
    }
    return makeFamilyList(std::move(matching));
}

std::optional<FontFamilyActivation> LorvaAppModel::activation(const FontFamilyRecord &family) const
{
    return m_activation->activation(family);
}

void LorvaAppModel::select(const BrowserSource &source)
{
    if (source == m_selectedSource)
        return;
    m_selectedSource = source;
    validateSelection();
    changed();
}

void LorvaAppModel::selectFamily(const std::optional<QString> &name)
{
    if (name == m_selectedFamilyName)
        return;
    m_selectedFamilyName = name;
    changed();
}

void LorvaAppModel::openDetail(const std::optional<QString> &name)
{
    if (name == m_detailFamilyName)
        return;
    m_detailFamilyName = name;
    changed();
}

void LorvaAppModel::setSampleText(const QString &text)
{
    if (text == m_sampleText)
        return;
    m_sampleText = text;
    changed();
}

void LorvaAppModel::setViewMode(ViewMode mode)
{
    if (mode == m_viewMode)
        return;
    m_viewMode = mode;
    changed();
}

void LorvaAppModel::setPointSize(double pointSize)
{
    if (!std::isfinite(pointSize))
        return;
    const double wanted = std::clamp(pointSize, kMinimumPointSize, kMaximumPointSize);
    if (wanted == m_browserPointSize)
        return;
    m_browserPointSize = wanted;
    changed();
}

void LorvaAppModel::setColorMode(ColorMode mode)
{
    if (mode == m_colorMode)
        return;
    m_colorMode = mode;
    changed();
}

void LorvaAppModel::validateSelection()
{
    if (!m_selectedFamilyName)
        return;
    const FontFamilyList visible = visibleFamilies();
    const bool isVisible =
        std::any_of(visible->begin(), visible->end(), [&](const FontFamilyRecord &family) {
            return family.familyName == *m_selectedFamilyName;
        });
    if (!isVisible)
        m_selectedFamilyName.reset();
}

void LorvaAppModel::changed()
{
    if (onChange)
        onChange();
    NotificationCentre::shared().post(changeNotification(), this);
}

} // namespace lorva
