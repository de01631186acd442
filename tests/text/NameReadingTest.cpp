// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontLimits.h"
#include "text/names/NameTable.h"
#include "text/ReadingSupport.h"

#include <gmock/gmock.h>
#include <unicode/ucnv.h>

namespace lorva::test {

namespace {

using ::testing::ElementsAre;

constexpr int kGerman = 0x407;
constexpr int kBritish = 0x809;
constexpr int kJapanese = 0x411;

FontBuilder unnamed()
{
    return FontBuilder().withoutNames();
}

QByteArray utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes.append(char(c.unicode() >> 8)).append(char(c.unicode() & 0xFF));
    return bytes;
}

} // namespace

TEST(NameReading, ChoosesEnglishThenTheFirstRecord)
{
    struct Case
    {
        const char *what;
        FontBuilder font;
        QString family;
    };
    const Case cases[] = {
        {"English after German", unnamed().name(1, "Deutsch", kGerman).name(1, "English"),
         "English"},
        {"any English", unnamed().name(1, "Deutsch", kGerman).name(1, "British", kBritish),
         "British"},
        {"no English", unnamed().name(1, "Deutsch", kGerman).name(1, u"日本"_qs, kJapanese),
         "Deutsch"},
        {"Mac English before Windows Japanese",
         unnamed().rawName(1, 0, 0, 1, "Mac").name(1, u"日本"_qs, kJapanese), "Mac"},
        {"Windows English before Mac English",
         unnamed().rawName(1, 0, 0, 1, "Mac").name(1, "Windows"), "Windows"},
        {"Unicode platform", unnamed().rawName(0, 3, 0, 1, utf16("Unicode")), "Unicode"},
        {"typographic before plain", unnamed().name(1, "Foo Light").name(16, "Foo"), "Foo"},
        {"typographic in German only", unnamed().name(1, "Foo Light").name(16, "Fuh", kGerman),
         "Fuh"},
        {"empty typographic", unnamed().name(1, "Foo").name(16, "  "), "Foo"},
        {"English record without visible text",
         unnamed().name(1, u"\u0001\u0002"_qs).name(1, "Deutsch", kGerman), "Deutsch"},
        {"encodings of 16 bits and more",
         unnamed().rawName(3, 10, 0x409, 1, utf16(u"\U0001D4D0"_qs)), u"\U0001D4D0"_qs},
        {"symbol encoding", unnamed().rawName(3, 0, 0x409, 1, utf16("Dings")), "Dings"},
        {"unreadable encodings only", unnamed().rawName(1, 1, 11, 1, "\x83\x65"), ""},
        {"control characters and space", unnamed().name(1, u" \tA\u0000B\u009F\u2028C\uFEFF\n"_qs),
         "AB C"},
        {"halves of surrogate pairs",
         unnamed().rawName(3, 1, 0x409, 1, QByteArray("\xD8\x00\0A\xDC\x00", 6)),
         u"\uFFFDA\uFFFD"_qs},
        {"odd length", unnamed().rawName(3, 1, 0x409, 1, QByteArray("\0A\0B\0", 5)), "AB"},
        {"Mac Roman", unnamed().rawName(1, 0, 0, 1, "Caf\x8E \xA5 Gr\x9A\xA7"), u"Café • Größ"_qs},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(builtFace(c.font)->names().family, c.family);
    }
}

TEST(NameReading, DecodesMacRomanAsIcuDoes)
{
    UErrorCode status = U_ZERO_ERROR;
    UConverter *converter = ucnv_open("macintosh", &status);
    ASSERT_TRUE(U_SUCCESS(status));
    for (int byte = 0; byte < 256; ++byte) {
        const char in = char(byte);
        UChar out[4] = {};
        ucnv_toUChars(converter, out, 4, &in, 1, &status);
        EXPECT_EQ(macRomanToUnicode(quint8(byte)), out[0]) << byte;
    }
    ucnv_close(converter);
}

TEST(NameReading, CutsNamesOf60Kilobytes)
{
    const QString giant(30000, u'x');
    const FaceNames labels = builtFace(FontBuilder(giant, "Regular"))->names();
    EXPECT_EQ(labels.family.size(), kMaxNameBytes / 2);
    EXPECT_EQ(labels.style, QLatin1String("Regular"));
    EXPECT_EQ(builtFace(FontBuilder().name(0, giant))->names().copyright.size(),
              kMaxLongNameBytes / 2);
}

TEST(NameReading, SkipsRecordsThatPointOutsideTheTable)
{
    QByteArray table("\0\0\0\2\0\x1E", 6);
    table += QByteArray("\0\3\0\1\4\x09\0\1\0\x08\xFF\xF0", 12);
    table += QByteArray("\0\3\0\1\4\x07\0\1\0\x08\0\0", 12);
    table += utf16("Safe");
    EXPECT_EQ(builtFace(FontBuilder().table("name", table))->names().family, QLatin1String("Safe"));
}

TEST(NameReading, ListsFamilyNamesOfEveryLanguageInTableOrder)
{
    const auto face = builtFace(unnamed()
                                    .rawName(1, 0, 0, 1, "Caf\x8E")
                                    .name(1, "Foo")
                                    .name(1, u"フー"_qs, kJapanese)
                                    .name(16, "Foo Family")
                                    .name(21, "Foo Wws")
                                    .name(2, "Bold"));
    EXPECT_THAT(face->familyNamesInAllLanguages(),
                ElementsAre(u"Café"_qs, u"Foo"_qs, u"Foo Family"_qs, u"Foo Wws"_qs, u"フー"_qs));
}

TEST(NameReading, ListsNoMoreFamilyNamesThanAFontHasUseFor)
{
    FontBuilder font = unnamed().name(1, "Foo");
    for (int language = 0x1000; language < 0x1000 + 3000; ++language)
        font.name(16, "Foo", language);
    EXPECT_EQ(builtFace(font)->familyNamesInAllLanguages().size(), 1000u);
}

TEST(NameReading, ReadsAllTextsOfAFace)
{
    const FaceNames names = builtFace(FontBuilder("Fam", "Sty")
                                          .postScriptName("Fam-Sty")
                                          .manufacturer("Maker")
                                          .name(4, "Fam Sty")
                                          .name(5, "Version 1")
                                          .name(0, "(c)")
                                          .name(9, "Ada"))
                                ->names();
    EXPECT_EQ(names,
              (FaceNames{"Fam", "Sty", "Fam-Sty", "Fam Sty", "Version 1", "(c)", "Maker", "Ada"}));
}

TEST(NameReading, ReadsKoreanFontsByTheirEnglishNames)
{
    const auto face = openFace(realFont("truetype/nanum/NanumGothicBold.ttf"));
    EXPECT_EQ(face->names().family, QLatin1String("NanumGothic"));
    EXPECT_THAT(face->familyNamesInAllLanguages(), ::testing::Contains(u"나눔고딕"_qs));
}

} // namespace lorva::test
