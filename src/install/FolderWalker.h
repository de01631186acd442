// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QByteArrayView>

#include <set>
#include <stop_token>
#include <vector>

namespace lorva {

/// Walks folders for font files by the rules of fontFilesInFolder(); several walks by one walker
/// share what they have seen, so that overlapping folders give each real folder's files once.
///
/// Names are bytes from directory entry to system call. The kernel's entry types save a stat for
/// all but links and folders. Bounded: at most kMaxDepth nested folders, each of which holds a
/// descriptor open. Thread: any, one at a time per object.
class FolderWalker
{
public:
    /// No library is nested like this; what lies deeper is left out.
    static constexpr int kMaxDepth = 128;

    struct File
    {
        FilePath path;
        /// The entry is a link to the file.
        bool isLink = false;
    };

    explicit FolderWalker(std::stop_token stop);

    void walk(const FilePath &folder);

    /// In the order of the walks.
    const std::vector<File> &files() const { return m_files; }
    std::vector<File> takeFiles() { return std::exchange(m_files, {}); }
    /// The real folders that were looked into, each once, in the order of the walks.
    const std::vector<FilePath> &folders() const { return m_folders; }

    /// True for a folder of this name inside another that no walk looks into.
    static bool isSkipped(const QByteArray &folderName);

private:
    struct Entry;

    void walkOpened(int descriptor, const QByteArray &path, int depth);
    bool isFirstVisit(int descriptor);
    std::vector<Entry> readEntries(int descriptor) const;
    void takeEntry(int parent, const QByteArray &parentPath, const Entry &entry, int depth);

    const std::stop_token m_stop;
    std::vector<File> m_files;
    std::vector<FilePath> m_folders;
    /// Device and inode of every folder seen.
    std::set<std::pair<quint64, quint64>> m_visited;
};

} // namespace lorva
