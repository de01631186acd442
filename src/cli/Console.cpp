// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Console.h"

#include "cli/Texts.h"

#include <QList>
#include <QStringDecoder>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include <fcntl.h>
#include <unistd.h>

namespace lorva::cli {

namespace {

QString escaped(char32_t c)
{
    switch (c) {
    case U'\n':
        return QStringLiteral("\\n");
    case U'\t':
        return QStringLiteral("\\t");
    case U'\r':
        return QStringLiteral("\\r");
    default:
        return QStringLiteral("\\u{%1}").arg(uint(c), 0, 16);
    }
}

bool breaksLine(char32_t c)
{
    const QChar::Category category = QChar::category(c);
    const bool isJoiner = c == 0x200C || c == 0x200D;
    return category == QChar::Other_Control || category == QChar::Separator_Line
        || category == QChar::Separator_Paragraph || category == QChar::Other_Surrogate
        || (category == QChar::Other_Format && !isJoiner);
}

bool writeError = false;

} // namespace

void keepStandardStreamsOpen()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // Opened the wrong way round, so that using it still fails.
        const int wrongWay = stream == STDIN_FILENO ? O_WRONLY : O_RDONLY;
        if (::fcntl(stream, F_GETFD) < 0 && ::open("/dev/null", wrongWay) < 0)
            return;
    }
}

QString singleLine(const QString &text)
{
    QString line;
    for (const uint c : text.toUcs4()) {
        if (c == U'\\')
            line += QStringLiteral("\\\\");
        else if (breaksLine(c))
            line += escaped(c);
        else
            line += QString::fromUcs4(reinterpret_cast<const char32_t *>(&c), 1);
    }
    return line;
}

QString singleLine(const FilePath &path)
{
    if (path.isUtf8())
        return singleLine(QString::fromUtf8(path.bytes()));
    QString line;
    for (const char byte : path.bytes()) {
        const auto value = uchar(byte);
        if (value < 0x20 || value >= 0x7F)
            line += QStringLiteral("\\x%1").arg(uint(value), 2, 16, QLatin1Char('0'));
        else
            line += byte == '\\' ? QStringLiteral("\\\\") : QString(QLatin1Char(byte));
    }
    return line;
}

void print(QByteArrayView bytes)
{
    if (std::fwrite(bytes.data(), 1, size_t(bytes.size()), stdout) != size_t(bytes.size()))
        writeError = true;
}

void printText(const QString &text)
{
    print(QByteArrayView(text.toUtf8()));
}

int finish()
{
    if (std::fflush(stdout) != 0 || writeError)
        return fail(Texts::tr("cannot write the output: %1")
                        .arg(QString::fromLocal8Bit(std::strerror(errno))));
    return exitOk;
}

void warn(const QString &message)
{
    std::fprintf(stderr, "lorvactl: %s\n", singleLine(message).toUtf8().constData());
}

int fail(const QString &message)
{
    warn(message);
    return exitFailed;
}

int failUsage(std::string_view command, const QString &message)
{
    const QByteArray help = command.empty()
        ? QByteArray("lorvactl --help")
        : "lorvactl " + QByteArray(command.data(), qsizetype(command.size())) + " --help";
    warn(Texts::tr("%1; see %2").arg(message, QString::fromUtf8(help)));
    return exitUsage;
}

int fail(std::string_view command, const Error &error)
{
    return error.kind == ErrorKind::usage ? failUsage(command, error.detail) : fail(error.detail);
}

ProgressLine::ProgressLine()
    : m_isTerminal(::isatty(STDERR_FILENO) == 1)
{
}

ProgressLine::~ProgressLine()
{
    if (m_isDirty)
        std::fputs("\r\x1b[K", stderr);
}

void ProgressLine::show(const QString &text)
{
    if (!m_isTerminal)
        return;
    m_isDirty = true;
    std::fprintf(stderr, "\r\x1b[K%s", singleLine(text).toUtf8().constData());
}

} // namespace lorva::cli
