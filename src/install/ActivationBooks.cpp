// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/ActivationBooks.h"

#include "install/FontPlaces.h"
#include "install/FontsFolderEntries.h"
#include "platform/FileTransfer.h"

#include <algorithm>
#include <array>
#include <mutex>

namespace lorva {

struct ActivationBooks::Private
{
    explicit Private(Contents given)
        : contents(std::move(given))
        , places(contents.folders)
    {
    }

    FileActivationClass classify(const FilePath &file) const;
    FileActivationClass classifyAnew(const FilePath &file) const;
    FileActivationClass classifyWatched(const FilePath &file, FontPlace place) const;
    FileActivationClass classifyOthers(const FilePath &file) const;
    bool isWatched(const FilePath &file) const;
    FilePath withoutOwnLink(const FilePath &file) const;

    const Contents contents;
    const FontPlaces places;
    mutable std::mutex mutex;
    /// By the path exactly as passed in.
    mutable QHash<FilePath, FileActivationClass> fileClassCache;
};

bool ActivationBooks::Private::isWatched(const FilePath &file) const
{
    if (contents.watchedFontURLs)
        return contents.watchedFontURLs->contains(file);
    return std::ranges::any_of(contents.watchedFolders,
                               [&](const FilePath &folder) { return file.isInside(folder); });
}

/// The font that a link of registration stands for; every other file as it is.
FilePath ActivationBooks::Private::withoutOwnLink(const FilePath &file) const
{
    return places.placeOf(file) == FontPlace::registeredLinks ? places.resolved(file) : file;
}

FileActivationClass ActivationBooks::Private::classify(const FilePath &file) const
{
    {
        const std::lock_guard lock(mutex);
        if (const auto known = fileClassCache.constFind(file); known != fileClassCache.cend())
            return *known;
    }
    const FileActivationClass found = classifyAnew(file);
    const std::lock_guard lock(mutex);
    fileClassCache.insert(file, found);
    return found;
}

FileActivationClass ActivationBooks::Private::classifyAnew(const FilePath &file) const
{
    const FontPlace place = places.placeOf(file);
    if (place == FontPlace::registeredLinks) {
        const FilePath font = places.resolved(file);
        // A dangling link, or a stranger's file, is nothing that we registered.
        return places.placeOf(font) == FontPlace::registeredLinks ? FileActivationClass::system
                                                                  : classifyAnew(font);
    }
    return isWatched(file) ? classifyWatched(file, place) : classifyOthers(file);
}

FileActivationClass ActivationBooks::Private::classifyWatched(const FilePath &file,
                                                              FontPlace place) const
{
    // Watching a folder of active fonts switches nothing off.
    if (place == FontPlace::fontsFolder)
        return FileActivationClass::copied;
    if (place == FontPlace::systemFolder)
        return FileActivationClass::system;
    if (contents.fontsFolder.basenames.contains(file.fileName()))
        return FileActivationClass::copied;
    if (contents.registeredURLs.contains(file))
        return FileActivationClass::registered;
    return FileActivationClass::watchedInactive;
}

FileActivationClass ActivationBooks::Private::classifyOthers(const FilePath &file) const
{
    const FilePath target = places.resolved(file);
    if (contents.fontsFolder.files.contains(target)
        || places.placeOf(target) == FontPlace::fontsFolder
        || contents.fontsFolder.basenames.contains(target.fileName()))
        return FileActivationClass::copied;
    if (contents.registeredURLs.contains(target) || contents.registeredURLs.contains(file))
        return FileActivationClass::registered;
    if (isWatched(target))
        return FileActivationClass::watchedInactive;
    return FileActivationClass::system;
}

ActivationBooks::ActivationBooks(Contents contents)
    : d(std::make_unique<Private>(std::move(contents)))
{
}

ActivationBooks::~ActivationBooks() = default;

const ActivationBooks::Contents &ActivationBooks::contents() const
{
    return d->contents;
}

void ActivationBooks::forgetClassified() const
{
    d->places.forgetFolders();
    const std::lock_guard lock(d->mutex);
    d->fileClassCache.clear();
}

FileActivationClass ActivationBooks::classify(const FilePath &file) const
{
    return d->classify(file);
}

namespace {

/// How many of a family's styles have a file of each class.
struct ClassCounts
{
    int &of(FileActivationClass each) { return counts[size_t(each)]; }
    int of(FileActivationClass each) const { return counts[size_t(each)]; }
    int active() const
    {
        return of(FileActivationClass::copied) + of(FileActivationClass::registered)
            + of(FileActivationClass::system);
    }
    bool hasOnly(FileActivationClass each) const { return of(each) > 0 && of(each) == active(); }

    std::array<int, 4> counts{};
};

/// The files of styles, each once, in their order.
struct DistinctFiles
{
    std::vector<FilePath> found;
    QSet<FilePath> seen;

    void add(const std::vector<FontStyleRecord> &styles)
    {
        for (const FontStyleRecord &style : styles) {
            if (!style.fileURL || seen.contains(*style.fileURL))
                continue;
            seen.insert(*style.fileURL);
            found.push_back(*style.fileURL);
        }
    }
};

} // namespace

std::optional<FamilyActivationState> ActivationBooks::activationState(
    const FontFamilyRecord &family) const
{
    ClassCounts counts;
    for (const FontStyleRecord &style : family.styles) {
        if (style.fileURL)
            ++counts.of(d->classify(*style.fileURL));
    }
    if (counts.active() == 0)
        return std::nullopt;
    const bool isPartlyInactive = counts.of(FileActivationClass::watchedInactive) > 0;
    if (counts.hasOnly(FileActivationClass::copied))
        return FamilyActivationState{InstallMethod::copy, isPartlyInactive};
    if (counts.hasOnly(FileActivationClass::registered))
        return FamilyActivationState{InstallMethod::registerInPlace, isPartlyInactive};
    if (counts.hasOnly(FileActivationClass::system))
        return FamilyActivationState{std::nullopt, isPartlyInactive};
    const auto stored = d->contents.methods.find(family.familyName);
    return FamilyActivationState{stored == d->contents.methods.end() ? InstallMethod::copy
                                                                     : stored->second,
                                 isPartlyInactive};
}

std::optional<FontFamilyActivation> ActivationBooks::activation(
    const FontFamilyRecord &family) const
{
    const auto hasFile = [](const FontStyleRecord &style) { return style.fileURL.has_value(); };
    if (std::ranges::none_of(family.styles, hasFile))
        return std::nullopt;
    const std::optional<FamilyActivationState> state = activationState(family);
    if (!state)
        return FontFamilyActivation::inactive();
    return FontFamilyActivation::active(state->method, state->isPartlyInactive);
}

std::optional<FontFamilyActivation> ActivationBooks::knownActivation(
    const FontFamilyRecord &family) const
{
    {
        const std::lock_guard lock(d->mutex);
        const auto isUnknown = [this](const FontStyleRecord &style) {
            return style.fileURL && !d->fileClassCache.contains(*style.fileURL);
        };
        if (std::ranges::any_of(family.styles, isUnknown))
            return std::nullopt;
    }
    return activation(family);
}

Result<FilePath> ActivationBooks::fontsFolderEntry(const FilePath &copiedFile) const
{
    return FontsFolderEntries(d->contents, d->places).entryOf(d->withoutOwnLink(copiedFile));
}

bool ActivationBooks::isOriginKnown(const FilePath &entry) const
{
    // Somebody may have put another font under the name of the copy, or removed the source.
    const auto origin = d->contents.origins.constFind(entry);
    return origin != d->contents.origins.cend() && haveEqualBytes(entry, *origin);
}

bool ActivationBooks::areAllOriginsKnown(const std::vector<FontStyleRecord> &styles) const
{
    const auto isKnown = [&](const FilePath &file) {
        if (d->classify(file) != FileActivationClass::copied)
            return true;
        const Result<FilePath> entry = fontsFolderEntry(file);
        return !entry || isOriginKnown(*entry);
    };
    return std::ranges::all_of(filesOf(styles), isKnown);
}

std::vector<FilePath> ActivationBooks::filesOf(const std::vector<FontStyleRecord> &styles)
{
    DistinctFiles files;
    files.add(styles);
    return std::move(files.found);
}

std::vector<FilePath> ActivationBooks::filesOf(const std::vector<FontFamilyRecord> &families)
{
    DistinctFiles files;
    for (const FontFamilyRecord &family : families)
        files.add(family.styles);
    return std::move(files.found);
}

} // namespace lorva
