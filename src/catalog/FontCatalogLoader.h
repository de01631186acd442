// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "catalog/FamilyIdentifier.h"
#include "catalog/FileFingerprint.h"
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
/// that a later scan reads only what changed. Thread: any, never the main thread for a real
/// library; scans run one after another, and the caches belong to the one that runs. Files are read
/// on at most scanWorkerCount() threads beside it. Always true: a scan's result depends on the
/// files alone, not on how its threads were timed. Failure: a file that cannot be read has no
/// faces; no single file ends a scan.
class FontCatalogLoader
{
public:
    struct Dependencies
    {
        std::shared_ptr<const AvailableFonts> availableFonts;
        /// May be null: families then stay without scripts and alternate names.
        std::shared_ptr<const FamilyIdentifier> identifier = {};
        int workers = scanWorkerCount();
    };
    /// Thread: the scan's.
    using ProgressCallback = std::function<void(const FontScanPhase &)>;

    explicit FontCatalogLoader(Dependencies dependencies);

    /// Scans the available fonts and then `watchedFontURLs`, in these orders. Nothing when `stop`
    /// was requested; what was read until then is kept for the next scan.
    std::optional<FontCatalogResult> scan(const std::vector<FilePath> &watchedFontURLs,
                                          const ProgressCallback &progress,
                                          std::stop_token stop = {});

private:
    struct StaleFile
    {
        FilePath path;
        std::optional<FileFingerprint> fingerprint;
    };
    /// A file to identify and the families that are judged by it.
    struct UnidentifiedFile
    {
        FilePath path;
        std::vector<QString> families;
    };
    struct Scan;

    std::vector<FilePath> enumerateFiles(const Scan &scan) const;
    std::vector<StaleFile> staleFiles(std::span<const FilePath> files) const;
    void readFiles(std::span<const StaleFile> stale, const Scan &scan);
    void keepReading(const StaleFile &file, FaceReading reading);
    void keepManufacturers(std::span<const FaceReading> readings);
    std::vector<UnidentifiedFile> unidentifiedFiles(std::span<const FilePath> files) const;
    void identifyFamilies(std::span<const FilePath> files, const Scan &scan);
    void pruneCaches(std::span<const FilePath> files);
    std::vector<FontFamilyRecord> groupFamilies(std::span<const FilePath> files) const;

    const Dependencies m_dependencies;
    std::mutex m_scanning;
    QHash<FilePath, ParsedFontFile> m_fileCache;
    QHash<QString, QString> m_manufacturerCache;
    QHash<QString, FamilyScriptIdentity> m_identityCache;
};

} // namespace lorva
