// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LorvaAppModel.h"

#include "base/NotificationCentre.h"
#include "model/LibraryWatcher.h"
#include "model/stores/LogoStore.h"
#include "platform/PreferenceWatcher.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// Beyond this nobody looks for what they did.
constexpr int kUndoLimit = 200;

} // namespace

QByteArray LorvaAppModel::changeNotification()
{
    return QByteArrayLiteral("vantrel.merid.lorvaAppModelDidChange");
}

LorvaAppModel::LorvaAppModel(Dependencies dependencies, QObject *parent)
    : QObject(parent)
    , m_fontLibraryService(std::move(dependencies.fontLibraryService))
    , m_installationService(std::move(dependencies.installationService))
    , m_givenFolders(std::move(dependencies.watchedFolders))
    , m_catalogCache(std::move(dependencies.catalogCache))
    , m_fontRegistrar(std::move(dependencies.fontRegistrar))
    , m_preferences(dependencies.preferences)
    , m_collectionStore(m_preferences)
    , m_styleStore(m_preferences)
    , m_displaySettingsStore(m_preferences)
    , m_foundryStore(m_preferences)
    , m_organizationStore(m_preferences, m_collectionStore, m_styleStore, m_foundryStore)
    , m_watchedFolderStore(m_preferences)
    , m_catalog(std::make_shared<ReadyCatalog>())
    , m_organization(m_organizationStore, m_styleStore)
    , m_display(m_displaySettingsStore, m_selectedSource)
{
    m_pool.setObjectName(QStringLiteral("vantrel.lorva.model"));
    m_pool.setMaxThreadCount(1);
    m_quietPool.setObjectName(QStringLiteral("vantrel.lorva.model-quiet"));
    m_quietPool.setMaxThreadCount(1);
    m_folderPool.setObjectName(QStringLiteral("vantrel.lorva.model-folders"));
    m_undoStack.setUndoLimit(kUndoLimit);
    m_catalogReconcileTask.setSingleShot(true);
    m_catalogReconcileTask.setInterval(kReconcileDelay);
    connect(&m_catalogReconcileTask, &QTimer::timeout, this, &LorvaAppModel::reconcileCatalog);
    if (dependencies.folderWatcher) {
        m_libraryWatcher = std::make_unique<LibraryWatcher>(std::move(dependencies.folderWatcher),
                                                            std::move(dependencies.folders));
        connect(m_libraryWatcher.get(), &LibraryWatcher::libraryChanged, this,
                &LorvaAppModel::requestCatalogReconcile);
    }

    readSidebar();
    readWatchedFolders();
    LogoStore(m_preferences).migrate(m_displaySettingsStore);
    m_display.reload();
    auto *watcher = new PreferenceWatcher(m_preferences, this);
    connect(watcher, &PreferenceWatcher::changedElsewhere, this,
            &LorvaAppModel::takeChangesElsewhere);
    NotificationCentre::shared().observe(ActivationProvider::changeNotification(), this,
                                         [this](const void *) { activationMayHaveChanged(); });
}

LorvaAppModel::~LorvaAppModel()
{
    // It tells its listeners when it goes, and they would ask what has gone by then.
    m_undoStack.blockSignals(true);
    m_display.setHeld(false);
}

void LorvaAppModel::changed()
{
    if (onChange)
        onChange();
    NotificationCentre::shared().post(changeNotification(), this);
}

FontFamilySubset LorvaAppModel::visibleFamilies()
{
    return m_visibleFamilies.answer({m_selectedSource, m_searchQuery, m_catalogGeneration,
                                     m_activationGeneration, m_membershipGeneration},
                                    libraryView());
}

LibraryView LorvaAppModel::libraryView() const
{
    return {allFamilies(), m_index.get(), m_activations.get(), m_organization};
}

const SidebarCounts &LorvaAppModel::counts()
{
    return m_counts.answer({m_catalogGeneration, m_activationGeneration, m_membershipGeneration,
                            m_index != nullptr, m_activations != nullptr},
                           libraryView());
}

void LorvaAppModel::validateSelection()
{
    const auto kind = m_selectedSource.kind();
    const QString &id = m_selectedSource.id();
    const bool hasGone =
        (kind == BrowserSource::Kind::collection && !m_organization.collectionMembers(id))
        || (kind == BrowserSource::Kind::foundry && !m_organization.foundryMembers(id));
    if (hasGone) {
        m_selectedSource = BrowserSource::allFonts();
        m_display.select(m_selectedSource);
    }
    const bool isActivity =
        kind == BrowserSource::Kind::active || kind == BrowserSource::Kind::inactive;
    if (!m_selectedFamilyName || (isActivity && !m_activations))
        return;
    const FontFamilySubset visible = visibleFamilies();
    const bool isVisible = std::any_of(visible.begin(), visible.end(), [&](const auto &family) {
        return family.familyName == *m_selectedFamilyName;
    });
    if (!isVisible)
        m_selectedFamilyName.reset();
}

void LorvaAppModel::select(const BrowserSource &source)
{
    if (source == m_selectedSource)
        return;
    m_selectedSource = source;
    m_display.select(source);
    validateSelection();
    changed();
}

void LorvaAppModel::setSearchQuery(const QString &text)
{
    if (text == m_searchQuery)
        return;
    m_searchQuery = text;
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

void LorvaAppModel::setCatalogueVisible(bool isVisible)
{
    if (isVisible == m_isCatalogueVisible)
        return;
    m_isCatalogueVisible = isVisible;
    changed();
}

void LorvaAppModel::setViewMode(ViewMode mode)
{
    if (mode == m_viewMode)
        return;
    m_viewMode = mode;
    changed();
}

void LorvaAppModel::updateDisplay(std::function<void(SourceDisplaySettings &)> change)
{
    const DisplayValues before = display();
    m_display.update(std::move(change));
    if (display() != before)
        changed();
}

void LorvaAppModel::setDisplayForThisRun(const SourceDisplaySettings &settings)
{
    m_display.setForThisRun(settings);
    changed();
}

void LorvaAppModel::setDisplayHeld(bool isHeld)
{
    m_display.setHeld(isHeld);
}

void LorvaAppModel::resetDisplay()
{
    const DisplayValues before = display();
    m_display.reset();
    if (display() != before)
        changed();
}

void LorvaAppModel::setPointSize(double pointSize)
{
    if (!std::isfinite(pointSize))
        return;
    const double wanted = std::clamp(pointSize, kMinimumPointSize, kMaximumPointSize);
    if (wanted != browserPointSize())
        updateDisplay([=](SourceDisplaySettings &own) { own.browserPointSize = wanted; });
}

void LorvaAppModel::setFontWeight(double weight)
{
    if (!std::isfinite(weight))
        return;
    const auto wanted = qint64(std::lround(
        std::clamp(weight, SourceDisplay::kMinimumWeight, SourceDisplay::kMaximumWeight)));
    if (double(wanted) != browserFontWeight())
        updateDisplay([=](SourceDisplaySettings &own) { own.browserFontWeight = wanted; });
}

void LorvaAppModel::setSampleText(const QString &text)
{
    if (text != sampleText())
        updateDisplay([=](SourceDisplaySettings &own) { own.sampleText = text; });
}

void LorvaAppModel::setColorMode(ColorMode mode)
{
    if (mode != colorMode())
        updateDisplay([=](SourceDisplaySettings &own) { own.colorMode = mode; });
}

void LorvaAppModel::setCustomForegroundColorHex(const QString &hex)
{
    const std::optional<QString> wanted = colorHex(hex);
    if (wanted && wanted != customForegroundColorHex())
        updateDisplay([=](SourceDisplaySettings &own) { own.customForegroundColorHex = wanted; });
}

void LorvaAppModel::setCustomBackgroundColorHex(const QString &hex)
{
    const std::optional<QString> wanted = colorHex(hex);
    if (wanted && wanted != customBackgroundColorHex())
        updateDisplay([=](SourceDisplaySettings &own) { own.customBackgroundColorHex = wanted; });
}

void LorvaAppModel::setImageForegroundColorHex(const QString &hex)
{
    const std::optional<QString> wanted = colorHex(hex);
    if (wanted && wanted != imageForegroundColorHex())
        updateDisplay([=](SourceDisplaySettings &own) { own.imageForegroundColorHex = wanted; });
}

void LorvaAppModel::setBackgroundImageID(const std::optional<QString> &id)
{
    if (id != backgroundImageID())
        updateDisplay(
            [=](SourceDisplaySettings &own) { own.backgroundImageID = id.value_or(QString()); });
}

void LorvaAppModel::setBackgroundImageUserFilename(const std::optional<QString> &filename)
{
    if (filename != backgroundImageUserFilename())
        updateDisplay([=](SourceDisplaySettings &own) {
            own.backgroundImageUserFilename = filename.value_or(QString());
        });
}

void LorvaAppModel::setLogoImageData(const QByteArray &imageData)
{
    if (imageData != display().logoImageData)
        updateDisplay([=](SourceDisplaySettings &own) { own.logoImageData = imageData; });
}

void LorvaAppModel::setLogoSizeRatio(double ratio)
{
    if (ratio != display().logoSizeRatio && SourceDisplay::isLogoSizeRatio(ratio))
        updateDisplay([=](SourceDisplaySettings &own) { own.logoSizeRatio = ratio; });
}

void LorvaAppModel::setLogoSpacing(double spacing)
{
    if (spacing != display().logoSpacing && SourceDisplay::isLogoSpacing(spacing))
        updateDisplay([=](SourceDisplaySettings &own) { own.logoSpacing = spacing; });
}

void LorvaAppModel::setLogoVisible(bool isVisible)
{
    if (isVisible != display().logoVisible)
        updateDisplay([=](SourceDisplaySettings &own) { own.logoVisible = isVisible; });
}

} // namespace lorva
