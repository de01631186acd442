// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/PreviewText.h"

#include "PreviewFonts.h"

namespace lorva {
namespace {

using test::fontFromFile;
using test::fontWith;
using test::realFont;

struct ChoiceCase
{
    std::u32string fontHas;
    QString typed;
    WritingScript script;
    QString shown;
};

TEST(PreviewText, chosenByWhatTheFontCanDraw)
{
    const QString korean = QStringLiteral("한글 123");
    const ChoiceCase cases[] = {
        // Blank: the pangram, whatever the font has.
        {U"A", QStringLiteral(""), WritingScript::korean,
         QStringLiteral("다람쥐 헌 쳇바퀴에 타고파")},
        {U"A", QStringLiteral(" \n\t\u3000\u2028"), WritingScript::latin,
         QStringLiteral("The quick brown fox jumps over the lazy dog.")},
        // Placeholders give way to the script's probe; near misses do not.
        {U"한글123 ", QStringLiteral("Aa"), WritingScript::korean, korean},
        {U"한글123Aa ", QStringLiteral("\n Aa 123 "), WritingScript::korean, korean},
        {U"한글Aa", QStringLiteral("Aa 12"), WritingScript::korean, QStringLiteral("Aa 12")},
        {U"한글Aa", QStringLiteral("AA"), WritingScript::korean, QStringLiteral("AA")},
        // Reduced probes: letters that are missing go, the rest stays; nothing left, the whole
        // probe.
        {U"한123 ", QStringLiteral("Aa"), WritingScript::korean, QStringLiteral("한 123")},
        {U"글", QStringLiteral("Aa"), WritingScript::korean, QStringLiteral("글 123")},
        {U"123 ", QStringLiteral("Aa"), WritingScript::korean, korean},
        {U"A", QStringLiteral("Aa"), WritingScript::latin, QStringLiteral("A 123")},
        {U"あ", QStringLiteral("Aa"), WritingScript::japanese, QStringLiteral("あ 123")},
        // Two letters of three are covered enough (0.667), 65 of 100 are not.
        {U"ab", QStringLiteral("abç"), WritingScript::latin, QStringLiteral("abç")},
        {U"aA", QString(65, u'a') + QString(35, u'b'), WritingScript::latin,
         QStringLiteral("Aa 123")},
        {U"aA", QString(66, u'a') + QString(34, u'b'), WritingScript::latin,
         QString(66, u'a') + QString(34, u'b')},
        // As typed, spaces and all; texts without letters are always covered.
        {U"a", QStringLiteral("  a a "), WritingScript::latin, QStringLiteral("  a a ")},
        {U"a", QStringLiteral("1 + 2 = ¿3?"), WritingScript::latin, QStringLiteral("1 + 2 = ¿3?")},
        // A letter beyond the basic plane counts as one.
        {U"ab", QStringLiteral("ab𝔸"), WritingScript::latin, QStringLiteral("ab𝔸")},
        {U"a", QStringLiteral("a𝔸"), WritingScript::latin, QStringLiteral("a 123")},
    };
    for (const ChoiceCase &c : cases)
        EXPECT_EQ(specimenText(c.typed, fontWith(c.fontHas), c.script), c.shown)
            << "for " << c.typed.toStdString();
}

TEST(PreviewText, realFontsShowWhatTheyHave)
{
    const Font cjk = fontFromFile(realFont("opentype/noto/NotoSerifCJK-Regular.ttc"));
    const Font latin = fontFromFile(realFont("opentype/ebgaramond/EBGaramond12-Regular.otf"));
    const Font arabic = fontFromFile(realFont("opentype/fonts-hosny-amiri/Amiri-Regular.ttf"));
    const Font hindi = fontFromFile(realFont("truetype/lohit-devanagari/Lohit-Devanagari.ttf"));
    const QString japanese = QStringLiteral("いろはにほへと");
    const QString arabicText = QStringLiteral("الخط العربي");
    const QString hindiText = QStringLiteral("देवनागरी");

    EXPECT_EQ(specimenText(japanese, cjk, WritingScript::japanese), japanese);
    EXPECT_EQ(specimenText(japanese, latin, WritingScript::latin), QStringLiteral("Aa 123"));
    EXPECT_EQ(specimenText(QStringLiteral("Aa"), cjk, WritingScript::simplifiedChinese),
              QStringLiteral("永汉 123"));
    EXPECT_EQ(specimenText(arabicText, arabic, WritingScript::latin), arabicText);
    EXPECT_EQ(specimenText(arabicText, cjk, WritingScript::traditionalChinese),
              QStringLiteral("永漢 123"));
    EXPECT_EQ(specimenText(hindiText, hindi, WritingScript::latin), hindiText);
    for (const WritingScript script : kAllWritingScripts) {
        EXPECT_EQ(coverage(cjk, defaultPangram(script)), 1.0);
        EXPECT_EQ(fallbackText(cjk, script), coverageProbe(script));
    }
}

TEST(PreviewText, coverageCountsLettersOnly)
{
    const Font font = fontWith(U"abc");
    EXPECT_EQ(coverage(font, QStringLiteral("abcd 12!")), 0.75);
    EXPECT_EQ(coverage(font, QStringLiteral("12!")), 1.0);
    EXPECT_EQ(coverage(font, QString()), 1.0);
    EXPECT_EQ(coverage(font, QString(QChar(0xd800))), 1.0);
    EXPECT_EQ(coverage(Font(), QStringLiteral("abc")), 0.0);
}

TEST(PreviewText, filesThatShareAPostScriptNameAreJudgedApart)
{
    test::FontBuilder first;
    test::FontBuilder second;
    const Font full = test::fontOf(first.postScriptName(QStringLiteral("Same")).codePoints(U"ab"));
    const Font half = test::fontOf(second.postScriptName(QStringLiteral("Same")).codePoints(U"a"));
    ASSERT_EQ(full.name(), half.name());
    EXPECT_EQ(coverage(full, QStringLiteral("ab")), 1.0);
    EXPECT_EQ(coverage(half, QStringLiteral("ab")), 0.5);
    EXPECT_EQ(coverage(full, QStringLiteral("ab")), 1.0);
}

} // namespace
} // namespace lorva
