// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FaceInformation.h"

#include "text/FontLimits.h"
#include "text/MadeFonts.h"
#include "text/ReadingSupport.h"

#include <QtEndian>

#include <gmock/gmock.h>

namespace lorva::test {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

FontBuilder unnamed()
{
    return FontBuilder().withoutNames();
}

QByteArray number(int value)
{
    return QByteArray().append(char(value >> 8)).append(char(value));
}

QByteArray utf16(const QString &text)
{
    QByteArray bytes;
    for (const QChar c : text)
        bytes += number(c.unicode());
    return bytes;
}

/// "en: Foo" of each text of that kind, in order.
std::vector<std::string> texts(const FaceInformation &information, quint16 nameId)
{
    std::vector<std::string> lines;
    for (const LocalizedName &name : information.namesOf(nameId))
        lines.push_back(name.language.toStdString() + ": " + name.text.toStdString());
    return lines;
}

FaceInformation read(const FontBuilder &font)
{
    return readFaceInformation(*builtFace(font));
}

/// OpenType `name` with one record of each language id, all the same text, and what follows.
QByteArray nameTable(int format, int platform, std::initializer_list<int> languages,
                     const QByteArray &afterRecords, const QByteArray &storage)
{
    const int count = int(languages.size());
    QByteArray table =
        number(format) + number(count) + number(6 + 12 * count + int(afterRecords.size()));
    for (const int language : languages)
        table +=
            number(platform) + number(1) + number(language) + number(1) + number(4) + number(0);
    return table + afterRecords + storage;
}

/// A copy of the built font's table with some bytes replaced.
QByteArray patched(const FontBuilder &font, const char *tag, int at, const QByteArray &bytes)
{
    const QByteArray file = font.build();
    const auto entry = file.indexOf(tag);
    const auto offset = qFromBigEndian<quint32>(file.data() + entry + 8);
    const auto length = qFromBigEndian<quint32>(file.data() + entry + 12);
    return file.sliced(offset, length).replace(at, bytes.size(), bytes);
}

} // namespace

TEST(FaceNamesInAllLanguages, TellTheLanguageOfEachRecord)
{
    const QByteArray foo = utf16("Foo");
    const FaceInformation information = read(unnamed()
                                                 .rawName(0, 3, 0, 1, utf16("No tags"))
                                                 .rawName(1, 0, 0, 1, "Foo")
                                                 .rawName(1, 0, 2, 1, "Fuh")
                                                 .rawName(1, 0, 9999, 1, "Odd")
                                                 .rawName(3, 1, 0x407, 1, utf16("Fuh"))
                                                 .rawName(3, 1, 0x409, 1, foo)
                                                 .rawName(3, 1, 0x809, 1, utf16("Foe"))
                                                 .rawName(3, 1, 0x411, 1, utf16(u"フー"_qs))
                                                 .rawName(3, 1, 0x804, 1, utf16(u"福"_qs))
                                                 .rawName(3, 1, 0xFFFE, 1, utf16("Lost"))
                                                 .rawName(3, 1, 0x409, 2, utf16("Regular")));
    EXPECT_THAT(texts(information, 1),
                ElementsAre("en: Foo", "en-GB: Foe", ": No tags", "de: Fuh", ": Odd", "ja: フー",
                            "zh-CN: 福", ": Lost"));
    EXPECT_EQ(information.nameOf(1), u"Foo"_qs);
    EXPECT_EQ(information.nameOf(7), QString());
    EXPECT_EQ(information.names.size(), 9u) << "what two platforms say alike is told once";
}

TEST(FaceNamesInAllLanguages, ReadLanguageTagsOfBothKinds)
{
    const QByteArray own =
        number(3) + number(10) + number(4) + number(0) + number(4) + number(900) + number(0);
    const QByteArray storage = utf16("Fu") + utf16("nds-u");
    const auto tagged = [&](int format) {
        return texts(
            read(unnamed().table(
                "name", nameTable(format, 3, {0x8000, 0x8001, 0x8002, 0x8003}, own, storage))),
            1);
    };
    EXPECT_THAT(tagged(1), ElementsAre("nds-u: Fu", ": Fu"));
    EXPECT_THAT(tagged(0), ElementsAre(": Fu"));

    const QByteArray apple = number(0) + number(1) + QByteArray(6, '\0') + number(2) + number(20)
        + number(2) + number(22) + number(7) + "srzh-Han";
    EXPECT_THAT(texts(read(unnamed()
                               .table("name", nameTable(0, 0, {0, 1, 2, 0xFFFF}, {}, utf16("Fu")))
                               .table("ltag", apple)),
                      1),
                ElementsAre("sr: Fu", ": Fu"))
        << "the second tag lies beyond the end";
}

TEST(FaceNamesInAllLanguages, AreDecodedByTheirEncodings)
{
    struct Case
    {
        int platform;
        int encoding;
        int language;
        QByteArray bytes;
        QString text;
    };
    const Case cases[] = {
        {0, 4, 0, utf16(u"\U0001D4D0"_qs), u"\U0001D4D0"_qs},
        {3, 0, 0x409, utf16("Dings"), u"Dings"_qs},
        {3, 2, 0x411, QByteArray("\0A\x83\x74\x81\x5B", 6), u"Aフー"_qs},
        {3, 3, 0x804, QByteArray("\xCB\xCE\xCC\xE5\0 \0A", 8), u"宋体 A"_qs},
        {3, 4, 0x404, "\xB2\xD3\xA9\xFA", u"細明"_qs},
        {3, 5, 0x412, "\xB1\xBC\xB8\xB2", u"굴림"_qs},
        {1, 0, 0, "Caf\x8E", u"Café"_qs},
        {1, 0, 17, "\xDF", u"ş"_qs},
        {1, 0, 25, "\x8D", u"ć"_qs},
        {1, 0, 18, "Zagreb", u"Zagreb"_qs},
        {1, 0, 18, "\xA9", QString()},
        {1, 1, 11, "\x83\x74\x81\x5B \xFD \xB1", u"フー © ｱ"_qs},
        {1, 2, 19, "\xB2\xD3\xA9\xFA\xFF", u"細明…"_qs},
        {1, 3, 23, "\xB1\xBC\xB8\xB2 \x83", u"굴림 ©"_qs},
        {1, 6, 14, "\xB0", u"Α"_qs},
        {1, 7, 32, "\x8F\xE0", u"Па"_qs},
        {1, 25, 33, "\xCB\xCE\xCC\xE5\xFE", u"宋体™"_qs},
        {1, 29, 26, "\xEA", u"Í"_qs},
        {1, 5, 10, "Ivrit", u"Ivrit"_qs},
        {1, 5, 10, "\xE0", QString()},
        {2, 1, 0, utf16("ISO"), QString()},
        {3, 6, 0x412, "\x88\x61", QString()},
        {3, 1, 0x409, utf16(u"One\r\ntwo\tthree\u2028four\u0007\n"_qs), u"One two three four"_qs},
        {3, 1, 0x409, QByteArray("\xD8\x00\0A", 4), u"\uFFFDA"_qs},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(QStringLiteral("%1 %2 %3")
                         .arg(c.platform)
                         .arg(c.encoding)
                         .arg(c.language)
                         .toStdString());
        const FaceInformation information =
            read(FontBuilder().rawName(c.platform, c.encoding, c.language, 3, c.bytes));
        EXPECT_EQ(information.nameOf(3), c.text);
    }
}

TEST(FaceNamesInAllLanguages, OfRealFontsAreAllThere)
{
    const auto korean = readFaceInformation(*openFace(realFont("truetype/nanum/NanumGothic.ttf")));
    EXPECT_THAT(texts(korean, 1), ElementsAre("en: NanumGothic", "ko: 나눔고딕"));
    EXPECT_THAT(
        texts(korean, 9),
        ElementsAre("en: Bruce Kwon; Nicolas Noh; Sung-woo Choi;", "ko: 권경석; 노영권; 최성우;"));
    EXPECT_THAT(texts(korean, 20), ElementsAre(": NanumGothic-KSCpc-EUC-H"));
    EXPECT_EQ(korean.names.size(), 24u) << "29 records, 13 of them twice, less the one of a kind";
    const auto japanese =
        readFaceInformation(*openFace(realFont("opentype/noto/NotoSansCJK-Regular.ttc")));
    EXPECT_THAT(texts(japanese, 4), ElementsAre("en: Noto Sans CJK JP", "ja: Noto Sans CJK JP"));
}

TEST(FaceNamesInAllLanguages, AreBounded)
{
    QByteArray table = number(0) + number(0xFFFF) + number(0);
    for (int i = 0; i < 20000; ++i)
        table += number(3) + number(1) + number(0x409) + number(i) + number(60000) + number(0);
    const FaceInformation information = read(unnamed().table("name", table));
    EXPECT_LE(information.names.size(), size_t(kMaxListedNameBytes / kMaxLongNameBytes));
    for (const LocalizedName &name : information.names)
        EXPECT_LE(name.text.size(), kMaxLongNameBytes);
    EXPECT_THAT(read(unnamed().table("name", number(0) + number(9))).names, IsEmpty());
}

TEST(NameKinds, AreNamedForPeople)
{
    EXPECT_EQ(nameIdText(0), QLatin1String("Copyright"));
    EXPECT_EQ(nameIdText(14), QLatin1String("Licence address"));
    EXPECT_EQ(nameIdText(25), QLatin1String("Variations PostScript name prefix"));
    for (const quint16 none : {15, 26, 255, 256, 0xFFFF})
        EXPECT_EQ(nameIdText(none), QString());
}

/// As fonttools 4.38 reads them.
TEST(FaceInformation, TellsTheMetricsOfARealFont)
{
    const auto face = openFace(realFont("opentype/noto/NotoSansCJK-Regular.ttc"));
    const FaceInformation it = readFaceInformation(*face);
    EXPECT_NEAR(it.fontRevision, 2.004, 0.0001);
    EXPECT_EQ(it.created, QDateTime::fromSecsSinceEpoch(1619713371, Qt::UTC));
    EXPECT_EQ(it.modified, it.created);
    EXPECT_THAT(it.bounds, ElementsAre(-1002, -1048, 2928, 1808));
    EXPECT_EQ(it.lowestReadablePixels, 3);
    EXPECT_EQ(it.embedding, EmbeddingRights());
    EXPECT_EQ(it.weightClass, 400);
    EXPECT_EQ(it.widthClass, 5);
    EXPECT_EQ(it.averageCharacterWidth, 979);
    EXPECT_EQ(it.panose, (std::array<quint8, 10>{2, 11, 5, 0, 0, 0, 0, 0, 0, 0}));
    EXPECT_EQ(it.vendorId, QLatin1String("GOOG"));
    EXPECT_EQ(it.codePages, 0x602E0107U);
    EXPECT_EQ(it.typoMetrics, (VerticalMetricsSet{880, -120, 0}));
    EXPECT_FALSE(it.usesTypoMetrics);
    EXPECT_EQ(it.windowsMetrics, (VerticalMetricsSet{1160, -288, 0}));
    EXPECT_EQ(it.horizontalMetrics, (VerticalMetricsSet{1160, -288, 0}));
    EXPECT_EQ(it.maximumAdvance, 3000);
    EXPECT_EQ(it.subscript, (ScriptMetrics{650, 600, 0, 75}));
    EXPECT_EQ(it.superscript, (ScriptMetrics{650, 600, 0, 350}));
    EXPECT_EQ(it.strikeout, (StrokeMetrics{325, 50}));
    EXPECT_EQ(it.underline, (StrokeMetrics{-125, 50}));
    EXPECT_EQ(it.italicAngleDegrees, 0);
    EXPECT_FALSE(it.isMonospaced);
    EXPECT_EQ(it.layoutLanguages.size(), 1u + 6 * 6);
    EXPECT_EQ(it.layoutLanguages[1],
              (LayoutLanguage{fontTag('c', 'y', 'r', 'l'), fontTag('d', 'f', 'l', 't')}));
    EXPECT_EQ(it.layoutLanguages[2],
              (LayoutLanguage{fontTag('c', 'y', 'r', 'l'), fontTag('J', 'A', 'N', ' ')}));
    EXPECT_EQ(it.tables.front().first, fontTag('B', 'A', 'S', 'E'));
    EXPECT_TRUE(readFaceInformation(*openFace(realFont("truetype/dejavu/DejaVuSansMono.ttf")))
                    .isMonospaced);
}

TEST(FaceInformation, LeavesOutWhatAFontDoesNotSay)
{
    const FaceInformation it =
        read(FontBuilder().withoutOs2().withoutTable("post").substitution("smcp", U'a', U'A'));
    EXPECT_FALSE(it.embedding || it.weightClass || it.panose || it.typoMetrics || it.windowsMetrics
                 || it.subscript || it.strikeout || it.underline);
    EXPECT_EQ(it.vendorId, QString());
    EXPECT_FALSE(it.codePages || read(FontBuilder().os2Version(0)).codePages);
    EXPECT_TRUE(it.horizontalMetrics);
    EXPECT_THAT(it.axisValues, IsEmpty());
    EXPECT_THAT(
        it.layoutLanguages,
        ElementsAre(LayoutLanguage{fontTag('D', 'F', 'L', 'T'), fontTag('d', 'f', 'l', 't')}));
    const FaceInformation shortOs2 =
        read(FontBuilder().table("OS/2", patched(FontBuilder(), "OS/2", 0, {}).first(68)));
    EXPECT_TRUE(shortOs2.embedding && shortOs2.strikeout);
    EXPECT_FALSE(shortOs2.typoMetrics || shortOs2.windowsMetrics);
}

TEST(FaceInformation, PutsEmbeddingRightsIntoWords)
{
    struct Case
    {
        int fsType;
        const char16_t *words;
    };
    const Case cases[] = {
        {0x0000, u"Installable"},
        {0x0001, u"Installable"},
        {0x0002, u"Restricted: not without the owner’s permission"},
        {0x0004, u"Preview and print"},
        {0x0008, u"Editable"},
        {0x000E, u"Editable"},
        {0x0006, u"Preview and print"},
        {0x0108, u"Editable, no subsetting"},
        {0x0200, u"Installable, bitmaps only"},
        {0x0304, u"Preview and print, no subsetting, bitmaps only"},
    };
    for (const Case &c : cases) {
        const auto rights =
            read(FontBuilder().table("OS/2", patched(FontBuilder(), "OS/2", 8, number(c.fsType))))
                .embedding;
        ASSERT_TRUE(rights);
        EXPECT_EQ(rights->fsType, c.fsType);
        EXPECT_EQ(embeddingText(*rights), QString::fromUtf16(c.words)) << c.fsType;
    }
}

TEST(FaceInformation, KnowsDatesFromClocksThatWereNeverSet)
{
    constexpr quint64 kFrom1904 = 2082844800;
    struct Case
    {
        quint64 seconds;
        std::optional<int> year;
    };
    const Case cases[] = {
        {kFrom1904 + 1700000000, 2023},
        {0, std::nullopt},
        {1, std::nullopt},
        {kFrom1904, std::nullopt},
        {kFrom1904 + 473385600, 1985},
        {~quint64(0), std::nullopt},
        {quint64(1) << 63, std::nullopt},
        {quint64(1) << 33, std::nullopt},
        {quint64(1) << 62, std::nullopt},
    };
    for (const Case &c : cases) {
        QByteArray date(8, '\0');
        qToBigEndian(c.seconds, date.data());
        const auto created =
            read(FontBuilder().table("head", patched(FontBuilder(), "head", 20, date))).created;
        ASSERT_EQ(created.has_value(), c.year.has_value()) << c.seconds;
        EXPECT_EQ(created ? created->date().year() : 0, c.year.value_or(0));
    }
}

TEST(FaceInformation, NamesAxisValues)
{
    const auto face = openFace(madeFont("stat.ttf"));
    const FontTag weight = fontTag('w', 'g', 'h', 't');
    const FontTag width = fontTag('w', 'd', 't', 'h');
    EXPECT_THAT(readFaceInformation(*face).axisValues,
                ElementsAre(NamedAxisValue{weight, 400, {}, {}, 700, "Regular", true},
                            NamedAxisValue{weight, 650, 600, 800, {}, "Bold", false},
                            NamedAxisValue{weight, 900, 800, 900, {}, "Black", false},
                            NamedAxisValue{width, 75, {}, {}, {}, "Condensed", false}));
    const auto inter =
        readFaceInformation(*openFace(realFont("truetype/inter-vf/Inter-roman.var.ttf")))
            .axisValues;
    ASSERT_EQ(inter.size(), 9u);
    EXPECT_EQ(inter[1], (NamedAxisValue{weight, 200, {}, {}, {}, "Extra Light", false}));
}

/// Each table cut after every byte, and each of its bytes replaced by the largest.
TEST(FaceInformation, BearsDamageAnywhere)
{
    const QByteArray sound = test::readFile(madeFont("stat.ttf"));
    const FontBuilder builder = FontBuilder()
                                    .rawName(1, 3, 23, 1, "\xB1\xBC\xB8\xB2")
                                    .rawName(1, 1, 11, 1, "\x83")
                                    .substitution("smcp", U'a', U'A');
    for (const char *tag : {"name", "head", "hhea", "OS/2", "post", "GSUB"}) {
        const QByteArray table = patched(builder, tag, 0, {});
        for (qsizetype at = 0; at < table.size(); ++at) {
            FontBuilder damaged = builder;
            const bool isCut = at % 2 == 0;
            QByteArray bytes = isCut ? table.first(at) : table;
            if (!isCut)
                bytes[at] = char(0xFF);
            const auto file = FontFile::open(writeFont(damaged.table(tag, bytes).build()));
            const auto face = file ? (*file)->face({}) : tl::unexpected(file.error());
            if (!face)
                continue;
            const FaceInformation it = readFaceInformation(**face);
            EXPECT_LE(it.names.size(), 200u) << tag << at;
            EXPECT_LE(it.layoutLanguages.size(), size_t(kMaxLayoutLanguages)) << tag << at;
        }
    }
    const auto stat = sound.indexOf("STAT");
    const auto offset = qFromBigEndian<quint32>(sound.data() + stat + 8);
    const auto length = qFromBigEndian<quint32>(sound.data() + stat + 12);
    for (quint32 at = 0; at < length; ++at) {
        QByteArray damaged = sound;
        damaged[qsizetype(offset) + qsizetype(at)] = char(0xFF);
        const auto face = openFace(writeFont(damaged));
        EXPECT_LE(readFaceInformation(*face).axisValues.size(), size_t(kMaxNamedAxisValues));
    }
}

} // namespace lorva::test
