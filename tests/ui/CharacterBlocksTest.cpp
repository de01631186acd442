// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterBlocks.h"
#include "support/QtPrinters.h"
#include "ui/detail/CharacterNames.h"
#include "ui/PreviewFonts.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace lorva {
namespace {

using test::FontBuilder;

QStringList blockNames()
{
    return {"latin", "digits", "punctuationAndSymbols", "kana", "hangul", "han", "other"};
}

QByteArray bigEndian16(const std::vector<int> &values)
{
    QByteArray bytes;
    for (const int value : values) {
        bytes.append(char(value >> 8));
        bytes.append(char(value));
    }
    return bytes;
}

/// A symbol map (OpenType `cmap`, platform 3, encoding 0) of U+F041 … U+F05A onto glyphs 1 to 26.
QByteArray symbolMap()
{
    return bigEndian16({0, 1, 3, 0, 0, 12}) + bigEndian16({4, 32, 0, 4, 4, 1, 0})
        + bigEndian16({0xF05A, 0xFFFF, 0, 0xF041, 0xFFFF, (1 - 0xF041) & 0xFFFF, 1, 0, 0});
}

TEST(CharacterBlocksTest, firstFittingBlockWins)
{
    const std::pair<char32_t, Block> cases[]{
        {U'7', Block::digits},
        {U'\u0667', Block::other},
        {0x3041, Block::kana},
        {0x30FB, Block::kana},
        {0x3040, Block::other},
        {0xFF66, Block::kana},
        {0x1100, Block::hangul},
        {0xD7FF, Block::hangul},
        {0x3000, Block::punctuationAndSymbols},
        {0x2E80, Block::han},
        {0x3FFFF, Block::han},
        {U'z', Block::latin},
        {U'\u00C6', Block::latin},
        {U'\u00D7', Block::punctuationAndSymbols},
        {0x1EFF, Block::latin},
        {0x0250, Block::other},
        {0x00A0, Block::punctuationAndSymbols},
        {U'_', Block::punctuationAndSymbols},
        {0x20AC, Block::punctuationAndSymbols},
        {0x00AA, Block::other},
        {0x0301, Block::other},
        {0xE000, Block::other},
        {0x2028, Block::other},
    };
    for (const auto &[scalar, block] : cases)
        EXPECT_EQ(blockOf(scalar), block) << codePointText(scalar).toStdString();
}

TEST(CharacterBlocksTest, listsWhatShowsInOrder)
{
    const CharacterSet all({{0x00, 0xFF}, {0x200D, 0x200D}, {0xD800, 0xDFFF}, {0x40000, 0x40010}});
    const std::vector<CharacterGridSection> sections = enumerateCharacters(all);
    ASSERT_EQ(sections.size(), 4U);
    EXPECT_TRUE(sections[0].characters.join(QString()).startsWith(u"AaÀÁÂÃÄÅàáâãäåBbCcÇçDd"));
    EXPECT_TRUE(sections[0].characters.join(QString()).endsWith(u"ZzÆÐØÞßæðøþ"));
    EXPECT_EQ(sections[1].characters.join(QString()), u"0123456789");
    EXPECT_TRUE(sections[2].characters.contains(QString(QChar(0xA0))));
    for (const CharacterGridSection &section : sections) {
        for (const char32_t hidden : {0x09, 0x7F, 0x9F, 0xAD, 0x200D, 0x40000})
            EXPECT_FALSE(section.characters.contains(textOf(hidden))) << int(hidden);
    }
    EXPECT_TRUE(enumerateCharacters({}).empty());
}

TEST(CharacterBlocksTest, tellsNamesAndBytes)
{
    EXPECT_EQ(codePointText(U'A'), u"U+0041");
    EXPECT_EQ(codePointText(0x1F600), u"U+1F600");
    EXPECT_EQ(unicodeName(U'A'), u"LATIN CAPITAL LETTER A");
    EXPECT_EQ(unicodeName(0xAC00), u"HANGUL SYLLABLE GA");
    EXPECT_EQ(unicodeName(0x4E00), u"CJK UNIFIED IDEOGRAPH-4E00");
    EXPECT_EQ(unicodeName(0x000D), u"CARRIAGE RETURN") << "only an alias";
    EXPECT_EQ(unicodeName(0x009F), u"APPLICATION PROGRAM COMMAND");
    EXPECT_EQ(unicodeName(0xE000), QString()) << "neither";
    EXPECT_EQ(utf8Text(U'\u20AC'), u"E2 82 AC");
    EXPECT_EQ(htmlText(0x1F600), u"&#x1F600;");
    EXPECT_EQ(categoryText(U'\u0301'), u"Combining mark");
    EXPECT_EQ(firstScalar(u"\xD800"), char32_t(0xFFFD));
    EXPECT_EQ(firstScalar(textOf(0x1F600)), char32_t(0x1F600));
}

/// What the script says of each font: block → code points.
QList<QMap<QString, QStringList>> readByFontTools(const QStringList &faces)
{
    QProcess process;
    process.start(QStringLiteral("/usr/bin/python3"),
                  QStringList{"-B", LORVA_UI_TESTS "/character_maps.py"} + faces);
    process.waitForFinished(120'000);
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    QList<QMap<QString, QStringList>> fonts;
    for (const QString &line :
         QString::fromLatin1(process.readAllStandardOutput()).split(u'\n', Qt::SkipEmptyParts)) {
        QStringList words = line.split(u' ');
        const QString block = words.takeFirst();
        if (block == u"font")
            fonts.append(QMap<QString, QStringList>());
        else
            fonts.last()[block] = words;
    }
    return fonts;
}

/// Without characters that are newer than the reference.
QMap<QString, QStringList> readByUs(const Font &font, const QStringList &unknown)
{
    QMap<QString, QStringList> blocks;
    for (const CharacterGridSection &section : enumerateCharacters(readCharacters(*font.face()))) {
        QStringList codes;
        for (const QString &character : section.characters) {
            const QString code = QString::number(firstScalar(character), 16).toUpper();
            if (!unknown.contains(code))
                codes.append(code);
        }
        if (!codes.isEmpty())
            blocks[blockNames().at(int(section.block))] = codes;
    }
    return blocks;
}

TEST(CharacterBlocksTest, agreesWithAnotherReaderOnRealFonts)
{
    std::vector<FilePath> files;
    for (const char *name : {"opentype/noto/NotoSansCJK-Regular.ttc",
                             "truetype/dejavu/DejaVuSans.ttf",
                             "truetype/dejavu/DejaVuSansMono-Bold.ttf",
                             "truetype/dejavu/DejaVuSerif.ttf",
                             "opentype/fonts-hosny-amiri/Amiri-Regular.ttf",
                             "truetype/noto/NotoColorEmoji.ttf",
                             "truetype/inter-vf/Inter.var.ttf",
                             "opentype/ebgaramond/EBGaramond12-Regular.otf",
                             "truetype/comfortaa/Comfortaa-Regular.ttf",
                             "truetype/liberation/LiberationSans-Regular.ttf",
                             "truetype/jetbrains-mono/JetBrainsMono-Regular.ttf",
                             "truetype/firacode/FiraCode-Regular.ttf",
                             "opentype/roboto/slab/RobotoSlab-Regular.otf",
                             "truetype/noto/NotoSans-Regular.ttf",
                             "truetype/noto/NotoSansSymbols2-Regular.ttf",
                             "truetype/noto/NotoSansMath-Regular.ttf",
                             "truetype/noto/NotoSansCuneiform-Regular.ttf",
                             "truetype/noto/NotoNastaliqUrdu-Regular.ttf",
                             "truetype/noto/NotoSerifTangut-Regular.ttf",
                             "truetype/noto/NotoSansDevanagari-Regular.ttf",
                             "truetype/lxgw-wenkai/LXGWWenKai-Regular.ttf",
                             "opentype/league-mono/LeagueMono-Regular.otf",
                             "opentype/linux-libertine/LinLibertine_R.otf",
                             "truetype/nanum/NanumGothic.ttf"})
        files.push_back(test::realFont(name));
    const FilePath folder = test::TestHome::instance().makeFolder("symbols");
    files.push_back(
        test::writeFile(folder, "symbol.ttf", FontBuilder().table("cmap", symbolMap()).build()));

    QStringList faces;
    for (const FilePath &file : files)
        faces.append(file.displayText() + QLatin1String("#0"));
    const auto expected = readByFontTools(faces);
    ASSERT_EQ(expected.size(), faces.size());
    EXPECT_EQ(expected.last().value("latin").size(), 26);
    for (size_t i = 0; i < files.size(); ++i) {
        QMap<QString, QStringList> blocks = expected[qsizetype(i)];
        const QStringList unknown = blocks.take("unknown");
        EXPECT_EQ(readByUs(test::fontFromFile(files[i]), unknown), blocks)
            << faces[qsizetype(i)].toStdString();
    }
}

} // namespace
} // namespace lorva
