// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <string_view>

namespace lorva::cli {

/// What a command ends with.
enum ExitCode { exitOk = 0, exitFailed = 1, exitUsage = 2 };

/// Opens what the shell has closed ("lorvactl list >&-"): else a preference or font file might be
/// given the number of standard output, and the output with it.
void keepStandardStreamsOpen();

/// Text fit for one line of a terminal: control characters, line separators and marks that turn the
/// direction of what follows become escapes (\n, \t, \u{202e}); a backslash is doubled.
QString singleLine(const QString &text);
/// A path fit for one line; bytes that are no UTF-8 become \xff.
QString singleLine(const FilePath &path);

/// Writes to standard output; what cannot be written (a full disk) is noticed by finish().
void print(QByteArrayView bytes);
void printText(const QString &text);
/// Ends the output: exitOk, or exitFailed after an error line when not all of it could be written.
[[nodiscard]] int finish();

/// One line on standard error.
int fail(const QString &message);
/// One line on standard error, with a pointer to the command's help.
int failUsage(std::string_view command, const QString &message);

/// One line on standard error about something that does not keep the command from its work.
void warn(const QString &message);

/// failUsage() for an error of that kind, else fail().
int fail(std::string_view command, const Error &error);

/// A line on standard error that the next one replaces; shown only on a terminal.
class ProgressLine
{
public:
    ProgressLine();
    /// Clears the line.
    ~ProgressLine();
    ProgressLine(const ProgressLine &) = delete;
    ProgressLine &operator=(const ProgressLine &) = delete;

    bool isShown() const { return m_isTerminal; }
    void show(const QString &text);

private:
    const bool m_isTerminal;
    bool m_isDirty = false;
};

} // namespace lorva::cli
