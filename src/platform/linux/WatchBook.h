// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <map>
#include <optional>
#include <set>
#include <unordered_map>
#include <vector>

namespace lorva {

/// Which of the kernel's watches stands for which folder: the folder's own, or that of the nearest
/// folder above one that is missing. Several folders may share a watch. A value.
class WatchBook
{
public:
    struct Place
    {
        int watch = -1;
        /// The folder itself, or one above it.
        FilePath path;

        bool operator==(const Place &) const = default;
    };
    static constexpr int kNoWatch = -1;

    /// Gives the watch that nobody needs any more, or kNoWatch.
    int set(const FilePath &folder, const Place &place);
    int remove(const FilePath &folder);

    std::optional<Place> placeOf(const FilePath &folder) const;
    bool hasWatch(int watch) const { return m_foldersByWatch.contains(watch); }
    size_t watchCount() const { return m_foldersByWatch.size(); }
    std::vector<FilePath> folders() const;
    std::vector<FilePath> foldersOf(int watch) const;
    /// Those with their place at `path` or below it.
    std::vector<FilePath> foldersPlacedInside(const FilePath &path) const;

private:
    std::map<FilePath, Place> m_places;
    std::unordered_map<int, std::set<FilePath>> m_foldersByWatch;
};

} // namespace lorva
