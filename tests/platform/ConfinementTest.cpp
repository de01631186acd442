// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/Confinement.h"
#include "support/AdverseSystem.h"
#include "support/TestHome.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace lorva {
namespace {

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool kHasMemoryLimit = false;
#else
constexpr bool kHasMemoryLimit = true;
#endif

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

/// What the probe says of an attempt on a file, which it leaves as it was.
std::string attempted(const char *attempt)
{
    const FilePath folder = test::makeCaseFolder();
    const FilePath file = test::writeFile(folder, "font", "font");
    QProcess probe;
    probe.start(QStringLiteral(LORVA_CONFINEMENT_PROBE),
                {QString::fromLatin1(attempt), QString::fromUtf8(file.bytes())});
    EXPECT_TRUE(probe.waitForFinished(-1));
    EXPECT_EQ(probe.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(probe.exitCode(), 0);
    EXPECT_EQ(test::readFile(file), "font");
    EXPECT_TRUE(test::readFile(folder.child("font2")).isNull());
    return probe.readAllStandardOutput().trimmed().toStdString();
}

void expectOutcomes(std::initializer_list<Row> rows)
{
    for (const Row &row : rows)
        EXPECT_EQ(attempted(row.attempt), told(row.outcome)) << row.attempt;
}

} // namespace

TEST(Confinement, LetsWorkReadWhatItOpenedAndAnswer)
{
    expectOutcomes({{"read what was opened", "done"},
                    {"start a thread", "done"},
                    {"have no core dumps", "done"},
                    {"use a stray descriptor", "Bad file descriptor"}});
}

TEST(Confinement, StopsWhatReadingNeverNeeds)
{
    for (const char *attempt :
         {"open for writing", "open for both", "open and truncate", "open and make", "rename",
          "link", "remove", "change rights", "open a socket", "run a program", "fork",
          "trace its parent", "signal its parent", "signal a thread of its parent"})
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
                    {"throw", ErrorKind::tooLarge}});
    if (kHasMemoryLimit)
        expectOutcomes({{"use much memory", ErrorKind::tooLarge}});
}

TEST(Confinement, HandsErrorsOn)
{
    const ConfinementLimits limits{qint64(1) << 40, std::chrono::seconds(60),
                                   std::chrono::seconds(300), 1000};
    const Error error{ErrorKind::truncated, QStringLiteral("\u00fc is cut")};
    const auto well = [] { return Result<void>(); };
    const auto ill = [&error] { return Result<void>(tl::unexpected(error)); };
    const auto work = [&error] { return Result<QByteArray>(tl::unexpected(error)); };
    EXPECT_EQ(runConfined({{}, well, work}, limits).error(), error);
    EXPECT_EQ(runConfined({{}, ill, [] { return Result<QByteArray>("x"); }}, limits).error(),
              error);
}

} // namespace lorva
