// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/RecordsJson.h"

#include <gtest/gtest.h>

namespace lorva {

namespace {

FontStyleRecord boldItalic()
{
    FontStyleRecord style;
    style.id = QStringLiteral("Inter-BoldItalic");
    style.label = QStringLiteral("Bold Italic");
    style.postScriptName = QStringLiteral("Inter-BoldItalic");
    style.weight = 700;
    style.isItalic = true;
    return style;
}

/// The record's exact text, and the way back.
template <class T>
void expectForm(const T &value, const std::string &json)
{
    EXPECT_EQ(encodeJson(value).toStdString(), json);
    const Result<T> back = decodeJson<T>(QByteArray::fromStdString(json));
    ASSERT_TRUE(back) << json << ": " << back.error().detail.toStdString();
    EXPECT_TRUE(*back == value) << json;
}

TEST(RecordsJson, Styles)
{
    FontStyleRecord style = boldItalic();
    const std::string common =
        R"({"id":"Inter-BoldItalic","label":"Bold Italic","postScriptName":"Inter-BoldItalic",)"
        R"("weight":700,"isItalic":true)";
    expectForm(style, common + "}");
    style.fileURL = FilePath("/My Fonts/Inter \xFF.ttf");
    expectForm(style, common + R"(,"fileURL":"file:///My%20Fonts/Inter%20%FF.ttf"})");
}

TEST(RecordsJson, Families)
{
    FontFamilyRecord family;
    family.familyName = QStringLiteral("Inter");
    expectForm(family, R"({"familyName":"Inter","styles":[]})");
    family.styles = {boldItalic()};
    family.scripts = {WritingScript::traditionalChinese, WritingScript::latin};
    family.primaryScript = WritingScript::traditionalChinese;
    family.alternateNames = QStringList{QStringLiteral("明體"), QStringLiteral("Ming \"M\"")};
    expectForm(family,
               R"({"familyName":"Inter","styles":[{"id":"Inter-BoldItalic","label":"Bold Italic",)"
               R"("postScriptName":"Inter-BoldItalic","weight":700,"isItalic":true}],)"
               R"("scripts":["latin","traditionalChinese"],"primaryScript":"traditionalChinese",)"
               R"("alternateNames":["明體","Ming \"M\""]})");
    // Present and empty is not absent.
    family.styles.clear();
    family.scripts.emplace();
    family.primaryScript.reset();
    family.alternateNames.emplace();
    expectForm(family, R"({"familyName":"Inter","styles":[],"scripts":[],"alternateNames":[]})");
}

TEST(RecordsJson, TheOrderOfScriptsMeansNothing)
{
    const auto family = decodeJson<FontFamilyRecord>(
        R"({"familyName":"A","styles":[],"scripts":["korean","latin","korean"]})");
    ASSERT_TRUE(family);
    EXPECT_EQ(family->scripts, (std::set{WritingScript::latin, WritingScript::korean}));
}

TEST(RecordsJson, Groupings)
{
    const QString id = QStringLiteral("serif");
    const QString name = QStringLiteral("Serif ✓");
    const QStringList families{QStringLiteral("B"), QStringLiteral("A")};
    const std::string json = R"({"id":"serif","name":"Serif ✓","familyNames":["B","A"]})";
    expectForm(FontCollectionRecord{id, name, families}, json);
    expectForm(FontStyleCategoryRecord{id, name, families}, json);
    expectForm(FoundryCollectionRecord{id, name, families}, json);
}

TEST(RecordsJson, Logos)
{
    expectForm(LogoConfiguration{QByteArray("\x89PNG\0\r\n", 7), 0.1, -1e21},
               R"({"imageData":"iVBORwANCg==","sizeRatio":0.1,"spacing":-1e+21})");
    expectForm(LogoConfiguration{{}, 1, 0}, R"({"imageData":"","sizeRatio":1,"spacing":0})");
}

TEST(RecordsJson, DisplaySettings)
{
    expectForm(SourceDisplaySettings{}, "{}");
    SourceDisplaySettings settings;
    settings.colorMode = ColorMode::image;
    settings.customForegroundColorHex = QStringLiteral("#FFFFFF");
    settings.customBackgroundColorHex = QStringLiteral("#F04000");
    settings.logoImageData = QByteArray("abc");
    settings.logoSizeRatio = 1.25;
    settings.logoSpacing = 0;
    settings.logoVisible = false;
    settings.browserPointSize = 36;
    settings.browserFontWeight = 400;
    settings.sampleText = QString();
    settings.backgroundImageID = QStringLiteral("paper");
    settings.backgroundImageUserFilename = QStringLiteral("a/b.png");
    settings.imageForegroundColorHex = QStringLiteral("#000000");
    expectForm(
        settings,
        R"({"colorMode":3,"customForegroundColorHex":"#FFFFFF",)"
        R"("customBackgroundColorHex":"#F04000","logoImageData":"YWJj","logoSizeRatio":1.25,)"
        R"("logoSpacing":0,"logoVisible":false,"browserPointSize":36,"browserFontWeight":400,)"
        R"("sampleText":"","backgroundImageID":"paper",)"
        R"("backgroundImageUserFilename":"a/b.png","imageForegroundColorHex":"#000000"})");
}

TEST(RecordsJson, Sources)
{
    expectForm(BrowserSource::allFonts(), R"({"allFonts":{}})");
    expectForm(BrowserSource::active(), R"({"active":{}})");
    expectForm(BrowserSource::inactive(), R"({"inactive":{}})");
    expectForm(BrowserSource::style(QStringLiteral("serif")), R"({"style":{"_0":"serif"}})");
    expectForm(BrowserSource::collection(QString()), R"({"collection":{"_0":""}})");
    expectForm(BrowserSource::foundry(QStringLiteral("é\"")), R"({"foundry":{"_0":"é\""}})");
    expectForm(BrowserSource::discover(), R"({"discover":{}})");
}

TEST(RecordsJson, SourcesPassOverWhatTheyDoNotKnow)
{
    const auto known = decodeJson<BrowserSource>(
        R"({"new":[{}],"collection":{"a":1,"_0":"x","_1":null},"sheet":{"_0":1}})");
    ASSERT_TRUE(known) << known.error().detail.toStdString();
    EXPECT_EQ(*known, BrowserSource::collection(QStringLiteral("x")));
    EXPECT_EQ(decodeJson<BrowserSource>(R"({"active":{"_0":7}})"), BrowserSource::active());
}

struct EnumCase
{
    const char *json;
    int value;
};

template <class E>
void expectNames(std::span<const EnumCase> cases, std::span<const E> all)
{
    ASSERT_EQ(cases.size(), all.size());
    for (size_t i = 0; i < cases.size(); ++i) {
        EXPECT_EQ(int(all[i]), cases[i].value);
        expectForm(all[i], cases[i].json);
    }
}

TEST(RecordsJson, Enumerations)
{
    const EnumCase scripts[]{{"\"latin\"", 0},
                             {"\"japanese\"", 1},
                             {"\"korean\"", 2},
                             {"\"simplifiedChinese\"", 3},
                             {"\"traditionalChinese\"", 4}};
    expectNames<WritingScript>(scripts, kAllWritingScripts);
    const EnumCase modes[]{{"\"grid\"", 0}, {"\"list\"", 1}};
    expectNames<ViewMode>(modes, kAllViewModes);
    const EnumCase colors[]{{"0", 0}, {"1", 1}, {"2", 2}, {"3", 3}};
    expectNames<ColorMode>(colors, kAllColorModes);
    expectForm(InstallMethod::copy, "\"copy\"");
    expectForm(InstallMethod::registerInPlace, "\"register\"");
}

TEST(RecordsJson, StoredNamesOutsideJson)
{
    EXPECT_EQ(storedName(InstallMethod::registerInPlace), QStringLiteral("register"));
    EXPECT_EQ(installMethodFromName(u"register"), InstallMethod::registerInPlace);
    EXPECT_EQ(installMethodFromName(u"Register"), std::nullopt);
    EXPECT_EQ(viewModeFromName(u""), std::nullopt);
    EXPECT_EQ(writingScriptFromName(u"simplifiedChinese"), WritingScript::simplifiedChinese);
}

struct FailureCase
{
    const char *json;
    ErrorKind kind;
    const char *detail;
};

template <class T>
void expectFailures(std::span<const FailureCase> cases)
{
    for (const FailureCase &each : cases) {
        const Result<T> result = decodeJson<T>(each.json);
        ASSERT_FALSE(result) << each.json;
        EXPECT_EQ(result.error().detail.toStdString(), each.detail) << each.json;
        EXPECT_EQ(result.error().kind, each.kind) << each.json;
    }
}

constexpr ErrorKind kType = ErrorKind::typeMismatch;
constexpr ErrorKind kMissing = ErrorKind::missingKey;
constexpr ErrorKind kInvalid = ErrorKind::invalidValue;

TEST(RecordsJson, StyleFailures)
{
    const FailureCase cases[]{
        {R"({"label":"","postScriptName":"","weight":1,"isItalic":true})", kMissing, "id: missing"},
        {R"({"id":"","postScriptName":"","weight":1,"isItalic":true})", kMissing, "label: missing"},
        {R"({"id":"","label":"","weight":1,"isItalic":true})", kMissing, "postScriptName: missing"},
        {R"({"id":"","label":"","postScriptName":"","isItalic":true})", kMissing,
         "weight: missing"},
        {R"({"id":"","label":"","postScriptName":"","weight":1})", kMissing, "isItalic: missing"},
        {R"({"id":"","label":"","postScriptName":"","weight":"1","isItalic":true})", kType,
         "weight: expected an integer"},
        {R"({"id":"","label":"","postScriptName":"","weight":1.5,"isItalic":true})", kType,
         "weight: expected an integer"},
        {R"({"id":"","label":"","postScriptName":"","weight":1,"isItalic":1})", kType,
         "isItalic: expected true or false"},
        {R"({"id":"","label":"","postScriptName":"","weight":1,"isItalic":true,"fileURL":"/a"})",
         kInvalid, "fileURL: \"/a\" is no file URL: it does not begin with file:"},
        {R"({"id":"","label":"","postScriptName":"","weight":1,"isItalic":true,"fileURL":1})",
         kType, "fileURL: expected a string"},
    };
    expectFailures<FontStyleRecord>(cases);
}

TEST(RecordsJson, FamilyFailures)
{
    const FailureCase cases[]{
        {R"([{"styles":[]}])", kMissing, "[0].familyName: missing"},
        {R"([{"familyName":"A"}])", kMissing, "[0].styles: missing"},
        {R"([{"familyName":"A","styles":[]},{"familyName":"B","styles":[{"id":7}]}])", kType,
         "[1].styles[0].id: expected a string"},
        {R"([{"familyName":"A","styles":[],"scripts":["latin","Latin"]}])", kInvalid,
         "[0].scripts[1]: unknown value"},
        {R"([{"familyName":"A","styles":[],"scripts":"latin"}])", kType,
         "[0].scripts: expected an array"},
        {R"([{"familyName":"A","styles":[],"primaryScript":"greek"}])", kInvalid,
         "[0].primaryScript: unknown value"},
        {R"([{"familyName":"A","styles":[],"alternateNames":["x",null]}])", kType,
         "[0].alternateNames[1]: expected a string"},
        {R"({"familyName":"A","styles":[]})", kType, "expected an array"},
    };
    expectFailures<std::vector<FontFamilyRecord>>(cases);
    EXPECT_EQ(decodeFamilies(cases[0].json).error().detail,
              QStringLiteral("[0].familyName: missing"));
}

TEST(RecordsJson, GroupingAndLogoFailures)
{
    const FailureCase groupings[]{
        {R"({"name":"","familyNames":[]})", kMissing, "id: missing"},
        {R"({"id":"","familyNames":[]})", kMissing, "name: missing"},
        {R"({"id":"","name":""})", kMissing, "familyNames: missing"},
        {R"({"id":"","name":"","familyNames":["a",1]})", kType,
         "familyNames[1]: expected a string"},
    };
    expectFailures<FontCollectionRecord>(groupings);
    expectFailures<FontStyleCategoryRecord>(groupings);
    expectFailures<FoundryCollectionRecord>(groupings);
    const FailureCase logos[]{
        {R"({"sizeRatio":1,"spacing":1})", kMissing, "imageData: missing"},
        {R"({"imageData":"","spacing":1})", kMissing, "sizeRatio: missing"},
        {R"({"imageData":"","sizeRatio":1})", kMissing, "spacing: missing"},
        {R"({"imageData":"?","sizeRatio":1,"spacing":1})", kInvalid, "imageData: broken base64"},
        {R"({"imageData":"","sizeRatio":"1","spacing":1})", kType, "sizeRatio: expected a number"},
    };
    expectFailures<LogoConfiguration>(logos);
}

TEST(RecordsJson, DisplaySettingsFailures)
{
    const FailureCase cases[]{
        {R"({"colorMode":7})", kInvalid, "colorMode: 7 is no colour mode"},
        {R"({"colorMode":-1})", kInvalid, "colorMode: -1 is no colour mode"},
        {R"({"colorMode":4294967296})", kInvalid, "colorMode: 4294967296 is no colour mode"},
        {R"({"colorMode":"white"})", kType, "colorMode: expected an integer"},
        {R"({"logoVisible":"yes"})", kType, "logoVisible: expected true or false"},
        {R"({"browserFontWeight":400.5})", kType, "browserFontWeight: expected an integer"},
        {R"({"logoImageData":"a"})", kInvalid, "logoImageData: broken base64"},
    };
    expectFailures<SourceDisplaySettings>(cases);
}

TEST(RecordsJson, SourceFailures)
{
    constexpr const char *kCount = "Invalid number of keys found, expected one.";
    const FailureCase cases[]{
        {"{}", kType, kCount},
        {R"({"style":{"_0":"a"},"collection":{"_0":"b"}})", kType, kCount},
        {R"({"allFonts":{},"discover":{}})", kType, kCount},
        {R"({"allfonts":{}})", kType, kCount},
        // The number of keys is judged before what stands under them.
        {R"({"style":7,"active":null})", kType, kCount},
        {R"({"style":{}})", kMissing, "style._0: missing"},
        {R"({"foundry":{"_0":7}})", kType, "foundry._0: expected a string"},
        {R"({"collection":"x"})", kType, "collection: expected an object"},
        {R"({"allFonts":null})", kType, "allFonts: expected an object"},
        {R"({"allFonts":[]})", kType, "allFonts: expected an object"},
        {R"("allFonts")", kType, "expected an object"},
    };
    expectFailures<BrowserSource>(cases);
}

} // namespace

} // namespace lorva
