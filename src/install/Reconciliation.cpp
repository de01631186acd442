// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/Reconciliation.h"

#include "install/FailureBox.h"
#include "install/GoneFiles.h"
#include "install/InstallationJournal.h"
#include "platform/FileTransfer.h"
#include "platform/FontRegistrar.h"

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <set>

#include <sys/stat.h>

namespace lorva {

namespace {

using Changes = FontInstallationStore::Changes;
using Contents = ActivationBooks::Contents;

bool hasEntryGone(const FilePath &entry)
{
    struct stat info;
    return ::lstat(entry.c_str(), &info) != 0 && (errno == ENOENT || errno == ENOTDIR);
}

void lookAtRegistrations(const Contents &books, const std::vector<FilePath> &linked,
                         DiskFindings &found)
{
    const std::set<FilePath> links(linked.begin(), linked.end());
    const std::set<FilePath> known(books.registeredURLs.begin(), books.registeredURLs.end());
    std::vector<FilePath> all;
    std::set_union(links.begin(), links.end(), known.begin(), known.end(), std::back_inserter(all));
    const std::set<FilePath> gone = goneFiles(all);
    for (const FilePath &file : all) {
        const bool hasGone = gone.contains(file);
        if (!known.contains(file))
            (hasGone ? found.brokenRegistrations : found.unknownRegistrations).push_back(file);
        else if (hasGone)
            found.goneFiles.push_back(file);
        else if (!links.contains(file))
            found.lostRegistrations.push_back(file);
    }
}

/// A Fonts folder whose volume is away takes no copy with it: where there is nothing at all, a
/// mount point shows.
void lookAtCopies(const Contents &books, DiskFindings &found)
{
    if (books.fontsFolder.basenames.isEmpty())
        return;
    std::set<FilePath> gone;
    for (auto each = books.origins.cbegin(); each != books.origins.cend(); ++each) {
        if (hasEntryGone(each.key()))
            gone.insert(each.key());
    }
    found.goneCopies.assign(gone.begin(), gone.end());
}

void mendRegistrations(const DiskFindings &found, const InstallationJournal &journal,
                       FontRegistrar &registrar, Changes &changes)
{
    std::vector<FilePath> ended = found.goneFiles;
    ended.insert(ended.end(), found.brokenRegistrations.begin(), found.brokenRegistrations.end());
    if (!ended.empty()) {
        unregisterAll(ended, registrar);
        registrar.announceChanges();
    }
    for (const FilePath &file : found.goneFiles)
        changes.registeredURLs[file] = false;
    for (const FilePath &file : found.unknownRegistrations)
        changes.registeredURLs[file] = true;
    std::vector<FilePath> lost;
    for (const FilePath &file : found.lostRegistrations) {
        // The run that withdrew it did not come to write it down.
        if (journal.withdrawn.contains(file))
            changes.registeredURLs[file] = false;
        else
            lost.push_back(file);
    }
    if (!lost.empty())
        registerAll(lost, registrar);
}

void takeCopies(const InstallationJournal &journal, const Contents &books, Changes &changes)
{
    for (const auto &[copy, source] : journal.copies) {
        if (!books.origins.contains(copy) && haveEqualBytes(copy, source))
            changes.origins[copy] = source;
    }
}

/// The books as they will be.
std::shared_ptr<const ActivationBooks> booksAfter(const Changes &changes, const Contents &before)
{
    Contents after = before;
    for (const auto &[file, isRegistered] : changes.registeredURLs) {
        if (isRegistered)
            after.registeredURLs.insert(file);
        else
            after.registeredURLs.remove(file);
    }
    after.fontsFolder = listFontsFolder(before.folders.userFonts);
    return std::make_shared<ActivationBooks>(std::move(after));
}

void mendMethods(const FontFamilyList &families, const ActivationBooks &books, Changes &changes)
{
    const std::map<QString, InstallMethod> &known = books.contents().methods;
    for (const FontFamilyRecord &family : *families) {
        const std::optional<FamilyActivationState> state = books.activationState(family);
        const std::optional<InstallMethod> method = state ? state->method : std::nullopt;
        const auto found = known.find(family.familyName);
        const auto stored = found == known.end() ? std::nullopt : std::optional(found->second);
        if (stored != method)
            changes.methods[family.familyName] = method;
    }
}

} // namespace

DiskFindings lookAtDisk(const InstallationTools &tools)
{
    DiskFindings found;
    lookAtRegistrations(tools.books->contents(), tools.registrar->registeredFonts(), found);
    lookAtCopies(tools.books->contents(), found);
    return found;
}

Changes unfinishedChanges(const InstallationTools &tools)
{
    const Contents &books = tools.books->contents();
    const auto journal = InstallationJournal::read(books.folders.activationJournal());
    Changes changes;
    takeCopies(journal, books, changes);
    if (journal.withdrawn.empty())
        return changes;
    const std::vector<FilePath> linked = tools.registrar->registeredFonts();
    for (const FilePath &file : journal.withdrawn) {
        if (!std::binary_search(linked.begin(), linked.end(), file))
            changes.registeredURLs[file] = false;
    }
    return changes;
}

Changes reconciled(const FontFamilyList &families, const InstallationTools &tools)
{
    const Contents &books = tools.books->contents();
    removeUnfinishedCopies(books.folders.userFonts);
    const auto journal = InstallationJournal::read(books.folders.activationJournal());
    const DiskFindings found = lookAtDisk(tools);
    Changes changes;
    mendRegistrations(found, journal, *tools.registrar, changes);
    for (const FilePath &copy : found.goneCopies)
        changes.origins[copy] = std::nullopt;
    takeCopies(journal, books, changes);
    mendMethods(families, *booksAfter(changes, books), changes);
    return changes;
}

} // namespace lorva
