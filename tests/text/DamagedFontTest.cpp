// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontLimits.h"
#include "text/ReadingSupport.h"
#include "text/WarmFaces.h"

#include <hb.h>

#include <cmath>
#include <random>

namespace lorva::test {

namespace {

QByteArray variableFont()
{
    return FontBuilder("Damage", "Regular")
        .postScriptName("Damage-Regular")
        .rawName(1, 0, 0, 1, "D\x8Amage")
        .axis("wght", 100, 400, 900)
        .axis("slnt", -10, 0, 0)
        .instance("Bold", {700, 0})
        .instance("Black Slanted", {900, -10}, "Damage-BlackSlanted")
        .substitution("smcp", U'a', U'A')
        .build();
}

void expectDisplayable(const QString &text, int maxBytes)
{
    EXPECT_LE(text.size(), maxBytes);
    EXPECT_EQ(text, text.trimmed());
    EXPECT_TRUE(text.isValidUtf16());
    for (const QChar c : text)
        EXPECT_NE(c.category(), QChar::Other_Control);
}

void useFace(const FontFace &face)
{
    expectDisplayable(face.names().copyright, kMaxLongNameBytes);
    for (const VariationAxis &axis : face.axes())
        EXPECT_TRUE(axis.minValue <= axis.defaultValue && axis.defaultValue <= axis.maxValue);
    const FaceMetrics metrics = face.metrics();
    EXPECT_GT(metrics.unitsPerEm, 0);
    EXPECT_GT(metrics.capHeight, 0);
    EXPECT_TRUE(std::isfinite(metrics.ascender) && std::isfinite(metrics.descender));
    const auto font = face.shapingFont({});
    hb_buffer_t *buffer = hb_buffer_create();
    hb_buffer_add_utf8(buffer, "Aa 1", -1, 0, -1);
    hb_buffer_guess_segment_properties(buffer);
    hb_shape(font.get(), buffer, nullptr, 0);
    hb_buffer_destroy(buffer);
    hb_glyph_extents_t extents;
    hb_font_get_glyph_extents(font.get(), face.glyphFor(U'A').value_or(0), &extents);
}

/// Reads everything that can be read of a file; the number of faces that came out.
size_t useFile(const FilePath &path)
{
    // A file rewritten within one tick of the file system's clock looks unchanged.
    WarmFaces::instance().clear();
    const auto file = FontFile::open(path);
    const auto descriptors = file ? (*file)->descriptors() : tl::unexpected(file.error());
    if (!descriptors) {
        EXPECT_TRUE(descriptors.error().detail.startsWith(path.displayText() + u": "));
        return 0;
    }
    EXPECT_LE(descriptors->size(), size_t(kMaxDescriptorsPerFile));
    for (const FaceDescriptor &descriptor : *descriptors) {
        expectDisplayable(descriptor.familyName, kMaxNameBytes);
        expectDisplayable(descriptor.styleName, kMaxNameBytes);
        EXPECT_LE(std::abs(descriptor.traits.weight), 1);
        EXPECT_LE(std::abs(descriptor.traits.slant), 1);
        const auto face = (*file)->face(descriptor.key);
        EXPECT_TRUE(face);
        if (face && descriptor.key.namedInstance < 8)
            useFace(**face);
    }
    return descriptors->size();
}

class DamagedRealFont : public ::testing::TestWithParam<const char *>
{
};

} // namespace

TEST(DamagedFont, SurvivesTruncationAtEveryLength)
{
    // Tables stand in the order of their tags: `post` is last, and the only one that can be spared.
    constexpr qsizetype kPostSize = 32;
    // Of `name` in the file, and what the directory may count beyond the end.
    constexpr qsizetype kPadding = 3 + 3;
    const QByteArray font = variableFont();
    ASSERT_EQ(useFile(writeFont(font)), 3u);
    for (qsizetype length = 0; length < font.size(); ++length) {
        const size_t faces = useFile(writeFont(font.left(length)));
        if (length < font.size() - kPostSize - kPadding) {
            EXPECT_EQ(faces, 0u) << length;
        } else if (length >= font.size() - kPostSize) {
            EXPECT_EQ(faces, 3u) << length;
        }
    }
}

TEST(DamagedFont, SurvivesFlippedBits)
{
    const QByteArray font = variableFont();
    const FilePath folder = TestHome::instance().makeFolder("flipped");
    std::mt19937 random(20260101);
    size_t faces = 0;
    for (int round = 0; round < 3000; ++round) {
        QByteArray damaged = font;
        for (quint32 flips = 1 + random() % 8; flips > 0; --flips) {
            const qsizetype at = qsizetype(random() % quint32(font.size()));
            damaged[at] = char(damaged[at] ^ char(1 << (random() % 8)));
        }
        faces += useFile(writeFile(folder, "flipped.ttf", damaged));
    }
    EXPECT_GT(faces, 3000u); // most damage is survivable, so the rounds do reach the deeper tables
}

TEST_P(DamagedRealFont, SurvivesFlippedBitsInHeadersAndTables)
{
    const QByteArray font = readFile(realFont(GetParam()));
    ASSERT_FALSE(font.isEmpty());
    const FilePath folder = TestHome::instance().makeFolder("flipped");
    std::mt19937 random(7);
    size_t faces = 0;
    for (int round = 0; round < 60; ++round) {
        QByteArray damaged = font;
        for (int flip = 0; flip < 40; ++flip) {
            // Some of the damage goes where every byte steers something.
            const quint32 span = flip % 10 == 0 ? 1024 : quint32(font.size());
            const qsizetype at = qsizetype(random() % std::min(span, quint32(font.size())));
            damaged[at] = char(random());
        }
        faces += useFile(writeFile(folder, "flipped.font", damaged));
    }
    EXPECT_GT(faces, 10u);
}

INSTANTIATE_TEST_SUITE_P(Fonts, DamagedRealFont,
                         ::testing::Values("truetype/dejavu/DejaVuSans.ttf",
                                           "truetype/inter-vf/Inter.var.ttf",
                                           "opentype/fonts-hosny-amiri/Amiri-Regular.ttf",
                                           "opentype/ebgaramond/EBGaramond12-Regular.otf"));

TEST(DamagedFont, SurvivesLyingTables)
{
    struct Case
    {
        const char *what;
        QByteArray bytes;
        size_t faces;
    };
    const QByteArray giantCounts("\0\1\0\0\0\x10\0\2\xFF\xFF\0\x14\xFF\xFF\xFF\xFF", 16);
    const QByteArray ends = QByteArray(6, '\xFF');
    const Case cases[] = {
        {"fvar with absurd counts", FontBuilder().table("fvar", giantCounts).build(), 1},
        {"fvar of one byte", FontBuilder().table("fvar", "x").build(), 1},
        {"names without records",
         FontBuilder().table("name", QByteArray("\0\0\xFF\xFF\0\0", 6)).build(), 1},
        {"names of rubbish", FontBuilder().table("name", QByteArray(70000, '\xFF')).build(), 1},
        {"every small table short",
         FontBuilder()
             .table("OS/2", ends)
             .table("head", ends)
             .table("post", ends)
             .table("hhea", ends)
             .table("maxp", ends)
             .build(),
         1},
        {"cmap of rubbish, names gone",
         FontBuilder().withoutNames().table("cmap", QByteArray(64, '\x7F')).build(), 0},
    };
    for (const Case &c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(useFile(writeFont(c.bytes)), c.faces);
    }
}

TEST(DamagedFont, SurvivesTablesThatOverlapAndFacesThatShareThem)
{
    QByteArray font = variableFont();
    const quint16 count = quint8(font[5]);
    for (int i = 0; i < count; ++i) // every table starts where the file does
        font.replace(12 + 16 * i + 8, 4, QByteArray(4, '\0'));
    useFile(writeFont(font));

    const QByteArray one = FontBuilder::collection({variableFont()});
    QByteArray many = one;
    many.replace(8, 4, QByteArray("\0\0\1\0", 4));
    many.insert(16, QByteArray(255 * 4, '\0'));
    const int start = 12 + 256 * 4;
    for (int i = 0; i < 256; ++i)
        many.replace(12 + 4 * i, 4,
                     QByteArray("\0\0", 2).append(char(start >> 8)).append(char(start & 0xFF)));
    for (int i = 0; i < count; ++i) {
        const int at = start + 12 + 16 * i + 10;
        const int offset = (quint8(many[at]) << 8 | quint8(many[at + 1])) + 255 * 4;
        many.replace(at, 2, QByteArray().append(char(offset >> 8)).append(char(offset & 0xFF)));
    }
    EXPECT_EQ(openFont(writeFont(many))->descriptors()->size(), 256u * 3u);
}

} // namespace lorva::test
