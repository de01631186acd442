// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "platform/FileDescriptor.h"

#include <ctime>

namespace lorva {

/// A file being made, which is gone again unless it takes a name. Thread: any.
///
/// Functions give 0 or the system's error number.
class NewFile
{
public:
    /// When it appears in its folder. A file without a name vanishes with the process, but not
    /// every file system can make one; the other way it has a hidden name meanwhile.
    enum class Naming { whenDone, atOnce };

    explicit NewFile(Naming naming);
    ~NewFile();
    NewFile(const NewFile &) = delete;
    NewFile &operator=(const NewFile &) = delete;

    int create(const FilePath &folder);

    struct Failure
    {
        int code = 0;
        bool isSource = false;
    };
    /// Appends `bytes` bytes of the file `source` from its position on, or what there is.
    Failure fillFrom(int source, qint64 bytes);
    qint64 size() const { return m_size; }

    /// Waits until the disk holds the bytes.
    int flush(const timespec &modificationTime) const;
    /// EEXIST when the name is taken; then it does not get it.
    int takeName(const FilePath &path);

    /// A hidden name, under which a killed process leaves its unfinished file.
    static bool isUnfinishedName(QByteArrayView name);

private:
    int createNamed(const FilePath &folder);
    qint64 fillInKernel(int source, qint64 bytes);
    Failure fillThroughMemory(int source, qint64 bytes);
    int write(const char *bytes, qint64 count);

    const Naming m_naming;
    FileDescriptor m_file;
    /// The hidden name that it has now; empty without one.
    FilePath m_path;
    qint64 m_size = 0;
};

} // namespace lorva
