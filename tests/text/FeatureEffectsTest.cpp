// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFeatures.h"

#include "text/LayoutSupport.h"
#include "text/MadeFonts.h"

#include <QtEndian>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::madeFont;
using test::openFace;

FontTag tag(const char *text)
{
    return fontTag(text[0], text[1], text[2], text[3]);
}

/// "a>2 " for each substitution with its number of alternates, then "|fi,ffi|" and the number of
/// glyphs that are looked at.
std::string effectText(const FontFace &face, const char *feature)
{
    const FeatureEffect effect = featureEffect(face, tag(feature));
    QString text;
    for (const ChangedGlyph &changed : effect.substitutions) {
        text += changed.character ? QString::fromUcs4(&changed.character, 1) : QStringLiteral("?");
        text += u'>' + QString::number(changed.alternates.size()) + u' ';
    }
    const QStringList ligatures(effect.ligatures.begin(), effect.ligatures.end());
    return QString(text + u'|' + ligatures.join(u',') + u'|'
                   + QString::number(effect.touchedGlyphs))
        .toStdString();
}

TEST(FeatureEffects, TellsWhatAFeatureChanges)
{
    const auto face = openFace(madeFont("features.ttf"));
    const std::pair<const char *, const char *> rows[] = {
        {"ss01", "a>1 ||1"}, {"cv01", "g>2 ||1"}, {"liga", "|fi,ffi|2"}, {"dlig", "|Th|2"},
        {"calt", "||2"},     {"onum", "1>1 ||1"}, {"lnum", "?>1 ||1"},   {"smcp", "i>1 ||1"},
        {"kern", "||5"},     {"mark", "||0"},     {"nope", "||0"},       {"ccmp", "x>1 ||1"},
    };
    for (const auto &[feature, expected] : rows)
        EXPECT_EQ(effectText(*face, feature), expected) << feature;
    const FeatureEffect effect = featureEffect(*face, tag("cv01"));
    ASSERT_EQ(effect.substitutions.size(), 1);
    EXPECT_EQ(effect.substitutions[0].before, face->glyphFor(U'g'));
}

TEST(FeatureEffects, ReadsRealFonts)
{
    struct Row
    {
        const char *font;
        const char *feature;
        size_t substitutions;
        size_t ligatures;
        int touched;
    };
    // As fontTools counts them.
    const Row rows[] = {
        {"opentype/ebgaramond/EBGaramond12-Regular.otf", "smcp", 208, 0, 211},
        {"opentype/ebgaramond/EBGaramond12-Regular.otf", "cv21", 2, 0, 752},
        {"opentype/linux-libertine/LinLibertine_R.otf", "liga", 0, 39, 23},
        {"truetype/inter-vf/Inter.var.ttf", "case", 46, 0, 46},
        {"opentype/noto/NotoSansCJK-Regular.ttc", "jp78", 585, 0, 585},
        {"opentype/noto/NotoSansCJK-Regular.ttc", "dlig", 0, 200, 157},
    };
    for (const Row &row : rows) {
        const FeatureEffect effect =
            featureEffect(*openFace(test::realFont(row.font)), tag(row.feature));
        SCOPED_TRACE(std::string(row.font) + ' ' + row.feature);
        EXPECT_EQ(effect.substitutions.size(), row.substitutions);
        EXPECT_EQ(effect.ligatures.size(), row.ligatures);
        EXPECT_EQ(effect.touchedGlyphs, row.touched);
        EXPECT_TRUE(
            std::is_sorted(effect.ligatures.begin(), effect.ligatures.end(),
                           [](const QString &a, const QString &b) { return a.size() < b.size(); }));
    }
}

/// Whether the sample comes out in other glyphs or at other places with the feature.
bool shows(const std::shared_ptr<const FontFace> &face, FontTag feature, const QString &sample)
{
    std::vector<std::pair<quint32, QPointF>> glyphs[2];
    for (const quint32 value : {0u, 1u}) {
        const Font font(face, 100, {}, {{feature, value}});
        for (const PositionedGlyph &glyph : test::glyphsOf(TextLayout(sample, font)))
            glyphs[value].emplace_back(glyph.glyph, glyph.position);
    }
    // A change of the last advance alone shows as the width.
    return glyphs[0] != glyphs[1]
        || TextLayout(sample, Font(face, 100, {}, {{feature, 0}})).size()
        != TextLayout(sample, Font(face, 100, {}, {{feature, 1}})).size();
}

TEST(FeatureSamples, AreShortAndShowTheFeature)
{
    struct Row
    {
        const char *font;
        /// Features that change nothing by themselves: figures that are so already, other
        /// languages, chains of letters that nobody would guess.
        std::vector<std::string> silent;
    };
    const Row rows[] = {
        {"opentype/ebgaramond/EBGaramond12-Regular.otf", {"pnum", "ss05", "xtex"}},
        {"truetype/inter-vf/Inter.var.ttf", {"pnum"}},
        {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf", {"ss02"}},
        {"opentype/linux-libertine/LinLibertine_R.otf", {"lnum", "tnum"}},
    };
    for (const Row &row : rows) {
        const auto face = openFace(test::realFont(row.font));
        std::vector<std::string> silent;
        for (const FontFeature &feature : fontFeatures(*face)) {
            const QString sample = featureSample(*face, feature.tag, 8);
            SCOPED_TRACE(std::string(row.font) + ' ' + tagText(feature.tag).toStdString() + ' '
                         + sample.toStdString());
            if (sample.isEmpty())
                silent.push_back(tagText(feature.tag).toStdString());
            else
                EXPECT_TRUE(shows(face, feature.tag, sample));
            EXPECT_LE(sample.size(), 20);
        }
        EXPECT_EQ(silent, row.silent) << row.font;
    }
}

TEST(FeatureSamples, PreferWhatTheFontSuggests)
{
    const auto face = openFace(madeFont("features.ttf"));
    const std::pair<const char *, const char *> rows[] = {
        {"cv01", "gag"},      {"ss01", "a"},          {"liga", "fi ffi"},
        {"kern", "AV To Ty"}, {"onum", "0123456789"}, {"mark", ""},
    };
    for (const auto &[feature, expected] : rows)
        EXPECT_EQ(featureSample(*face, tag(feature)).toStdString(), expected) << feature;
    EXPECT_EQ(featureSample(*face, tag("cv01"), 1), "g");
    EXPECT_EQ(featureSample(*face, tag("cv01"), 0), "");
}

QByteArray words(std::initializer_list<int> numbers)
{
    QByteArray bytes;
    for (const int number : numbers) {
        char two[2];
        qToBigEndian(quint16(number), two);
        bytes.append(two, 2);
    }
    return bytes;
}

/// A `GSUB` with one feature `ss01` whose only lookup is of a type and holds `subtables` times the
/// subtable that follows.
QByteArray gsub(int type, int subtables, const QByteArray &subtable)
{
    QByteArray lookup = words({type, 0, subtables});
    for (int i = 0; i < subtables; ++i)
        lookup += words({6 + 2 * subtables});
    return words({1, 0, 10, 30, 44}) // to scripts, features, lookups
        + words({1, 0x4446, 0x4C54, 8, 4, 0, 0, 0xFFFF, 1, 0}) // DFLT
        + words({1, 0x7373, 0x3031, 8, 0, 1, 0}) // ss01
        + words({1, 4}) + lookup + subtable;
}

TEST(FeatureEffects, IsBoundedOnHostileLookups)
{
    const QByteArray allGlyphs = words({2, 1, 0, 0xFFFF, 0}); // one range
    QByteArray manyRanges = words({2, 8000});
    for (int i = 0; i < 8000; ++i)
        manyRanges += words({0, 0xFFFF, 0});
    QByteArray ownRules = words({2, 8, 8, 8000}); // classes and rule sets overlap themselves
    for (int i = 0; i < 8000; ++i)
        ownRules += words({6});
    const struct
    {
        const char *what;
        QByteArray table;
        int touched;
    } rows[] = {
        {"sound", gsub(1, 1, words({1, 6, 1}) + words({1, 1, 5})), 1},
        {"beyond the last glyph", gsub(1, 1, words({1, 6, 1}) + words({1, 1, 0x7FFF})), 0},
        {"every glyph", gsub(1, 1, words({1, 6, 1}) + allGlyphs), 96},
        {"a thousand times every glyph", gsub(1, 9000, words({1, 6, 1}) + manyRanges), 96},
        {"giant ligature sets", gsub(4, 9000, words({1, 6, 0xFFFF}) + manyRanges), 96},
        {"rules over rules", gsub(5, 9000, ownRules), 0},
        {"chained rules over rules", gsub(6, 9000, ownRules), 0},
        {"an extension of itself", gsub(7, 9000, words({1, 7, 0, 0})), 0},
    };
    for (const auto &row : rows) {
        const auto face = test::builtFace(test::FontBuilder("Hostile").table("GSUB", row.table));
        ASSERT_TRUE(face) << row.what;
        const FeatureEffect effect = featureEffect(*face, tag("ss01"));
        EXPECT_EQ(effect.touchedGlyphs, row.touched) << row.what;
        EXPECT_LE(effect.ligatures.size(), 200) << row.what;
        featureSample(*face, tag("ss01"));
    }
}

} // namespace
} // namespace lorva
