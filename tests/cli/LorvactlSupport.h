// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/TestHome.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

namespace lorva::test {

struct Outcome
{
    int exitCode = -1;
    QByteArray out;
    QByteArray error;
};

inline Outcome finished(QProcess &process)
{
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), process.readAllStandardOutput(), process.readAllStandardError()};
}

inline Outcome lorvactl(const QStringList &arguments)
{
    QProcess process;
    // AsOrdinaryUser changes the effective user only; a real and an effective user that differ
    // would keep the leak checker from its work in the new process.
    process.setChildProcessModifier([] { ::setreuid(::geteuid(), ::geteuid()); });
    process.setWorkingDirectory(TestHome::instance().home().displayText());
    process.start(QStringLiteral(LORVACTL_PATH), arguments);
    return finished(process);
}

/// Through a shell, for arguments that are no text and for redirections.
inline Outcome shell(const QString &script)
{
    QProcess process;
    process.start(QStringLiteral("/bin/sh"),
                  {QStringLiteral("-c"),
                   QString(QStringLiteral("lorvactl() { " LORVACTL_PATH " \"$@\"; }; ") + script)});
    return finished(process);
}

inline QString path(const FilePath &file)
{
    return QString::fromUtf8(file.bytes());
}

inline void expectFailure(const Outcome &outcome, int exitCode, const char *words)
{
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.error.constData();
    EXPECT_THAT(outcome.error.toStdString(), testing::StartsWith("lorvactl: "));
    EXPECT_THAT(outcome.error.toStdString(), testing::HasSubstr(words));
    EXPECT_EQ(outcome.error.count('\n'), 1) << outcome.error.constData();
    EXPECT_EQ(outcome.out, "");
}

/// What one run of lorvactl must give.
struct Expected
{
    QStringList arguments;
    /// All of the output; for a failure a part of the error.
    const char *words = "";
    int exitCode = 0;
};

inline void expect(std::initializer_list<Expected> runs)
{
    for (const Expected &run : runs) {
        const Outcome outcome = lorvactl(run.arguments);
        SCOPED_TRACE(run.arguments.join(u' ').toStdString());
        if (run.exitCode != 0) {
            expectFailure(outcome, run.exitCode, run.words);
            continue;
        }
        EXPECT_EQ(outcome.exitCode, 0);
        EXPECT_EQ(outcome.error, "");
        EXPECT_EQ(outcome.out, run.words);
    }
}

/// What a run with these arguments, and --json, writes.
inline QJsonDocument json(QStringList arguments)
{
    const Outcome outcome = lorvactl(arguments << QStringLiteral("--json"));
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
    return QJsonDocument::fromJson(outcome.out);
}

/// What doctor says; it leaves everything, as `look` shows it, as it is.
template <typename Look>
std::string toldByDoctor(int exitCode, const Look &look)
{
    const auto before = look();
    const Outcome outcome = lorvactl({"doctor"});
    EXPECT_EQ(outcome.exitCode, exitCode) << outcome.out.constData();
    EXPECT_EQ(outcome.error, "");
    EXPECT_EQ(look(), before);
    return outcome.out.toStdString();
}

} // namespace lorva::test
