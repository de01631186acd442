// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "support/FontBuilder.h"
#include "support/TestHome.h"
#include "support/Waiting.h"

#include <QImage>
#include <QProcess>

#include <gmock/gmock.h>

#include <algorithm>

#include <unistd.h>

namespace lorva {
namespace {

struct Outcome
{
    int exitCode = -1;
    QByteArray errors;
};

Outcome runProgram(const QStringList &arguments, const QProcessEnvironment &environment)
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LORVA_PROGRAM), arguments);
    process.waitForFinished(120000);
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            process.readAllStandardError()};
}

TEST(Program, WritesAPictureOfFilesThatAreOpened)
{
    const auto &home = test::TestHome::instance();
    const FilePath file = test::writeFile(home.root(), "shown.ttf",
                                          test::FontBuilder("Shown").codePoints(U"Aa").build());
    const FilePath picture = home.root().child("files.png");
    const Outcome outcome =
        runProgram({QStringLiteral("--screenshot"), picture.displayText(),
                    QStringLiteral("--window-size"), QStringLiteral("800x600"), file.displayText()},
                   QProcessEnvironment::systemEnvironment());
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.constData();
    EXPECT_EQ(outcome.errors, "");
    EXPECT_EQ(QImage::fromData(test::readFile(picture)).size(), QSize(800, 600));
}

TEST(Program, WritesAPictureOfTheWholeLibraryWithoutADisplay)
{
    const auto &home = test::TestHome::instance();
    for (const char *name : {"One", "Two"})
        test::writeFile(home.systemFonts(), QByteArray(name) + ".ttf",
                        test::FontBuilder(QString::fromLatin1(name)).codePoints(U"Aa 123").build());
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.remove(QStringLiteral("DISPLAY"));
    environment.insert(QStringLiteral("QT_SCALE_FACTOR"), QStringLiteral("2"));
    const FilePath picture = home.root().child("shot.png");

    const Outcome outcome = runProgram({QStringLiteral("--screenshot"), picture.displayText(),
                                        QStringLiteral("--window-size"), QStringLiteral("960x800")},
                                       environment);

    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors.constData();
    const QImage image = QImage::fromData(test::readFile(picture));
    ASSERT_EQ(image.size(), QSize(1920, 1600));
    // The fixture's glyphs are black boxes: each of the two cards must hold some.
    const auto inkIn = [&](const QRect &area) {
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (qGray(image.pixel(x, y)) < 20)
                    return true;
        return false;
    };
    EXPECT_TRUE(inkIn({40, 240, 880, 260}));
    EXPECT_TRUE(inkIn({1000, 240, 880, 260}));
    EXPECT_FALSE(inkIn({0, 640, 1920, 900})) << "below the only row there is nothing";
}

TEST(Program, SaysInOneLineWhatToDoWithoutADisplay)
{
    auto environment = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        environment.remove(QString::fromLatin1(name));
    Outcome outcome = runProgram({}, environment);
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
    EXPECT_THAT(outcome.errors.toStdString(), ::testing::HasSubstr("--screenshot"));

    environment.insert(QStringLiteral("DISPLAY"), QStringLiteral(":4711"));
    outcome = runProgram({}, environment);
    EXPECT_EQ(outcome.exitCode, 2) << "a display that does not answer";
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
}

TEST(Program, FailsWhenThePictureCannotBeWritten)
{
    const Outcome outcome =
        runProgram({QStringLiteral("--screenshot"), QStringLiteral("/nowhere/at/all/shot.png")},
                   QProcessEnvironment::systemEnvironment());
    EXPECT_EQ(outcome.exitCode, 1);
    EXPECT_EQ(outcome.errors.count('\n'), 1) << outcome.errors.constData();
}

/// Kills a window's process once its trace names all of `events` so many times; gives the trace.
QByteArray traceUntil(const std::vector<std::pair<const char *, int>> &events)
{
    const FilePath file = test::TestHome::instance().root().child("trace.json");
    ::unlink(file.c_str());
    auto environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("LORVA_TRACE"), file.displayText());
    // A window that somebody has open here must not take the start over.
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LORVA_PROGRAM), QStringList());
    QByteArray trace;
    EXPECT_TRUE(test::waitUntil([&] {
        trace = test::readFile(file);
        return std::ranges::all_of(
            events, [&](const auto &event) { return trace.count(event.first) >= event.second; });
    })) << trace.constData();
    process.kill();
    process.waitForFinished();
    return trace;
}

TEST(Program, ShowsAtTheSecondStartWhatTheFirstFoundEvenIfThatWasKilled)
{
    test::writeFile(test::TestHome::instance().systemFonts(), "one.ttf",
                    test::FontBuilder("One").build());
    const QByteArray first =
        traceUntil({{"first screen painted", 1}, {"snapshot: save", 2}, {"parse cache: save", 2}});
    EXPECT_FALSE(first.contains("snapshot shown"));
    const QByteArray second = traceUntil({{"first screen painted", 1}, {"catalog applied", 1}});
    EXPECT_GE(second.indexOf("snapshot shown"), 0);
    EXPECT_LT(second.indexOf("snapshot shown"), second.indexOf("catalog applied"));
    EXPECT_FALSE(second.contains(": save")) << "nothing changed, nothing is written";
}

TEST(Program, RefusesUnknownArguments)
{
    const Outcome outcome =
        runProgram({QStringLiteral("--frobnicate")}, QProcessEnvironment::systemEnvironment());
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.errors.count('\n'), 1);
}

} // namespace
} // namespace lorva
