// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/ActivationHistory.h"

#include "base/AtomicFile.h"
#include "base/Json.h"
#include "base/SystemError.h"
#include "base/WholeFile.h"
#include "platform/FileDescriptor.h"

#include <cerrno>
#include <tuple>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace lorva {

namespace {

using Entry = ActivationHistoryEntry;
using File = Entry::File;

/// One run of very many files may exceed the limit; nothing of ours is ever larger than this.
constexpr qint64 kMostBytes = 16 * ActivationHistory::kLargestSize;

constexpr std::pair<Entry::Action, std::string_view> kActionNames[]{
    {Entry::Action::copied, "copied"},           {Entry::Action::registered, "registered"},
    {Entry::Action::deactivated, "deactivated"}, {Entry::Action::moved, "moved"},
    {Entry::Action::restored, "restored"},
};

constexpr std::pair<File::Fate, std::string_view> kFateNames[]{
    {File::Fate::done, "done"},
    {File::Fate::skipped, "skipped"},
    {File::Fate::failed, "failed"},
    {File::Fate::left, "left"},
};

// One line of the file, as it is written.

struct StoredFile
{
    FilePath path;
    JsonUtf8 fate;
    std::optional<QString> reason;
};

struct StoredEntry
{
    QString when;
    JsonUtf8 action;
    QStringList families;
    std::optional<FilePath> destination;
    std::vector<StoredFile> files;
};

template <class Fields, JsonRecordOf<StoredFile> Record>
void jsonFields(Fields &fields, Record &file)
{
    fields("path", file.path);
    fields("fate", file.fate);
    fields("reason", file.reason);
}

template <class Fields, JsonRecordOf<StoredEntry> Record>
void jsonFields(Fields &fields, Record &entry)
{
    fields("when", entry.when);
    fields("action", entry.action);
    fields("families", entry.families);
    fields("destination", entry.destination);
    fields("files", entry.files);
}

JsonUtf8 utf8(const QString &name)
{
    return {name.toUtf8()};
}

QByteArray lineOf(const Entry &entry)
{
    StoredEntry stored{entry.when.toUTC().toString(Qt::ISODateWithMs),
                       utf8(historyName(entry.action)),
                       entry.families,
                       entry.destination,
                       {}};
    stored.files.reserve(entry.files.size());
    for (const File &file : entry.files)
        stored.files.push_back({file.path, utf8(historyName(file.fate)),
                                file.reason.isEmpty() ? std::nullopt : std::optional(file.reason)});
    return encodeJson(stored) + '\n';
}

std::optional<File> fileOf(const StoredFile &stored)
{
    const auto fate = fromJsonName<File::Fate>(kFateNames, stored.fate.bytes);
    if (!fate)
        return std::nullopt;
    return File{stored.path, *fate, stored.reason.value_or(QString())};
}

std::optional<Entry> entryOf(const QByteArray &line)
{
    const Result<StoredEntry> stored = decodeJson<StoredEntry>(line);
    if (!stored)
        return std::nullopt;
    const QDateTime when = QDateTime::fromString(stored->when, Qt::ISODateWithMs);
    const auto action = fromJsonName<Entry::Action>(kActionNames, stored->action.bytes);
    if (!when.isValid() || !action)
        return std::nullopt;
    Entry entry{when.toUTC(), *action, stored->families, stored->destination, {}};
    for (const StoredFile &each : stored->files) {
        std::optional<File> file = fileOf(each);
        if (!file)
            return std::nullopt;
        entry.files.push_back(*std::move(file));
    }
    return entry;
}

/// The bytes of a line from behind, without its end; nothing when no more comes.
std::optional<QByteArrayView> takeLastLine(QByteArrayView &bytes)
{
    if (bytes.isEmpty())
        return std::nullopt;
    if (bytes.endsWith('\n'))
        bytes.chop(1);
    const qsizetype start = bytes.lastIndexOf('\n') + 1;
    const QByteArrayView line = bytes.sliced(start);
    bytes = bytes.first(start);
    return line;
}

// --- Writing; functions give 0 or the system's error number ---

int writeAll(int file, QByteArrayView bytes)
{
    while (!bytes.isEmpty()) {
        const ssize_t written = ::write(file, bytes.data(), size_t(bytes.size()));
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return errno;
        bytes = bytes.sliced(written);
    }
    return ::fdatasync(file) == 0 ? 0 : errno;
}

/// A process that died while it wrote leaves a line without an end, which spoils no other.
bool endsInTheMiddle(int file, qint64 size)
{
    char last = 0;
    return size > 0 && ::pread(file, &last, 1, size - 1) == 1 && last != '\n';
}

/// The size that the file has then, or the error number.
tl::expected<qint64, int> appendLine(const FilePath &path, QByteArray line)
{
    const FileDescriptor file(::open(
        path.c_str(), O_RDWR | O_APPEND | O_CREAT | O_CLOEXEC | O_NONBLOCK | O_NOCTTY, 0600));
    struct stat info;
    if (!file.isOpen() || ::fstat(file.number(), &info) != 0)
        return tl::unexpected(errno);
    if (!S_ISREG(info.st_mode))
        return tl::unexpected(EINVAL);
    if (endsInTheMiddle(file.number(), info.st_size))
        line.prepend('\n');
    if (const int code = writeAll(file.number(), line)) {
        std::ignore = ::ftruncate(file.number(), info.st_size);
        return tl::unexpected(code);
    }
    return info.st_size + line.size();
}

/// The newest lines that make up at most half of the limit, but at least the newest one.
QByteArrayView newerHalf(QByteArrayView bytes)
{
    QByteArrayView rest = bytes;
    qsizetype start = bytes.size();
    while (takeLastLine(rest)) {
        const bool isNewest = start == bytes.size();
        if (!isNewest && bytes.size() - rest.size() > ActivationHistory::kLargestSize / 2)
            break;
        start = rest.size();
    }
    return bytes.sliced(start);
}

} // namespace

QString historyName(ActivationHistoryEntry::Action action)
{
    const std::string_view name = jsonName<Entry::Action>(kActionNames, action);
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

QString historyName(ActivationHistoryEntry::File::Fate fate)
{
    const std::string_view name = jsonName<File::Fate>(kFateNames, fate);
    return QString::fromLatin1(name.data(), qsizetype(name.size()));
}

ActivationHistory::ActivationHistory(FilePath file)
    : m_file(std::move(file))
{
}

Result<std::vector<ActivationHistoryEntry>> ActivationHistory::read(size_t limit) const
{
    std::vector<Entry> entries;
    const Result<QByteArray> bytes = readWholeFile(m_file, kMostBytes);
    if (!bytes && bytes.error().kind == ErrorKind::notFound)
        return entries;
    if (!bytes)
        return failure(bytes.error().kind == ErrorKind::permissionDenied
                           ? ErrorKind::permissionDenied
                           : ErrorKind::ioFailure,
                       bytes.error().detail);
    QByteArrayView rest = *bytes;
    while (entries.size() < limit) {
        const std::optional<QByteArrayView> line = takeLastLine(rest);
        if (!line)
            break;
        if (std::optional<Entry> entry = entryOf(line->toByteArray()))
            entries.push_back(*std::move(entry));
    }
    return entries;
}

Result<void> ActivationHistory::append(const ActivationHistoryEntry &entry) const
{
    if (Result<void> made = makeFolders(m_file.parent()); !made)
        return made;
    const QByteArray line = lineOf(entry);
    const tl::expected<qint64, int> size = appendLine(m_file, line);
    if (!size)
        return systemFailure(size.error(), FileAction::write, m_file);
    if (*size <= kLargestSize)
        return {};
    // What is larger than anything of ours is somebody else's, and not worth keeping.
    const QByteArray all = readWholeFile(m_file, kMostBytes).value_or(line);
    return writeFileAtomically(m_file, newerHalf(all));
}

} // namespace lorva
