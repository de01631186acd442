// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Trace.h"

#include "base/JsonWriter.h"
#include "base/SystemError.h"

#include <QCoreApplication>

#include <atomic>
#include <cerrno>
#include <cstdio>
#include <ctime>
#include <mutex>
#include <utility>

#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Trace)
};

constexpr int kOff = -1;
constexpr int kNotAsked = -2;

/// The descriptor of the file while tracing. It is never closed: stages may still end while
/// the statics of a process are destroyed.
constinit std::atomic<int> traceDescriptor{kNotAsked};

qint64 monotonicMicroseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1'000'000 + now.tv_nsec / 1000;
}

/// Opened without waiting and emptied only if it is a regular file: a FIFO under that name must
/// neither stop the program nor be written to.
Result<int> openTraceFile(const FilePath &path)
{
    constexpr int kFlags = O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
    const int descriptor = ::open(path.c_str(), kFlags, 0600);
    if (descriptor < 0)
        return systemFailure(errno, FileAction::writeTrace, path);
    struct stat info
    {
    };
    const bool isRegular = ::fstat(descriptor, &info) == 0 && S_ISREG(info.st_mode);
    if (isRegular && ::ftruncate(descriptor, 0) == 0)
        return descriptor;
    const int code = errno;
    ::close(descriptor);
    if (isRegular)
        return systemFailure(code, FileAction::emptyTrace, path);
    return failure(
        ErrorKind::notRegularFile,
        Texts::tr("cannot write the trace %1: not a regular file").arg(path.displayText()));
}

/// One call for one piece, so that pieces of several threads never mix and none is lost with the
/// process. What cannot be written whole (a full disk) ends the trace where it can still be read.
bool writePiece(int descriptor, const QByteArray &piece)
{
    ssize_t written = 0;
    do {
        written = ::write(descriptor, piece.constData(), size_t(piece.size()));
    } while (written < 0 && errno == EINTR);
    if (written == piece.size())
        return true;
    traceDescriptor.store(kOff, std::memory_order_relaxed);
    return false;
}

void beginEvent(JsonWriter &out, const char *phase, QByteArrayView name)
{
    out.beginObject();
    out.key(std::string_view("name"));
    out.utf8(name);
    out.key(std::string_view("ph"));
    out.utf8(phase);
    out.key(std::string_view("pid"));
    out.integer(::getpid());
    out.key(std::string_view("tid"));
    out.integer(::gettid());
}

/// Chrome's metadata event: what the viewer calls a process or a thread.
QByteArray namingEvent(const char *what, QByteArrayView name)
{
    JsonWriter out;
    beginEvent(out, "M", what);
    out.key(std::string_view("args"));
    out.beginObject();
    out.key(std::string_view("name"));
    out.utf8(name);
    out.endObject();
    out.endObject();
    return out.take();
}

QByteArray threadName()
{
    if (::gettid() == ::getpid())
        return QByteArrayLiteral("main");
    char name[16] = "";
    ::pthread_getname_np(::pthread_self(), name, sizeof name);
    return name;
}

int openTrace()
{
    const QByteArray name = qgetenv("LORVA_TRACE");
    if (name.isEmpty())
        return kOff;
    const Result<int> opened = openTraceFile(FilePath::absolute(name));
    if (!opened) {
        std::fprintf(stderr, "%s: %s\n", program_invocation_short_name,
                     qUtf8Printable(opened.error().detail));
        return kOff;
    }
    // With a first event here every later one can bring its comma along.
    const QByteArray begin = "[\n" + namingEvent("process_name", program_invocation_short_name);
    return writePiece(*opened, begin) ? *opened : kOff;
}

/// The descriptor, or kOff. Asks the environment at the first call; whoever sees an open file sees
/// its first event in it, too.
int tracingDescriptor()
{
    const int known = traceDescriptor.load(std::memory_order_acquire);
    if (known != kNotAsked)
        return known;
    static std::once_flag once;
    std::call_once(once, [] { traceDescriptor.store(openTrace(), std::memory_order_release); });
    return traceDescriptor.load(std::memory_order_acquire);
}

void nameThreadOnce(int descriptor)
{
    thread_local bool isNamed = false;
    if (std::exchange(isNamed, true))
        return;
    writePiece(descriptor, ",\n" + namingEvent("thread_name", threadName()));
}

void writeEvent(const char *phase, const char *name)
{
    const int descriptor = tracingDescriptor();
    if (descriptor < 0)
        return;
    const qint64 time = monotonicMicroseconds();
    nameThreadOnce(descriptor);
    JsonWriter out;
    beginEvent(out, phase, name);
    out.key(std::string_view("ts"));
    out.integer(time);
    if (*phase == 'i') {
        out.key(std::string_view("s"));
        out.utf8("t");
    }
    out.endObject();
    writePiece(descriptor, ",\n" + out.take());
}

} // namespace

bool isTracing()
{
    return tracingDescriptor() >= 0;
}

TraceStage::TraceStage(const char *name)
    : m_name(isTracing() ? name : nullptr)
{
    if (m_name)
        writeEvent("B", m_name);
}

void TraceStage::end()
{
    if (const char *const name = std::exchange(m_name, nullptr))
        writeEvent("E", name);
}

void traceMoment(const char *name)
{
    if (isTracing())
        writeEvent("i", name);
}

} // namespace lorva
