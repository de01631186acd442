// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/WatchedFolderStore.h"
#include "model/LibraryCounts.h"
#include "model/LibraryOrganization.h"
#include "model/ReadyCatalog.h"
#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"
#include "model/records/FontFamilySubset.h"
#include "model/SourceDisplay.h"
#include "model/stores/CollectionStore.h"
#include "model/stores/DisplaySettingsStore.h"
#include "model/stores/FoundryStore.h"
#include "model/stores/StyleStore.h"
#include "model/VisibleFamilies.h"
#include "model/WatchedFolderProvider.h"
#include "platform/FolderWatcher.h"
#include "platform/PlatformFolders.h"

#include <QObject>
#include <QThreadPool>
#include <QTimer>
#include <QUndoStack>

#include <chrono>
#include <functional>
#include <map>
#include <memory>
#include <optional>

namespace lorva {

class FolderLooks;
class FontRegistrar;
class LibraryWatcher;

/// What became of adding watched folders.
struct AddedFolders
{
    /// Those that were not in the list already.
    std::vector<WatchedFolder> records;
    /// By the path that was handed in.
    std::map<FilePath, Error> failures;
    /// Also for folders that were in the list already; not where all were refused.
    bool hasBegunScan = false;
};

/// The one object that holds the library and what the user chose about it.
///
/// Every change is written through to its store at once, raises the generation that depends on it,
/// and is told by onChange and changeNotification(). What other processes change in the stores is
/// noticed and shown likewise.
///
/// What changes in the library's folders is noticed, and asks for a new scan.
///
/// Owns: the library service, the activation provider, the watched folders, the folder watcher and
/// the snapshot cache it is given, and the stores. Views hold it without owning it. Thread: main.
/// Generations only grow while the process lives.
class LorvaAppModel final : public QObject
{
    Q_OBJECT
public:
    /// Posted on the notification centre, with the model as object, after a change.
    static QByteArray changeNotification();
    /// Changes that ask for a new scan wait this long for the next one.
    static constexpr std::chrono::milliseconds kReconcileDelay{1500};
    static constexpr double kMinimumPointSize = SourceDisplay::kMinimumPointSize;
    static constexpr double kMaximumPointSize = SourceDisplay::kMaximumPointSize;

    struct Dependencies
    {
        std::unique_ptr<FontLibraryService> fontLibraryService;
        std::unique_ptr<ActivationProvider> installationService;
        /// Outlives the model.
        PreferenceStore &preferences;
        /// Folders besides the user's own; null: there are none.
        std::unique_ptr<WatchedFolderProvider> watchedFolders = nullptr;
        /// Null: no library is remembered from start to start.
        std::unique_ptr<CatalogCache> catalogCache = nullptr;
        /// Where fonts lie besides the watched folders.
        PlatformFolders folders = {};
        /// Null: changes in folders are not noticed.
        std::unique_ptr<FolderWatcher> folderWatcher = nullptr;
        /// From which the fonts of a removed folder are withdrawn; null: nothing was registered.
        std::shared_ptr<FontRegistrar> fontRegistrar = nullptr;
    };

    explicit LorvaAppModel(Dependencies dependencies, QObject *parent = nullptr);
    ~LorvaAppModel() override;

    /// Called after every change that views must redraw for.
    std::function<void()> onChange;

    FontLibraryService &fontLibraryService() { return *m_fontLibraryService; }
    /// What switches fonts on and off; null where nothing does.
    FontInstallationService *installationService()
    {
        return m_installationService->installationService();
    }

    // The catalog

    /// Scans the system's fonts and the watched folders and shows the result; the first time, what
    /// the last process found is shown until then. Returns at once.
    void loadCatalog();
    /// loadCatalog() when nobody has asked for kReconcileDelay: for what may come in bursts.
    void requestCatalogReconcile();
    /// The user is back: looks anew which families are switched on, and at the library's folders
    /// where changes may have gone unnoticed. Returns at once.
    void becomeActive();
    /// Looks anew which families are switched on, as a load does at its end; does nothing while one
    /// runs. Returns at once.
    void reconcileActivation();
    /// True until the scan's result is shown.
    bool isLoading() const { return m_isLoading; }
    /// What the running scan does, for people; empty when none runs.
    QString loadingText() const { return m_loadingText; }
    /// Calls `done` once, when the load that runs or is about to run has ended: with the number of
    /// families that the catalog has and had not when this was called, or with nothing when the
    /// load was cancelled. Not called when the model goes first.
    void whenLoaded(std::function<void(std::optional<int> newFamilies)> done);
    /// Ends the running scan: the catalog stays as it is, and the next load begins from what was
    /// read. Does nothing when none runs.
    void cancelLoad();
    /// True when what there is has not been found out yet: the first scan was cancelled.
    bool isFirstLoadCancelled() const;

    /// Sorted by name as the user's language sorts, ignoring case.
    FontFamilyList allFamilies() const { return m_catalog->snapshot.families; }
    const QHash<QString, QString> &manufacturersByFamily() const
    {
        return m_catalog->snapshot.manufacturers;
    }
    /// A family of the present catalog, until the next one comes; null for an unknown name.
    const FontFamilyRecord *family(const QString &name) const;
    /// Families that belong together under another name. Nothing fills it.
    const QHash<QString, QString> &superFamilyMap() const { return m_superFamilyMap; }
    /// As it was found last; nothing while that is being worked out (which for the first screen it
    /// has been), and for a family that the user cannot switch.
    std::optional<FontFamilyActivation> activation(const FontFamilyRecord &family) const;

    // The watched folders

    /// In the user's order. A folder that is away stays.
    const std::vector<WatchedFolder> &watchedFolders() const { return m_watchedFolders; }
    /// Adds folders, by whatever path, that are not in the list yet, and scans. Folders are looked
    /// at on a worker; `done` is called when the list is written and the scan has begun.
    void addWatchedFolders(std::vector<FilePath> folders, std::function<void(AddedFolders)> done);
    /// Adds the fonts of folders for this run, and scans.
    void addFoldersForThisRun(const std::vector<FilePath> &folders);
    struct FolderLook
    {
        /// It can be opened.
        bool isThere = false;
        /// The font files below it that the last scan found, also those that are installed as well;
        /// nothing before the first scan.
        std::optional<int> fonts;
        bool operator==(const FolderLook &) const = default;
    };
    /// Looks on a worker at the folders of the list, and gives what it found by their ids; a folder
    /// that does not answer within two seconds counts as not there.
    void lookAtFolders(std::function<void(QHash<QString, FolderLook>)> done);
    /// Takes the folder out of the list and its fonts out of this process, and scans. Fails with
    /// notFound.
    Result<void> removeWatchedFolder(const QString &id);

    // What is shown

    /// The families that the browser shows for selectedSource() and searchQuery(), in the catalog's
    /// order. A source whose record has gone shows all.
    FontFamilySubset visibleFamilies();
    /// How many families of this computer each place holds, as far as it is known.
    const SidebarCounts &counts();
    BrowserSource selectedSource() const { return m_selectedSource; }
    void select(const BrowserSource &source);
    QString searchQuery() const { return m_searchQuery; }
    void setSearchQuery(const QString &text);
    std::optional<QString> selectedFamilyName() const { return m_selectedFamilyName; }
    void selectFamily(const std::optional<QString> &name);
    std::optional<QString> detailFamilyName() const { return m_detailFamilyName; }
    void openDetail(const std::optional<QString> &name);
    bool isCatalogueVisible() const { return m_isCatalogueVisible; }
    void setCatalogueVisible(bool isVisible);
    ViewMode viewMode() const { return m_viewMode; }
    void setViewMode(ViewMode mode);

    // How it is shown. Each source has its own settings, as SourceDisplay says; a setter writes
    // those of the selected source.

    const DisplayValues &display() const { return m_display.values(); }
    /// Values that the program was started with: they win over stored ones and are not stored.
    /// Sizes and weights are clamped as by the setters.
    void setDisplayForThisRun(const SourceDisplaySettings &settings);
    /// While held, changes are shown but not written: a slider gives many values a second, and all
    /// but the last are of no use. Letting go writes, as do another source and the end.
    void setDisplayHeld(bool isHeld);
    /// Back to the defaults; for a collection, to what all other sources share.
    void resetDisplay();
    double browserPointSize() const { return display().browserPointSize; }
    /// Clamped to kMinimumPointSize … kMaximumPointSize; values that are no numbers are refused.
    void setPointSize(double pointSize);
    double browserFontWeight() const { return display().browserFontWeight; }
    /// Clamped to 100 … 900 and rounded; values that are no numbers are refused.
    void setFontWeight(double weight);
    QString sampleText() const { return display().sampleText; }
    void setSampleText(const QString &text);
    ColorMode colorMode() const { return display().colorMode; }
    void setColorMode(ColorMode mode);
    /// As all colours: "#" and six hexadecimal digits; anything else is refused.
    QString customForegroundColorHex() const { return display().customForegroundColorHex; }
    void setCustomForegroundColorHex(const QString &hex);
    QString customBackgroundColorHex() const { return display().customBackgroundColorHex; }
    void setCustomBackgroundColorHex(const QString &hex);
    QString imageForegroundColorHex() const { return display().imageForegroundColorHex; }
    void setImageForegroundColorHex(const QString &hex);
    /// A built-in background image; nothing for none.
    std::optional<QString> backgroundImageID() const { return display().backgroundImageID; }
    void setBackgroundImageID(const std::optional<QString> &id);
    /// A background image of the user's own; nothing for none.
    std::optional<QString> backgroundImageUserFilename() const
    {
        return display().backgroundImageUserFilename;
    }
    void setBackgroundImageUserFilename(const std::optional<QString> &filename);
    /// The bytes of an image file; empty for none.
    void setLogoImageData(const QByteArray &imageData);
    /// Out of reason (not within 0.01 … 20, 0 … 20): refused.
    void setLogoSizeRatio(double ratio);
    void setLogoSpacing(double spacing);
    void setLogoVisible(bool isVisible);

    // The user's organisation. A change that fails (an unknown id, a name that cannot be) changes
    // nothing; its error is fit to be shown. Each can be undone.

    QUndoStack &undoStack() { return m_undoStack; }
    const std::vector<FontCollectionRecord> &collections() const
    {
        return m_organization.organization().collections;
    }
    /// Gives the new collection's id.
    Result<QString> createCollection(const QString &name);
    Result<void> renameCollection(const QString &id, const QString &name);
    Result<void> deleteCollection(const QString &id);
    Result<void> addFamilies(const QString &collectionID, const QStringList &familyNames);
    Result<void> removeFamilies(const QString &collectionID, const QStringList &familyNames);
    /// Into the collection, or out of it when all of them are its members.
    Result<void> toggleFamilies(const QString &collectionID, const QStringList &familyNames);
    bool isMember(const QString &familyName, const QString &collectionID) const
    {
        return m_organization.collectionMemberSet(collectionID).contains(familyName);
    }
    /// Empty for an unknown id.
    const QSet<QString> &collectionMemberSet(const QString &id) const
    {
        return m_organization.collectionMemberSet(id);
    }
    /// `base`, with a number if a collection has that name already.
    QString freeCollectionName(const QString &base) const;

    const std::vector<FontStyleCategoryRecord> &styleCategories() const
    {
        return m_organization.organization().styleCategories;
    }
    const QHash<QString, QString> &styleIDByFamily() const
    {
        return m_organization.styleIDByFamily();
    }
    /// Puts each family into exactly that category, or into none.
    Result<void> setStyle(const QStringList &familyNames, const std::optional<QString> &categoryID);
    /// Gives the new category's id.
    Result<QString> createStyleCategory(const QString &name);
    Result<void> renameStyleCategory(const QString &id, const QString &name);
    Result<void> deleteStyleCategory(const QString &id);

    /// With the user's corrections, without those that the user hid.
    const std::vector<FoundryCollectionRecord> &foundryCollections() const
    {
        return m_organization.foundryCollections();
    }
    const std::vector<FoundryCollectionRecord> &dismissedFoundries() const
    {
        return m_organization.dismissedFoundries();
    }
    const QSet<QString> &dismissedFoundryIDs() const
    {
        return m_organization.organization().foundries.dismissed;
    }
    const QHash<QString, QString> &foundryIDByFamily() const
    {
        return m_organization.foundryIDByFamily();
    }
    /// An empty id: of no foundry.
    Result<void> setFoundry(const QStringList &familyNames, const QString &foundryID);
    /// Back to the foundry that the fonts name.
    Result<void> resetFoundry(const QStringList &familyNames);
    /// Nothing brings the fonts' own name back.
    Result<void> renameFoundry(const QString &id, const std::optional<QString> &name);
    Result<void> dismissFoundry(const QString &id);
    Result<void> bringBackFoundry(const QString &id);

    const QSet<QString> &collapsedGroups() const { return m_collapsedGroups; }
    void toggleGroupCollapsed(const QString &group);
    bool hasSeenQuizIntro() const;
    void setHasSeenQuizIntro();
    bool hidesQuizPromoInSidebar() const { return m_hidesQuizPromoInSidebar; }
    void hideQuizPromoInSidebar();

    qint64 catalogGeneration() const { return m_catalogGeneration; }
    qint64 activationGeneration() const { return m_activationGeneration; }
    qint64 membershipGeneration() const { return m_membershipGeneration; }

Q_SIGNALS:
    /// How far the running scan is.
    void scanProgressed(const FontScanPhase &phase);

private:
    void showSnapshot(qint64 generation);
    void indexSnapshot();
    void scan(qint64 generation);
    void applyCatalog(FontCatalogResult result);
    void finishLoad(const Catalog &catalog);
    void endLoad();
    QSet<QString> familyNames() const;
    void answerLoadWaiters(bool isCancelled);
    void reconcileCatalog();
    bool readWatchedFolders();
    std::vector<FilePath> foldersToScan() const;
    AddedFolders addResolved(const std::vector<FilePath> &order,
                             const std::map<FilePath, Result<FilePath>> &resolved);
    void installCatalog(Catalog catalog);
    void finishClassification(const Catalog &catalog);
    void saveSnapshot();
    void activationMayHaveChanged();
    void refreshActivations();

    void validateSelection();
    LibraryView libraryView() const;
    void updateDisplay(std::function<void(SourceDisplaySettings &)> change);
    bool flag(const QString &key) const;
    void setFlag(const QString &key);
    Result<void> changeOrganization(const QString &commandName, LibraryOrganization::Change change);
    OrganizationEdit applyEdit(const OrganizationEdit &edit);
    void membershipChanged();
    void readSidebar();
    void takeChangesElsewhere();
    void changed();

    std::unique_ptr<FontLibraryService> m_fontLibraryService;
    std::unique_ptr<ActivationProvider> m_installationService;
    std::unique_ptr<WatchedFolderProvider> m_givenFolders;
    std::unique_ptr<CatalogCache> m_catalogCache;
    const std::shared_ptr<FontRegistrar> m_fontRegistrar;
    /// Null: changes in folders are not noticed.
    std::unique_ptr<LibraryWatcher> m_libraryWatcher;
    PreferenceStore &m_preferences;
    CollectionStore m_collectionStore;
    StyleStore m_styleStore;
    DisplaySettingsStore m_displaySettingsStore;
    FoundryStore m_foundryStore;
    OrganizationStore m_organizationStore;
    WatchedFolderStore m_watchedFolderStore;
    QThreadPool m_pool;
    /// For what nobody waits for.
    QThreadPool m_quietPool;
    /// For looks at folders that may hang.
    QThreadPool m_folderPool;
    /// A child; made when first asked.
    FolderLooks *m_folderLooks = nullptr;

    /// Never null.
    Catalog m_catalog;
    /// Null while they are being worked out.
    std::shared_ptr<const LibraryIndex> m_index;
    std::shared_ptr<const FamilyActivations> m_activations;
    /// The snapshot file was looked at: once in a process.
    bool m_snapshotWasRead = false;
    /// The snapshot file holds m_catalog, or is being made to.
    bool m_snapshotIsCurrent = false;
    bool m_isLoading = false;
    bool m_hasCancelledLoad = false;
    /// Its result is installed, but for which families are switched on.
    bool m_loadAwaitsActivations = false;
    /// Something has changed that it may not have seen.
    bool m_loadIsOutdated = false;
    std::chrono::system_clock::time_point m_scanBegan{};
    QString m_loadingText;
    /// Who waits for the end of the next load, and which families they know.
    struct LoadWaiter
    {
        QSet<QString> known;
        std::function<void(std::optional<int>)> done;
    };
    std::vector<LoadWaiter> m_loadWaiters;
    qint64 m_loadGeneration = 0;
    qint64 m_catalogGeneration = 0;
    qint64 m_activationGeneration = 0;
    qint64 m_membershipGeneration = 0;
    qint64 m_activationRun = 0;
    QTimer m_catalogReconcileTask;

    std::vector<WatchedFolder> m_watchedFolders;
    std::vector<FilePath> m_foldersForThisRun;
    LibraryOrganization m_organization;
    QUndoStack m_undoStack;
    QHash<QString, QString> m_superFamilyMap;
    QSet<QString> m_collapsedGroups;
    bool m_hidesQuizPromoInSidebar = false;
    VisibleFamilies m_visibleFamilies;
    LibraryCounts m_counts;

    BrowserSource m_selectedSource;
    QString m_searchQuery;
    std::optional<QString> m_selectedFamilyName;
    std::optional<QString> m_detailFamilyName;
    bool m_isCatalogueVisible = false;
    ViewMode m_viewMode = ViewMode::grid;
    SourceDisplay m_display;
};

} // namespace lorva
