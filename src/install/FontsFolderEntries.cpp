// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontsFolderEntries.h"

#include "install/FolderEntries.h"
#include "platform/FileTransfer.h"

#include <QCoreApplication>

#include <algorithm>

#include <sys/stat.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FontsFolderEntries)
};

/// Sorted by name; none when the folder cannot be listed.
std::vector<FolderEntry> fontsIn(const FilePath &fontsFolder)
{
    std::vector<FolderEntry> entries =
        folderEntries(fontsFolder).value_or(std::vector<FolderEntry>());
    std::erase_if(
        entries, [](const FolderEntry &entry) { return entry.name == kRegisteredLinksFolderName; });
    std::ranges::sort(entries, {}, &FolderEntry::name);
    return entries;
}

bool isFileOrLink(const FilePath &path)
{
    struct stat info;
    return ::lstat(path.c_str(), &info) == 0 && (S_ISREG(info.st_mode) || S_ISLNK(info.st_mode));
}

} // namespace

FontsFolderListing listFontsFolder(const FilePath &userFonts, FontLinks links)
{
    FontsFolderListing listing;
    const FilePath folder = realPath(userFonts).value_or(userFonts);
    for (const FolderEntry &entry : fontsIn(folder)) {
        const FilePath path = folder.child(entry.name);
        listing.basenames.insert(entry.name);
        if (entry.mayBeLink && links == FontLinks::areLeftOut)
            continue;
        listing.files.insert(entry.mayBeLink ? realPath(path).value_or(path) : path);
    }
    return listing;
}

Result<FilePath> FontsFolderEntries::entryOf(const FilePath &file) const
{
    if (std::optional<FilePath> own = m_places.fontsFolderEntry(file))
        return *std::move(own);
    const FilePath target = m_places.resolved(file);
    if (std::optional<FilePath> own = m_places.fontsFolderEntry(target))
        return *std::move(own);
    if (std::optional<FilePath> link = linkTo(target))
        return *std::move(link);
    return namesake(file, target);
}

/// Of several links the one with the target's name, else the first.
std::optional<FilePath> FontsFolderEntries::linkTo(const FilePath &target) const
{
    if (!m_contents.fontsFolder.files.contains(target))
        return std::nullopt;
    std::optional<FilePath> first;
    for (const FolderEntry &entry : fontsIn(m_contents.folders.userFonts)) {
        FilePath path = m_contents.folders.userFonts.child(entry.name);
        if (!entry.mayBeLink || realPath(path) != target)
            continue;
        if (entry.name == target.fileName())
            return path;
        if (!first)
            first = std::move(path);
    }
    return first;
}

bool FontsFolderEntries::isCopy(const FilePath &entry, const FilePath &target) const
{
    if (!isFileOrLink(entry))
        return false;
    const auto origin = m_contents.origins.constFind(entry);
    if (origin != m_contents.origins.cend() && m_places.resolved(*origin) == target)
        return true;
    return haveEqualBytes(entry, target);
}

Result<FilePath> FontsFolderEntries::namesake(const FilePath &file, const FilePath &target) const
{
    std::vector<QByteArray> names{file.fileName()};
    if (target.fileName() != names.front())
        names.push_back(target.fileName());
    for (const QByteArray &name : names) {
        const FilePath entry = m_contents.folders.userFonts.child(name);
        if (m_contents.fontsFolder.basenames.contains(name) && isCopy(entry, target))
            return entry;
    }
    return failure(ErrorKind::invalidValue,
                   Texts::tr("the file named %1 in the Fonts folder is another font than %2")
                       .arg(FilePath(names.front()).displayText(), file.displayText()));
}

} // namespace lorva
