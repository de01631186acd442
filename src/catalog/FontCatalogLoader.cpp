// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontCatalogLoader.h"

#include "base/Trace.h"
#include "catalog/FaceReading.h"
#include "catalog/FamilyAccumulator.h"
#include "catalog/FamilyClaims.h"
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

std::unique_ptr<CacheSaver> makeSaver(const FontCatalogLoader::Dependencies &dependencies)
{
    if (dependencies.cacheFileURL.isEmpty() || !dependencies.savesCache)
        return nullptr;
    return std::make_unique<CacheSaver>(dependencies.cacheFileURL);
}

/// Adds the time of its life to one of a report's.
class PhaseClock
{
public:
    PhaseClock(const char *name, ScanReport::Duration &total)
        : m_stage(name)
        , m_total(total)
    {
    }
    ~PhaseClock() { m_total += std::chrono::steady_clock::now() - m_start; }
    Q_DISABLE_COPY_MOVE(PhaseClock)

private:
    const TraceStage m_stage;
    ScanReport::Duration &m_total;
    const std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

} // namespace

/// What the steps of one scan share.
struct FontCatalogLoader::Scan
{
    const std::vector<FilePath> &watchedFontURLs;
    const ProgressCallback &progress;
    std::stop_token stop;
    ScanReport done = {};

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
    , m_saver(makeSaver(m_dependencies))
{
}

FontCatalogLoader::~FontCatalogLoader() = default;

std::optional<FontCatalogResult> FontCatalogLoader::scan(
    const std::vector<FilePath> &watchedFontURLs, const ProgressCallback &progress,
    std::stop_token stop)
{
    const std::lock_guard lock(m_scanning);
    Scan scan{watchedFontURLs, progress, std::move(stop)};
    loadPersistedCache(scan);
    const std::vector<FilePath> files = enumerateFiles(scan);
    const std::vector<StaleFile> stale = staleFiles(files, scan);
    forgetIdentities(stale);
    Identifications identifications = readFiles(stale, scan);
    // They point into the file cache, which nothing but pruning changes from here on.
    const std::vector<ParsedFile> parsed = parsedFiles(files);
    identifyFamilies(parsed, std::move(identifications), scan);
    if (scan.stop.stop_requested()) {
        // What was read so far need not be read again, not even by the next process.
        scheduleSave();
        return std::nullopt;
    }
    FontCatalogResult result = makeResult(parsed, scan);
    scan.done.filesFound = int(files.size());
    scan.done.filesRead = int(stale.size());
    scan.done.filesReused = int(files.size() - stale.size());
    m_report = scan.done;
    qCInfo(logScan) << files.size() << "files," << stale.size() << "read," << result.families.size()
                    << "families";
    return result;
}

FontCatalogResult FontCatalogLoader::makeResult(std::span<const ParsedFile> parsed, Scan &scan)
{
    const PhaseClock clock("scan: preparing", scan.done.preparing);
    scan.report(FontScanPhase::preparing());
    FontCatalogResult result;
    result.families = groupFamilies(parsed);
    pruneCaches(parsed, result.families);
    scheduleSave();
    result.manufacturers = m_manufacturerCache;
    result.watchedFontURLs =
        QSet<FilePath>(scan.watchedFontURLs.begin(), scan.watchedFontURLs.end());
    return result;
}

ScanReport FontCatalogLoader::lastScan() const
{
    const std::lock_guard lock(m_scanning);
    return m_report;
}

Result<void> FontCatalogLoader::finishSaving()
{
    return m_saver ? m_saver->finish() : Result<void>();
}

void FontCatalogLoader::loadPersistedCache(Scan &scan)
{
    const PhaseClock clock("scan: caches", scan.done.readingCache);
    if (std::exchange(m_persistedCacheLoaded, true) || m_dependencies.cacheFileURL.isEmpty())
        return;
    auto cache = readPersistedCache(m_dependencies.cacheFileURL);
    if (!cache) {
        qCInfo(logScan).noquote() << "no parse cache:" << cache.error().detail;
        return;
    }
    m_fileCache = std::move(cache->files);
    m_manufacturerCache = std::move(cache->manufacturers);
    m_identityCache = std::move(cache->identities);
}

std::vector<FilePath> FontCatalogLoader::enumerateFiles(Scan &scan) const
{
    const PhaseClock clock("scan: finding files", scan.done.enumerating);
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
    std::span<const FilePath> files, Scan &scan) const
{
    const PhaseClock clock("scan: looking for changes", scan.done.enumerating);
    std::vector<StaleFile> stale;
    for (size_t place = 0; place < files.size() && !scan.stop.stop_requested(); ++place) {
        const FilePath &file = files[place];
        // Taken before the file is read: when it changes in between, the next scan reads it again.
        const std::optional<FileFingerprint> current = lorva::fingerprintOf(file);
        const auto cached = m_fileCache.constFind(file);
        if (!current || cached == m_fileCache.cend() || fingerprintOf(*cached) != *current)
            stale.push_back({file, current, place});
    }
    return stale;
}

/// A file that was read before and has changed since may serve other scripts now: a newer version,
/// or the rest of a file that was still being copied. Its families are new ones then.
void FontCatalogLoader::forgetIdentities(std::span<const StaleFile> stale)
{
    for (const StaleFile &file : stale) {
        const auto cached = m_fileCache.constFind(file.path);
        if (cached == m_fileCache.cend())
            continue;
        for (const ParsedEntry &entry : cached->entries)
            m_cacheDirty = m_identityCache.remove(entry.familyName) > 0 || m_cacheDirty;
    }
}

FontCatalogLoader::Identifications FontCatalogLoader::readFiles(std::span<const StaleFile> stale,
                                                                Scan &scan)
{
    const PhaseClock clock("scan: scanning", scan.done.scanning);
    using Batch = std::vector<FaceReading>;
    const size_t batches = (stale.size() + kBatchSize - 1) / kBatchSize;
    const auto filesOf = [&](size_t batch) {
        return stale.subspan(batch * kBatchSize,
                             std::min(kBatchSize, stale.size() - batch * kBatchSize));
    };
    FamilyClaims claims(m_identityCache);
    const auto readBatch = [&](size_t batch) {
        Batch readings;
        for (const StaleFile &file : filesOf(batch)) {
            const auto isNewFamily = [&](const QString &familyName) {
                return claims.claim(familyName, file.place);
            };
            readings.push_back(readFaces(file.path, isNewFamily));
        }
        return readings;
    };
    Identifications identifications;
    std::vector<FaceReading> readings(stale.size());
    std::vector<bool> isRead(batches);
    int done = 0;
    const auto merge = [&](size_t batch, Batch output) {
        isRead[batch] = true;
        for (size_t i = 0; i < output.size(); ++i) {
            const size_t file = batch * kBatchSize + i;
            readings[file].manufacturers = std::move(output[i].manufacturers);
            if (!output[i].identifications.empty())
                identifications[stale[file].path] = std::move(output[i].identifications);
            keepReading(stale[file], std::move(output[i]));
        }
        done += int(output.size());
        scan.report(FontScanPhase::scanning(done, int(stale.size())));
    };
    runTaskGroup<Batch>(batches, m_dependencies.workers, scan.stop, readBatch, merge);
    // Of a cancelled scan only what no unread file comes before.
    const auto unread = std::find(isRead.begin(), isRead.end(), false) - isRead.begin();
    keepManufacturers(
        std::span(readings).first(std::min(size_t(unread) * kBatchSize, readings.size())));
    return identifications;
}

void FontCatalogLoader::keepReading(const StaleFile &file, FaceReading reading)
{
    const bool isLasting = file.fingerprint && reading.isLasting;
    const FileFingerprint fingerprint =
        isLasting ? *file.fingerprint : FileFingerprint{kNoFingerprint, 0};
    const auto known = m_fileCache.constFind(file.path);
    const bool wasLasting = known != m_fileCache.cend() && known->fileSize != kNoFingerprint;
    // What is never written must not have the rest written anew after each scan.
    if ((isLasting || wasLasting) && file.path.isUtf8())
        m_cacheDirty = true;
    m_fileCache[file.path] =
        ParsedFontFile{fingerprint.fileSize, fingerprint.modified, std::move(reading.entries)};
}

/// In file order, so that the first file of a family that names one decides, however the threads
/// were timed.
void FontCatalogLoader::keepManufacturers(std::span<const FaceReading> readings)
{
    for (const FaceReading &reading : readings) {
        for (const auto &[family, manufacturer] : reading.manufacturers) {
            if (m_manufacturerCache.contains(family))
                continue;
            m_manufacturerCache.insert(family, manufacturer);
            m_cacheDirty = true;
        }
    }
}

/// In the order of the files; those that a cancelled scan has not come to are left out.
std::vector<FontCatalogLoader::ParsedFile> FontCatalogLoader::parsedFiles(
    std::span<const FilePath> files) const
{
    std::vector<ParsedFile> parsed;
    parsed.reserve(files.size());
    for (const FilePath &file : files) {
        const auto cached = m_fileCache.constFind(file);
        if (cached != m_fileCache.cend())
            parsed.emplace_back(&file, &*cached);
    }
    return parsed;
}

std::vector<FontCatalogLoader::UnidentifiedFile> FontCatalogLoader::unidentifiedFiles(
    std::span<const ParsedFile> files) const
{
    std::vector<UnidentifiedFile> unidentified;
    QSet<QString> met;
    const QString *last = nullptr;
    for (const auto &[file, parsed] : files) {
        std::vector<QString> families;
        for (const ParsedEntry &entry : parsed->entries) {
            // Most faces come right after one of their family.
            if (last && *last == entry.familyName)
                continue;
            last = &entry.familyName;
            if (m_identityCache.contains(entry.familyName) || met.contains(entry.familyName))
                continue;
            met.insert(entry.familyName);
            families.push_back(entry.familyName);
        }
        if (!families.empty())
            unidentified.push_back({*file, std::move(families)});
    }
    return unidentified;
}

void FontCatalogLoader::identifyFamilies(std::span<const ParsedFile> files, Identifications known,
                                         Scan &scan)
{
    const PhaseClock clock("scan: identifying", scan.done.identifying);
    using Found = std::vector<FamilyIdentification>;
    if (scan.stop.stop_requested())
        return;
    std::vector<UnidentifiedFile> unidentified = unidentifiedFiles(files);
    size_t total = 0;
    size_t done = 0;
    for (const UnidentifiedFile &file : unidentified)
        total += file.families.size();
    const auto take = [&](const UnidentifiedFile &file, const Found &found) {
        scan.done.familiesIdentified += keepIdentities(file.families, found);
        done += file.families.size();
    };
    std::erase_if(unidentified, [&](const UnidentifiedFile &file) {
        const auto found = known.constFind(file.path);
        if (found == known.cend())
            return false;
        take(file, *found);
        return true;
    });
    if (done > 0)
        scan.report(FontScanPhase::identifying(int(done), int(total)));

    const auto identify = [&](size_t task) { return identifyFile(unidentified[task].path); };
    const auto merge = [&](size_t task, const Found &found) {
        take(unidentified[task], found);
        scan.report(FontScanPhase::identifying(int(done), int(total)));
    };
    runTaskGroup<Found>(unidentified.size(), m_dependencies.workers, scan.stop, identify, merge);
}

/// Of what a file told about its families, that about those it stands for; how many that are.
int FontCatalogLoader::keepIdentities(std::span<const QString> families,
                                      std::span<const FamilyIdentification> found)
{
    int kept = 0;
    for (const FamilyIdentification &each : found) {
        if (std::ranges::find(families, each.familyName) == families.end())
            continue;
        m_identityCache.insert(each.familyName, each.identity);
        if (!each.manufacturer.isEmpty())
            m_manufacturerCache.insert(each.familyName, each.manufacturer);
        m_cacheDirty = true;
        ++kept;
    }
    return kept;
}

/// Forgets files that are gone, and families that no file holds any more.
void FontCatalogLoader::pruneCaches(std::span<const ParsedFile> files,
                                    const std::vector<FontFamilyRecord> &families)
{
    qsizetype removed = 0;
    // The files of a scan differ, so that as many in the cache are the same.
    if (m_fileCache.size() != qsizetype(files.size())) {
        QSet<FilePath> present;
        for (const auto &[file, parsed] : files)
            present.insert(*file);
        // What another process scans, or this one with its next folders, need not be read again.
        removed += m_fileCache.removeIf([&](const auto &entry) {
            return !present.contains(entry.key()) && !lorva::fingerprintOf(entry.key());
        });
    }
    QSet<QString> names;
    names.reserve(qsizetype(families.size()));
    for (const FontFamilyRecord &family : families)
        names.insert(family.familyName);
    const auto isGone = [&](const auto &entry) { return !names.contains(entry.key()); };
    removed += m_manufacturerCache.removeIf(isGone);
    removed += m_identityCache.removeIf(isGone);
    if (removed > 0)
        m_cacheDirty = true;
}

void FontCatalogLoader::scheduleSave()
{
    if (!m_saver || !(m_cacheDirty || m_saver->hasFailed()))
        return;
    m_saver->save({m_fileCache, m_manufacturerCache, m_identityCache});
    m_cacheDirty = false;
}

std::vector<FontFamilyRecord> FontCatalogLoader::groupFamilies(
    std::span<const ParsedFile> files) const
{
    FamilyGrouping grouping;
    for (const auto &[file, parsed] : files)
        grouping.add(parsed->entries);
    return grouping.take(m_identityCache);
}

} // namespace lorva
