// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/FontPlaces.h"

#include "install/FolderEntries.h"

#include <algorithm>

#include <climits>

#include <unistd.h>

namespace lorva {

namespace {

bool isLink(const FilePath &path)
{
    char byte = 0;
    return ::readlink(path.c_str(), &byte, 1) >= 0;
}

/// The part of `path` after `folder`, which it is inside.
QByteArrayView pathBelow(const FilePath &folder, const FilePath &path)
{
    QByteArrayView below = QByteArrayView(path.bytes()).sliced(folder.bytes().size());
    while (below.startsWith('/'))
        below = below.sliced(1);
    return below;
}

} // namespace

FontPlaces::FontPlaces(PlatformFolders folders)
    : m_folders(std::move(folders))
{
}

FontPlaces::Root FontPlaces::rootAt(const FilePath &folder)
{
    QByteArray bytes = folder.bytes();
    while (bytes.size() > 1 && bytes.endsWith('/'))
        bytes.chop(1);
    const FilePath given(std::move(bytes));
    return {given, realPath(given).value_or(given)};
}

const FontPlaces::Roots &FontPlaces::roots() const
{
    std::call_once(m_rootsAreKnown, [&] {
        m_roots.links = rootAt(m_folders.registeredLinks());
        m_roots.fonts = {rootAt(m_folders.userFonts), rootAt(m_folders.allUsersFonts)};
        for (const FilePath &folder : m_folders.systemFonts)
            m_roots.system.push_back(rootAt(folder));
    });
    return m_roots;
}

FontPlace FontPlaces::placeOfFolder(const FilePath &given, const FilePath &real) const
{
    const Roots &known = roots();
    const auto holdsReal = [&](const Root &root) { return root.holds(real); };
    const auto holdsEither = [&](const Root &root) {
        return root.holds(given) || root.holds(real);
    };
    if (holdsEither(known.links))
        return FontPlace::registeredLinks;
    if (std::ranges::any_of(known.fonts, holdsReal))
        return FontPlace::fontsFolder;
    if (std::ranges::any_of(known.fonts, holdsEither)
        || std::ranges::any_of(known.system, holdsEither))
        return FontPlace::systemFolder;
    return FontPlace::elsewhere;
}

FontPlaces::Folder FontPlaces::folderOf(const FilePath &file) const
{
    const FilePath given = file.parent();
    {
        const std::lock_guard lock(m_mutex);
        if (const auto known = m_known.constFind(given); known != m_known.cend())
            return *known;
    }
    Folder folder;
    folder.real = resolved(given);
    folder.place = placeOfFolder(given, folder.real);
    const std::lock_guard lock(m_mutex);
    m_known.insert(given, folder);
    return folder;
}

FilePath FontPlaces::resolved(const FilePath &path) const
{
    const QByteArray name = path.fileName();
    const bool isPlainName = !name.isEmpty() && name != "." && name != "..";
    // The system takes no longer paths, and this bounds the recursion.
    if (!isPlainName || path.bytes().size() >= PATH_MAX)
        return realPath(path).value_or(path);
    FilePath entry = folderOf(path).real.child(name);
    return isLink(entry) ? realPath(entry).value_or(entry) : entry;
}

std::optional<FilePath> FontPlaces::fontsFolderEntry(const FilePath &file) const
{
    const Folder folder = folderOf(file);
    if (folder.place != FontPlace::fontsFolder)
        return std::nullopt;
    const FilePath entry = folder.real.child(file.fileName());
    for (const Root &root : roots().fonts) {
        if (!entry.isInside(root.given) && entry.isInside(root.real))
            return root.given.child(pathBelow(root.real, entry));
    }
    return entry;
}

void FontPlaces::forgetFolders() const
{
    const std::lock_guard lock(m_mutex);
    m_known.clear();
}

} // namespace lorva
