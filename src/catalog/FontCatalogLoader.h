// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CacheSaver.h"
#include "catalog/CatalogTypes.h"
#include "catalog/FamilyIdentification.h"
#include "catalog/FileFingerprint.h"
#include "catalog/ScanReport.h"
#include "platform/AvailableFonts.h"

#include <QHash>

#include <memory>
#include <mutex>
#include <optional>
#include <span>
#include <stop_token>

namespace lorva {

struct FaceReading;

/// min(max(active processors − 1, 2), 12): how many threads read files at once.
int scanWorkerCount();

/// Builds the catalog: finds the font files, reads those that changed, groups their faces into
/// families.
///
/// Owns: the faces of every file with the file's fingerprint, and what identification found out, so
/// that a later scan reads only what changed. These caches outlive the process in a file: the first
/// scan begins by reading it, and a scan that changed them has it written in the background; the
/// destructor waits for that. Thread: any, never the main thread for a real library; scans run one
/// after another, and the caches belong to the one that runs. Files are read on at most
/// scanWorkerCount() threads beside it, each opened once. Always true: a scan's result depends on
/// the files alone, not on how its threads were timed. Failure: a file that cannot be read has no
/// faces; no single file ends a scan; a cache file that cannot be used counts as empty.
class FontCatalogLoader
{
public:
    struct Dependencies
    {
        std::shared_ptr<const AvailableFonts> availableFonts;
        /// Where the caches outlive the process; empty: nowhere.
        FilePath cacheFileURL = {};
        /// False for a visitor: the file is read but left as it is.
        bool savesCache = true;
        int workers = scanWorkerCount();
    };
    /// Thread: the scan's.
    using ProgressCallback = std::function<void(const FontScanPhase &)>;

    explicit FontCatalogLoader(Dependencies dependencies);
    ~FontCatalogLoader();

    /// Scans the available fonts and then `watchedFontURLs`, in these orders. Nothing when `stop`
    /// was requested; what was read until then is kept for the next scan.
    std::optional<FontCatalogResult> scan(const std::vector<FilePath> &watchedFontURLs,
                                          const ProgressCallback &progress,
                                          std::stop_token stop = {});

    /// Of the scan that ended last. Waits for one that runs.
    ScanReport lastScan() const;
    /// Returns when the caches of the scans so far are written, or why they are not.
    Result<void> finishSaving();

private:
    struct StaleFile
    {
        FilePath path;
        std::optional<FileFingerprint> fingerprint;
        /// Its place among all files of the scan.
        size_t place = 0;
    };
    /// A file of the scan and what the cache holds of it, looked up once: with 64,000 files, four
    /// look-ups of each were an eighth of a scan that found nothing new.
    using ParsedFile = std::pair<const FilePath *, const ParsedFontFile *>;
    /// A file to identify and the families that are judged by it.
    struct UnidentifiedFile
    {
        FilePath path;
        std::vector<QString> families;
    };
    /// What reading the stale files told about new families, by file.
    using Identifications = QHash<FilePath, std::vector<FamilyIdentification>>;
    struct Scan;

    void loadPersistedCache(Scan &scan);
    std::vector<FilePath> enumerateFiles(Scan &scan) const;
    std::vector<StaleFile> staleFiles(std::span<const FilePath> files, Scan &scan) const;
    void forgetIdentities(std::span<const StaleFile> stale);
    Identifications readFiles(std::span<const StaleFile> stale, Scan &scan);
    void keepReading(const StaleFile &file, FaceReading reading);
    void keepManufacturers(std::span<const FaceReading> readings);
    std::vector<ParsedFile> parsedFiles(std::span<const FilePath> files) const;
    std::vector<UnidentifiedFile> unidentifiedFiles(std::span<const ParsedFile> files) const;
    void identifyFamilies(std::span<const ParsedFile> files, Identifications known, Scan &scan);
    int keepIdentities(std::span<const QString> families,
                       std::span<const FamilyIdentification> found);
    void pruneCaches(std::span<const ParsedFile> files,
                     const std::vector<FontFamilyRecord> &families);
    FontCatalogResult makeResult(std::span<const ParsedFile> parsed, Scan &scan);
    std::vector<FontFamilyRecord> groupFamilies(std::span<const ParsedFile> files) const;
    void scheduleSave();

    const Dependencies m_dependencies;
    mutable std::mutex m_scanning;
    QHash<FilePath, ParsedFontFile> m_fileCache;
    QHash<QString, QString> m_manufacturerCache;
    QHash<QString, FamilyScriptIdentity> m_identityCache;
    /// The file was looked at, with whatever outcome: once in a process.
    bool m_persistedCacheLoaded = false;
    /// The caches hold what the file does not.
    bool m_cacheDirty = false;
    ScanReport m_report;
    /// Null when nothing is saved.
    const std::unique_ptr<CacheSaver> m_saver;
};

} // namespace lorva
