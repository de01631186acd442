// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "support/FontBuilder.h"
#include "support/TestHome.h"

#include <QImage>
#include <QProcess>

#include <gmock/gmock.h>

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

TEST(Program, RefusesUnknownArguments)
{
    const Outcome outcome =
        runProgram({QStringLiteral("--frobnicate")}, QProcessEnvironment::systemEnvironment());
    EXPECT_EQ(outcome.exitCode, 2);
    EXPECT_EQ(outcome.errors.count('\n'), 1);
}

} // namespace
} // namespace lorva
