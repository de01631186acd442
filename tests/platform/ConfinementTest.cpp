// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/Confinement.h"
#include "base/Sanitizers.h"
#include "support/AdverseSystem.h"
#include "support/TestHome.h"

#include <QProcess>

#include <gtest/gtest.h>

#include <csignal>

namespace lorva {
namespace {

constexpr ConfinementLimits kLimits{qint64(1) << 40, std::chrono::seconds(10),
                                    std::chrono::seconds(30), 1000};

struct Row
{
    const char *attempt;
    /// What the probe says; a kind stands for being stopped.
    std::variant<const char *, ErrorKind> outcome;
};

std::string told(const std::variant<const char *, ErrorKind> &outcome)
{
    const auto *text = std::get_if<const char *>(&outcome);
    return text ? *text : std::to_string(int(std::get<ErrorKind>(outcome)));
}

/// What the probe says of an attempt on a file, which it leaves as it was. The kernel lacks the
/// system calls.
std::string attempted(const char *attempt, const QStringList &lacking = {})
{
    const FilePath folder = test::makeCaseFolder();
    const FilePath file = test::writeFile(folder, "font", "font");
    // Longer than any file of the confined process may be.
    const QByteArray before((1 << 20) + 1, 'e');
    const FilePath errors = test::writeFile(folder, "errors", before);
    QProcess probe;
    probe.setStandardErrorFile(QString::fromUtf8(errors.bytes()), QIODevice::Append);
    probe.start(QStringLiteral(LORVA_CONFINEMENT_PROBE),
                QStringList{QString::fromLatin1(attempt), QString::fromUtf8(file.bytes())}
                    + lacking);
    EXPECT_TRUE(probe.waitForFinished(-1));
    EXPECT_EQ(probe.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(probe.exitCode(), 0);
    EXPECT_EQ(test::readFile(file), "font");
    EXPECT_TRUE(kHasShadowMemory || test::readFile(errors) == before);
    EXPECT_TRUE(test::readFile(folder.child("font2")).isNull());
    return probe.readAllStandardOutput().trimmed().toStdString();
}

void expectOutcomes(std::initializer_list<Row> rows, const QStringList &lacking = {})
{
    for (const Row &row : rows)
        EXPECT_EQ(attempted(row.attempt, lacking), told(row.outcome))
            << row.attempt << " without " << lacking.join(u' ').toStdString();
}

} // namespace

TEST(Confinement, LetsWorkReadWhatItOpenedAndAnswer)
{
    expectOutcomes({{"read what was opened", "done"},
                    {"start a thread", "done"},
                    {"have no core dumps", "done"},
                    {"gain no rights", "done"},
                    {"end with its parent", "done"},
                    {"hide its memory", "done"},
                    {"complain", kHasShadowMemory ? "File too large" : "done"},
                    {"use a stray descriptor", "Bad file descriptor"}});
}

TEST(Confinement, StopsWhatReadingNeverNeeds)
{
    for (const char *attempt :
         {"open for writing", "open for writing in an earlier thread", "open for both",
          "open and truncate", "open and make", "rename", "link", "remove", "change rights",
          "open a socket", "run a program", "fork", "trace its parent", "signal its parent",
          "signal a thread of its parent"})
        EXPECT_EQ(attempted(attempt), told(ErrorKind::invalidValue)) << attempt;
}

TEST(Confinement, RefusesWhatIsHarmlessToAskFor)
{
    expectOutcomes({{"open for reading", "Permission denied"},
                    {"make code", "Permission denied"},
                    {"fork by the newest call", "Function not implemented"},
                    {"raise its limits", "Function not implemented"}});
}

TEST(Confinement, BoundsTimeMemoryAndAnswer)
{
    expectOutcomes({{"never end", ErrorKind::cancelled},
                    {"wait for ever", ErrorKind::cancelled},
                    {"close its end and wait", ErrorKind::cancelled},
                    {"answer too much", ErrorKind::tooLarge},
                    {"crash", ErrorKind::malformed},
                    {"throw", ErrorKind::tooLarge},
                    {"make a file longer than its answer", "File too large"}});
    if (!kHasShadowMemory)
        expectOutcomes({{"use much memory", ErrorKind::tooLarge}});
}

TEST(Confinement, HoldsOnOlderKernels)
{
    expectOutcomes({{"read what was opened", "done"},
                    {"use a stray descriptor", "Bad file descriptor"},
                    {"close its end and wait", ErrorKind::cancelled}},
                   {"close_range", "pidfd_open"});
    // A kernel that sets no filters, or a sandbox that lets nobody set one.
    expectOutcomes({{"read what was opened", "done"},
                    {"open for reading", "done"},
                    {"never end", ErrorKind::cancelled},
                    {"make a file longer than its answer", "File too large"}},
                   {"seccomp", "prctl"});
    // Nothing is read by a process that could not be confined.
    expectOutcomes({{"read what was opened", ErrorKind::ioFailure}}, {"close_range", "getdents64"});
}

/// Programs that have a child that they do not wait for ignore its end, and so does what they
/// start.
TEST(Confinement, HearsOfItsEndWhereChildrenAreIgnored)
{
    struct sigaction before = {};
    ::sigaction(SIGCHLD, nullptr, &before);
    ::signal(SIGCHLD, SIG_IGN);
    const ConfinedWork work{
        {}, [] { return Result<void>(); }, [] { return Result<QByteArray>("x"); }};
    EXPECT_EQ(runConfined(work, kLimits), "x");
    struct sigaction after = {};
    ::sigaction(SIGCHLD, &before, &after);
    EXPECT_EQ(after.sa_handler, SIG_IGN);
}

TEST(Confinement, HandsErrorsOn)
{
    const Error error{ErrorKind::truncated, QStringLiteral("\u00fc is cut")};
    const auto well = [] { return Result<void>(); };
    const auto ill = [&error] { return Result<void>(tl::unexpected(error)); };
    const auto work = [&error] { return Result<QByteArray>(tl::unexpected(error)); };
    EXPECT_EQ(runConfined({{}, well, work}, kLimits).error(), error);
    EXPECT_EQ(runConfined({{}, ill, [] { return Result<QByteArray>("x"); }}, kLimits).error(),
              error);
}

TEST(Confinement, MakesWordsHarmless)
{
    const auto told = [](const QString &detail) {
        const ConfinedWork work{
            {},
            [] { return Result<void>(); },
            [&detail] { return Result<QByteArray>(failure(ErrorKind::malformed, detail)); }};
        return runConfined(work, kLimits).error().detail;
    };
    EXPECT_EQ(told(QStringLiteral("a\nb\x1B[2Jc\u2028")),
              QStringLiteral("a\uFFFDb\uFFFD[2Jc\uFFFD"));
    // Cut between characters, of which 341 take 1023 bytes.
    EXPECT_EQ(told(QString(5000, QChar(0x6C38))), QString(341, QChar(0x6C38)));
}

} // namespace lorva
