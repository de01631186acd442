// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/ColorPalette.h"

#include "text/ColorSupport.h"

using namespace lorva;
using namespace lorva::test;

namespace {

TEST(ColorPalettes, AreReadWithNamesColorsAndUses)
{
    const ColorPalettes read = readColorPalettes(*colorFont("colr0.ttf").face());
    ASSERT_EQ(read.palettes.size(), 2u);
    const ColorPalette &day = read.palettes[0];
    EXPECT_EQ(day.name, QStringLiteral("Day"));
    EXPECT_TRUE(day.isForLightBackground);
    EXPECT_FALSE(day.isForDarkBackground);
    const ColorPalette &night = read.palettes[1];
    EXPECT_EQ(night.name, QStringLiteral("Night"));
    EXPECT_FALSE(night.isForLightBackground);
    EXPECT_TRUE(night.isForDarkBackground);
    ASSERT_EQ(night.colors.size(), 6u);
    EXPECT_EQ(night.colors[2], qRgba(255, 255, 0, 128));
    const std::vector<QString> entries{
        QStringLiteral("Fill"), {}, QStringLiteral("Outline"), {}, {}, {}};
    EXPECT_EQ(read.entryNames, entries);
}

TEST(ColorPalettes, FontsWithoutAreEmpty)
{
    EXPECT_TRUE(readColorPalettes(*boxFont().face()).palettes.empty());
    EXPECT_TRUE(chosenColors(boxFont()).empty());
    EXPECT_TRUE(chosenColors(Font()).empty());
}

TEST(ColorPalettes, TheChosenOneIsDrawnWithItsOverrides)
{
    const struct
    {
        PaletteChoice choice;
        QRgb box;
        QRgb left;
    } cases[]{
        {{}, 0xFF0000, 0x0000FF},
        {{1, {}}, 0x00FFFF, 0x80FF80},
        {{2, {}}, 0xFF0000, 0x0000FF},
        {{-1, {}}, 0xFF0000, 0x0000FF},
        {{0, {{2, 0xFF123456}}}, 0xFF0000, 0x123456},
        {{1, {{0, 0xFF101010}, {2, 0xFF202020}}}, 0x101010, 0x202020},
        {{0, {{6, 0xFF123456}, {0xFFFF, 0xFF123456}}}, 0xFF0000, 0x0000FF},
    };
    for (const auto &[choice, box, left] : cases) {
        const Font font = colorFont("colr0.ttf").withPalette(choice);
        const QImage image = drawnCharacter(font, U'A');
        EXPECT_TRUE(isClose(colorAt(image, 700, 400), box, 1)) << choice.index;
        EXPECT_TRUE(isClose(colorAt(image, 300, 400), left, 1)) << choice.index;
    }
}

TEST(ColorPalettes, DamagedTablesGiveWhatIsThere)
{
    // Version 0: 2 entries, 3 palettes, 4 colours, of which the file holds less and less.
    const QByteArray table = QByteArray::fromHex("00000002000300040000001200000002000201020304");
    for (qsizetype length = 0; length <= table.size(); ++length) {
        const QByteArray bytes = FontBuilder("Cut").table("CPAL", table.left(length)).build();
        const auto face = openFace(writeFont(bytes, "cpal" + QByteArray::number(length) + ".ttf"));
        for (const ColorPalette &palette : readColorPalettes(*face).palettes)
            EXPECT_LE(palette.colors.size(), 2u) << length;
        EXPECT_LE(chosenColors(Font(face, 10)).size(), 2u) << length;
    }
}

} // namespace
