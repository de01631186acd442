// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Our pictures of text beside those of `hb-view`, over every installed font.
#include "text/OutlineComparison.h"
#include "text/GlyphPainter.h"
#include "text/ScriptSamples.h"

#include "text/LayoutSupport.h"

#include <QDir>

#include <unicode/uchar.h>

using namespace lorva;
using namespace lorva::test;

namespace {

void expectSameOverScripts(const FilePath &path)
{
    const auto face = openFace(path);
    ASSERT_TRUE(face);
    const Font font(face, kComparedSizePx);
    constexpr size_t kScripts = 3;
    for (const auto &[isRightToLeft, lines] : scriptSamples(font, kScripts))
        expectSamePictures(
            {.font = path,
             .lines = lines,
             .direction = isRightToLeft ? QStringLiteral("rtl") : QStringLiteral("ltr")},
            font);
}

struct Package
{
    const char *name;
    const char *folder;
    /// Below which the package is not what it is meant to be.
    int files;
    /// Of the package's files every `parts`th from `part` on.
    int part = 0;
    int parts = 1;
};

void PrintTo(const Package &package, std::ostream *out)
{
    *out << package.name << ' ' << package.part + 1 << '/' << package.parts;
}

class OutlineComparison : public ::testing::TestWithParam<Package>
{
};

TEST_P(OutlineComparison, drawsEveryFontAsTheReferenceDoes)
{
    const Package &package = GetParam();
    const QDir folder(QStringLiteral("/usr/share/fonts/") + QLatin1String(package.folder));
    const QStringList files = folder.entryList(
        {QStringLiteral("*.ttf"), QStringLiteral("*.otf"), QStringLiteral("*.ttc")}, QDir::Files,
        QDir::Name);
    ASSERT_GE(files.size(), package.files)
        << "package " << package.name << " is not installed; scripts/test installs it";
    for (qsizetype i = package.part; i < files.size(); i += package.parts)
        expectSameOverScripts(FilePath(folder.filePath(files[i]).toUtf8()));
}

INSTANTIATE_TEST_SUITE_P(
    Packages, OutlineComparison,
    ::testing::Values(Package{"fonts-ebgaramond", "opentype/ebgaramond", 5},
                      Package{"fonts-hosny-amiri", "opentype/fonts-hosny-amiri", 6},
                      Package{"fonts-inter", "opentype/inter", 18},
                      Package{"fonts-inter-variable", "truetype/inter-vf", 3},
                      Package{"fonts-league-mono", "opentype/league-mono", 40},
                      Package{"fonts-linuxlibertine", "opentype/linux-libertine", 13},
                      Package{"fonts-roboto-slab", "opentype/roboto/slab", 4},
                      Package{"fonts-comfortaa", "truetype/comfortaa", 3},
                      Package{"fonts-dejavu-core", "truetype/dejavu", 6},
                      Package{"fonts-firacode", "truetype/firacode", 6},
                      Package{"fonts-jetbrains-mono", "truetype/jetbrains-mono", 16},
                      Package{"fonts-liberation", "truetype/liberation", 12},
                      Package{"fonts-lohit-deva", "truetype/lohit-devanagari", 1},
                      Package{"fonts-lxgw-wenkai", "truetype/lxgw-wenkai", 2},
                      Package{"fonts-nanum", "truetype/nanum", 10},
                      Package{"fonts-noto-cjk", "opentype/noto", 4},
                      Package{"fonts-noto-core", "truetype/noto", 250, 0, 4},
                      Package{"fonts-noto-core", "truetype/noto", 250, 1, 4},
                      Package{"fonts-noto-core", "truetype/noto", 250, 2, 4},
                      Package{"fonts-noto-core", "truetype/noto", 250, 3, 4}));

/// The seams between glyphs, the shape of a stroke and the feet of letters, at the least a change
/// that a person would see: the tolerance must not cover it.
TEST(OutlineComparison, theToleranceRefusesWhatIsWrong)
{
    // Its variable glyphs have contours that overlap.
    const FilePath path = realFont("truetype/inter-vf/Inter.var.ttf");
    const auto face = openFace(path);
    ASSERT_TRUE(face);
    const Font font(face, kComparedSizePx);
    const double unitsPerEm = face->metrics().unitsPerEm;
    const QString text = QStringLiteral("Rágjük meg \u00C5");
    const TextLayout layout(text, font);
    const ReferencePicture picture =
        referencePicture({.font = path, .lines = {text}}, int(unitsPerEm));
    ASSERT_EQ(picture.lines.size(), 1u);
    const ReferenceLine &right = picture.lines.front();
    using Line = ReferenceLine;
    const auto accepts = [&](const std::function<void(Line &)> &spoil) {
        Line line = right;
        spoil(line);
        return isSamePicture(compareLine(layout, line, kComparedSizePx / unitsPerEm));
    };
    const double halfPixel = 0.5 * unitsPerEm / kComparedSizePx;
    EXPECT_TRUE(accepts([](Line &) {}));
    EXPECT_FALSE(accepts([](Line &line) { line.glyphs.erase(line.glyphs.begin() + 3); }));
    EXPECT_FALSE(accepts([](Line &line) { line.glyphs[2].outline = line.glyphs[1].outline; }));
    EXPECT_FALSE(accepts([&](Line &line) { line.glyphs[4].position.rx() += halfPixel; }));
    EXPECT_FALSE(accepts([&](Line &line) { line.glyphs[4].position.ry() -= halfPixel; }));
    EXPECT_FALSE(accepts([](Line &line) { // a filled counter, or one that a wrong winding leaves
        QPainterPath &outline = line.glyphs[2].outline;
        outline = outline.simplified();
        outline.addRect(outline.boundingRect());
    }));
    EXPECT_FALSE(accepts([](Line &line) { // one contour less: an accent
        QPainterPath kept;
        const QList<QPolygonF> contours = line.glyphs.back().outline.toSubpathPolygons();
        for (qsizetype i = 1; i < contours.size(); ++i)
            kept.addPolygon(contours[i]);
        line.glyphs.back().outline = kept;
    }));
}

/// One character and its layout: of one glyph, so that hb-view's whole-pixel positions play no
/// part, and within the em and the line, because hb-view cuts off what of a glyph reaches further.
struct Letter
{
    QString text;
    TextLayout layout;
};

std::vector<Letter> someLetters(const Font &font, size_t count)
{
    std::vector<char32_t> mapped = mappedCharacters(font);
    std::erase_if(mapped, [](char32_t c) { return !u_isalpha(UChar32(c)); });
    TextLayoutOptions options;
    options.language = "en";
    options.alignment = TextAlignment::left;
    std::vector<Letter> letters;
    for (size_t i = 0; i < std::min(count, mapped.size()); ++i) {
        const QString text =
            QString::fromUcs4(&mapped[i * mapped.size() / std::min(count, mapped.size())], 1);
        letters.push_back({text, TextLayout(text, font, options)});
    }
    std::erase_if(letters, [&](const Letter &letter) {
        const QRectF em(0, 0, font.pointSize(), letter.layout.size().height());
        return glyphsOf(letter.layout).size() != 1 || !em.contains(letter.layout.inkBounds());
    });
    return letters;
}

/// Qt's rasteriser beside cairo's, whose coverage has 255 steps on a grid of 15 × 17.
TEST(OutlineComparison, fillsLettersAsAnotherRasteriserDoes)
{
    constexpr int kLine = 192;
    constexpr int kBaseline = kLine * 2 / 3;
    constexpr int kLeft = kLine / 3;
    constexpr int kSize = 64;
    constexpr double kPixelShare = 0.02;
    for (const char *name :
         {"opentype/ebgaramond/EBGaramond12-Regular.otf",
          "opentype/linux-libertine/LinLibertine_R.otf", "truetype/inter-vf/Inter.var.ttf",
          "opentype/fonts-hosny-amiri/Amiri-Regular.ttf",
          "truetype/lohit-devanagari/Lohit-Devanagari.ttf", "opentype/noto/NotoSansCJK-Regular.ttc",
          "truetype/dejavu/DejaVuSans.ttf", "truetype/noto/NotoSansThai-Regular.ttf",
          "truetype/noto/NotoSerifKhmer-Regular.ttf", "truetype/noto/NotoSerifTibetan-Regular.ttf",
          "truetype/lxgw-wenkai/LXGWWenKai-Regular.ttf"}) {
        SCOPED_TRACE(name);
        const FilePath path = realFont(name);
        const auto face = openFace(path);
        ASSERT_TRUE(face);
        const std::vector<Letter> letters = someLetters(Font(face, kSize), 24);
        ReferenceRequest request{.font = path, .lines = {}};
        for (const Letter &letter : letters)
            request.lines << letter.text;
        const QImage theirs = referencePixels(request, kSize, kLine);
        ASSERT_FALSE(theirs.isNull());
        QImage ours(theirs.size(), QImage::Format_ARGB32_Premultiplied);
        ours.fill(Qt::transparent);
        for (size_t i = 0; i < letters.size(); ++i) {
            const double baseline = double(i) * kLine + kBaseline;
            const TextLayout &layout = letters[i].layout;
            GlyphPainter::paint(ours, layout,
                                QPointF(kLeft, baseline - layout.lines().front().origin.y()),
                                Qt::black);
        }
        const CoverageDifference difference = compareCoverage(ours, theirs);
        EXPECT_EQ(difference.differentBlocks, 0);
        EXPECT_LE(difference.share, kPixelShare);
        EXPECT_GT(difference.inkPixels, 1000);
    }
}

} // namespace
