// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/GlyphNames.h"

#include "text/ReadingSupport.h"

namespace lorva::test {

namespace {

/// OpenType `post` version 2 with a name of its own for each glyph.
QByteArray namingTable(const std::vector<QByteArray> &names)
{
    QByteArray table("\0\2\0\0", 4);
    table.append(QByteArray(28, '\0')).append(char(0)).append(char(names.size()));
    for (size_t i = 0; i < names.size(); ++i)
        table.append(char((258 + i) >> 8)).append(char(258 + i));
    for (const QByteArray &name : names)
        table.append(char(name.size())).append(name);
    return table;
}

} // namespace

TEST(GlyphNames, AreTheFontsOwn)
{
    struct Case
    {
        const char *font;
        quint32 glyph;
        const char *name;
    };
    // As fonttools reads them.
    const Case cases[] = {
        {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf", 0, ".notdef"},
        {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf", 100, "cent"},
        {"truetype/inter-vf/Inter-roman.var.ttf", 2, "uni0041"},
        {"opentype/linux-libertine/LinLibertine_R.otf", 3, "quotedbl"},
        {"opentype/noto/NotoSansCJK-Regular.ttc", 1234, "gid1234"},
        {"truetype/nanum/NanumGothic.ttf", 7, "gid7"},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.font);
        const auto face = openFace(realFont(c.font));
        const GlyphNames names(*face);
        EXPECT_EQ(names.name(c.glyph), QLatin1String(c.name));
        EXPECT_EQ(names.glyph(QString::fromLatin1(c.name)), c.glyph);
        EXPECT_EQ(names.hasNames(), !QByteArray(c.name).startsWith("gid"));
    }
}

TEST(GlyphNames, LeadBackToTheirGlyphs)
{
    for (const char *font : {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf",
                             "opentype/ebgaramond/EBGaramond12-Regular.otf"}) {
        const auto face = openFace(realFont(font));
        const GlyphNames names(*face);
        for (int glyph = 0; glyph < face->glyphCount(); ++glyph)
            ASSERT_EQ(names.glyph(names.name(quint32(glyph))), quint32(glyph)) << font;
        EXPECT_EQ(names.glyph(QStringLiteral("no such glyph")), std::nullopt);
    }
}

TEST(GlyphNames, OfHostileFontsAreCutAndPrintable)
{
    const auto face = builtFace(FontBuilder().codePoints(U"ABCDE").table(
        "post",
        namingTable(
            {".notdef", QByteArray(200, 'x'), "a\nb \x1b", "caf\xe9", "", "same", "same"})));
    const GlyphNames names(*face);
    EXPECT_EQ(names.name(1), QString(127, u'x'));
    EXPECT_EQ(names.name(2), QStringLiteral("a\uFFFDb\uFFFD\uFFFD"));
    EXPECT_EQ(names.name(3), QStringLiteral("caf\uFFFD"));
    EXPECT_EQ(names.name(4), QLatin1String("gid4")) << "an empty name is none";
    EXPECT_EQ(names.glyph(QStringLiteral("gid4")), 4u);
    EXPECT_EQ(names.name(99999), QLatin1String("gid99999"));
    EXPECT_EQ(names.name(names.glyph(QStringLiteral("same")).value_or(0)), QLatin1String("same"));
    for (const char *none : {"", "gid", "gid5", "gid99999", "gid-1", "gid4294967296", "gid04"})
        EXPECT_EQ(names.glyph(QString::fromLatin1(none)), std::nullopt) << none;
}

TEST(GlyphNames, BearTablesCutAnywhere)
{
    const QByteArray table = namingTable({".notdef", "one", "two"});
    for (qsizetype length = 0; length <= table.size(); ++length) {
        const auto face =
            builtFace(FontBuilder().codePoints(U"AB").table("post", table.first(length)));
        const GlyphNames names(*face);
        for (quint32 glyph = 0; glyph < 3; ++glyph) {
            const QString name = names.name(glyph);
            EXPECT_TRUE(name == u"gid"_qs + QString::number(glyph)
                        || (names.hasNames() && !name.isEmpty()));
        }
        EXPECT_EQ(names.name(2) == u"two"_qs, length == table.size()) << length;
    }
}

} // namespace lorva::test
