// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/AtomicFile.h"

#include "base/SystemError.h"

#include <QCoreApplication>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(AtomicFile)
};

constexpr int kNameAttempts = 16;

/// When a new file gets a name of its own. Without one it vanishes with the process, but not every
/// file system can make such a file.
enum class Naming { whenWritten, atOnce };

FilePath randomName(const FilePath &folder)
{
    const QByteArray random = QByteArray::number(QRandomGenerator::global()->generate64(), 36);
    return folder.child(QByteArray(".lorva-" + random + ".tmp"));
}

/// A new file that is removed again unless it was kept.
class TemporaryFile
{
public:
    explicit TemporaryFile(Naming naming)
        : m_naming(naming)
    {
    }
    TemporaryFile(const TemporaryFile &) = delete;
    TemporaryFile &operator=(const TemporaryFile &) = delete;

    ~TemporaryFile()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
        if (!m_path.isEmpty())
            ::unlink(m_path.c_str());
    }

    /// Each of these gives 0 or the system's error number.
    int create(const FilePath &folder)
    {
        m_folder = folder;
        if (m_naming == Naming::atOnce)
            return underNewName([this](const FilePath &path) {
                m_descriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
                return m_descriptor >= 0;
            });
        m_descriptor = ::open(folder.c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, 0666);
        return m_descriptor >= 0 ? 0 : errno;
    }

    int write(QByteArrayView bytes) const
    {
        while (!bytes.isEmpty()) {
            const ssize_t written = ::write(m_descriptor, bytes.data(), size_t(bytes.size()));
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                return errno;
            bytes = bytes.sliced(written);
        }
        return 0;
    }

    /// File systems without permissions are no reason to fail.
    void takePermissionsOf(const FilePath &path) const
    {
        struct stat info;
        if (::stat(path.c_str(), &info) == 0)
            std::ignore = ::fchmod(m_descriptor, info.st_mode & 07777);
    }

    int flush()
    {
        if (::fsync(m_descriptor) != 0)
            return errno;
        if (m_naming == Naming::whenWritten) {
            const int code = giveName();
            if (code != 0)
                return code;
        }
        return ::close(std::exchange(m_descriptor, -1)) == 0 ? 0 : errno;
    }

    int renameTo(const FilePath &path)
    {
        if (std::rename(m_path.c_str(), path.c_str()) != 0)
            return errno;
        m_path = FilePath();
        return 0;
    }

private:
    int giveName()
    {
        const QByteArray self = "/proc/self/fd/" + QByteArray::number(m_descriptor);
        return underNewName([&](const FilePath &path) {
            return ::linkat(AT_FDCWD, self.constData(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW)
                == 0;
        });
    }

    /// Calls `take` with names until one is free.
    template <class Take>
    int underNewName(Take take)
    {
        for (int attempt = 0; attempt < kNameAttempts; ++attempt) {
            const FilePath path = randomName(m_folder);
            if (take(path)) {
                m_path = path;
                return 0;
            }
            if (errno != EEXIST)
                return errno;
        }
        return EEXIST;
    }

    const Naming m_naming;
    int m_descriptor = -1;
    FilePath m_folder;
    FilePath m_path;
};

/// The file that `path` leads to through links; `path` itself when there is none.
FilePath withLinksFollowed(const FilePath &path)
{
    struct FreeDeleter
    {
        void operator()(char *memory) const { std::free(memory); }
    };
    const std::unique_ptr<char, FreeDeleter> real(::realpath(path.c_str(), nullptr));
    return real ? FilePath(QByteArray(real.get())) : path;
}

/// Taking the name of a device or a pipe would remove it from the system, and nobody would get the
/// bytes.
bool isTakenByNoFile(const FilePath &path)
{
    struct stat info;
    return ::stat(path.c_str(), &info) == 0 && !S_ISREG(info.st_mode) && !S_ISDIR(info.st_mode);
}

/// Makes the new name last; not every file system can, and the bytes are safe in either case.
void flushFolder(const FilePath &folder)
{
    const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

int replace(const FilePath &target, QByteArrayView bytes, Naming naming)
{
    TemporaryFile file(naming);
    int code = file.create(target.parent());
    if (code == 0)
        code = file.write(bytes);
    if (code == 0) {
        file.takePermissionsOf(target);
        code = file.flush();
    }
    return code == 0 ? file.renameTo(target) : code;
}

} // namespace

Result<void> writeFileAtomically(const FilePath &path, QByteArrayView bytes)
{
    if (isTakenByNoFile(path))
        return failure(ErrorKind::notRegularFile,
                       Texts::tr("cannot write %1: not a regular file").arg(path.displayText()));
    const FilePath target = withLinksFollowed(path);
    int code = replace(target, bytes, Naming::whenWritten);
    if (code != 0)
        code = replace(target, bytes, Naming::atOnce);
    if (code != 0)
        return systemFailure(code, FileAction::write, path);
    flushFolder(target.parent());
    return {};
}

} // namespace lorva
