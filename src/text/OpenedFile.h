// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <array>
#include <atomic>
#include <memory>
#include <optional>

namespace lorva {

class GuardedMapping;

/// Tells whether a path still leads to the very bytes that were looked at before.
struct FileIdentity
{
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0;
    qint64 modifiedNs = 0;
    bool operator==(const FileIdentity &) const = default;
};

/// What a path leads to just now; nothing when it cannot be looked at.
std::optional<FileIdentity> currentIdentity(const FilePath &path);

/// One opening of a font file: a descriptor, closed at the end of its scope, and the file's first
/// page, which nearly always holds the whole table directory.
///
/// Thread: any; reads carry their own position. A file that shrinks meanwhile gives failed reads or
/// zeros, never a signal.
class OpenedFile
{
public:
    /// Opens without ever waiting, regular files only. Fails with notFound, permissionDenied,
    /// notRegularFile, tooLarge or ioFailure.
    static Result<std::shared_ptr<const OpenedFile>> open(const FilePath &path);
    ~OpenedFile();
    OpenedFile(const OpenedFile &) = delete;
    OpenedFile &operator=(const OpenedFile &) = delete;

    const FileIdentity &identity() const { return m_identity; }
    /// True once the disk failed to give bytes that it has: what was read is then no judgement of
    /// the file.
    bool hasFailed() const { return m_hasFailed; }
    quint64 size() const { return quint64(m_identity.size); }

    /// Fills `out` with exactly `length` bytes; false if the file does not give them.
    bool read(quint64 offset, char *out, quint64 length) const;
    /// Exactly `length` bytes, or a null array.
    QByteArray bytes(quint64 offset, quint64 length) const;
    /// A mapping of bytes that are looked at in pieces; null where they had better be read. Only
    /// files that this user cannot write are mapped: what packages have installed is replaced as a
    /// whole, never rewritten under the eyes of a reader.
    std::unique_ptr<GuardedMapping> map(quint64 offset, quint32 length) const;

private:
    explicit OpenedFile(int fd)
        : m_fd(fd)
    {
    }
    void readFirstPage();

    int m_fd;
    mutable std::atomic<bool> m_hasFailed = false;
    bool m_isInstalled = false;
    FileIdentity m_identity;
    quint64 m_firstPageSize = 0;
    std::array<char, 4096> m_firstPage;
};

} // namespace lorva
