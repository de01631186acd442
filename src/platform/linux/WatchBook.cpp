// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/WatchBook.h"

namespace lorva {

int WatchBook::set(const FilePath &folder, const Place &place)
{
    const std::optional<Place> old = placeOf(folder);
    if (old == place)
        return kNoWatch;
    // First the new one: a watch that stays is never without folders.
    m_foldersByWatch[place.watch].insert(folder);
    const int unused = old && old->watch != place.watch ? remove(folder) : kNoWatch;
    m_places.insert_or_assign(folder, place);
    return unused;
}

int WatchBook::remove(const FilePath &folder)
{
    const auto entry = m_places.find(folder);
    if (entry == m_places.end())
        return kNoWatch;
    const int watch = entry->second.watch;
    m_places.erase(entry);
    const auto users = m_foldersByWatch.find(watch);
    users->second.erase(folder);
    if (!users->second.empty())
        return kNoWatch;
    m_foldersByWatch.erase(users);
    return watch;
}

std::optional<WatchBook::Place> WatchBook::placeOf(const FilePath &folder) const
{
    const auto entry = m_places.find(folder);
    return entry == m_places.end() ? std::nullopt : std::optional(entry->second);
}

std::vector<FilePath> WatchBook::folders() const
{
    std::vector<FilePath> folders;
    for (const auto &[folder, place] : m_places)
        folders.push_back(folder);
    return folders;
}

std::vector<FilePath> WatchBook::foldersOf(int watch) const
{
    const auto users = m_foldersByWatch.find(watch);
    if (users == m_foldersByWatch.end())
        return {};
    return {users->second.begin(), users->second.end()};
}

std::vector<FilePath> WatchBook::foldersPlacedInside(const FilePath &path) const
{
    std::vector<FilePath> folders;
    for (const auto &[folder, place] : m_places) {
        if (place.path.isInside(path))
            folders.push_back(folder);
    }
    return folders;
}

} // namespace lorva
