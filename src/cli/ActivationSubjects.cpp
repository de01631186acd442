// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/ActivationSubjects.h"

#include "base/SystemError.h"
#include "catalog/FaceReading.h"
#include "cli/Console.h"
#include "cli/FamilyListing.h"
#include "cli/FamilyNames.h"
#include "cli/GroupingNames.h"
#include "cli/GroupingTexts.h"
#include "cli/Input.h"
#include "cli/Library.h"
#include "cli/Texts.h"
#include "cli/UserActivation.h"
#include "cli/Words.h"
#include "install/FontPlaces.h"
#include "platform/AvailableFonts.h"

#include <algorithm>
#include <cerrno>

#include <sys/stat.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

/// One spelling for one file, whatever links its folder is reached by.
FilePath givenFile(const QByteArray &word)
{
    const FilePath file = FilePath::absolute(word);
    const std::optional<FilePath> folder = realPath(file.parent());
    return folder ? folder->child(file.fileName()) : file;
}

Result<std::vector<QString>> givenCollections(const Arguments &arguments)
{
    std::vector<QString> names;
    for (const QByteArray &word : arguments.values("--collection")) {
        Result<QString> name = text("--collection", word);
        if (!name)
            return tl::unexpected(name.error());
        if (name->isEmpty())
            return failure(ErrorKind::usage, Texts::tr("--collection takes no empty name"));
        names.push_back(*std::move(name));
    }
    return names;
}

QHash<QString, const FontFamilyRecord *> byName(const std::vector<FontFamilyRecord> &families)
{
    QHash<QString, const FontFamilyRecord *> found;
    for (const FontFamilyRecord &family : families)
        found.insert(family.familyName, &family);
    return found;
}

Result<QStringList> membersOf(const std::vector<QString> &collections, UserOrganization &user)
{
    QStringList members;
    if (collections.empty())
        return members;
    const Result<Organization> organization = user.load({OrganizationPart::collections});
    if (!organization)
        return tl::unexpected(organization.error());
    const std::vector<FontCollectionRecord> &all = organization->collections;
    for (const QString &typed : collections) {
        const auto place = findGrouping(groupingNames(all), typed, kCollectionTexts);
        if (!place)
            return tl::unexpected(place.error());
        members += all[*place].familyNames;
    }
    return members;
}

bool isFileHere(const QString &name)
{
    struct stat info;
    return ::stat(name.toUtf8().constData(), &info) == 0 && S_ISREG(info.st_mode);
}

Result<QStringList> typedFamilies(const QStringList &typed, const FamilyNames &known)
{
    QStringList found;
    for (const QString &word : typed) {
        Result<QStringList> family = known.find(QStringList(word), FamilyNames::Unknown::fails);
        if (family) {
            found += *family;
            continue;
        }
        if (family.error().kind == ErrorKind::notFound && isFileHere(word))
            family.error().detail =
                Texts::tr("%1; the file of that name is ./%2").arg(family.error().detail, word);
        return family;
    }
    return found;
}

/// The request's families, those of its collections, or all.
Result<QStringList> wantedFamilies(const ActivationRequest &request, const FamilyNames &known,
                                   const QStringList &all, UserOrganization &user)
{
    if (request.isEmpty())
        return all;
    Result<QStringList> wanted = typedFamilies(request.families, known);
    if (!wanted)
        return wanted;
    const Result<QStringList> members = membersOf(request.collections, user);
    if (!members)
        return members;
    for (const QString &member : *members) {
        if (known.contains(member))
            wanted->push_back(member);
        else
            warn(Texts::tr("this machine has no family %1").arg(quoted(member)));
    }
    wanted->removeDuplicates();
    return wanted;
}

Result<void> addFamilies(const ActivationRequest &request, UserOrganization &user,
                         ActivationSubjects &found)
{
    const QStringList all = namesOf(found.catalog);
    const Result<QStringList> wanted = wantedFamilies(request, FamilyNames(all), all, user);
    if (!wanted)
        return tl::unexpected(wanted.error());
    const auto records = byName(found.catalog);
    for (const QString &name : *wanted) {
        if (const FontFamilyRecord *family = records.value(name))
            found.subjects.push_back({*family, std::nullopt});
    }
    return {};
}

/// Why a file cannot be read as a font at all; nothing for one that may be.
std::optional<QString> whyUnusable(const FilePath &file)
{
    struct stat info;
    if (::stat(file.c_str(), &info) != 0)
        return errno == ENOENT ? Texts::tr("File not found")
                               : systemFailure(errno, FileAction::read, file).value().detail;
    if (S_ISDIR(info.st_mode))
        return Texts::tr("this is a folder; name the font files in it");
    if (::access(file.c_str(), R_OK) != 0)
        return systemFailure(errno, FileAction::read, file).value().detail;
    return std::nullopt;
}

void addFile(const FilePath &file, ActivationSubjects &found)
{
    if (const auto why = whyUnusable(file)) {
        found.unusableFiles.emplace(file, *why);
        return;
    }
    const FaceReading reading = readFaces(file, [](const QString &) { return false; });
    std::vector<FontFamilyRecord> families;
    for (const ParsedEntry &entry : reading.entries) {
        auto family = std::ranges::find(families, entry.familyName, &FontFamilyRecord::familyName);
        if (family == families.end())
            family = families.insert(families.end(), {entry.familyName, {}, {}, {}, {}});
        family->styles.push_back(entry.style);
    }
    if (families.empty())
        found.unusableFiles.emplace(file, Texts::tr("it holds no font that can be read"));
    for (FontFamilyRecord &family : families)
        found.subjects.push_back({std::move(family), file});
}

/// Those of the given files that nothing makes active but the books.
QSet<FilePath> filesLikeWatched(const std::vector<FilePath> &given, const PlatformFolders &folders,
                                const QSet<FilePath> &registered)
{
    const std::vector<FilePath> listed =
        machineFonts(CacheUse::readOnly).availableFonts->fontFiles({}, {});
    const FontPlaces places(folders);
    QSet<FilePath> files;
    for (const FilePath &file : given) {
        const bool isActiveAnyway = places.placeOf(file) != FontPlace::elsewhere
            || (std::ranges::binary_search(listed, file) && !registered.contains(file));
        if (!isActiveAnyway)
            files.insert(file);
    }
    return files;
}

} // namespace

Result<ActivationRequest> activationRequest(const Arguments &arguments)
{
    ActivationRequest request;
    std::vector<QByteArray> names;
    for (const QByteArray &word : arguments.positional()) {
        if (word.contains('/'))
            request.files.push_back(givenFile(word));
        else
            names.push_back(word);
    }
    Result<QStringList> families = namedFamilies(names);
    if (!families)
        return tl::unexpected(families.error());
    if (!names.empty() && families->isEmpty())
        return failure(ErrorKind::usage, Texts::tr("standard input names no family"));
    Result<std::vector<QString>> collections = givenCollections(arguments);
    if (!collections)
        return tl::unexpected(collections.error());
    Result<std::vector<FilePath>> folders = givenFolders(arguments);
    if (!folders)
        return tl::unexpected(folders.error());
    request.families = *std::move(families);
    request.collections = *std::move(collections);
    request.folders = *std::move(folders);
    request.isDryRun = arguments.has("--dry-run");
    request.isJson = arguments.has("--json");
    return request;
}

QStringList namesOf(const std::vector<FontFamilyRecord> &families)
{
    QStringList names;
    for (const FontFamilyRecord &each : families)
        names.push_back(each.familyName);
    names.removeDuplicates();
    return names;
}

QStringList ActivationSubjects::names() const
{
    QStringList names;
    for (const ActivationSubject &each : subjects)
        names.push_back(each.family.familyName);
    names.removeDuplicates();
    return names;
}

Result<ActivationSubjects> findSubjects(const ActivationRequest &request,
                                        UserActivation &activation)
{
    ActivationSubjects found;
    QSet<FilePath> watched;
    if (request.isEmpty() || !request.families.isEmpty() || !request.collections.empty()) {
        FontCatalogResult scanned = scanLibrary(activation.foldersToScan(request.folders));
        watched = std::move(scanned.watchedFontURLs);
        found.catalog = std::move(scanned.families);
        sortByName(found.catalog);
        if (const auto added = addFamilies(request, activation.user(), found); !added)
            return tl::unexpected(added.error());
    }
    if (!request.files.empty()) {
        for (const FilePath &file : request.files)
            addFile(file, found);
        const auto &registered = activation.service().books()->contents().registeredURLs;
        watched.unite(filesLikeWatched(request.files, activation.folders(), registered));
    }
    activation.service().setWatchedFontURLs(std::move(watched));
    return found;
}

} // namespace lorva::cli
