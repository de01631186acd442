// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "LorvactlSupport.h"
#include "support/FontBuilder.h"
#include "support/TestHome.h"

namespace lorva {
namespace {

using test::FontBuilder;
using test::lorvactl;
using test::Outcome;
using test::path;
using test::TestHome;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

FilePath builtFont()
{
    const FontBuilder font =
        FontBuilder("Foo", "Bold")
            .name(1, QStringLiteral("Fuh"), 0x407)
            .name(1, u"フー"_qs, 0x411)
            .name(14, QStringLiteral("https://example.org/\x1b[31m\nFake: line"))
            .name(300, QStringLiteral("Own"))
            .codePoints(U"ABCa\U0001F600")
            .substitution("smcp", U'a', U'A');
    return test::writeFile(TestHome::instance().makeFolder("info"), "foo.ttf", font.build());
}

QJsonObject faceOf(const QString &file, const QStringList &options = {})
{
    const QJsonArray faces =
        test::json(QStringList{"info", file} + options).object()["faces"].toArray();
    EXPECT_FALSE(faces.isEmpty());
    return faces[0].toObject();
}

/// "tag name value" of the objects in a list, with what stands under these keys.
std::vector<std::string> rows(const QJsonValue &list, const QStringList &keys)
{
    std::vector<std::string> rows;
    for (const QJsonValue &each : list.toArray()) {
        QStringList parts;
        for (const QString &key : keys)
            parts.push_back(each[key].toVariant().toString());
        rows.push_back(parts.join(u'|').toStdString());
    }
    return rows;
}

} // namespace

TEST(InfoCommand, WritesNamesByKindWithTheirLanguages)
{
    const Outcome outcome = lorvactl({"info", path(builtFont())});
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
    const std::string text = outcome.out.toStdString();
    EXPECT_THAT(text, HasSubstr("    Family\n      Foo [en]\n      Fuh [de]\n      フー [ja]\n"));
    EXPECT_THAT(text,
                HasSubstr("    Licence address\n      https://example.org/[31m Fake: line [en]\n"));
    EXPECT_THAT(text, HasSubstr("    Name 300\n      Own [en]\n"));
    EXPECT_FALSE(outcome.out.contains('\x1b'));
}

TEST(InfoCommand, WritesWhatTheTablesSay)
{
    const std::string text = lorvactl({"info", path(builtFont())}).out.toStdString();
    for (const char *line :
         {"  Format:          OpenType (TrueType) (4)\n", "  Characters:      5\n",
          "  Ranges:          U+0041–U+0043, U+0061, U+1F600\n", "  Embedding:       Installable\n",
          "  Heights:         capitals 700, x 500\n", "  Feature:         smcp ",
          "  Layout:          DFLT dflt\n", "  Tables, bytes:   ", "  Monospaced:      no\n"})
        EXPECT_THAT(text, HasSubstr(line));
    EXPECT_THAT(text, Not(HasSubstr("Glyph:")));
    EXPECT_THAT(text, Not(HasSubstr("Colour tables:")));
    EXPECT_THAT(lorvactl({"info", "--glyphs", path(builtFont())}).out.toStdString(),
                HasSubstr("  Glyph:           5 gid5 U+1F600\n"));
    EXPECT_THAT(lorvactl({"info", path(test::realFont("truetype/noto/NotoColorEmoji.ttf"))})
                    .out.toStdString(),
                testing::AllOf(HasSubstr("  Format:          Unknown (5)\n"),
                               HasSubstr("  Colour tables:   CBDT\n")));
}

TEST(InfoCommand, WritesTheSameAsJson)
{
    const QJsonObject face = faceOf(path(builtFont()));
    EXPECT_THAT(rows(face["names"], {"nameId", "kind", "language", "text"}),
                testing::AllOf(Contains("1|Family|de|Fuh"), Contains("1|Family|ja|フー"),
                               Contains("300||en|Own")));
    EXPECT_EQ(face["format"].toInt(), 4);
    EXPECT_EQ(face["formatText"].toString(), "OpenType (TrueType)");
    EXPECT_EQ(face["characterCount"].toInt(), 5);
    EXPECT_EQ(
        face["characterRanges"].toArray(),
        (QJsonArray{QJsonArray{0x41, 0x43}, QJsonArray{0x61, 0x61}, QJsonArray{0x1F600, 0x1F600}}));
    EXPECT_EQ(face["embedding"]["text"].toString(), "Installable");
    EXPECT_EQ(face["metrics"]["capHeight"].toInt(), 700);
    EXPECT_EQ(face["metrics"]["windows"]["descender"].toInt(), -300);
    EXPECT_THAT(rows(face["layoutLanguages"], {"script", "language"}), ElementsAre("DFLT|dflt"));
    EXPECT_THAT(rows(face["features"], {"tag"}), ElementsAre("smcp"));
    EXPECT_THAT(rows(face["tables"], {"tag", "length"}), Contains("head|54"));
    EXPECT_FALSE(face.contains("glyphs"));
    EXPECT_THAT(rows(faceOf(path(builtFont()), {"--glyphs"})["glyphs"], {"name", "character"}),
                ElementsAre("gid0|", "gid1|65", "gid2|66", "gid3|67", "gid4|97", "gid5|128512"));
}

TEST(InfoCommand, WritesAxesValuesInstancesAndPalettesOfRealFonts)
{
    const QJsonObject inter = faceOf(path(test::realFont("truetype/inter-vf/Inter-roman.var.ttf")));
    EXPECT_THAT(rows(inter["axisValues"], {"tag", "value", "name"}), Contains("wght|700|Bold"));
    EXPECT_EQ(inter["instances"][8]["coordinates"][0]["value"].toDouble(), 900);
    EXPECT_EQ(inter["created"].toString(), "2021-06-18T21:05:25Z");
    EXPECT_THAT(rows(inter["features"], {"tag", "name", "type", "selector"}),
                Contains("ss01|Open digits|35|2"));
    const QJsonObject amiri =
        faceOf(path(test::realFont("opentype/fonts-hosny-amiri/AmiriQuranColored.ttf")));
    EXPECT_EQ(amiri["colorTables"].toArray(), (QJsonArray{"COLR", "CPAL"}));
    EXPECT_FALSE(amiri["palettes"][0]["colors"].toArray().isEmpty());
    const QString color = amiri["palettes"][0]["colors"][0].toString();
    EXPECT_TRUE(color.startsWith(u'#') && (color.size() == 7 || color.size() == 9));
}

} // namespace lorva
