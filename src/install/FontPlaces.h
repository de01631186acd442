// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/FolderEntries.h"
#include "platform/PlatformFolders.h"

#include <QHash>

#include <mutex>
#include <optional>

namespace lorva {

/// Where a file lies, seen from the folders that switch fonts on.
enum class FontPlace {
    elsewhere,
    /// A folder of the system, or one that a Fonts folder only links to: what lies here is active,
    /// and not the user's to remove.
    systemFolder,
    /// The user's Fonts folder or that of all users.
    fontsFolder,
    /// Where registration keeps its links.
    registeredLinks,
};

/// Tells where font files really lie. What a folder resolves to is remembered, so that a file costs
/// one look at whether it is a link; only links take the long way.
///
/// Thread: any, several at once; reads the disk.
class FontPlaces
{
public:
    explicit FontPlaces(PlatformFolders folders);

    /// Of the entry `file`, whatever it links to.
    FontPlace placeOf(const FilePath &file) const { return folderOf(file).place; }
    /// With all links resolved; what cannot be resolved stays as it is.
    FilePath resolved(const FilePath &path) const;
    /// The entry `file`, spelled below PlatformFolders::userFonts or allUsersFonts as the books
    /// spell it; nothing when it lies in neither.
    std::optional<FilePath> fontsFolderEntry(const FilePath &file) const;
    /// Resolves folders anew when they are asked for next.
    void forgetFolders() const;

private:
    /// A folder by its given path and by its resolved one; none ends in a slash.
    struct Root
    {
        FilePath given;
        FilePath real;

        bool holds(const FilePath &path) const
        {
            return path.isInside(given) || path.isInside(real);
        }
    };
    struct Roots
    {
        Root links;
        std::vector<Root> fonts;
        std::vector<Root> system;
    };
    struct Folder
    {
        FilePath real;
        FontPlace place = FontPlace::elsewhere;
    };

    static Root rootAt(const FilePath &folder);
    const Roots &roots() const;
    Folder folderOf(const FilePath &file) const;
    FontPlace placeOfFolder(const FilePath &given, const FilePath &real) const;

    const PlatformFolders m_folders;
    mutable std::once_flag m_rootsAreKnown;
    mutable Roots m_roots;
    mutable std::mutex m_mutex;
    /// By the path as given.
    mutable QHash<FilePath, Folder> m_known;
};

} // namespace lorva
