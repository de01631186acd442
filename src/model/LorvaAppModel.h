// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogCache.h"
#include "catalog/FontLibraryService.h"
#include "model/CatalogActivation.h"
#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"
#include "model/records/FontFamilyList.h"

#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <optional>

namespace lorva {

/// A catalog as the model shows it, made ready on a worker.
struct ReadyCatalog
{
    /// Sorted by name.
    CatalogSnapshot snapshot;
    QSet<FilePath> watchedFontURLs;
    PreparedFamilies prepared;
    /// Holds what the catalog before it held.
    bool isAsBefore = false;
};

/// What an answer of visibleFamilies() was computed from; equal stamps mean an equal answer.
struct VisibleFamiliesStamp
{
    BrowserSource source;
    QString query;
    qint64 catalogGeneration = 0;
    qint64 activationGeneration = 0;
    qint64 membershipGeneration = 0;
    bool operator==(const VisibleFamiliesStamp &) const = default;
};

/// The one object that holds the library and what the user chose about it.
///
/// Owns: the library service, the activation provider and the snapshot cache it is given. Views
/// hold it without owning it. Thread: main. Generations only grow while the process lives.
class LorvaAppModel final : public QObject
{
    Q_OBJECT
public:
    /// Posted on the notification centre, with the model as object, after a change.
    static QByteArray changeNotification();
    static constexpr double kMinimumPointSize = 12;
    static constexpr double kMaximumPointSize = 160;

    /// Without a `catalogCache` no library is remembered from start to start.
    LorvaAppModel(std::unique_ptr<FontLibraryService> fontLibraryService,
                  std::unique_ptr<ActivationProvider> activation,
                  std::unique_ptr<CatalogCache> catalogCache = nullptr, QObject *parent = nullptr);
    ~LorvaAppModel() override;

    /// Called after every change that views must redraw for.
    std::function<void()> onChange;

    FontLibraryService &fontLibraryService() { return *m_fontLibraryService; }

    /// Scans the system's fonts and the watched folders and shows the result; the first time, what
    /// the last process found is shown until then. Returns at once.
    void loadCatalog();
    /// True until the scan's result is shown.
    bool isLoading() const { return m_isLoading; }
    /// What the running scan does, for people; empty when none runs.
    QString loadingText() const { return m_loadingText; }
    /// Folders whose fonts belong to the library, in the user's order. Takes effect with the next
    /// load.
    void setWatchedFolders(std::vector<FilePath> folders) { m_watchedFolders = std::move(folders); }

    /// Sorted by name as the user's language sorts, ignoring case.
    FontFamilyList allFamilies() const { return m_catalog->snapshot.families; }
    const QHash<QString, QString> &manufacturersByFamily() const
    {
        return m_catalog->snapshot.manufacturers;
    }
    /// The families that the browser shows for the selected source.
    FontFamilyList visibleFamilies();
    std::optional<FontFamilyActivation> activation(const FontFamilyRecord &family) const;

    BrowserSource selectedSource() const { return m_selectedSource; }
    void select(const BrowserSource &source);
    std::optional<QString> selectedFamilyName() const { return m_selectedFamilyName; }
    void selectFamily(const std::optional<QString> &name);
    std::optional<QString> detailFamilyName() const { return m_detailFamilyName; }
    void openDetail(const std::optional<QString> &name);

    QString sampleText() const { return m_sampleText; }
    void setSampleText(const QString &text);
    ViewMode viewMode() const { return m_viewMode; }
    void setViewMode(ViewMode mode);
    double browserPointSize() const { return m_browserPointSize; }
    /// Clamped to kMinimumPointSize … kMaximumPointSize; values that are no numbers are refused.
    void setPointSize(double pointSize);
    ColorMode colorMode() const { return m_colorMode; }
    void setColorMode(ColorMode mode);
    QString customForegroundColorHex() const { return m_customForegroundColorHex; }
    QString customBackgroundColorHex() const { return m_customBackgroundColorHex; }

    qint64 catalogGeneration() const { return m_catalogGeneration; }
    qint64 activationGeneration() const { return m_activationGeneration; }
    qint64 membershipGeneration() const { return m_membershipGeneration; }

private:
    using Catalog = std::shared_ptr<const ReadyCatalog>;

    void showSnapshot(qint64 generation);
    void scan(qint64 generation);
    void applyCatalog(FontCatalogResult result);
    void finishLoad(Catalog catalog);
    void installCatalog(Catalog catalog);
    void saveSnapshot();
    FontFamilyList familiesOfSource() const;
    void validateSelection();
    void changed();

    std::unique_ptr<FontLibraryService> m_fontLibraryService;
    std::unique_ptr<ActivationProvider> m_activation;
    std::unique_ptr<CatalogCache> m_catalogCache;
    std::vector<FilePath> m_watchedFolders;
    QThreadPool m_pool;

    /// Never null.
    Catalog m_catalog;
    /// The snapshot file was looked at: once in a process.
    bool m_snapshotWasRead = false;
    /// The snapshot file holds m_catalog, or is being made to.
    bool m_snapshotIsCurrent = false;
    bool m_isLoading = false;
    QString m_loadingText;
    qint64 m_loadGeneration = 0;
    qint64 m_catalogGeneration = 0;
    qint64 m_activationGeneration = 0;
    qint64 m_membershipGeneration = 0;
    FontFamilyList m_cachedVisibleFamilies;
    std::optional<VisibleFamiliesStamp> m_visibleFamiliesStamp;

    BrowserSource m_selectedSource;
    std::optional<QString> m_selectedFamilyName;
    std::optional<QString> m_detailFamilyName;
    QString m_sampleText = QStringLiteral("Aa 123");
    ViewMode m_viewMode = ViewMode::grid;
    double m_browserPointSize = 36;
    ColorMode m_colorMode = ColorMode::white;
    QString m_customForegroundColorHex = QStringLiteral("#FFFFFF");
    QString m_customBackgroundColorHex = QStringLiteral("#F04000");
};

} // namespace lorva
