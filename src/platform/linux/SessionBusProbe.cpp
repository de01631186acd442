// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/linux/SessionBusProbe.h"

#include "platform/FileDescriptor.h"
#include "platform/linux/XdgFolders.h"

#include <QDeadlineTimer>
#include <QList>

#include <algorithm>
#include <cerrno>
#include <cstddef>
#include <cstring>
#include <optional>

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace lorva {

namespace {

struct SocketName
{
    sockaddr_un address{};
    socklen_t length = 0;
};

/// "unix:path=/run/user/1000/bus,guid=…" or "unix:abstract=…"; nothing for other kinds.
std::optional<SocketName> socketName(const QByteArray &address)
{
    if (!address.startsWith("unix:"))
        return std::nullopt;
    for (const QByteArray &pair : address.mid(5).split(',')) {
        const bool isAbstract = pair.startsWith("abstract=");
        if (!isAbstract && !pair.startsWith("path="))
            continue;
        const QByteArray value = QByteArray::fromPercentEncoding(pair.mid(pair.indexOf('=') + 1));
        SocketName name;
        name.address.sun_family = AF_UNIX;
        const size_t offset = isAbstract ? 1 : 0;
        if (value.isEmpty() || size_t(value.size()) + 1 > sizeof name.address.sun_path)
            return std::nullopt;
        std::memcpy(name.address.sun_path + offset, value.constData(), size_t(value.size()));
        name.length = socklen_t(offsetof(sockaddr_un, sun_path) + size_t(value.size()) + 1);
        if (isAbstract)
            name.length = socklen_t(offsetof(sockaddr_un, sun_path) + 1 + size_t(value.size()));
        return name;
    }
    return std::nullopt;
}

bool waitFor(int descriptor, short events, const QDeadlineTimer &deadline)
{
    pollfd wanted{descriptor, events, 0};
    int ready = 0;
    do {
        ready = ::poll(&wanted, 1, int(deadline.remainingTime()));
    } while (ready < 0 && errno == EINTR);
    return ready > 0;
}

/// D-Bus specification, "Authentication Protocol": a NUL, then AUTH; anything but silence shows
/// that somebody is there, and OK that we are welcome.
bool isGreeted(int descriptor, const QDeadlineTimer &deadline)
{
    QByteArray hello("\0AUTH EXTERNAL ", 15);
    hello += QByteArray::number(::geteuid()).toHex() + "\r\n";
    if (::send(descriptor, hello.constData(), size_t(hello.size()), MSG_NOSIGNAL) != hello.size())
        return false;
    QByteArray answer;
    while (!answer.contains('\n') && answer.size() < 256) {
        char bytes[128];
        if (!waitFor(descriptor, POLLIN, deadline))
            return false;
        const ssize_t count = ::recv(descriptor, bytes, sizeof bytes, 0);
        if (count <= 0)
            return false;
        answer.append(bytes, count);
    }
    return answer.startsWith("OK ");
}

bool answers(const QByteArray &address, const QDeadlineTimer &deadline)
{
    const std::optional<SocketName> name = socketName(address);
    if (!name)
        return false;
    // Not blocking: a listener whose queue is full would hold us for ever.
    const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    if (!socket.isOpen()
        || ::connect(socket.number(), reinterpret_cast<const sockaddr *>(&name->address),
                     name->length)
            != 0)
        return false;
    return isGreeted(socket.number(), deadline);
}

} // namespace

bool sessionBusAnswers(const QByteArray &address, std::chrono::milliseconds patience)
{
    const QDeadlineTimer deadline(patience);
    return std::ranges::any_of(
        address.split(';'), [&deadline](const QByteArray &one) { return answers(one, deadline); });
}

QByteArray sessionBusAddress()
{
    if (const QByteArray address = qgetenv("DBUS_SESSION_BUS_ADDRESS"); !address.isEmpty())
        return address;
    const QByteArray runtime = qgetenv("XDG_RUNTIME_DIR");
    struct stat info
    {
    };
    const QByteArray path = runtime + "/bus";
    if (!runtime.startsWith('/') || ::stat(path.constData(), &info) != 0 || !S_ISSOCK(info.st_mode))
        return {};
    return "unix:path=" + path;
}

} // namespace lorva
