// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/WholeFile.h"
#include "catalog/CatalogCache.h"
#include "cli/Library.h"
#include "cli/ReportSections.h"
#include "install/WatchedFontRegistrar.h"
#include "model/records/Activation.h"
#include "model/records/RecordsJson.h"
#include "platform/PreferenceFilesAside.h"

#include <algorithm>
#include <map>
#include <optional>

#include <sys/stat.h>

namespace lorva::cli {

namespace {

using Clock = std::chrono::steady_clock;
using Entries = std::vector<ReportEntry>;

constexpr qint64 kMostSnapshotBytes = qint64(1) << 30;

/// Nothing for a file that is not there.
ReportValue sizeOf(const FilePath &file)
{
    struct stat info = {};
    return ::stat(file.c_str(), &info) == 0 ? ReportValue(qint64(info.st_size))
                                            : ReportValue(NothingThere{});
}

std::optional<PreferenceValue> stored(const PreferenceLook &preferences, const char *key)
{
    if (!preferences.rows)
        return std::nullopt;
    const auto row = preferences.rows->find(QLatin1String(key));
    return row == preferences.rows->end() ? std::nullopt : preferenceOfRow(row->second);
}

/// How many families were switched on by each method.
std::map<InstallMethod, qint64> familiesByMethod(const PreferenceLook &preferences)
{
    std::map<InstallMethod, qint64> counts;
    const auto value = stored(preferences, "vantrel.merid.fontInstallations");
    const auto *const json = value ? std::get_if<QByteArray>(&*value) : nullptr;
    const auto methods =
        json ? decodeJson<std::map<QString, QString>>(*json) : std::map<QString, QString>();
    for (const auto &[family, name] : methods.value_or(std::map<QString, QString>())) {
        if (const auto method = installMethodFromName(name))
            ++counts[*method];
    }
    return counts;
}

template <class T>
qint64 entriesOf(const PreferenceLook &preferences, const char *key)
{
    const auto value = stored(preferences, key);
    const T *const held = value ? std::get_if<T>(&*value) : nullptr;
    return held ? qint64(held->size()) : 0;
}

struct Library
{
    qint64 watchedFolders = 0;
    qint64 filesInWatchedFolders = 0;
    qint64 families = 0;
    qint64 faces = 0;
    ScanReport scan;
    Clock::duration total{};
};

/// The scan saves nothing: a report leaves the machine as it found it.
Library scannedLibrary()
{
    Library library;
    const std::vector<FilePath> folders = withWatchedFolders({}, LookupTrouble::isToldElsewhere);
    FontCatalogLoader loader(machineFonts(CacheUse::readOnly));
    const auto start = Clock::now();
    const std::vector<FilePath> files = WatchedFontRegistrar().fontFiles(folders, {});
    // Never empty: nobody asks this scan to stop.
    const FontCatalogResult result = *loader.scan(files, nullptr);
    library.total = Clock::now() - start;
    library.scan = loader.lastScan();
    library.watchedFolders = qint64(folders.size());
    library.filesInWatchedFolders = qint64(files.size());
    library.families = qint64(result.families.size());
    for (const FontFamilyRecord &family : result.families)
        library.faces += qint64(family.styles.size());
    return library;
}

ReportSection librarySection(const Library &library, const PreferenceLook &preferences)
{
    std::map<InstallMethod, qint64> methods = familiesByMethod(preferences);
    return {"library",
            {{QStringLiteral("families"), library.families},
             {QStringLiteral("faces"), library.faces},
             {QStringLiteral("files"), qint64(library.scan.filesFound)},
             {QStringLiteral("filesNotCached"), qint64(library.scan.filesRead)},
             {QStringLiteral("watchedFolders"), library.watchedFolders},
             {QStringLiteral("filesInWatchedFolders"), library.filesInWatchedFolders},
             {QStringLiteral("familiesCopied"), methods[InstallMethod::copy]},
             {QStringLiteral("familiesRegistered"), methods[InstallMethod::registerInPlace]},
             {QStringLiteral("filesRegistered"),
              entriesOf<QStringList>(preferences, "vantrel.merid.lorvaRegisteredURLs")},
             {QStringLiteral("filesCopied"),
              entriesOf<QHash<QString, QString>>(preferences, "vantrel.merid.fontOrigins")}}};
}

ReportSection filesSection(const PlatformFolders &folders, const PreferenceLook &preferences)
{
    return {"filesInBytes",
            {{QStringLiteral("preferences"), sizeOf(preferences.file)},
             {QStringLiteral("damagedPreferencesKept"),
              qint64(preferencesAside(preferences.file).size())},
             {QStringLiteral("parseCache"), sizeOf(folders.parseCache())},
             {QStringLiteral("catalog"), sizeOf(folders.catalogSnapshot())},
             {QStringLiteral("activationHistory"), sizeOf(folders.activationHistory())}}};
}

/// Nothing where there is none to read.
ReportValue timeOfSnapshot(const FilePath &file)
{
    const auto start = Clock::now();
    const Result<CatalogSnapshot> snapshot =
        readWholeFile(file, kMostSnapshotBytes).and_then(decodeSnapshot);
    return snapshot ? ReportValue(Clock::now() - start) : ReportValue(NothingThere{});
}

ReportSection timeSection(ReportDuration preferences, const FilePath &snapshot,
                          const Library &library)
{
    const ScanReport &scan = library.scan;
    return {"times",
            {{QStringLiteral("readPreferences"), preferences},
             {QStringLiteral("readCatalog"), timeOfSnapshot(snapshot)},
             {QStringLiteral("readParseCache"), scan.readingCache},
             {QStringLiteral("findFiles"), scan.enumerating},
             {QStringLiteral("readFaces"), scan.scanning},
             {QStringLiteral("identifyFamilies"), scan.identifying},
             {QStringLiteral("groupFamilies"), scan.preparing},
             {QStringLiteral("scanInAll"), library.total}}};
}

} // namespace

std::vector<ReportSection> librarySections(const Examined &examined,
                                           ReportDuration readingPreferences)
{
    const Library library = scannedLibrary();
    return {librarySection(library, examined.preferences),
            filesSection(examined.folders, examined.preferences),
            timeSection(readingPreferences, examined.folders.catalogSnapshot(), library)};
}

ReportSection doctorSection(Examined &examined)
{
    Entries entries;
    bool isWell = true;
    const auto add = [&](const DoctorCheck &check, const char *what, qint64 count) {
        const QLatin1String name(check.name.data(), qsizetype(check.name.size()));
        if (count > 0)
            entries.push_back({QString(name + QLatin1String(what)), count});
    };
    for (const DoctorCheck &check : doctorChecks()) {
        Findings found;
        check.run(examined, found);
        const auto count = [&found](Finding::State state) {
            return qint64(std::count_if(found.begin(), found.end(), [state](const Finding &each) {
                return each.state == state;
            }));
        };
        add(check, "Wrong", count(Finding::State::wrong));
        add(check, "Notes", count(Finding::State::note));
        isWell = isWell && count(Finding::State::wrong) == 0;
    }
    entries.insert(entries.begin(), {QStringLiteral("isWell"), isWell});
    return {"doctor", std::move(entries)};
}

} // namespace lorva::cli
