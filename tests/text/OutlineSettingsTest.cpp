// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Our pictures of texts and settings chosen by hand beside those of `hb-view`.
#include "text/OutlineComparison.h"

#include "text/LayoutSupport.h"

using namespace lorva;
using namespace lorva::test;

namespace {

struct SettingRow
{
    const char *font;
    const char *text;
    const char *features = "";
    const char *variations = "";
    const char *language = "en";
    const char *direction = "";
    int faceIndex = 0;
};

constexpr char kAmiri[] = "opentype/fonts-hosny-amiri/Amiri-Regular.ttf";
constexpr char kLohit[] = "truetype/lohit-devanagari/Lohit-Devanagari.ttf";
constexpr char kGaramond[] = "opentype/ebgaramond/EBGaramond12-Regular.otf";
constexpr char kLibertine[] = "opentype/linux-libertine/LinLibertine_R.otf";
constexpr char kInter[] = "truetype/inter-vf/Inter.var.ttf";
constexpr char kMono[] = "truetype/jetbrains-mono/JetBrainsMono-Regular.ttf";
constexpr char kCjk[] = "opentype/noto/NotoSansCJK-Regular.ttc";
constexpr char kSerifCjk[] = "opentype/noto/NotoSerifCJK-Bold.ttc";
constexpr char kDejaVu[] = "truetype/dejavu/DejaVuSans.ttf";

const SettingRow kRows[] = {
    {kGaramond, "AVATAR office fjord Quijote", ""},
    {kGaramond, "AVATAR Office 1234", "smcp=1,onum=1,liga=0"},
    {kGaramond, "Stressing ct st 1/2", "dlig=1,frac=1,swsh=1"},
    {kLibertine, "Qu Th ffi 0123", "ss01=1,onum=1,hlig=1"},
    {kLibertine, "AVAWAT", "kern=0"},
    {kInter, "Hamburgefonstiv (1:2)", "", "wght=850"},
    {kInter, "Hamburgefonstiv @", "zero=1,case=1", "wght=250,slnt=-7.5"},
    {kInter, "Rag ->0 3x4", "calt=0,ss01=1,cv11=1", "wght=425"},
    {kInter, "beyond the axis", "", "wght=5000,slnt=-99"},
    {kMono, "!= => www ->", "calt=1"},
    {kMono, "!= => 0", "calt=0,zero=1"},
    {kAmiri, "السَّلامُ عَلَيْكُمْ ﷽", "", "", "ar", "rtl"},
    {kAmiri, "محمد بسملة", "ss01=1,liga=0", "", "ar", "rtl"},
    {"truetype/noto/NotoNastaliqUrdu-Regular.ttf", "یہ نستعلیق ہے", "", "", "ur", "rtl"},
    {kLohit, "अक्षि र्क त्र ह्म हिन्दी में क्ष्म्य", "", "", "hi"},
    {"truetype/noto/NotoSerifDevanagari-Regular.ttf", "कर्त्तव्य श्रृंखला", "", "", "mr"},
    {"truetype/noto/NotoSansThai-Regular.ttf", "น้ำใจที่ยิ่งใหญ่ ป๊ปั้", "", "", "th"},
    {"truetype/noto/NotoSerifKhmer-Regular.ttf", "ខ្មែរ ស្ត្រី ព្រះពុទ្ធ ក្រុង", "", "", "km"},
    {"truetype/noto/NotoSansMyanmar-Regular.ttf", "မြန်မာဘာသာ ကြွက်", "", "", "my"},
    {"truetype/noto/NotoSerifTibetan-Regular.ttf", "བོད་ཡིག རྒྱལ་པོ", "", "", "bo"},
    {"truetype/noto/NotoSansSinhala-Regular.ttf", "ශ්‍රී ලංකාව ක්‍ය",
     "", "", "si"},
    {"truetype/noto/NotoSerifBengali-Regular.ttf", "ক্ষত্রিয় বাংলা র্য", "", "", "bn"},
    {"truetype/noto/NotoSansTamil-Regular.ttf", "தமிழ் கொக்கு ஸ்ரீ", "", "", "ta"},
    {"truetype/noto/NotoSansMongolian-Regular.ttf", "ᠮᠣᠩᠭᠣᠯ", "", "", "mn"},
    {"truetype/noto/NotoSansHebrew-Regular.ttf", "שָׁלוֹם עֲלֵיכֶם", "", "", "he", "rtl"},
    {"truetype/noto/NotoSansSyriac-Regular.ttf", "ܫܠܡܐ ܥܠܝܟܘܢ", "", "", "syr", "rtl"},
    {kCjk, "永和直骨飯角", "", "", "ja"},
    {kCjk, "永和直骨飯角", "", "", "ko"},
    {kCjk, "永和直骨飯角", "", "", "zh-hans"},
    {kCjk, "永和直骨飯角", "", "", "zh-hant"},
    {kCjk, "永和直骨飯角", "", "", "ja", "", 2},
    {kCjk, "각힣 한글", "", "", "ko", "", 1},
    {kSerifCjk, "東京タワー「すし」", "palt=1", "", "ja"},
    {kSerifCjk, "東京123ABC", "fwid=1", "", "ja"},
    {kDejaVu, "e\u0301\u0302 a\u0323\u0308 A\u030A\u0301", ""},
    {kDejaVu, "\U0001F600\U0001F60D\u2764\u263A", ""},
    {kDejaVu, "Ελληνικά Кириллица ђћ", "", "", "sr"},
};

TEST(OutlineComparison, drawsScriptsFeaturesVariationsAndLanguagesAsTheReferenceDoes)
{
    for (const SettingRow &row : kRows) {
        SCOPED_TRACE(qPrintable(QString::fromLatin1("features '%1' variations '%2' language '%3'")
                                    .arg(QLatin1String(row.features), QLatin1String(row.variations),
                                         QLatin1String(row.language))));
        const FilePath path = realFont(row.font);
        const auto face = openFace(path, {row.faceIndex, -1});
        ASSERT_TRUE(face);
        const Font font(face, kComparedSizePx, settings<VariationSetting>(row.variations),
                        settings<FeatureSetting>(row.features));
        expectSamePictures({.font = path,
                            .faceIndex = row.faceIndex,
                            .lines = {QString::fromUtf8(row.text)},
                            .features = QLatin1String(row.features),
                            .variations = QLatin1String(row.variations),
                            .language = QLatin1String(row.language),
                            .direction = QLatin1String(row.direction)},
                           font);
    }
}

/// A part of a line that has one direction and one script, as hb-view needs it.
struct Segment
{
    const char *text;
    const char *direction;
};

struct MixedRow
{
    const char *font;
    TextDirection direction;
    /// From left to right; in the text's own order when read so.
    std::vector<Segment> visual;
    const char *text;
};

/// The segments one after the other, as a person would set them by hand.
ReferenceLine setSegments(const FilePath &path, int unitsPerEm, const std::vector<Segment> &visual)
{
    ReferenceLine line;
    double pen = 0;
    for (const Segment &segment : visual) {
        const ReferencePicture part =
            referencePicture({.font = path,
                              .lines = {QString::fromUtf8(segment.text)},
                              .direction = QLatin1String(segment.direction)},
                             unitsPerEm);
        for (const ReferenceLine &partLine : part.lines) {
            for (ReferenceLine::Glyph glyph : partLine.glyphs) {
                glyph.position.rx() += pen;
                line.glyphs.push_back(glyph);
            }
        }
        pen += part.width;
    }
    return line;
}

TEST(OutlineComparison, drawsMixedDirectionsAsTheReferenceDoesSegmentBySegment)
{
    const auto ltr = TextDirection::leftToRight;
    const auto rtl = TextDirection::rightToLeft;
    const MixedRow rows[] = {
        {kDejaVu, ltr, {{"abc ", "ltr"}, {"שלום", "rtl"}, {" def", "ltr"}}, "abc שלום def"},
        {kDejaVu, rtl, {{"def", "ltr"}, {" שלום ", "rtl"}, {"abc", "ltr"}}, "abc שלום def"},
        {kDejaVu, ltr, {{"(", "ltr"}, {"אב", "rtl"}, {") 12", "ltr"}}, "(אב) 12"},
        {kAmiri,
         ltr,
         {{"Amiri ", "ltr"}, {"خط أميري", "rtl"}, {" A1.0", "ltr"}},
         "Amiri خط أميري A1.0"},
        {kAmiri, rtl, {{"Type", "ltr"}, {" خط ", "rtl"}, {"Amiri", "ltr"}}, "Amiri خط Type"},
    };
    for (const MixedRow &row : rows) {
        const FilePath path = realFont(row.font);
        const auto face = openFace(path);
        ASSERT_TRUE(face);
        const Font font(face, kComparedSizePx);
        TextLayoutOptions options;
        options.language = "en";
        options.alignment = TextAlignment::left;
        options.direction = row.direction;
        const QString text = QString::fromUtf8(row.text);
        const int unitsPerEm = face->metrics().unitsPerEm;
        expectSameLine(TextLayout(text, font, options), setSegments(path, unitsPerEm, row.visual),
                       kComparedSizePx / unitsPerEm, text);
    }
}

} // namespace
