// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Input.h"

#include "cli/Arguments.h"
#include "cli/Texts.h"

#include <cerrno>
#include <cstring>

#include <unistd.h>

namespace lorva::cli {

namespace {

constexpr qint64 kMostNameBytes = qint64(64) << 20;

Result<QStringList> linesOfStandardInput()
{
    const Result<QByteArray> bytes = readStandardInput(kMostNameBytes);
    if (!bytes)
        return tl::unexpected(bytes.error());
    const Result<QString> decoded = text("standard input", *bytes);
    if (!decoded)
        return failure(ErrorKind::usage, Texts::tr("standard input is not UTF-8 text"));
    QStringList lines = decoded->split(u'\n', Qt::SkipEmptyParts);
    for (QString &line : lines) {
        if (line.endsWith(u'\r'))
            line.chop(1);
    }
    lines.removeAll(QString());
    return lines;
}

} // namespace

Result<QByteArray> readStandardInput(qint64 mostBytes)
{
    QByteArray bytes;
    char buffer[65536];
    for (;;) {
        const ssize_t got = ::read(STDIN_FILENO, buffer, sizeof buffer);
        if (got < 0 && errno == EINTR)
            continue;
        if (got < 0)
            return failure(ErrorKind::ioFailure,
                           Texts::tr("cannot read standard input: %1")
                               .arg(QString::fromLocal8Bit(std::strerror(errno))));
        if (got == 0)
            return bytes;
        bytes.append(buffer, got);
        if (bytes.size() > mostBytes)
            return failure(ErrorKind::tooLarge,
                           Texts::tr("standard input has more than %1 bytes").arg(mostBytes));
    }
}

Result<QStringList> namedFamilies(std::span<const QByteArray> words)
{
    if (words.size() == 1 && words.front() == "-")
        return linesOfStandardInput();
    QStringList names;
    for (const QByteArray &word : words) {
        Result<QString> name = text("FAMILY", word);
        if (!name)
            return failure(ErrorKind::usage, Texts::tr("the name of a family must be UTF-8 text"));
        if (name->isEmpty())
            return failure(ErrorKind::usage, Texts::tr("the name of a family cannot be empty"));
        names.push_back(*std::move(name));
    }
    return names;
}

} // namespace lorva::cli
