// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LorvaAppModel.h"

#include "base/Folding.h"
#include "base/NotificationCentre.h"
#include "base/RunThen.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// Below this a list is freed where it is let go of.
constexpr size_t kSmallLibrary = 500;

/// Freeing a large library takes longer than a frame, so that its last holder, often a view, leaves
/// it to a worker.
FontFamilyList shared(std::vector<FontFamilyRecord> families)
{
    using Families = const std::vector<FontFamilyRecord>;
    return {new Families(std::move(families)), [](Families *list) {
                if (list->size() > kSmallLibrary && QCoreApplication::instance())
                    QThreadPool::globalInstance()->start([list] { delete list; });
                else
                    delete list;
            }};
}

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
    return shared(std::move(sorted));
}

FontFamilyList noFamilies()
{
    return std::make_shared<const std::vector<FontFamilyRecord>>();
}

} // namespace

QByteArray LorvaAppModel::changeNotification()
{
    return QByteArrayLiteral("vantrel.merid.lorvaAppModelDidChange");
}

LorvaAppModel::LorvaAppModel(std::unique_ptr<FontLibraryService> fontLibraryService,
                             std::unique_ptr<ActivationProvider> activation, QObject *parent)
    : QObject(parent)
    , m_fontLibraryService(std::move(fontLibraryService))
    , m_activation(std::move(activation))
    , m_allFamilies(noFamilies())
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
    m_fontLibraryService->loadCatalog(
        m_watchedFolders,
        [this, generation](const FontScanPhase &phase) {
            if (generation != m_loadGeneration)
                return;
            m_loadingText = phase.text();
            // Once cards are on the screen, a scan says nothing until it has a result.
            if (m_allFamilies->empty())
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
    auto families = std::move(result.families);
    result.families.clear();
    runThen(
        m_pool, this,
        [families = std::move(families)](const std::stop_token &) mutable {
            return sortedByName(std::move(families));
        },
        [this, generation, result = std::move(result)](FontFamilyList sorted) {
            if (generation == m_loadGeneration)
                installCatalog(std::move(sorted), result);
        });
}

void LorvaAppModel::installCatalog(FontFamilyList families, const FontCatalogResult &result)
{
    m_allFamilies = std::move(families);
    m_manufacturersByFamily = result.manufacturers;
    m_activation->setWatchedFontURLs(result.watchedFontURLs);
    ++m_catalogGeneration;
    ++m_activationGeneration;
    validateSelection();
    m_isLoading = false;
    m_loadingText.clear();
    changed();
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
        return noFamilies();
    if (kind != BrowserSource::Kind::active && kind != BrowserSource::Kind::inactive)
        return m_allFamilies;
    const bool wantsActive = kind == BrowserSource::Kind::active;
    std::vector<FontFamilyRecord> matching;
    for (const FontFamilyRecord &family : *m_allFamilies) {
        const auto state = activation(family);
        if (state && state->isActive() == wantsActive)
            matching.push_back(family);
    }
    return shared(std::move(matching));
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
