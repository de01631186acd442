// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/DoctorChecks.h"

#include "base/WholeFile.h"
#include "catalog/CatalogCache.h"
#include "catalog/PersistedCache.h"
#include "cli/ActivationChecks.h"
#include "cli/PreferenceKeys.h"
#include "cli/Texts.h"
#include "cli/Words.h"
#include "model/records/RecordsJson.h"
#include "platform/PreferenceFilesAside.h"

#include <algorithm>
#include <limits>

namespace lorva::cli {

namespace {

using State = Finding::State;

constexpr qint64 kMostCacheBytes = qint64(1) << 30;
const QString kKeptMark = QStringLiteral(".unreadable");

QString bytes(qint64 size)
{
    const int most = std::numeric_limits<int>::max();
    return Texts::tr("%1 bytes", nullptr, int(std::min<qint64>(size, most))).arg(size);
}

void checkPreferenceFile(Examined &examined, Findings &findings)
{
    const PreferenceLook &look = examined.preferences;
    const QString about = look.file.displayText();
    if (!look.exists)
        findings.push_back(
            {State::well, about, Texts::tr("not there yet; the first change makes it")});
    else if (look.rows)
        findings.push_back({State::well, about,
                            Texts::tr("%1, preferences: %2")
                                .arg(bytes(look.size), QString::number(look.rows->size()))});
    else
        findings.push_back(
            {State::wrong, about, Texts::tr("cannot be read: %1").arg(look.rows.error().detail)});
}

void checkPreferencesWritable(Examined &examined, Findings &findings)
{
    const FilePath &file = examined.preferences.file;
    const Result<void> writable = checkWritable(file);
    if (writable)
        findings.push_back({State::well, file.displayText(), Texts::tr("changes can be written")});
    else
        findings.push_back(
            {State::wrong, file.displayText(),
             Texts::tr("changes cannot be written: %1").arg(writable.error().detail)});
}

void checkPreferencesAside(Examined &examined, Findings &findings)
{
    for (const FilePath &file : preferencesAside(examined.preferences.file))
        findings.push_back({State::note, file.displayText(),
                            Texts::tr("damaged preferences that were moved aside")});
}

Finding entryFinding(const QString &key, const PreferenceRow &row)
{
    const QString shape = listed({QString::fromUtf8(row.kind), bytes(row.value.size())});
    if (key.contains(kKeptMark))
        return {State::note, key,
                Texts::tr("%1, kept because it could not be read when it was replaced").arg(shape)};
    const std::vector<KnownPreference> &all = knownPreferences();
    const auto known = std::find_if(all.begin(), all.end(),
                                    [&](const KnownPreference &each) { return each.key == key; });
    if (known == all.end())
        return {State::note, key,
                Texts::tr("%1, unknown to this version, which leaves it alone").arg(shape)};
    const Result<QString> described = describeStored(*known, row);
    if (described)
        return {State::well, key, Texts::tr("%1: %2").arg(shape, *described)};
    return {State::wrong, key,
            Texts::tr("%1, cannot be read: %2; it counts as absent, and is kept when it is "
                      "replaced")
                .arg(shape, described.error().detail)};
}

void checkPreferenceEntries(Examined &examined, Findings &findings)
{
    if (!examined.preferences.rows)
        return;
    for (const auto &[key, row] : *examined.preferences.rows)
        findings.push_back(entryFinding(key, row));
}

/// A cache file.
struct CacheFile
{
    FilePath path;
    /// That it is of no use, why, and when it is written anew.
    QString (*noUse)(const QString &reason);
};

/// The bytes of a cache file; adds a finding where there are none.
std::optional<QByteArray> readCache(const CacheFile &file, Findings &findings)
{
    const QString about = file.path.displayText();
    Result<QByteArray> json = readWholeFile(file.path, kMostCacheBytes);
    if (json)
        return *std::move(json);
    if (json.error().kind == ErrorKind::notFound)
        findings.push_back({State::well, about, Texts::tr("not there yet")});
    else
        findings.push_back(
            {State::wrong, about, Texts::tr("cannot be read: %1").arg(json.error().detail)});
    return std::nullopt;
}

/// Adds a finding for a cache file and gives what it holds, if it does. One that is damaged, or of
/// another version, costs time and nothing else.
template <class T, class Count>
std::optional<T> examineCache(const CacheFile &file, Result<T> (*decode)(QByteArray), Count count,
                              Findings &findings)
{
    const std::optional<QByteArray> json = readCache(file, findings);
    if (!json)
        return std::nullopt;
    const QString about = file.path.displayText();
    Result<T> held = decode(*json);
    if (!held) {
        findings.push_back({State::note, about, file.noUse(held.error().detail)});
        return std::nullopt;
    }
    findings.push_back({State::well, about, listed({bytes(json->size()), count(*held)})});
    return *std::move(held);
}

void checkParseCache(Examined &examined, Findings &findings)
{
    const auto count = [](const PersistedCache &cache) {
        return listed({fontFiles(cache.files.size()), families(cache.identities.size())});
    };
    const auto noUse = [](const QString &reason) {
        return Texts::tr("of no use, and replaced by the next scan: %1").arg(reason);
    };
    examineCache({examined.folders.parseCache(), noUse}, decodePersistedCache, count, findings);
}

void checkCatalog(Examined &examined, Findings &findings)
{
    const auto count = [](const CatalogSnapshot &snapshot) {
        return families(qsizetype(snapshot.families->size()));
    };
    const auto noUse = [](const QString &reason) {
        return Texts::tr("of no use, and replaced when the window has next read the fonts: %1")
            .arg(reason);
    };
    const auto snapshot =
        examineCache({examined.folders.catalogSnapshot(), noUse}, decodeSnapshot, count, findings);
    if (!snapshot)
        return;
    examined.catalogFamilies.emplace();
    for (const FontFamilyRecord &family : *snapshot->families)
        examined.catalogFamilies->insert(family.familyName);
}

template <class Record>
void addMembers(const PreferenceLook::Rows &rows, const char *key, QSet<QString> &families)
{
    const auto row = rows.find(QLatin1String(key));
    const auto groupings = row == rows.end() ? Result<std::vector<Record>>()
                                             : decodeJson<std::vector<Record>>(row->second.value);
    if (!groupings)
        return;
    for (const Record &each : *groupings)
        families.unite(QSet<QString>(each.familyNames.cbegin(), each.familyNames.cend()));
}

void addOverridden(const PreferenceLook::Rows &rows, QSet<QString> &families)
{
    const auto row = rows.find(QStringLiteral("vantrel.merid.foundryOverrides"));
    const auto value = row == rows.end() ? std::nullopt : preferenceOfRow(row->second);
    const auto *overrides = value ? std::get_if<QHash<QString, QString>>(&*value) : nullptr;
    if (overrides)
        families.unite(QSet<QString>(overrides->keyBegin(), overrides->keyEnd()));
}

/// Members whose fonts are gone, or not here yet, look like losses: better say how many they are.
void checkMissingFamilies(Examined &examined, Findings &findings)
{
    if (!examined.catalogFamilies || !examined.preferences.rows)
        return;
    QSet<QString> named;
    const PreferenceLook::Rows &rows = *examined.preferences.rows;
    addMembers<FontCollectionRecord>(rows, "vantrel.merid.collections", named);
    addMembers<FontStyleCategoryRecord>(rows, "vantrel.merid.styles", named);
    addOverridden(rows, named);
    const qsizetype all = named.size();
    const qsizetype missing = named.subtract(*examined.catalogFamilies).size();
    const QString text = missing == 0
        ? Texts::tr("all families that it names are in the last catalog: %1").arg(all)
        : Texts::tr("%n of the %1 families that it names are not in the last catalog", nullptr,
                    int(missing))
              .arg(all);
    findings.push_back(
        {missing > 0 ? State::note : State::well, QStringLiteral("organisation"), text});
}

constexpr DoctorCheck kChecks[]{
    {"preferenceFile", checkPreferenceFile},
    {"preferencesWritable", checkPreferencesWritable},
    {"preferencesAside", checkPreferencesAside},
    {"preference", checkPreferenceEntries},
    {"parseCache", checkParseCache},
    {"catalog", checkCatalog},
    {"missingFamilies", checkMissingFamilies},
    {"activation", checkActivation},
    {"sandbox", checkSandbox},
    {"watchedFolders", checkWatchedFolders},
};

} // namespace

std::span<const DoctorCheck> doctorChecks()
{
    return kChecks;
}

} // namespace lorva::cli
