// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "platform/FileDescriptor.h"

#include <optional>
#include <vector>

namespace lorva {

/// The folder of links, opened once for as many changes as there are.
///
/// Every link leads to a file by its whole path and has a name that is made from that path; what
/// has another name or leads elsewhere is not ours. Thread: any, and any number at once.
class LinkFolder
{
public:
    explicit LinkFolder(const FilePath &folder);

    /// 0, or why the folder cannot be opened; then the other functions do nothing but fail.
    int openCode() const { return m_openCode; }

    struct Outcome
    {
        enum Kind {
            done,
            /// There is, or is not, such a link already.
            nothingToDo,
            /// Something that is no link has its name.
            nameTaken,
            failed,
        };
        Kind kind = done;
        /// The system's error number of what failed.
        int code = 0;
    };
    /// Replaces a link of its name that leads elsewhere, at no moment leaving none.
    Outcome makeLink(const FilePath &file) const;
    Outcome removeLink(const FilePath &file) const;

    /// What our links lead to, sorted.
    std::vector<FilePath> targets() const;

    /// Gives the folder a time that it never had.
    void stamp() const;
    /// 0, or why the disk does not hold what was changed.
    int flush() const;

    /// The longest name on every file system that counts, in bytes.
    static constexpr qsizetype kMostNameBytes = 255;
    static QByteArray linkName(const FilePath &file, qsizetype mostBytes = kMostNameBytes);

private:
    QByteArray nameFor(const FilePath &file) const { return linkName(file, m_mostNameBytes); }
    /// Nothing for what is no link; its error number is in errno.
    std::optional<QByteArray> targetOf(const char *name) const;
    Outcome replaceLink(const QByteArray &name, const FilePath &file) const;

    FileDescriptor m_folder;
    int m_openCode = 0;
    qsizetype m_mostNameBytes = kMostNameBytes;
};

} // namespace lorva
