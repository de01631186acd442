// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FamilyIdentification.h"

#include "catalog/CatalogSupport.h"

#include <gmock/gmock.h>

#include <QFile>

namespace lorva::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Scripts = std::set<WritingScript>;

/// L Latin, J Japanese, K Korean, S and T Chinese, in the order of the enumeration.
constexpr char kLetters[] = "LJKST";

Scripts scriptsOf(const std::string &letters)
{
    Scripts scripts;
    for (const WritingScript script : kAllWritingScripts)
        if (letters.find(kLetters[int(script)]) != std::string::npos)
            scripts.insert(script);
    return scripts;
}

/// "LJ>J": the scripts, then the primary one.
std::string textOf(const FamilyScriptIdentity &identity)
{
    std::string text;
    for (const WritingScript script : identity.scripts)
        text += kLetters[int(script)];
    text += '>';
    if (identity.primary)
        text += kLetters[int(*identity.primary)];
    return text;
}

/// "Family LJ>J Other name|…" of each family, in order.
std::vector<std::string> textsOf(const std::vector<FamilyIdentification> &families)
{
    std::vector<std::string> texts;
    for (const FamilyIdentification &family : families) {
        std::string text = family.familyName.toStdString() + ' ' + textOf(family.identity);
        if (family.identity.alternates)
            text += ' ' + family.identity.alternates->join(u'|').toStdString();
        texts.push_back(std::move(text));
    }
    return texts;
}

FilePath write(const QByteArray &bytes)
{
    return writeFile(TestHome::instance().makeFolder("files"), "font.ttf", bytes);
}

std::vector<std::string> identify(const FontBuilder &font)
{
    return textsOf(identifyFile(write(font.build())));
}

FontBuilder font(const char *family, const std::u32string &characters)
{
    return FontBuilder(QString::fromUtf8(family)).codePoints(characters);
}

/// A character map of one segment (OpenType `cmap`, format 4).
QByteArray segmentMap(quint16 encoding, quint16 first, quint16 last, quint16 delta)
{
    const quint16 numbers[] = {0, 1, 3,    encoding, 0, 12,    4,      32,    0, 4, 4,
                               1, 0, last, 0xFFFF,   0, first, 0xFFFF, delta, 1, 0, 0};
    QByteArray bytes;
    for (const quint16 number : numbers)
        bytes.append(char(number >> 8)).append(char(number & 0xFF));
    return bytes;
}

} // namespace

TEST(ScriptIdentity, FollowsFromCoverageAndName)
{
    struct Case
    {
        /// Latin, kana, Hangul, Han, simplified Han, traditional Han.
        SampleCoverage coverage;
        /// Family names and what follows.
        const char *identities;
    };
    const Case cases[] = {
        {{}, "Foo=>"},
        {{1, 1, 0, 0, 0, 0}, "Foo JP=>"},
        {{2, 0, 0, 0, 0, 0}, "Foo=L>L"},
        {{3, 0, 1, 0, 0, 0}, "Foo TC=LK>K"},
        {{0, 2, 0, 0, 0, 0}, "Foo=J>J;Foo TC=J>J"},
        // Simplified and traditional forms count beside common Han only.
        {{3, 0, 0, 1, 5, 5}, "Foo SC=L>L"},
        {{0, 0, 0, 3, 2, 2}, "Foo SC=>"},
        {{0, 0, 0, 2, 3, 2}, "Foo TC=S>S"},
        {{0, 0, 0, 2, 2, 3}, "Foo SC=T>T"},
        {{0, 0, 0, 3, 5, 5}, "Foo TC=ST>T;Foo=ST>S"},
        // Kana make traditional forms Japanese, unless the name or Hangul says otherwise.
        {{3, 2, 0, 3, 2, 5}, "Foo Mincho=LJ>J;Foo=LJ>J;Foo TC=LJT>T;Foo SC=LJ>J"},
        {{0, 2, 0, 0, 0, 3}, "Foo HK=JT>T;Foo Songti=JT>T"},
        {{0, 3, 0, 3, 2, 2}, "Foo TC=J>J"},
        {{0, 1, 0, 3, 0, 3}, "Foo=T>T"},
        {{0, 3, 0, 3, 5, 5}, "Foo TC=JS>J;Foo SC=JS>S"},
        {{0, 2, 1, 3, 3, 3}, "Foo KR=JKST>K;Foo HK=JKST>T"},
        // Hangul beside little Han is Korean whatever the name; beside Han the name decides.
        {{3, 3, 3, 0, 0, 0}, "Foo Batang=LJK>K"},
        {{3, 3, 1, 1, 0, 0}, "Foo Mincho=LJK>K"},
        {{3, 3, 3, 2, 1, 2}, "Foo Batang=LJK>K;Foo Mincho=LJK>J;Foo=LJK>J"},
        {{0, 0, 1, 3, 5, 0}, "Foo=KS>K"},
    };
    for (const Case &c : cases)
        for (const QString &line : QString::fromUtf8(c.identities).split(u';'))
            EXPECT_EQ(textOf(scriptIdentity(line.section(u'=', 0, 0), c.coverage)),
                      line.section(u'=', 1).toStdString())
                << c.identities;
}

TEST(ScriptIdentity, ReadsFamilyNamesInTheOrderOfItsRules)
{
    struct Case
    {
        const char *candidates;
        char script;
        const char *names;
    };
    const Case cases[] = {
        // Region suffixes: whole words, from the last to the first, in any case.
        {"JKST", 'S', "Foo SC;Foo cn;Foo GB;Foo JP SC;SC Foo Bold"},
        {"JKST", 'T', "Foo TC;Foo Tw;Foo HK;Foo HC;Foo MO;  Foo  HK "},
        {"JKST", 'K', "Foo KR;Foo ko;Foo K;KR Foo Bold"},
        {"JKST", 'J', "Foo SC JP;Batang JP;나눔 J;Foosc;Foo-SC;TC\tFoo"},
        {"KST", 'K', "Foo KR JP;나あ;Foo"},
        // Style words anywhere in the name, Korean before Japanese before Chinese.
        {"JKST", 'K', "NanumMyeongjo;FOO MYUNGJO;xbatangx;Dotum;Gulim;Gungseo;Mincho Batang"},
        {"JST", 'J', "Mincho Batang;Mincho Heiti;나눔;Foo"},
        {"JKST", 'S', "Foo Heiti;Songti;FooKaiti;FangSong;PingFang;Heiti ふ"},
        {"JKT", 'T', "Foo Heiti"},
        {"JK", 'J', "Foo Heiti"},
        // Letters of the name itself, kana before Hangul, exactly within their blocks.
        {"JK", 'K', "나눔;나\u303F;나\u3100;\uAC00;\uD7AF"},
        {"JK", 'J', "나\u3040;나\u30FF;\uABFF;\uD7B0"},
        // Nothing in the name.
        {"K", 'K', "Foo JP"},
        {"ST", 'S', "Foo"},
        {"LT", 'T', "Foo"},
        {"L", 'L', "Foo"},
        {"", 'J', "Foo SC"},
    };
    for (const Case &c : cases)
        for (const QString &name : QString::fromUtf8(c.names).split(u';'))
            EXPECT_EQ(kLetters[int(scriptByName(name, scriptsOf(c.candidates)))], c.script)
                << name.toStdString() << " among " << c.candidates;
}

TEST(AlternateNames, AreTheOthersOnceEachInOrder)
{
    struct Case
    {
        std::vector<QString> inTheFont;
        std::optional<QStringList> alternates;
    };
    const Case cases[] = {
        {{}, std::nullopt},
        {{"Foo", " Foo\t", "", "  "}, std::nullopt},
        {{"foo"}, QStringList{"foo"}},
        {{"Foo", "フー", "Fu", "フー ", u"\u3000Fu"_qs, "Foo Light"},
         {{"フー", "Fu", "Foo Light"}}},
    };
    for (const Case &c : cases)
        EXPECT_EQ(alternateNames("Foo", c.inTheFont), c.alternates);
    std::vector<QString> endless;
    for (int i = 0; i < 5000; ++i)
        endless.push_back(QString::number(i));
    EXPECT_EQ(alternateNames("0", endless)->size(), 100);
    EXPECT_EQ(alternateNames("0", endless)->first(), QLatin1String("1"));
}

TEST(IdentifyFile, CountsTheCharactersOfTheFont)
{
    struct Case
    {
        const char *family;
        const char *identity;
        /// Each font just reaches what its scripts need.
        std::vector<std::u32string> fonts;
    };
    const Case cases[] = {
        {"Foo", ">", {U"A", U"Bby", U"いウ각", U"永", U"永一門漢", U"永一门汉", U"永门汉见"}},
        {"Foo", "L>L", {U"Aa", U"az", U"Az"}},
        {"Foo", "J>J", {U"あの", U"のア", U"あア"}},
        {"Foo", "K>K", {U"가", U"한", U"나"}},
        {"Foo", "S>S", {U"永一门汉见", U"一天马张门", U"永天汉马张"}},
        {"Foo", "T>T", {U"永一門漢見", U"一天馬張門", U"永天漢馬張"}},
        {"Foo Mincho", "LJ>J", {U"Aazあのア永一天門漢見馬張"}},
        {"Foo TC", "ST>T", {U"永一天门汉见马张門漢見馬張"}},
        {"Foo Batang", "JK>K", {U"あのア가한나永一"}},
    };
    for (const Case &c : cases)
        for (const std::u32string &characters : c.fonts)
            EXPECT_THAT(identify(font(c.family, characters)),
                        ElementsAre(std::string(c.family) + ' ' + c.identity))
                << QString::fromStdU32String(characters).toStdString();
}

TEST(IdentifyFile, TakesHarfBuzzsWordForWhatIsMapped)
{
    const auto mapped = [](const QByteArray &cmap) {
        return identify(FontBuilder("Foo").table("cmap", cmap));
    };
    const QByteArray whole = segmentMap(1, 'A', 'z', quint16(1 - 'A'));
    EXPECT_THAT(mapped(whole), ElementsAre("Foo L>L"));
    EXPECT_THAT(mapped(segmentMap(0, 0xF041, 0xF07A, quint16(1 - 0xF041))), ElementsAre("Foo L>L"))
        << "a symbol font keeps its letters at U+F000 and the code";
    EXPECT_THAT(mapped(segmentMap(1, 'a', 'a', quint16(-'a'))), ElementsAre("Foo >"))
        << "glyph 0 is no glyph";
    for (qsizetype length = 0; length < whole.size(); length += 7)
        EXPECT_THAT(mapped(whole.first(length)), ElementsAre("Foo >")) << length;
    EXPECT_THAT(mapped(QByteArray(4000, '\xFF')), ElementsAre("Foo >"));
    EXPECT_THAT(identify(FontBuilder("Foo").withoutCmap()), ElementsAre("Foo >"));
}

TEST(IdentifyFile, CollectsTheFamilysNamesInEveryLanguage)
{
    FontBuilder named("Foo Light");
    named.name(16, "Foo").name(16, u"フー"_qs, 0x411).name(1, u"フー Light"_qs, 0x411);
    named.name(21, "Foo WWS").name(4, "Full").rawName(1, 0, 0, 1, "Caf\x8E");
    named.rawName(1, 0, 2, 16, "Foo").manufacturer("Maker");
    const auto found = identifyFile(write(named.codePoints(U"Aaz").build()));
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].familyName, QLatin1String("Foo"));
    EXPECT_EQ(found[0].manufacturer, QLatin1String("Maker"));
    ASSERT_TRUE(found[0].identity.alternates);
    EXPECT_EQ(
        QSet<QString>(found[0].identity.alternates->begin(), found[0].identity.alternates->end()),
        QSet<QString>({"Foo Light", "フー", "フー Light", "Foo WWS", "Café"}));
    EXPECT_EQ(identifyFile(write(FontBuilder("Foo").build()))[0].manufacturer, QString());
}

TEST(IdentifyFamilies, JudgesEachFamilyByItsFirstFace)
{
    const FilePath path = write(FontBuilder::collection(
        {font("A", U"Aaz").manufacturer("First").build(), font("B", U"나").build(),
         font("A", U"あのア").manufacturer("Second").build(), FontBuilder().withoutNames().build(),
         font("C", U"Aaz").withoutCmap().build()}));
    const auto found = identifyFile(path);
    EXPECT_THAT(textsOf(found), ElementsAre("A L>L", "B K>K", "C >"));
    EXPECT_EQ(found[0].manufacturer, QLatin1String("First"));

    const auto opened = FontFile::openForReading(path);
    ASSERT_TRUE(opened);
    const auto descriptors = opened->file->descriptors();
    ASSERT_TRUE(descriptors);
    QStringList asked;
    const auto onlyB = identifyFamilies(*opened->file, *descriptors, [&](const QString &name) {
        asked.append(name);
        return name == u'B';
    });
    EXPECT_THAT(textsOf(onlyB), ElementsAre("B K>K"));
    EXPECT_EQ(asked, QStringList({"A", "B", "C"}));
}

TEST(IdentifyFamilies, ReadsThroughTheOpeningThatIsKept)
{
    const auto everyFamily = [](const QString &) { return true; };
    const FilePath path = write(font("Foo", U"Aaz").build());
    auto opened = FontFile::openForReading(path);
    ASSERT_TRUE(opened);
    const auto descriptors = opened->file->descriptors();
    ASSERT_TRUE(descriptors);
    ASSERT_TRUE(QFile::remove(path.displayText()));
    EXPECT_THAT(textsOf(identifyFamilies(*opened->file, *descriptors, everyFamily)),
                ElementsAre("Foo L>L"));
    opened->opening.reset();
    EXPECT_THAT(identifyFamilies(*opened->file, *descriptors, everyFamily), IsEmpty());
    EXPECT_THAT(identifyFile(path), IsEmpty());
}

TEST(IdentifyFile, FindsNothingInFilesThatAreNoFonts)
{
    EXPECT_THAT(identifyFile(write("hardly a font")), IsEmpty());
    EXPECT_THAT(identifyFile(write(font("Foo", U"Aaz").build().first(300))), IsEmpty());
    EXPECT_THAT(identifyFile(TestHome::instance().makeFolder("folder")), IsEmpty());
    EXPECT_THAT(identify(FontBuilder().withoutNames()), IsEmpty());
}

TEST(IdentifyFile, KnowsRealFamilies)
{
    const auto real = [](const char *path) { return textsOf(identifyFile(realFont(path))); };
    EXPECT_THAT(real("opentype/noto/NotoSansCJK-Regular.ttc"),
                ElementsAre("Noto Sans CJK JP LJKST>J", "Noto Sans CJK KR LJKST>K",
                            "Noto Sans CJK SC LJKST>S", "Noto Sans CJK TC LJKST>T",
                            "Noto Sans CJK HK LJKST>T", "Noto Sans Mono CJK JP LJKST>J",
                            "Noto Sans Mono CJK KR LJKST>K", "Noto Sans Mono CJK SC LJKST>S",
                            "Noto Sans Mono CJK TC LJKST>T", "Noto Sans Mono CJK HK LJKST>T"));
    EXPECT_THAT(real("opentype/noto/NotoSerifCJK-Bold.ttc"),
                ElementsAre("Noto Serif CJK JP LJKST>J", "Noto Serif CJK KR LJKST>K",
                            "Noto Serif CJK SC LJKST>S", "Noto Serif CJK TC LJKST>T",
                            "Noto Serif CJK HK LJKST>T"));
    EXPECT_THAT(real("truetype/nanum/NanumMyeongjo.ttf"),
                ElementsAre("NanumMyeongjo LJK>K 나눔명조"));
    EXPECT_THAT(
        real("truetype/nanum/NanumSquareRoundR.ttf"),
        ElementsAre("NanumSquareRound LJK>K NanumSquareRound Regular|나눔스퀘어라운드 Regular|"
                    "나눔스퀘어라운드"));
    EXPECT_THAT(real("truetype/lxgw-wenkai/LXGWWenKai-Light.ttf"),
                ElementsAre("LXGW WenKai LJKST>J LXGW WenKai Light|霞鹜文楷 Light|霞鹜文楷"));
    EXPECT_THAT(real("truetype/inter-vf/Inter.var.ttf"), ElementsAre("Inter L>L"));
    EXPECT_EQ(identifyFile(realFont("truetype/nanum/NanumMyeongjo.ttf"))[0].manufacturer,
              QLatin1String("NHN Corporation"));
}

} // namespace lorva::test
