// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CatalogCache.h"

#include "CacheSupport.h"
#include "catalog/FontCatalogLoader.h"
#include "CatalogSupport.h"
#include "support/AdverseSystem.h"

#include <thread>

namespace lorva {

namespace {

using test::makeCaseFolder;
using test::sampleSnapshot;

const QByteArray kStyle = R"({"id":"A-R","label":"Regular","postScriptName":"A-R","weight":400,)"
                          R"("isItalic":false,"fileURL":"file:///f/a.otf"})";
const QByteArray kFamily = R"({"familyName":"Fam","styles":[)" + kStyle + "]}";
const QByteArray kDocument = R"({"families":[)" + kFamily + R"(],"manufacturers":{"Fam":"Maker"}})";

CatalogSnapshot smallSnapshot()
{
    const QString id = QStringLiteral("A-R");
    const FontStyleRecord style{id,    QStringLiteral("Regular"), id, 400,
                                false, FilePath("/f/a.otf")};
    const QString name = QStringLiteral("Fam");
    return {makeFamilyList({{name, {style}, {}, {}, {}}}), {{name, QStringLiteral("Maker")}}};
}

QByteArray changed(const QByteArray &from, const QByteArray &to)
{
    QByteArray json = kDocument;
    const qsizetype at = json.indexOf(from);
    EXPECT_GE(at, 0) << from;
    return json.replace(at, from.size(), to);
}

/// Saves, and waits until it is done.
void saveNow(const FilePath &file, const CatalogSnapshot &snapshot)
{
    CatalogCache(file).save(snapshot);
}

TEST(CatalogCache, HasTheAgreedForm)
{
    EXPECT_EQ(encodeSnapshot(smallSnapshot()), kDocument);
    EXPECT_TRUE(decodeSnapshot(kDocument) == smallSnapshot());
}

TEST(CatalogCache, ComesBackUnchanged)
{
    const FilePath file = makeCaseFolder().child("a").child("catalog.json");
    EXPECT_FALSE(CatalogCache(file).load()) << "nothing was saved";
    for (const int count : {0, 1, 700}) {
        const CatalogSnapshot snapshot = sampleSnapshot(1, count);
        saveNow(file, snapshot);
        const std::optional<CatalogSnapshot> loaded = CatalogCache(file).load();
        ASSERT_TRUE(loaded);
        EXPECT_EQ(*loaded->families, *snapshot.families);
        EXPECT_EQ(loaded->manufacturers, snapshot.manufacturers);
        EXPECT_EQ(encodeSnapshot(*loaded), encodeSnapshot(snapshot));
    }
}

TEST(CatalogCache, ComesBackUnchangedFromRealFonts)
{
    auto fonts = std::make_shared<test::ListedFonts>();
    fonts->files = {test::realFont("opentype/noto/NotoSansCJK-Bold.ttc"),
                    test::realFont("truetype/nanum/NanumGothic.ttf"),
                    test::realFont("truetype/dejavu/DejaVuSans.ttf")};
    auto scanned = FontCatalogLoader({.availableFonts = fonts}).scan({}, {});
    ASSERT_TRUE(scanned && scanned->families.size() > 5);
    const CatalogSnapshot snapshot{makeFamilyList(scanned->families), scanned->manufacturers};
    const Result<CatalogSnapshot> decoded = decodeSnapshot(encodeSnapshot(snapshot));
    ASSERT_TRUE(decoded) << qUtf8Printable(decoded.error().detail);
    EXPECT_TRUE(*decoded == snapshot);
    const std::vector<FontStyleRecord> &styles = decoded->families->front().styles;
    EXPECT_EQ(styles.front().id.constData(), styles.front().postScriptName.constData());
}

TEST(CatalogCache, RefusesDamageAsAWhole)
{
    const struct
    {
        QByteArray from;
        QByteArray to;
        ErrorKind kind;
        const char *place;
    } rows[]{
        {R"("families")", R"("?")", ErrorKind::missingKey, "families"},
        {R"("manufacturers")", R"("?")", ErrorKind::missingKey, "manufacturers"},
        {R"({"Fam":"Maker"})", R"(["Maker"])", ErrorKind::typeMismatch, "manufacturers"},
        {R"("Maker")", "null", ErrorKind::typeMismatch, "manufacturers.Fam"},
        {"[" + kFamily + "]", "{}", ErrorKind::typeMismatch, "families"},
        {R"("familyName")", R"("?")", ErrorKind::missingKey, "families[0].familyName"},
        {R"("familyName":"Fam")", R"("familyName":"")", ErrorKind::invalidValue, "families[0]"},
        {R"("styles")", R"("?")", ErrorKind::missingKey, "families[0].styles"},
        {R"("weight":400)", R"("weight":99)", ErrorKind::invalidValue, "families[0]"},
        {R"("weight":400)", R"("weight":901)", ErrorKind::invalidValue, "families[0]"},
        {R"("isItalic":false)", R"("isItalic":0)", ErrorKind::typeMismatch,
         "families[0].styles[0].isItalic"},
        {"file:///f/a.otf", "/f/a.otf", ErrorKind::invalidValue, "families[0].styles[0].fileURL"},
        {kFamily, kFamily + "," + kFamily, ErrorKind::invalidValue, "families[1]"},
    };
    for (const auto &row : rows) {
        const Result<CatalogSnapshot> snapshot = decodeSnapshot(changed(row.from, row.to));
        ASSERT_FALSE(snapshot) << row.to.constData();
        EXPECT_EQ(snapshot.error().kind, row.kind) << row.to.constData();
        EXPECT_TRUE(snapshot.error().detail.startsWith(QLatin1String(row.place)))
            << qUtf8Printable(snapshot.error().detail);
    }
    const QByteArray json = encodeSnapshot(sampleSnapshot(1, 10));
    for (qsizetype size = 0; size < json.size(); size += size < 200 ? 1 : 7)
        EXPECT_FALSE(decodeSnapshot(json.first(size))) << size;
}

TEST(CatalogCache, LeavesTheLastOfManySaves)
{
    const FilePath file = makeCaseFolder().child("catalog.json");
    for (int round = 0; round < 10; ++round) {
        {
            CatalogCache cache(file);
            for (int seed = 0; seed < 5; ++seed)
                cache.save(sampleSnapshot(seed + round, 20));
        }
        EXPECT_TRUE(CatalogCache(file).load() == sampleSnapshot(4 + round, 20));
    }
}

TEST(CatalogCache, ReadsOneWholeSnapshotWhileItIsReplaced)
{
    const FilePath file = makeCaseFolder().child("catalog.json");
    const CatalogSnapshot snapshots[]{sampleSnapshot(1, 30), sampleSnapshot(2, 50)};
    saveNow(file, snapshots[0]);
    CatalogCache cache(file);
    std::jthread reader([&](const std::stop_token &stop) {
        while (!stop.stop_requested()) {
            const std::optional<CatalogSnapshot> loaded = cache.load();
            ASSERT_TRUE(loaded);
            EXPECT_TRUE(*loaded == snapshots[0] || *loaded == snapshots[1]);
        }
    });
    for (int i = 1; i < 60; ++i)
        saveNow(file, snapshots[i % 2]);
}

TEST(CatalogCache, GivesNothingForWhatItCannotRead)
{
    const FilePath folder = makeCaseFolder();
    ::chmod(folder.c_str(), 0755);
    ::chmod(test::writeFile(folder, "secret", kDocument).c_str(), 0);
    test::writeFile(folder, "damaged", kDocument.chopped(1));
    ASSERT_EQ(::mkdir(folder.child("folder").c_str(), 0755), 0);
    ASSERT_EQ(::mkfifo(folder.child("fifo").c_str(), 0666), 0);
    const test::AsOrdinaryUser user;
    for (const char *name : {"secret", "damaged", "folder", "fifo", "missing", "damaged/below"})
        EXPECT_FALSE(CatalogCache(folder.child(name)).load()) << name;
}

TEST(CatalogCache, KeepsTheOldFileWhereItCannotWrite)
{
    const FilePath folder = makeCaseFolder();
    const FilePath file = folder.child("catalog.json");
    saveNow(file, sampleSnapshot(1, 2));
    {
        const test::FullDisk disk(4096);
        saveNow(file, sampleSnapshot(2, 100));
    }
    EXPECT_TRUE(CatalogCache(file).load() == sampleSnapshot(1, 2));
    ::chmod(folder.c_str(), 0555);
    {
        const test::AsOrdinaryUser user;
        saveNow(file, sampleSnapshot(3, 2));
    }
    ::chmod(folder.c_str(), 0755);
    EXPECT_TRUE(CatalogCache(file).load() == sampleSnapshot(1, 2));
    saveNow(file, sampleSnapshot(4, 2));
    EXPECT_TRUE(CatalogCache(file).load() == sampleSnapshot(4, 2));
}

} // namespace

} // namespace lorva
