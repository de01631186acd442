// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationFile.h"

#include "model/records/StyleCategories.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lorva {
namespace {

using testing::HasSubstr;

Organization sample()
{
    Organization sample{
        {{"c1", "Äpfel", {"Zeta", "Alpha"}}, {"c2", "posters", {}}, {"c3", "Zines", {"Nicht da"}}},
        defaultStyleCategories(),
        {{{"Alpha", "klim"}, {"Zeta", ""}}, {{"klim", "Klim & Co."}}, {"acme", "zeta"}}};
    sample.styleCategories[0].familyNames = {"alpha", "Beta", "Zeta"};
    sample.styleCategories.push_back({"own-2", "Woodtype", {"Gamma \"X\" \\ {[,:]}"}});
    sample.styleCategories.push_back({"own-1", "Blackletter", {}});
    return sample;
}

/// A document with one part given, the others empty.
QByteArray document(const QByteArray &key, const QByteArray &value)
{
    QByteArray json = R"({"format":"lorva-organization","version":1)";
    const std::pair<const char *, const char *> parts[]{
        {"collections", "[]"},
        {"styleCategories", "[]"},
        {"foundries", R"({"overrides":{},"names":{},"dismissed":[]})"},
        {"displaySettings", "{}"}};
    for (const auto &[name, empty] : parts)
        json += QByteArray(",\"") + name + "\":" + (key == name ? value : QByteArray(empty));
    return json + '}';
}

OrganizationFile decoded(const QByteArray &json)
{
    const Result<OrganizationFile> file = decodeOrganizationFile(json);
    EXPECT_TRUE(file) << file.error().detail.toStdString();
    return file.value_or(OrganizationFile());
}

QByteArray encoded(const OrganizationFile &file)
{
    const Result<QByteArray> json = encodeOrganizationFile(file);
    EXPECT_TRUE(json);
    return json.value_or(QByteArray());
}

TEST(OrganizationFile, ComesBackAsItWas)
{
    OrganizationFile file{sample(), {}, {}};
    file.displaySettings["collection::c1"].sampleText = "x\ny";
    file.displaySettings["allFonts"].logoImageData = QByteArray("\0\xff", 2);
    const QByteArray json = encoded(file);
    EXPECT_EQ(decoded(json), file);
    EXPECT_EQ(decoded("\xEF\xBB\xBF" + json), file) << "behind a byte order mark";
    EXPECT_EQ(encoded(decoded(json)), json);
    EXPECT_TRUE(encodeOrganizationFile(file, json.size()));
    const Result<QByteArray> large = encodeOrganizationFile(file, json.size() - 1);
    ASSERT_FALSE(large);
    EXPECT_EQ(large.error().kind, ErrorKind::tooLarge);
    EXPECT_THAT(json.toStdString(), HasSubstr("\n      \"familyNames\": [\n        \"Zeta\",\n"));
    EXPECT_THAT(json.toStdString(), HasSubstr("\n      \"familyNames\": []\n"));
    EXPECT_TRUE(json.endsWith("\n}\n"));
}

TEST(OrganizationFile, IsTheSameWhateverTheOrderInMemory)
{
    Organization other = sample();
    std::swap(other.collections[0], other.collections[2]);
    other.styleCategories[0].familyNames = {"Beta", "Zeta", "alpha"};
    EXPECT_EQ(encoded({other, {}, {}}), encoded({sample(), {}, {}}));
}

TEST(OrganizationFile, HoldsTenThousandFamilies)
{
    OrganizationFile file{sample(), {}, {}};
    for (int i = 0; i < 10000; ++i) {
        const QString name = QStringLiteral("Family %1").arg(i, 5, 10, QChar(u'0'));
        file.organization.collections[1].familyNames.push_back(name);
        file.organization.styleCategories[2].familyNames.push_back(name);
        file.organization.foundries.overrides.insert(name, QStringLiteral("klim"));
    }
    const QByteArray json = encoded(file);
    EXPECT_LT(json.size(), OrganizationFile::kMostBytes / 32);
    EXPECT_EQ(decoded(json), file);
}

TEST(OrganizationFile, RefusesWhatItIsNot)
{
    const QByteArray deep = QByteArray(200, '[') + QByteArray(200, ']');
    struct Case
    {
        QByteArray json;
        const char *words;
        ErrorKind kind = ErrorKind::malformed;
    };
    const Case cases[]{
        {"", ""},
        {"no JSON", ""},
        {"[]", ""},
        {"{}", "format"},
        {document({}, {}).replace("lorva-organization", "lorva"), "format"},
        {document({}, {}).replace(":1,", ":0,"), "version"},
        {document({}, {}).replace(":1,", ":\"1\","), "version"},
        {R"({"format":"lorva-organization","version":2,"collections":7})", "version 2",
         ErrorKind::unsupported},
        {R"({"format":"lorva-organization","version":1})", "collections"},
        {document({}, {}).chopped(1), ""},
        {document({}, {}) + "{}", ""},
        {document("collections", "{}"), "collections"},
        {document("collections", R"([{"id":"a","familyNames":[]}])"), "collections[0]"},
        {document("collections", R"([{"id":"a","name":"A","familyNames":[7]}])"),
         "collections[0].familyNames[0]"},
        {document("styleCategories", R"([{"id":"a","name":" \u202e\n","familyNames":[]}])"),
         "styleCategories[0].name: the name is empty"},
        {document("foundries", R"({"overrides":{},"names":{"a":""},"dismissed":[]})"), "names.a"},
        {document("foundries", R"({"overrides":{"a":"b","a":"c"},"names":{},"dismissed":[]})"),
         "duplicate key"},
        {document("displaySettings", R"({"allFonts":{"colorMode":9}})"), "colorMode"},
        {document({}, {}).replace("\"version\"", QByteArray("\"x\":" + deep + ",\"version\"")),
         "x"},
    };
    for (const Case &each : cases) {
        const Result<OrganizationFile> file = decodeOrganizationFile(each.json);
        ASSERT_FALSE(file) << each.json.constData();
        EXPECT_EQ(file.error().kind, each.kind) << each.json.constData();
        EXPECT_THAT(file.error().detail.toStdString(), HasSubstr(each.words));
    }
}

TEST(OrganizationFile, CleansWhatPeopleWrote)
{
    const Organization cleaned = decoded(document("collections", R"([
            {"id":"a","name":"  Two\n lines\u202e ","familyNames":["X","","Y","X"],"later":{}},
            {"id":"a","name":"Other","familyNames":["Z"]},
            {"name":"two LINES","familyNames":["Z","W"]},
            {"name":"Fresh","familyNames":[]}])"))
                                     .organization;
    ASSERT_EQ(cleaned.collections.size(), 2u);
    EXPECT_EQ(cleaned.collections[0].name, "Fresh");
    EXPECT_FALSE(cleaned.collections[0].id.isEmpty());
    EXPECT_EQ(cleaned.collections[1],
              (FontCollectionRecord{"a", "Two lines", {"X", "Y", "Z", "W"}}));
    EXPECT_EQ(cleaned.styleCategories, defaultStyleCategories());

    const auto categories = decoded(document("styleCategories", R"([
            {"id":"own","name":"Own","familyNames":["b","A"]},
            {"id":"serif","name":"Renamed","familyNames":["A"]},
            {"id":"rounded","name":"Soft","familyNames":["C"]}])"))
                                .organization.styleCategories;
    ASSERT_EQ(categories.size(), 8u);
    EXPECT_EQ(categories[0], (FontStyleCategoryRecord{"serif", "Serif", {"A"}}));
    EXPECT_EQ(categories[6], (FontStyleCategoryRecord{"own", "Own", {"b"}}));
    EXPECT_EQ(categories[7].familyNames, QStringList{"C"});
    EXPECT_NE(categories[7].id, "rounded") << "earlier versions' category is emptied on loading";

    const auto settings = decoded(document("displaySettings", R"({
            "allFonts":{"customForegroundColorHex":"#12aBcF","customBackgroundColorHex":"red"},
            "collection::a":{"imageForegroundColorHex":"#12345g"},
            "collection::":{"sampleText":"x"},"elsewhere":{"sampleText":"x"}})"))
                              .displaySettings;
    SourceDisplaySettings kept;
    kept.customForegroundColorHex = "#12aBcF";
    EXPECT_EQ(settings, (std::map<QString, SourceDisplaySettings>{{"allFonts", kept}}));

    const FoundryCorrections foundries =
        decoded(document("foundries", R"({"overrides":{"":"x","A":""},"names":{"":"x"},
                                          "dismissed":["","b","b"]})"))
            .organization.foundries;
    EXPECT_EQ(foundries, (FoundryCorrections{{{"A", ""}}, {}, {"b"}}));
}

TEST(OrganizationFile, CanBeReadWhateverWasStored)
{
    const QString turnsText{QChar(0x202e)};
    const Organization stored{
        {{"a", " Two\nlines" + turnsText, {}}, {"b", "\u200b", {}}, {" ", "", {}}},
        {{"serif", "Serif", {}}, {"own", "\n", {"X"}}},
        {{}, {{"klim", turnsText}, {"acme", " A\n"}}, {}}};
    const Organization read = decoded(encoded({stored, {}, {}})).organization;
    ASSERT_EQ(read.collections.size(), 3u);
    EXPECT_EQ(read.collections[0], (FontCollectionRecord{"b", "b", {}}));
    EXPECT_EQ(read.collections[1], (FontCollectionRecord{"a", "Two lines", {}}));
    EXPECT_EQ(read.collections[2], (FontCollectionRecord{" ", "Untitled", {}}));
    EXPECT_EQ(read.styleCategories.back(), (FontStyleCategoryRecord{"own", "own", {"X"}}));
    EXPECT_EQ(read.foundries.names, (QHash<QString, QString>{{"acme", "A"}}));
}

TEST(OrganizationFile, GivesNewOnesTheIdsOfTheirNames)
{
    OrganizationFile file = decoded(document("collections", R"([
            {"name":"POSTERS","familyNames":[]},{"name":"Fresh","familyNames":[]},
            {"name":"Zines","familyNames":[]},{"id":"c3","name":"Taken","familyNames":[]},
            {"id":"x","name":"Äpfel","familyNames":[]}])"));
    const Organization present = sample();
    adoptIDs(file, present);
    QHash<QString, QString> ids;
    for (const FontCollectionRecord &each : file.organization.collections)
        ids.insert(each.name, each.id);
    EXPECT_EQ(ids["POSTERS"], "c2");
    EXPECT_EQ(ids["Taken"], "c3");
    EXPECT_EQ(ids["Äpfel"], "x") << "the id that the file gives counts";
    EXPECT_EQ(ids["Fresh"].size(), 36);
    EXPECT_EQ(ids["Zines"].size(), 36) << "another one in the file has its id";
}

TEST(OrganizationFile, MergesByIdThenByName)
{
    Organization organization = sample();
    OrganizationFile imported{
        {{{"c1", "New name", {"Alpha", "New"}}, {"x", "POSTERS", {"P"}}, {"y", "Añejo", {"Q"}}},
         {{"own-1", "Blackletter", {"Zeta"}}, {"z", "serif", {"New"}}},
         {{{"Alpha", "acme"}}, {{"klim", "K"}, {"n", "N"}}, {"new"}}},
        {},
        {}};
    imported.displaySettings["collection::x"].browserPointSize = 7;
    imported.displaySettings["collection::y"].browserPointSize = 8;
    merge(imported.organization, organization);
    EXPECT_EQ(organization.collections,
              (std::vector<FontCollectionRecord>{{"y", "Añejo", {"Q"}},
                                                 {"c1", "Äpfel", {"Zeta", "Alpha", "New"}},
                                                 {"c2", "posters", {"P"}},
                                                 {"c3", "Zines", {"Nicht da"}}}));
    ASSERT_EQ(organization.styleCategories.size(), 8u);
    EXPECT_EQ(organization.styleCategories[0].familyNames, (QStringList{"alpha", "Beta", "New"}));
    EXPECT_EQ(organization.styleCategories[7].familyNames, QStringList{"Zeta"});
    EXPECT_EQ(organization.foundries,
              (FoundryCorrections{{{"Alpha", "acme"}, {"Zeta", ""}},
                                  {{"klim", "K"}, {"n", "N"}},
                                  {"acme", "zeta", "new"}}));
    const auto settings = mergedDisplaySettings(imported, organization);
    ASSERT_TRUE(settings.contains("collection::c2")) << "the collection that took the members in";
    EXPECT_EQ(settings.at("collection::c2").browserPointSize, 7);
    EXPECT_EQ(settings.at("collection::y").browserPointSize, 8);
    EXPECT_EQ(settings.size(), 2u);

    const Organization once = organization;
    merge(imported.organization, organization);
    EXPECT_EQ(organization, once) << "importing twice changes nothing more";
}

} // namespace
} // namespace lorva
