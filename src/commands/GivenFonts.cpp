// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/GivenFonts.h"

#include "install/FontPlaces.h"

#include <algorithm>

namespace lorva {

namespace {

std::vector<FilePath> listedFonts(const GivenFonts &given)
{
    return given.availableFonts ? given.availableFonts->fontFiles({}, {}) : std::vector<FilePath>();
}

/// The books for these files, and which of the files have no place.
struct GivenBooks
{
    std::shared_ptr<const ActivationBooks> books;
    QSet<FilePath> filesWithoutPlace;
};

/// Nobody who opens a file is to be told that it is active when only its name is. Gives the files
/// of which that is so.
QSet<FilePath> takeOutNamesakes(const std::vector<FilePath> &files, const FontPlaces &places,
                                ActivationBooks::Contents &contents)
{
    const ActivationBooks books(contents);
    std::vector<FilePath> copies;
    QSet<FilePath> namesakes;
    QSet<QByteArray> names;
    for (const FilePath &file : files) {
        if (books.classify(file) != FileActivationClass::copied)
            continue;
        if (books.fontsFolderEntry(file)) {
            copies.push_back(file);
        } else {
            namesakes.insert(file);
            names.insert(file.fileName());
        }
    }
    contents.fontsFolder.basenames.subtract(names);
    // Of what was known by the name alone, the file that was copied stays active.
    for (const FilePath &file : copies) {
        if (!names.contains(file.fileName()) || places.placeOf(file) != FontPlace::elsewhere)
            continue;
        contents.watchedFontURLs->remove(file);
        contents.fontsFolder.files.insert(places.resolved(file));
    }
    return namesakes;
}

/// A file counts as one that can be switched on, unless it lies where files are active or the
/// system lists it anyway.
GivenBooks booksFor(const GivenFonts &given, const ActivationBooks &books)
{
    const std::vector<FilePath> files = ActivationBooks::filesOf(given.families);
    const std::vector<FilePath> listed = listedFonts(given);
    const FontPlaces places(books.contents().folders);
    ActivationBooks::Contents contents = books.contents();
    contents.watchedFontURLs.emplace();
    for (const FilePath &file : files) {
        const bool isActiveAnyway = places.placeOf(file) != FontPlace::elsewhere
            || (std::ranges::binary_search(listed, file)
                && !contents.registeredURLs.contains(file));
        if (!isActiveAnyway)
            contents.watchedFontURLs->insert(file);
    }
    GivenBooks found;
    found.filesWithoutPlace = takeOutNamesakes(files, places, contents);
    found.books = std::make_shared<const ActivationBooks>(std::move(contents));
    return found;
}

InstallationError noPlace(const FilePath &file, const ActivationBooks &books)
{
    const Result<FilePath> entry = books.fontsFolderEntry(file);
    return {InstallationError::ownDomain(), InstallationError::otherFailure,
            entry ? QString() : entry.error().detail};
}

bool areOriginsKnown(const ActivationPlan &plan, const ActivationBooks &books)
{
    return std::ranges::all_of(plan.families, [&books](const FontFamilyRecord &family) {
        return books.areAllOriginsKnown(family.styles);
    });
}

void takeOutFailures(ActivationPlan &plan, const QSet<FilePath> &filesWithoutPlace,
                     const ActivationBooks &books)
{
    for (FontFamilyRecord &family : plan.families)
        std::erase_if(family.styles, [&](const FontStyleRecord &style) {
            if (!style.fileURL || !filesWithoutPlace.contains(*style.fileURL))
                return false;
            plan.failures.emplace(*style.fileURL, noPlace(*style.fileURL, books));
            return true;
        });
    std::erase_if(plan.families, [](const auto &family) { return family.styles.empty(); });
}

QStringList othersIn(const GivenFonts &given, const ActivationPlan &plan)
{
    const std::vector<FilePath> files = ActivationBooks::filesOf(plan.families);
    const QSet<FilePath> switched(files.begin(), files.end());
    const QStringList own = plan.names();
    QStringList others;
    for (const FontFamilyRecord &family : given.families) {
        const auto isSwitched = [&](const FontStyleRecord &style) {
            return style.fileURL && switched.contains(*style.fileURL);
        };
        if (!own.contains(family.familyName) && std::ranges::any_of(family.styles, isSwitched))
            others.append(family.familyName);
    }
    return others;
}

/// A family of which the system has some styles is not the library's to switch; of one whose files
/// were opened the rest can follow.
void addFamiliesOfTheSystem(const ActivationRequest &request, const GivenFonts &given,
                            const ActivationBooks &books, ActivationPlan &plan)
{
    ActivationRequest rest = request;
    rest.kind = ActivationRequest::Kind::complete;
    const QStringList own = plan.names();
    for (FontFamilyRecord &family : planAmong(rest, given.families, books).families)
        if (!own.contains(family.familyName))
            plan.families.push_back(std::move(family));
}

} // namespace

GivenActivations givenActivations(const GivenFonts &given, const ActivationBooks &books)
{
    const GivenBooks own = booksFor(given, books);
    GivenActivations found;
    found.filesWithoutPlace = own.filesWithoutPlace;
    for (const FontFamilyRecord &family : given.families) {
        if (const auto activation = own.books->activation(family))
            found.activationByFamily.insert(family.familyName, *activation);
        addStyleActivations(family, *own.books, found.styles);
    }
    return found;
}

ActivationPlan planForGiven(const ActivationRequest &request, const GivenFonts &given,
                            const ActivationBooks &books)
{
    const GivenBooks own = booksFor(given, books);
    ActivationPlan plan = planAmong(request, given.families, *own.books);
    if (request.kind == ActivationRequest::Kind::activate)
        addFamiliesOfTheSystem(request, given, *own.books, plan);
    // Of a file whose namesake was opened, too, only the true books know the copy.
    if (request.kind == ActivationRequest::Kind::deactivate)
        plan.areOriginsKnown = areOriginsKnown(plan, books);
    else
        takeOutFailures(plan, own.filesWithoutPlace, books);
    plan.others = othersIn(given, plan);
    return plan;
}

} // namespace lorva
