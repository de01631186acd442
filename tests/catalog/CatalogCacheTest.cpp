// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CatalogCache.h"

#include "CacheSupport.h"
#include "catalog/FontCatalogLoader.h"
#include "CatalogSupport.h"

#include <gtest/gtest.h>

namespace lorva {

namespace {

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
    EXPECT_GE(at, 0) << from.constData();
    return json.replace(at, from.size(), to);
}

TEST(CatalogCache, HasTheAgreedForm)
{
    EXPECT_EQ(encodeSnapshot(smallSnapshot()), kDocument);
    EXPECT_TRUE(decodeSnapshot(kDocument) == smallSnapshot());
}

TEST(CatalogCache, ComesBackUnchanged)
{
    // Large lists are freed elsewhere.
    for (const int count : {0, 1, 700}) {
        const CatalogSnapshot snapshot = sampleSnapshot(1, count);
        const QByteArray json = encodeSnapshot(snapshot);
        const Result<CatalogSnapshot> decoded = decodeSnapshot(json);
        ASSERT_TRUE(decoded);
        EXPECT_EQ(*decoded->families, *snapshot.families);
        EXPECT_EQ(decoded->manufacturers, snapshot.manufacturers);
        EXPECT_EQ(encodeSnapshot(*decoded), json);
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

} // namespace

} // namespace lorva
