// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/linux/LinkFolder.h"

#include "platform/FolderEntries.h"

#include <QCryptographicHash>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <ctime>
#include <memory>
#include <tuple>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

constexpr qsizetype kHashDigits = 16;
/// fontconfig passes over what begins with a dot.
constexpr QByteArrayView kTemporaryPrefix = ".lorva-link-";

struct CloseFolder
{
    void operator()(DIR *folder) const { ::closedir(folder); }
};

/// A stream of its own, so that the folder's descriptor keeps its position.
std::unique_ptr<DIR, CloseFolder> openStream(int folder)
{
    FileDescriptor again(::openat(folder, ".", O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    std::unique_ptr<DIR, CloseFolder> stream(again.isOpen() ? ::fdopendir(again.number())
                                                            : nullptr);
    if (stream)
        again.release();
    return stream;
}

} // namespace

LinkFolder::LinkFolder(const FilePath &folder)
    : m_folder(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))
{
    if (!m_folder.isOpen()) {
        m_openCode = errno;
        return;
    }
    // Encrypting file systems have shorter names.
    const long most = ::fpathconf(m_folder.number(), _PC_NAME_MAX);
    if (most > kHashDigits + 1 && most < kMostNameBytes)
        m_mostNameBytes = most;
}

QByteArray LinkFolder::linkName(const FilePath &file, qsizetype mostBytes)
{
    QByteArray name =
        QCryptographicHash::hash(file.bytes(), QCryptographicHash::Sha1).toHex().first(kHashDigits);
    name.append('-');
    return name.append(cutName(file.fileName(), mostBytes - name.size()));
}

std::optional<QByteArray> LinkFolder::targetOf(const char *name) const
{
    std::array<char, PATH_MAX> target;
    const ssize_t length = ::readlinkat(m_folder.number(), name, target.data(), target.size());
    if (length < 0)
        return std::nullopt;
    return QByteArray(target.data(), length);
}

LinkFolder::Outcome LinkFolder::makeLink(const FilePath &file) const
{
    const QByteArray name = nameFor(file);
    if (::symlinkat(file.c_str(), m_folder.number(), name.constData()) == 0)
        return {};
    if (errno != EEXIST)
        return {Outcome::failed, errno};
    const std::optional<QByteArray> target = targetOf(name.constData());
    if (target)
        return *target == file.bytes() ? Outcome{Outcome::nothingToDo} : replaceLink(name, file);
    if (errno == EINVAL)
        return {Outcome::nameTaken, EEXIST};
    return {Outcome::failed, errno};
}

LinkFolder::Outcome LinkFolder::replaceLink(const QByteArray &name, const FilePath &file) const
{
    const QByteArray temporary = randomName(kTemporaryPrefix);
    if (::symlinkat(file.c_str(), m_folder.number(), temporary.constData()) != 0)
        return {Outcome::failed, errno};
    if (::renameat(m_folder.number(), temporary.constData(), m_folder.number(), name.constData())
        == 0)
        return {};
    const int code = errno;
    ::unlinkat(m_folder.number(), temporary.constData(), 0);
    return {Outcome::failed, code};
}

LinkFolder::Outcome LinkFolder::removeLink(const FilePath &file) const
{
    const QByteArray name = nameFor(file);
    const std::optional<QByteArray> target = targetOf(name.constData());
    if (!target && errno != ENOENT && errno != EINVAL && errno != ENAMETOOLONG)
        return {Outcome::failed, errno};
    if (!target || *target != file.bytes())
        return {Outcome::nothingToDo};
    if (::unlinkat(m_folder.number(), name.constData(), 0) == 0)
        return {};
    return {errno == ENOENT ? Outcome::nothingToDo : Outcome::failed, errno};
}

std::vector<FilePath> LinkFolder::targets() const
{
    std::vector<FilePath> files;
    const std::unique_ptr<DIR, CloseFolder> stream = openStream(m_folder.number());
    while (const dirent *const entry = stream ? ::readdir(stream.get()) : nullptr) {
        if (entry->d_type != DT_LNK && entry->d_type != DT_UNKNOWN)
            continue;
        std::optional<QByteArray> target = targetOf(entry->d_name);
        if (!target)
            continue;
        FilePath file(*std::move(target));
        if (nameFor(file) == entry->d_name)
            files.push_back(std::move(file));
    }
    std::ranges::sort(files);
    return files;
}

/// The kernel's own times are a few milliseconds coarse: a program that reads the folder in the
/// middle of a run would take what it saw for the whole, because the time stays the same.
void LinkFolder::stamp() const
{
    timespec now;
    ::clock_gettime(CLOCK_REALTIME, &now);
    const timespec times[] = {now, now};
    // Only the owner may set a time; whoever may write may set the present one.
    if (::futimens(m_folder.number(), times) != 0)
        std::ignore = ::futimens(m_folder.number(), nullptr);
}

int LinkFolder::flush() const
{
    return flushFolder(m_folder.number());
}

} // namespace lorva
