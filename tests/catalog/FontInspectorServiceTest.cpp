// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontInspectorService.h"

#include "support/FontBuilder.h"
#include "support/TestHome.h"

#include <gmock/gmock.h>

#include <limits>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

std::shared_ptr<const FontFace> faceOf(const FilePath &path, FaceKey key = {0, -1})
{
    const auto file = FontFile::open(path);
    EXPECT_TRUE(file) << path.bytes().toStdString();
    const auto face = file ? (*file)->face(key) : failure(ErrorKind::notFound, QString());
    EXPECT_TRUE(face);
    return face.value_or(nullptr);
}

std::shared_ptr<const FontFace> builtFace(const test::FontBuilder &builder, FaceKey key = {0, -1})
{
    static int files = 0;
    const FilePath folder = test::TestHome::instance().root().child("inspected");
    return faceOf(test::writeFile(folder, QByteArray::number(++files) + ".ttf", builder.build()),
                  key);
}

/// "Weight wght 100…900 400=400": name, tag, extent, default and current value.
std::vector<std::string> lines(const std::vector<FontVariationAxisRecord> &axes)
{
    std::vector<std::string> all;
    for (const FontVariationAxisRecord &axis : axes) {
        EXPECT_EQ(axis.id, QString::number(axis.tag));
        all.push_back(QStringLiteral("%1 %2 %3…%4 %5=%6")
                          .arg(axis.name, tagText(axis.tag))
                          .arg(axis.minValue)
                          .arg(axis.maxValue)
                          .arg(axis.defaultValue)
                          .arg(axis.currentValue)
                          .toStdString());
    }
    return all;
}

/// "1:2 Ligatures/Common Ligatures on"
std::vector<std::string> lines(const std::vector<OpenTypeFeatureRecord> &features)
{
    std::vector<std::string> all;
    for (const OpenTypeFeatureRecord &each : features) {
        const QString state = each.isEnabled ? QStringLiteral(" on") : QString();
        all.push_back(
            QString(each.id % u' ' % each.group % u'/' % each.name % state).toStdString());
    }
    return all;
}

TEST(FontInspectorService, NamesAxesForPeople)
{
    const QString longName(40, u'g');
    test::FontBuilder builder("Axes");
    builder.axis("wght", 100, 400, 900).axis("wdth", 75, 100, 125).axis("opsz", 8, 14, 72);
    builder.axis("slnt", -10, 0, 0).axis("ital", 0, 0, 1).axis("HIDE", 0, 0, 1, true);
    builder.axis("FLAT", 5, 5, 5).axis("BACK", 9, 5, 1).axis("wght", 1, 2, 3);
    EXPECT_THAT(lines(FontInspectorService::axes(Font(builtFace(builder), 24))),
                ElementsAre("Weight wght 100…900 400=400", "Width wdth 75…125 100=100",
                            "Optical Size opsz 8…72 14=14", "Slant slnt -10…0 0=0",
                            "Italic ital 0…1 0=0"));
    struct Row
    {
        const char *tag;
        QString ownName;
        QString shown;
    };
    const Row rows[] = {{"GRAD", longName, QStringLiteral("GRAD")},
                        {"GRAD", longName.left(33), QStringLiteral("GRAD")},
                        {"GRAD", longName.left(32), longName.left(32)},
                        {"GRAD", QStringLiteral("Grade"), QStringLiteral("Grade")},
                        {"GRAD", {}, QStringLiteral("GRAD")},
                        {"wght", QStringLiteral("Strichstärke"), QStringLiteral("Weight")}};
    for (const Row &row : rows) {
        const FontTag tag = *tagFromText(QString::fromLatin1(row.tag));
        EXPECT_EQ(axisName(tag, row.ownName), row.shown);
    }
}

TEST(FontInspectorService, AxesStandWhereTheFontHasThem)
{
    constexpr FontTag kWeight = fontTag('w', 'g', 'h', 't');
    test::FontBuilder builder("Axes");
    builder.axis("wght", 100, 400, 900).instance(QStringLiteral("Bold"), {700});
    const auto whole = builtFace(builder);
    const auto bold = builtFace(builder, {0, 0});
    struct Row
    {
        Font font;
        double value;
    };
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const Row rows[] = {{Font(whole, 24), 400},
                        {Font(bold, 24), 700},
                        {Font(bold, 24, {{kWeight, 250}}), 250},
                        {Font(whole, 24, {{kWeight, 2000}}), 900},
                        {Font(whole, 24, {{kWeight, 500}, {kWeight, nan}}), 500}};
    for (const Row &row : rows) {
        const auto axes = FontInspectorService::axes(row.font);
        ASSERT_EQ(axes.size(), 1u);
        EXPECT_EQ(axes.front().currentValue, row.value);
        EXPECT_EQ(axes.front().defaultValue, 400);
    }
    EXPECT_THAT(FontInspectorService::axes(Font()), IsEmpty());
}

TEST(FontInspectorService, RecordsFeaturesWithTheirNames)
{
    FontFeature liga{{1, 2},
                     fontTag('l', 'i', 'g', 'a'),
                     1,
                     QStringLiteral("Ligatures"),
                     QStringLiteral("Common Ligatures"),
                     true,
                     false};
    FontFeature nameless{{99, 0}, 0, 1, QStringLiteral("Swirls"), {}, false, false};
    FontFeature bare{{98, 7}, 0, 1, {}, QStringLiteral("Odd"), false, false};
    const auto records =
        FontInspectorService::features(std::vector<FontFeature>{liga, nameless, bare});
    EXPECT_THAT(
        lines(records),
        ElementsAre("1:2 Ligatures/Common Ligatures on", "99:0 Swirls/Swirls", "98:7 /Odd"));
    EXPECT_THAT(enabledPairs(records), ElementsAre(FeaturePair{1, 2}));
    EXPECT_THAT(FontInspectorService::features(*builtFace(test::FontBuilder("Plain"))), IsEmpty());
}

TEST(FontInspectorService, ReadsRealFonts)
{
    struct Row
    {
        const char *font;
        std::vector<std::string> features;
        std::vector<std::string> axes;
        const char *format;
        const char *family;
    };
    const Row rows[] = {
        {"truetype/inter-vf/Inter.var.ttf",
         {"14:4 Typographic Extras/Slashed Zero", "35:4 Stylistic Alternatives/Disambiguation"},
         {"Weight wght 100…900 400=400", "Slant slnt -10…0 0=0"},
         "OpenType (TrueType)",
         "Inter"},
        {"opentype/ebgaramond/EBGaramond12-Regular.otf",
         {"33:0 Case-Sensitive Layout/Case-Sensitive Layout",
          "35:2 Stylistic Alternatives/Cyrillic alternate de, el and elj",
          "1:2 Ligatures/Common Ligatures on"},
         {},
         "OpenType (CFF)",
         "EB Garamond"},
        {"truetype/dejavu/DejaVuSans.ttf",
         {"1:2 Ligatures/Common Ligatures on", "1:4 Ligatures/Rare Ligatures"},
         {},
         "OpenType (TrueType)",
         "DejaVu Sans"},
        {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf", {}, {}, "OpenType (TrueType)", "Amiri"},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.font);
        const auto face = faceOf(test::realFont(row.font));
        EXPECT_THAT(lines(FontInspectorService::features(*face)), IsSupersetOf(row.features));
        EXPECT_EQ(lines(FontInspectorService::axes(Font(face, 24))), row.axes);
        const FontMetadataInfo info = FontInspectorService::metadata(*face);
        EXPECT_EQ(info.format, QString::fromLatin1(row.format));
        EXPECT_EQ(info.familyName, QString::fromLatin1(row.family));
        EXPECT_EQ(info.fileLocation, face->path().displayText());
        EXPECT_EQ(info.glyphCount, face->glyphCount());
        EXPECT_FALSE(info.copyright.isEmpty());
    }
}

TEST(FontInspectorService, KeepsLongCopyrightsWhole)
{
    const QString notice(3000, u'©');
    test::FontBuilder builder("Long");
    builder.name(0, notice).name(9, QStringLiteral("Ada"));
    const FontMetadataInfo info = FontInspectorService::metadata(*builtFace(builder));
    EXPECT_EQ(info.copyright, notice);
    EXPECT_EQ(info.designer, QStringLiteral("Ada"));
}

TEST(FontInspectorService, TellsTheFormatByItsNumber)
{
    const std::pair<int, const char *> rows[] = {
        {1, "TrueType"}, {2, "PostScript"}, {3, "OpenType (CFF)"}, {4, "OpenType (TrueType)"},
        {5, "Unknown"},  {0, "Unknown"},    {-1, "Unknown"}};
    for (const auto &[number, text] : rows)
        EXPECT_EQ(FontInspectorService::formatText(number), QString::fromLatin1(text)) << number;
}

} // namespace
} // namespace lorva
