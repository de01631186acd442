// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/PersistedCache.h"

#include "CacheSupport.h"
#include "catalog/FontCatalogLoader.h"
#include "CatalogSupport.h"
#include "support/AdverseSystem.h"

namespace lorva {

namespace {

using test::sampleCache;

const QByteArray kStyle = R"({"f":"Fam","id":"A-R","l":"Regular","ps":"A-R","w":400,"i":false,)"
                          R"("u":"/f/a.otf"})";
const QByteArray kFiles = R"([{"p":"/f/a.otf","s":10,"m":1.5,"e":[)" + kStyle + "]}]";
const QByteArray kIdentities =
    R"({"Fam":{"scripts":["latin"],"primary":"latin","alternates":["Other"]}})";
const QByteArray kDocument = R"({"version":1,"identityVersion":1,"files":)" + kFiles
    + R"(,"manufacturers":{"Fam":"Maker"},"identities":)" + kIdentities + "}";

PersistedCache smallCache()
{
    const QString name = QStringLiteral("Fam");
    const QString id = QStringLiteral("A-R");
    const FilePath path("/f/a.otf");
    const FontStyleRecord style{id, QStringLiteral("Regular"), id, 400, false, path};
    const FamilyScriptIdentity identity{
        {WritingScript::latin}, WritingScript::latin, QStringList{QStringLiteral("Other")}};
    return {{{path, {10, 1.5, {{name, style}}}}},
            {{name, QStringLiteral("Maker")}},
            {{name, identity}}};
}

QByteArray changed(const QByteArray &from, const QByteArray &to)
{
    QByteArray json = kDocument;
    const qsizetype at = json.indexOf(from);
    EXPECT_GE(at, 0) << from.constData();
    return json.replace(at, from.size(), to);
}

void expectFailure(const QByteArray &json, ErrorKind kind, const char *place)
{
    const Result<PersistedCache> cache = decodePersistedCache(json);
    ASSERT_FALSE(cache) << json.constData();
    EXPECT_EQ(cache.error().kind, kind) << json.constData();
    EXPECT_TRUE(cache.error().detail.startsWith(QLatin1String(place)))
        << qUtf8Printable(cache.error().detail) << " is not at " << place;
}

TEST(PersistedCache, HasTheAgreedForm)
{
    EXPECT_EQ(encodePersistedCache(smallCache()), kDocument);
    EXPECT_EQ(decodePersistedCache(kDocument), smallCache());
}

TEST(PersistedCache, ComesBackUnchanged)
{
    for (const int count : {0, 1, 300}) {
        const PersistedCache cache = sampleCache(1, count);
        const QByteArray json = encodePersistedCache(cache);
        EXPECT_EQ(decodePersistedCache(json), cache);
        EXPECT_EQ(encodePersistedCache(*decodePersistedCache(json)), json);
    }
}

TEST(PersistedCache, ComesBackUnchangedFromRealFonts)
{
    const FilePath file = test::makeCaseFolder().child("parse-cache.json");
    auto fonts = std::make_shared<test::ListedFonts>();
    fonts->files = {test::realFont("opentype/noto/NotoSansCJK-Bold.ttc"),
                    test::realFont("truetype/nanum/NanumGothic.ttf"),
                    test::realFont("truetype/dejavu/DejaVuSans.ttf")};
    FontCatalogLoader loader({.availableFonts = fonts, .cacheFileURL = file});
    ASSERT_TRUE(loader.scan({}, {}));
    ASSERT_TRUE(loader.finishSaving());
    const Result<PersistedCache> cache = readPersistedCache(file);
    ASSERT_TRUE(cache);
    EXPECT_EQ(cache->files.size(), 3);
    EXPECT_FALSE(cache->identities.isEmpty());
    EXPECT_EQ(encodePersistedCache(*cache), test::readFile(file));
}

TEST(PersistedCache, SharesEqualTexts)
{
    const QByteArray second = QByteArray(kFiles).replace("a.otf", "b.otf").mid(1);
    const Result<PersistedCache> cache =
        decodePersistedCache(changed(kFiles, kFiles.chopped(1) + "," + second));
    ASSERT_TRUE(cache) << qUtf8Printable(cache.error().detail);
    const FilePath paths[]{FilePath("/f/a.otf"), FilePath("/f/b.otf")};
    const ParsedEntry &a = cache->files.find(paths[0])->entries.front();
    const ParsedEntry &b = cache->files.find(paths[1])->entries.front();
    EXPECT_EQ(a.familyName.constData(), b.familyName.constData());
    EXPECT_EQ(a.style.label.constData(), b.style.label.constData());
    EXPECT_EQ(a.style.id.constData(), a.style.postScriptName.constData());
    EXPECT_EQ(a.style.fileURL->c_str(), cache->files.find(paths[0]).key().c_str());
}

TEST(PersistedCache, RefusesEachKeyThatIsMissingOrOfAnotherType)
{
    const struct
    {
        const char *key;
        QByteArray value;
        const char *place;
        bool isRequired = true;
    } rows[]{
        {"version", "1", "version"},
        {"files", kFiles, "files"},
        {"manufacturers", R"({"Fam":"Maker"})", "manufacturers"},
        {"identities", kIdentities, "identities", false},
        {"identityVersion", "1", "identityVersion", false},
        {"p", R"("/f/a.otf")", "files[0].p"},
        {"s", "10", "files[0].s"},
        {"m", "1.5", "files[0].m"},
        {"e", "[" + kStyle + "]", "files[0].e"},
        {"f", R"("Fam")", "files[0].e[0].f"},
        {"id", R"("A-R")", "files[0].e[0].id"},
        {"l", R"("Regular")", "files[0].e[0].l"},
        {"ps", R"("A-R")", "files[0].e[0].ps"},
        {"w", "400", "files[0].e[0].w"},
        {"i", "false", "files[0].e[0].i"},
        {"u", R"("/f/a.otf")", "files[0].e[0].u", false},
        {"Fam", R"("Maker")", "manufacturers.Fam", false},
        {"scripts", R"(["latin"])", "identities.Fam.scripts"},
        {"primary", R"("latin")", "identities.Fam.primary", false},
        {"alternates", R"(["Other"])", "identities.Fam.alternates", false},
    };
    for (const auto &row : rows) {
        const QByteArray key = '"' + QByteArray(row.key) + "\":";
        const QByteArray other = qstrcmp(row.key, "i") == 0 ? "7" : "true";
        expectFailure(changed(key + row.value, key + other), ErrorKind::typeMismatch, row.place);
        if (row.isRequired) {
            expectFailure(changed(key, "\"?\":"), ErrorKind::missingKey, row.place);
        } else if (qstrcmp(row.key, "Fam") != 0) {
            EXPECT_TRUE(decodePersistedCache(changed(key, "\"?\":"))) << row.key;
        }
    }
}

TEST(PersistedCache, RefusesWhatNoScanWrites)
{
    const struct
    {
        QByteArray from;
        QByteArray to;
        ErrorKind kind;
        const char *place;
    } rows[]{
        {R"("version":1)", R"("version":2)", ErrorKind::unsupported, "version"},
        {R"("version":1)", R"("version":1,"version":1)", ErrorKind::malformed, "version"},
        {R"("p":"/f/a.otf")", R"("p":"")", ErrorKind::invalidValue, "files[0]"},
        {R"("p":"/f/a.otf")", R"("p":"f/a.otf")", ErrorKind::invalidValue, "files[0]"},
        {R"("p":"/f/a.otf")", R"("p":"/f\u0000")", ErrorKind::invalidValue, "files[0]"},
        {R"("u":"/f/a.otf")", R"("u":"")", ErrorKind::invalidValue, "files[0]"},
        {R"("u":"/f/a.otf")", R"("u":"a.otf")", ErrorKind::invalidValue, "files[0]"},
        {R"("s":10)", R"("s":-1)", ErrorKind::invalidValue, "files[0]"},
        {R"("s":10)", R"("s":10.5)", ErrorKind::typeMismatch, "files[0].s"},
        {R"("s":10)", R"("s":9223372036854775808)", ErrorKind::invalidValue, "files[0].s"},
        {R"("m":1.5)", R"("m":1e999)", ErrorKind::typeMismatch, "files[0].m"},
        {R"("f":"Fam")", R"("f":"")", ErrorKind::invalidValue, "files[0]"},
        {R"("w":400)", R"("w":99)", ErrorKind::invalidValue, "files[0]"},
        {R"("w":400)", R"("w":901)", ErrorKind::invalidValue, "files[0]"},
        {kFiles, kFiles.chopped(1) + "," + kFiles.mid(1), ErrorKind::invalidValue, "files[1]"},
        {R"(["latin"])", R"(["elvish"])", ErrorKind::invalidValue, "identities.Fam.scripts[0]"},
        {R"({"Fam":"Maker"})", R"({"Fam":"","Fam":""})", ErrorKind::malformed, "manufacturers"},
    };
    for (const auto &row : rows)
        expectFailure(changed(row.from, row.to), row.kind, row.place);
}

TEST(PersistedCache, RefusesWhatIsCutOff)
{
    const QByteArray json = encodePersistedCache(sampleCache(1, 10));
    for (qsizetype size = 0; size < json.size(); size += size < 200 ? 1 : 7)
        EXPECT_FALSE(decodePersistedCache(json.first(size))) << size;
    EXPECT_FALSE(decodePersistedCache(json + json));
    EXPECT_FALSE(decodePersistedCache(QByteArray(json).replace(40, 1, QByteArray(1, '\0'))));
}

TEST(PersistedCache, FindsIdentitiesOfOtherRulesAnew)
{
    PersistedCache expected = smallCache();
    expected.identities.clear();
    for (const char *version : {R"("identityVersion":2,)", R"("identityVersion":null,)", ""})
        EXPECT_EQ(decodePersistedCache(changed(R"("identityVersion":1,)", version)), expected);
    const QByteArray key = ",\"identities\":";
    EXPECT_EQ(decodePersistedCache(changed(key + kIdentities, "")), expected);
}

TEST(PersistedCache, LeavesOutWhatCouldNotBeReadBack)
{
    const PersistedCache kept = sampleCache(1, 3);
    const ParsedFontFile good = smallCache().files.begin().value();
    PersistedCache cache = kept;
    cache.files.insert(FilePath("/f/\xFF.otf"), good);
    ParsedFontFile file = good;
    file.fileSize = -1;
    cache.files.insert(FilePath("/f/no fingerprint.otf"), file);
    file = good;
    file.entries.front().style.fileURL = FilePath("/f/\xFF.otf");
    cache.files.insert(FilePath("/f/elsewhere.otf"), file);
    EXPECT_EQ(decodePersistedCache(encodePersistedCache(cache)), kept);
}

} // namespace

} // namespace lorva
