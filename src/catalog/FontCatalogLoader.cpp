// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontCatalogLoader.h"

#include "catalog/FaceReading.h"
#include "catalog/FamilyAccumulator.h"
#include "catalog/TaskGroup.h"

#include <QLoggingCategory>

#include <thread>

namespace lorva {

namespace {

Q_LOGGING_CATEGORY(logScan, "lorva.catalog.scan", QtWarningMsg)

constexpr size_t kBatchSize = 16;
/// No file has this size: faces kept under it are never taken for up to date.
constexpr qint64 kNoFingerprint = -1;

FileFingerprint fingerprintOf(const ParsedFontFile &file)
{
    return {file.fileSize, file.modified};
}

} // namespace

/// What the steps of one scan share.
struct FontCatalogLoader::Scan
{
    const std::vector<FilePath> &watchedFontURLs;
    const ProgressCallback &progress;
    std::stop_token stop;

    void report(const FontScanPhase &phase) const
    {
        if (progress)
            progress(phase);
    }
};

int scanWorkerCount()
{
    return std::min(std::max(int(std::thread::hardware_concurrency()) - 1, 2), 12);
}

FontCatalogLoader::FontCatalogLoader(Dependencies dependencies)
    : m_dependencies(std::move(dependencies))
{
}

std::optional<FontCatalogResult> FontCatalogLoader::scan(
    const std::vector<FilePath> &watchedFontURLs, const ProgressCallback &progress,
    std::stop_token stop)
{
    const std::lock_guard lock(m_scanning);
    const Scan scan{watchedFontURLs, progress, std::move(stop)};
    const std::vector<FilePath> files = enumerateFiles(scan);
    if (scan.stop.stop_requested())
        return std::nullopt;
    readFiles(staleFiles(files), scan);
    if (!scan.stop.stop_requested())
        identifyFamilies(files, scan);
    if (scan.stop.stop_requested())
        return std::nullopt;
    pruneCaches(files);
    scan.report(FontScanPhase::preparing());

    FontCatalogResult result;
    result.families = groupFamilies(files);
    result.manufacturers = m_manufacturerCache;
    result.watchedFontURLs = QSet<FilePath>(watchedFontURLs.begin(), watchedFontURLs.end());
    qCInfo(logScan) << files.size() << "files," << result.families.size() << "families";
    return result;
}

std::vector<FilePath> FontCatalogLoader::enumerateFiles(const Scan &scan) const
{
    scan.report(FontScanPhase::enumerating(0));
    const auto found = [&](int count) { scan.report(FontScanPhase::enumerating(count)); };
    std::vector<FilePath> files = m_dependencies.availableFonts->fontFiles(found, scan.stop);
    QSet<FilePath> known(files.begin(), files.end());
    for (const FilePath &file : scan.watchedFontURLs) {
        const qsizetype before = known.size();
        known.insert(file);
        if (known.size() != before)
            files.push_back(file);
    }
    return files;
}

std::vector<FontCatalogLoader::StaleFile> FontCatalogLoader::staleFiles(
    std::span<const FilePath> files) const
{
    std::vector<StaleFile> stale;
    for (const FilePath &file : files) {
        // Taken before the file is read: when it changes in between, the next scan reads it again.
        const std::optional<FileFingerprint> current = lorva::fingerprintOf(file);
        const auto cached = m_fileCache.constFind(file);
        if (!current || cached == m_fileCache.cend() || fingerprintOf(*cached) != *current)
            stale.push_back({file, current});
    }
    return stale;
}

void FontCatalogLoader::readFiles(std::span<const StaleFile> stale, const Scan &scan)
{
    using Batch = std::vector<FaceReading>;
    const size_t batches = (stale.size() + kBatchSize - 1) / kBatchSize;
    const auto filesOf = [&](size_t batch) {
        return stale.subspan(batch * kBatchSize,
                             std::min(kBatchSize, stale.size() - batch * kBatchSize));
    };
    const auto readBatch = [&](size_t batch) {
        Batch readings;
        for (const StaleFile &file : filesOf(batch))
            readings.push_back(readFaces(file.path));
        return readings;
    };
    std::vector<FaceReading> readings(stale.size());
    int done = 0;
    const auto merge = [&](size_t batch, Batch output) {
        for (size_t i = 0; i < output.size(); ++i) {
            const size_t file = batch * kBatchSize + i;
            readings[file].manufacturers = std::move(output[i].manufacturers);
            keepReading(stale[file], std::move(output[i]));
        }
        done += int(output.size());
        scan.report(FontScanPhase::scanning(done, int(stale.size())));
    };
    if (runTaskGroup<Batch>(batches, m_dependencies.workers, scan.stop, readBatch, merge))
        keepManufacturers(readings);
}

void FontCatalogLoader::keepReading(const StaleFile &file, FaceReading reading)
{
    const bool isLasting = file.fingerprint && reading.isLasting;
    const FileFingerprint fingerprint =
        isLasting ? *file.fingerprint : FileFingerprint{kNoFingerprint, 0};
    m_fileCache[file.path] =
        ParsedFontFile{fingerprint.fileSize, fingerprint.modified, std::move(reading.entries)};
}

/// In file order, so that the first file of a family decides however the threads were timed.
void FontCatalogLoader::keepManufacturers(std::span<const FaceReading> readings)
{
    for (const FaceReading &reading : readings) {
        for (const auto &[family, manufacturer] : reading.manufacturers) {
            if (!m_manufacturerCache.contains(family))
                m_manufacturerCache.insert(family, manufacturer);
        }
    }
}

std::vector<FontCatalogLoader::UnidentifiedFile> FontCatalogLoader::unidentifiedFiles(
    std::span<const FilePath> files) const
{
    std::vector<UnidentifiedFile> unidentified;
    QSet<QString> met;
    for (const FilePath &file : files) {
        std::vector<QString> families;
        const auto cached = m_fileCache.constFind(file);
        if (cached == m_fileCache.cend())
            continue;
        for (const ParsedEntry &entry : cached->entries) {
            if (met.contains(entry.familyName) || m_identityCache.contains(entry.familyName))
                continue;
            met.insert(entry.familyName);
            families.push_back(entry.familyName);
        }
        if (!families.empty())
            unidentified.push_back({file, std::move(families)});
    }
    return unidentified;
}

void FontCatalogLoader::identifyFamilies(std::span<const FilePath> files, const Scan &scan)
{
    if (!m_dependencies.identifier)
        return;
    using Found = std::vector<FamilyIdentification>;
    const std::vector<UnidentifiedFile> unidentified = unidentifiedFiles(files);
    size_t total = 0;
    for (const UnidentifiedFile &file : unidentified)
        total += file.families.size();

    const auto identify = [&](size_t task) {
        return m_dependencies.identifier->identify(unidentified[task].path,
                                                   unidentified[task].families.front());
    };
    size_t done = 0;
    const auto merge = [&](size_t task, const Found &found) {
        const std::vector<QString> &wanted = unidentified[task].families;
        for (const FamilyIdentification &each : found) {
            // A family that this file holds too, but that another file stands for.
            if (std::find(wanted.begin(), wanted.end(), each.familyName) == wanted.end())
                continue;
            m_identityCache.insert(each.familyName, each.identity);
            if (!each.manufacturer.isEmpty())
                m_manufacturerCache.insert(each.familyName, each.manufacturer);
        }
        done += wanted.size();
        scan.report(FontScanPhase::identifying(int(done), int(total)));
    };
    runTaskGroup<Found>(unidentified.size(), m_dependencies.workers, scan.stop, identify, merge);
}

/// Forgets files that are gone, and families that no file holds any more.
void FontCatalogLoader::pruneCaches(std::span<const FilePath> files)
{
    const QSet<FilePath> present(files.begin(), files.end());
    m_fileCache.removeIf([&](const auto &entry) { return !present.contains(entry.key()); });
    QSet<QString> families;
    for (const ParsedFontFile &file : std::as_const(m_fileCache)) {
        for (const ParsedEntry &entry : file.entries)
            families.insert(entry.familyName);
    }
    const auto isGone = [&](const auto &entry) { return !families.contains(entry.key()); };
    m_manufacturerCache.removeIf(isGone);
    m_identityCache.removeIf(isGone);
}

std::vector<FontFamilyRecord> FontCatalogLoader::groupFamilies(
    std::span<const FilePath> files) const
{
    FamilyGrouping grouping;
    for (const FilePath &file : files) {
        const auto cached = m_fileCache.constFind(file);
        if (cached != m_fileCache.cend())
            grouping.add(cached->entries);
    }
    return grouping.take(m_identityCache);
}

} // namespace lorva
