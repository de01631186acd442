// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgDocument.h"
#include "text/color/SvgDocumentReader.h"
#include "text/color/SvgLibrary.h"
#include "text/FontLimits.h"
#include "text/MadeFonts.h"
#include "text/PictureSupport.h"

#include <QBuffer>
#include <QPdfWriter>

#include <gmock/gmock.h>
#include <zlib.h>

using namespace lorva;
using namespace lorva::test;

namespace {

/// An em is so many points, and 1,000 units.
constexpr double kPointSize = 40;

QByteArray svg(const QByteArray &content, const QByteArray &attributes = {})
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        + attributes + ">" + content + "</svg>";
}

/// One document of glyph 1 alone.
QByteArray glyphSvg(const QByteArray &content, const QByteArray &defs = {})
{
    return svg("<defs>" + defs + "</defs><g id='glyph1'>" + content + "</g>");
}

QByteArray svgTable(const QByteArray &document, quint16 first = 1, quint16 last = 1)
{
    return bigEndian<quint16>(0) + bigEndian<quint32>(10) + bigEndian<quint32>(0)
        + bigEndian<quint16>(1) + bigEndian<quint16>(first) + bigEndian<quint16>(last)
        + bigEndian<quint32>(14) + bigEndian<quint32>(quint32(document.size())) + document;
}

/// `CPAL` of two palettes: green and translucent blue; yellow and red.
QByteArray paletteTable()
{
    return bigEndian<quint16>(0) + bigEndian<quint16>(2) + bigEndian<quint16>(2)
        + bigEndian<quint16>(4) + bigEndian<quint32>(16) + bigEndian<quint16>(0)
        + bigEndian<quint16>(2) + QByteArray::fromHex("00ff00ff ff000080 00ffffff 0000ffff");
}

Font svgFont(const QByteArray &document, quint16 last = 1)
{
    FontBuilder builder("Drawn");
    builder.codePoints(U"ABC").table("SVG ", svgTable(document, 1, last));
    builder.table("CPAL", paletteTable());
    return Font(builtFace(builder), kPointSize);
}

std::unique_ptr<ColorGlyphSource> glyphsOf(const QByteArray &document)
{
    return makeSvgGlyphs(svgFont(document));
}

QByteArray gzipped(const QByteArray &bytes)
{
    z_stream stream{};
    EXPECT_EQ(deflateInit2(&stream, 9, Z_DEFLATED, 16 + MAX_WBITS, 9, Z_DEFAULT_STRATEGY), Z_OK);
    QByteArray out(qsizetype(deflateBound(&stream, uLong(bytes.size()))), '\0');
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    stream.avail_in = uInt(bytes.size());
    stream.next_out = reinterpret_cast<Bytef *>(out.data());
    stream.avail_out = uInt(out.size());
    EXPECT_EQ(deflate(&stream, Z_FINISH), Z_STREAM_END);
    out.chop(stream.avail_out);
    deflateEnd(&stream);
    return out;
}

QByteArray pictureData(QSize size, QColor color, const char *format = "png")
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return QByteArray("data:image/") + format + ";base64," + bytes.toBase64();
}

struct Drawing
{
    const char *name;
    QByteArray document;
    /// Places in points, y up: 40 to an em.
    std::vector<Expected> expected;
};

/// The square that most drawings fill: 4 to 36 points across, 0 to 32 up.
const QByteArray kSquare = "x='100' y='-800' width='800' height='800'";

TEST(SvgGlyphs, DrawsWhatTheDocumentSays)
{
    const Drawing drawings[]{
        {"plain",
         glyphSvg("<rect " + kSquare + " fill='#f00'/>"),
         {{{20, 16}, kRed},
          {{5, 1}, kRed},
          {{3, 1}, kNothing},
          {{20, 33}, kNothing},
          {{20, -1}, kNothing}}},
        {"black where nothing is said", glyphSvg("<rect " + kSquare + "/>"), {{{20, 16}, kBlack}}},
        {"below the baseline",
         glyphSvg("<rect width='400' height='200' fill='blue'/>"),
         {{{8, -4}, kBlue}, {{8, 1}, kNothing}, {{17, -4}, kNothing}}},
        {"translucent",
         glyphSvg("<rect " + kSquare + " fill='#f00' fill-opacity='.5'/>"),
         {{{20, 16}, 0x80ff0000}}},
        {"group opacity",
         glyphSvg("<g opacity='.5'><rect " + kSquare + " fill='red'/><rect " + kSquare
                  + " fill='blue'/></g>"),
         {{{20, 16}, 0x800000ff}}},
        {"classes",
         svg("<style>.a,.z{fill:#00f} #glyph1 rect.b{fill:#0f0}/* } */</style><g id='glyph1'>"
             "<rect class='a' x='0' y='-400' width='400' height='400'/>"
             "<rect class='z b' x='400' y='-400' width='400' height='400'/></g>"),
         {{{8, 8}, kBlue}, {{24, 8}, kGreen}}},
        {"style sheet behind",
         svg("<g id='glyph1'><path class='a' d='M0 "
             "0H800V-800H0z'/></g><style>.a{fill:#0f0}</style>"),
         {{{8, 8}, kGreen}}},
        {"style attribute",
         glyphSvg("<rect " + kSquare + " fill='red' style='fill:#00f;;filter:url(#none)'/>"),
         {{{20, 16}, kBlue}}},
        {"gradient",
         glyphSvg("<rect " + kSquare + " fill='url(#g)'/>",
                  "<linearGradient id='g0'><stop offset='0' stop-color='red'/><stop offset='1' "
                  "stop-color='blue'/>"
                  "</linearGradient><linearGradient id='g' xlink:href='#g0' x2='0' y2='100%'/>"),
         {{{20, 31.5}, 0xfffb0004},
          {{20, 16.5}, 0xff827d00 - 0x7d00 + 0x7d},
          {{20, 0.5}, 0xff0400fb}}},
        {"radial gradient in units",
         glyphSvg(
             "<rect " + kSquare + " fill='url(#g)'/>",
             "<radialGradient id='g' gradientUnits='userSpaceOnUse' cx='500' cy='-400' r='200'>"
             "<stop offset='.99' stop-color='#0f0'/><stop offset='1' "
             "stop-color='#00f'/></radialGradient>"),
         {{{20, 16}, kGreen}, {{26, 16}, kGreen}, {{30, 16}, kBlue}, {{20, 6}, kBlue}}},
        {"clip path",
         glyphSvg("<g clip-path='url(#c)'><rect " + kSquare + " fill='red'/></g>",
                  "<clipPath id='c'><circle cx='500' cy='-400' r='200'/></clipPath>"),
         {{{20, 16}, kRed}, {{13, 16}, kRed}, {{11, 16}, kNothing}, {{27, 23}, kNothing}}},
        {"clip path by class",
         svg("<style>.c{clip-path:url(#c)}.n{fill:none}</style><defs><clipPath id='c'>"
             "<rect class='n' x='0' y='-400' width='400' height='400'/></clipPath></defs>"
             "<g id='glyph1'><g class='c'><rect "
             + kSquare + " fill='red'/></g></g>"),
         {{{8, 8}, kRed}, {{20, 8}, kNothing}, {{8, 20}, kNothing}}},
        {"mask",
         glyphSvg(
             "<rect " + kSquare + " fill='red' mask='url(#m)'/>",
             "<mask id='m' maskUnits='userSpaceOnUse' x='0' y='-1000' width='1000' height='1000'>"
             "<rect x='0' y='-1000' width='500' height='1000' fill='#fff'/>"
             "<rect x='500' y='-1000' width='200' height='1000' fill='#fff' opacity='.5'/></mask>"),
         {{{10, 16}, kRed}, {{24, 16}, 0x80ff0000}, {{34, 16}, kNothing}}},
        {"use and symbol",
         glyphSvg("<use href='#s' x='400'/><use xlink:href='#r' transform='translate(0 -400)' "
                  "fill='blue'/>",
                  "<symbol id='s' overflow='visible'><rect y='-400' width='400' height='400' "
                  "fill='red'/>"
                  "</symbol><rect id='r' y='-400' width='400' height='400'/>"),
         {{{24, 8}, kRed}, {{8, 24}, kBlue}, {{8, 8}, kNothing}, {{24, 24}, kNothing}}},
        {"stroke",
         glyphSvg("<path d='M100 -400H900' stroke='red' stroke-width='200'/>"),
         {{{20, 16}, kRed}, {{20, 19}, kRed}, {{20, 22}, kNothing}}},
        {"dashes",
         glyphSvg("<path d='M0 -400H800' stroke='red' stroke-width='200' stroke-dasharray='200'/>"),
         {{{4, 16}, kRed}, {{12, 16}, kNothing}, {{20, 16}, kRed}}},
        {"blending",
         glyphSvg("<rect " + kSquare + " fill='#ff0'/><rect " + kSquare
                  + " fill='#0ff' style='mix-blend-mode:multiply'/>"),
         {{{20, 16}, kGreen}}},
        {"picture",
         glyphSvg("<image " + kSquare + " xlink:href='" + pictureData({8, 8}, Qt::red) + "'/>"),
         {{{20, 16}, kRed}}},
        {"jpeg",
         glyphSvg("<image " + kSquare + " href='" + pictureData({8, 8}, Qt::red, "jpeg") + "'/>"),
         {{{20, 16}, 0xfffe0000}}},
        {"picture of its own size",
         glyphSvg("<image y='-8' transform='scale(40)' href='" + pictureData({8, 8}, Qt::red)
                  + "' xlink:href='#none'/>"),
         {{{6, 6}, kRed}, {{14, 6}, kNothing}}},
        {"what it lies in",
         svg("<g transform='translate(0 -400)' fill='blue'><g id='glyph1'><rect width='400' "
             "height='400'/></g>"
             "<rect x='400' width='400' height='400'/></g>"),
         {{{8, 8}, kBlue}, {{24, 8}, kNothing}}},
        {"compressed",
         gzipped(glyphSvg("<rect " + kSquare + " fill='#f00'/>")),
         {{{20, 16}, kRed}}},
        {"the whole is the glyph",
         svg("<rect " + kSquare + " fill='red'/>", "id='glyph1'"),
         {{{20, 16}, kRed}}},
        {"a box of its own",
         svg("<rect width='32' height='32' fill='red'/>", "id='glyph1' viewBox='0 64 64 64'"),
         {{{10, 30}, kRed}, {{10, 15}, kNothing}, {{25, 30}, kNothing}}},
        {"a size of its own",
         svg("<rect y='-64' width='32' height='32' fill='red'/>",
             "id='glyph1' width='64' height='64px'"),
         {{{10, 30}, kRed}, {{10, 15}, kNothing}, {{25, 30}, kNothing}}},
        {"a wide box",
         svg("<rect width='200' height='100' fill='red'/>", "id='glyph1' viewBox='0 200 200 100'"),
         {{{20, 20}, kRed}, {{20, 5}, kNothing}, {{20, 35}, kNothing}}},
        {"far out",
         glyphSvg("<rect x='-1e7' y='-400' width='2e7' height='400' fill='red'/>"),
         {{{-5, 8}, kRed}, {{45, 8}, kRed}}},
        {"prefixed",
         "<svg:svg xmlns:svg='http://www.w3.org/2000/svg'><svg:rect id='glyph1' width='400' "
         "height='400' y='-400'/></svg:svg>",
         {{{8, 8}, kBlack}}},
        {"document type",
         "<?xml version='1.0'?><!DOCTYPE svg PUBLIC '-//W3C//DTD SVG 1.1//EN' "
         "'http://www.w3.org/svg11.dtd'>"
             + glyphSvg("<rect " + kSquare + "/>"),
         {{{20, 16}, kBlack}}},
    };
    for (const Drawing &one : drawings) {
        for (const double ratio : {1.0, 2.0}) {
            SCOPED_TRACE(std::string(one.name) + " at " + std::to_string(ratio));
            const auto glyphs = glyphsOf(one.document);
            ASSERT_TRUE(glyphs);
            EXPECT_TRUE(glyphs->has(1));
            expectColors(pictureOf(*glyphs, 1, ratio), one.expected);
        }
    }
}

TEST(SvgGlyphs, TakesTheTextsColourAndTheFontsPalette)
{
    struct Case
    {
        const char *name;
        QByteArray fill;
        PaletteChoice palette;
        QColor foreground;
        QRgb expected;
    };
    const PaletteChoice first;
    const PaletteChoice second{1, {}};
    const PaletteChoice replaced{0, {{0, qRgb(1, 2, 3)}}};
    const QColor faint(255, 0, 0, 128);
    const Case cases[]{
        {"current colour", "fill='currentColor'", first, Qt::blue, kBlue},
        {"another", "fill='currentColor'", first, Qt::red, kRed},
        {"faint", "fill='currentcolor'", first, faint, 0x80ff0000},
        {"context", "fill='context-fill'", first, Qt::red, kRed},
        {"not asked for", "fill='#0f0'", first, Qt::red, kGreen},
        {"entry", "fill='var(--color0, red)'", first, Qt::black, kGreen},
        {"entry in style", "style='fill: var( --color0 )'", first, Qt::black, kGreen},
        {"translucent entry", "fill='var(--color1,red)'", first, Qt::black, 0x800000ff},
        {"other palette", "fill='var(--color0,red)'", second, Qt::black, kYellow},
        {"replaced entry", "fill='var(--color0,red)'", replaced, Qt::black, 0xff010203},
        {"beyond the palette", "fill='var(--color9, blue)'", first, Qt::black, kBlue},
        {"one in another", "fill='var(--x, var(--color0, red))'", first, Qt::black, kGreen},
        {"no such variable", "fill='var(--x)'", first, Qt::red, kRed},
        {"never closed", "fill='var(--color0, blue'", first, Qt::red, kGreen},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        const Font font =
            svgFont(glyphSvg("<rect " + kSquare + " " + one.fill + "/>")).withPalette(one.palette);
        const auto glyphs = makeSvgGlyphs(font);
        // What was drawn before in another colour must not be shown again.
        pictureOf(*glyphs, 1, 1, Qt::white);
        expectColors(pictureOf(*glyphs, 1, 1, one.foreground), {{{20, 16}, one.expected}});
    }
}

TEST(SvgGlyphs, KeepsGlyphsOfOneDocumentApart)
{
    const auto glyphs = makeSvgGlyphs(Font(openFace(madeFont("svg.ttf")), kPointSize));
    ASSERT_TRUE(glyphs);
    expectColors(
        pictureOf(*glyphs, 1),
        {{{20, 14}, 0xffffffdd}, {{15, 18}, kBlack}, {{25, 18}, kBlack}, {{2, 2}, kNothing}}, 12);
    expectColors(pictureOf(*glyphs, 2), {{{5, 14}, 0xfff3000c}, {{35, 14}, 0xff0400fb}});
    expectColors(pictureOf(*glyphs, 3), {{{20, 16}, 0xff008000}, {{6, 2}, kNothing}});
    expectColors(pictureOf(*glyphs, 4, 1, Qt::blue), {{{10, 14}, kBlue}, {{24, 14}, kNothing}});
    expectColors(pictureOf(*glyphs, 5),
                 {{{20, 20}, 0xffffffff}, {{4, 20}, 0x80000000}, {{1, 1}, kNothing}});
    for (const quint32 none : {0U, 6U, 7U, 65'535U, 70'000U}) {
        EXPECT_FALSE(glyphs->has(none));
        EXPECT_TRUE(pictureOf(*glyphs, none).isNull());
    }
    const QRectF bounds = glyphs->bounds(5);
    EXPECT_NEAR(bounds.left(), 40 * 2 / 64.0, 0.05);
    EXPECT_NEAR(bounds.top(), -40 * 62 / 64.0, 0.05);
    EXPECT_NEAR(bounds.width(), 40 * 60 / 64.0, 0.05);
}

TEST(SvgGlyphs, PaintsBetweenPixelsTurnedAndInPrint)
{
    const auto glyphs = glyphsOf(glyphSvg("<rect y='-400' width='400' height='400' fill='red'/>"));
    QImage image(kPictureSide, kPictureSide, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.translate(10.25, 50);
    ASSERT_TRUE(glyphs->paint(painter, 1, Qt::black));
    EXPECT_NEAR(qAlpha(image.pixel(10, 45)), 191, 2);
    EXPECT_NEAR(qAlpha(image.pixel(26, 45)), 64, 2);
    painter.resetTransform();
    painter.translate(40, 10);
    painter.rotate(90);
    ASSERT_TRUE(glyphs->paint(painter, 1, Qt::black));
    EXPECT_TRUE(areAlike(image.pixel(48, 18), kRed, 3));
    painter.end();

    QByteArray pdf;
    QBuffer buffer(&pdf);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    QPainter print(&writer);
    EXPECT_TRUE(glyphs->paint(print, 1, Qt::black));
    print.end();
    EXPECT_THAT(pdf.toStdString(), ::testing::HasSubstr("/Subtype /Image"));
}

/// A document that reaches for a file shows nothing of it.
TEST(SvgGlyphs, ReadsNothingFromOutside)
{
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    const QByteArray folder = TestHome::instance().makeFolder("outside").bytes();
    ASSERT_TRUE(image.save(QString::fromUtf8(folder + "/red.png")));
    const QByteArray drawing = svg("<rect id='r' " + kSquare + " fill='red'/>");
    writeFile(FilePath(folder), "red.svg", drawing);
    writeFile(FilePath(folder), "red.css", "rect{fill:red}");
    const QByteArray base = "file://" + folder + "/";
    const QByteArray inner = "<rect " + kSquare + " fill='blue'/>";
    const Drawing drawings[]{
        {"image",
         glyphSvg(inner + "<image " + kSquare + " xlink:href='" + base + "red.png'/>"),
         {}},
        {"image of a path",
         glyphSvg(inner + "<image " + kSquare + " href='" + folder + "/red.png'/>"),
         {}},
        {"drawing in data",
         glyphSvg(inner + "<image " + kSquare + " href='data:image/svg+xml;base64,"
                  + drawing.toBase64() + "'/>"),
         {}},
        {"use", glyphSvg(inner + "<use href='" + base + "red.svg#r'/>"), {}},
        {"sheet",
         svg("<style>@import url(" + base + "red.css);</style><g id='glyph1'>" + inner + "</g>"),
         {}},
        {"instruction", "<?xml-stylesheet href='" + base + "red.css'?>" + glyphSvg(inner), {}},
        {"fill", glyphSvg(inner + "<rect " + kSquare + " fill='url(" + base + "red.svg#r)'/>"), {}},
        {"include",
         glyphSvg(inner + "<xi:include xmlns:xi='http://www.w3.org/2001/XInclude' href='" + base
                  + "red.svg'/>"),
         {}},
        {"foreign",
         glyphSvg(inner + "<foreignObject " + kSquare + "><rect " + kSquare
                  + " fill='red'/></foreignObject>"),
         {}},
        {"text and script",
         glyphSvg(
             inner
             + "<text y='-100' font-size='900' fill='red'>M</text><script>fill('red')</script>"),
         {}},
        {"animation",
         glyphSvg("<rect " + kSquare + " fill='blue'><set attributeName='fill' to='red'/></rect>"),
         {}},
        {"filter",
         glyphSvg(inner, "<filter id='f'><feFlood flood-color='red'/></filter>")
             .replace("<rect", "<rect filter='url(#f)'"),
         {}},
    };
    for (const Drawing &one : drawings) {
        SCOPED_TRACE(one.name);
        const auto glyphs = glyphsOf(one.document);
        const QImage picture = pictureOf(*glyphs, 1);
        // An outside paint counts as not said: black.
        const QRgb expected = std::string(one.name) == "fill" ? kBlack : kBlue;
        expectColors(picture, {{{20, 16}, expected}});
    }
}

QByteArray nested(int depth, const QByteArray &opening, const QByteArray &closing,
                  const QByteArray &inner)
{
    return opening.repeated(depth) + inner + closing.repeated(depth);
}

/// `levels` groups, each of which repeats the one before it `times` times.
QByteArray laughs(int levels, int times, const QByteArray &attribute = {})
{
    QByteArray defs = "<rect id='l0' width='9' height='9'/>";
    for (int level = 1; level <= levels; ++level) {
        const QByteArray inner =
            "<use xlink:href='#l" + QByteArray::number(level - 1) + "' " + attribute + "/>";
        defs += "<g id='l" + QByteArray::number(level) + "'>" + inner.repeated(times) + "</g>";
    }
    return glyphSvg("<use xlink:href='#l" + QByteArray::number(levels) + "'/>", defs);
}

/// Masks, each of which is masked by the next.
QByteArray masks(int count)
{
    QByteArray defs;
    for (int i = 0; i < count; ++i)
        defs += "<mask id='m" + QByteArray::number(i)
            + "'><rect width='900' height='900' mask='url(#m" + QByteArray::number(i + 1)
            + ")'/></mask>";
    return glyphSvg("<rect width='900' height='900' mask='url(#m0)'/>", defs);
}

/// A path of `count` lines from edge to edge that cross almost all the others.
QByteArray tangle(int count, const QByteArray &command, int points)
{
    QByteArray path = "M0 0";
    for (int i = 0; i < count; ++i) {
        path += command;
        for (int k = 0; k < points; ++k)
            path += QByteArray::number((i * 7919 + k * 104'729) % 997) + " -"
                + QByteArray::number((i * 6101 + k * 3571) % 991) + " ";
    }
    return path;
}

/// So many small squares, none of which touches another.
QByteArray dots(int across)
{
    QByteArray path;
    for (int i = 0; i < across * across; ++i)
        path += "M" + QByteArray::number(i % across * 8) + " -" + QByteArray::number(i / across * 8)
            + "h4v4h-4z";
    return path;
}

TEST(SvgGlyphs, RefusesWhatCostsTooMuch)
{
    const QByteArray rect = "<rect width='9' height='9'/>";
    struct Case
    {
        const char *name;
        QByteArray document;
    };
    const Case cases[]{
        {"laughs", laughs(40, 10)},
        {"masked laughs", laughs(3, 10, "opacity='.5'")},
        {"a long chain", laughs(300, 1)},
        {"masks of masks", masks(300)},
        {"repeats itself", glyphSvg("<use href='#glyph1'/>")},
        {"two repeat each other",
         glyphSvg("<use href='#a'/>",
                  "<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>")},
        {"clipped by itself",
         glyphSvg("<rect width='9' height='9' clip-path='url(#c)'/>",
                  "<clipPath id='c'><path clip-path='url(#c)' d='M0 0h9v9z'/></clipPath>")},
        {"deep", glyphSvg(nested(100, "<g>", "</g>", rect))},
        {"very deep", glyphSvg(nested(20'000, "<g>", "</g>", rect))},
        {"many elements", glyphSvg(rect.repeated(6000))},
        {"a long path", glyphSvg("<path d='M0 0" + QByteArray("L9 9").repeated(600'000) + "'/>")},
        {"many elements of other glyphs",
         svg("<g id='glyph1'>" + rect + "</g><g>" + rect.repeated(60'000) + "</g>")},
        {"many layers",
         glyphSvg(QByteArray("<rect width='9' height='9' opacity='.5'/>").repeated(300))},
        {"rules without end",
         svg("<style>" + QByteArray("*{fill:red}").repeated(9000) + "</style><g id='glyph1'>"
             + rect.repeated(2000) + "</g>")},
        {"a long rule for all",
         svg("<style>*{fill:" + QByteArray(3'000'000, 'x') + "}</style><g id='glyph1'>"
             + QByteArray("<g/>").repeated(4000) + rect + "</g>")},
        {"entities", "<!DOCTYPE svg [<!ENTITY a 'b'>]>" + glyphSvg(rect)},
        {"expanding", gzipped(svg(QByteArray(8 << 20, ' ') + "<g id='glyph1'>" + rect + "</g>"))},
        {"cut", glyphSvg(rect).chopped(9)},
        {"cut while compressed", gzipped(glyphSvg(rect)).chopped(12)},
        {"no SVG", "<html><svg id='glyph1'/></html>"},
        {"another glyph", glyphSvg(rect).replace("glyph1", "glyph2")},
        {"empty", ""},
        {"a tangle", glyphSvg("<path d='" + tangle(4000, "L", 1) + "'/>")},
        {"a tangle of curves", glyphSvg("<path d='" + tangle(2000, "C", 3) + "'/>")},
        {"a tangle of points", glyphSvg("<polygon points='" + tangle(4000, " ", 1).mid(1) + "'/>")},
        {"a tangle in a corner",
         glyphSvg("<path d='M-9e5 -9e5L9e5 9e5" + tangle(4000, "L", 1) + "'/>")},
        {"a tangled clip",
         glyphSvg("<rect width='9' height='9' clip-path='url(#c)'/>",
                  "<clipPath id='c'><path d='" + tangle(4000, "L", 1) + "'/></clipPath>")},
        {"a stroke that turns back",
         glyphSvg("<path stroke='red' d='M0 0" + QByteArray("h900h-900").repeated(2000) + "'/>")},
        {"arcs over arcs",
         glyphSvg("<path d='M0 0" + QByteArray("a300 200 9 11.1.1").repeated(2000) + "'/>")},
        {"large pictures",
         glyphSvg(
             QByteArray("<image href='" + pictureData({2000, 1900}, Qt::red) + "'/>").repeated(2))},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        const auto glyphs = glyphsOf(one.document);
        ASSERT_TRUE(glyphs);
        EXPECT_FALSE(glyphs->has(1));
        EXPECT_TRUE(glyphs->bounds(1).isNull());
        EXPECT_TRUE(pictureOf(*glyphs, 1).isNull());
    }
}

/// What is allowed is drawn, however hard it tries; that it ends is what is shown here.
TEST(SvgGlyphs, DrawsHardDocumentsWithinBounds)
{
    const QByteArray number = "1e300";
    const Drawing drawings[]{
        {"endless dashes",
         glyphSvg(
             "<path d='M0 -400H800' stroke='red' stroke-width='200' stroke-dasharray='1e-9'/>"),
         {{{4, 16}, kRed}, {{12, 16}, kRed}}},
        {"endless dashes in a sheet",
         svg("<style>path{stroke-dasharray:1e-9 1e-9}</style><path id='glyph1' d='M0 -400H800' "
             "stroke='red' stroke-width='200'/>"),
         {{{4, 16}, kRed}, {{12, 16}, kRed}}},
        {"huge widths",
         glyphSvg("<rect " + kSquare + " fill='red'/><path d='M0 0H9' stroke-width='" + number
                  + "'/>"),
         {}},
        {"huge scale",
         glyphSvg("<rect " + kSquare
                  + " fill='red'/><path transform='scale(1e30)' d='M0 0h1v1z'/>"),
         {}},
        {"a heap of shapes",
         glyphSvg(QByteArray("<rect " + kSquare + " fill='red'/>").repeated(4900)),
         {{{20, 16}, kRed}}},
        {"a heap of layers",
         glyphSvg(QByteArray("<rect " + kSquare + " opacity='.9'/>").repeated(250)),
         {{{20, 16}, kBlack}}},
        {"layers in layers",
         glyphSvg(nested(55, "<g opacity='.99'>", "</g>", "<rect " + kSquare + " fill='red'/>")),
         {}},
        {"a chain", laughs(100, 1), {}},
        {"a knot",
         glyphSvg("<path d='M0 0" + QByteArray("L0 -900L900 0L900 -900").repeated(20'000) + "'/>"),
         {}},
        {"ten thousand dots", glyphSvg("<path d='" + dots(100) + "'/>"), {}},
        {"no transform", glyphSvg("<rect " + kSquare + " transform='matrix(0 0 0 0 0 0)'/>"), {}},
        {"references without end",
         glyphSvg("<rect " + kSquare + " fill='red' clip-path='"
                  + QByteArray("url(#").repeated(400'000) + "'/>"),
         {}},
        {"a box without size",
         svg("<rect " + kSquare + " fill='red'/>", "id='glyph1' viewBox='0 0 0 nan'"),
         {{{20, 16}, kRed}}},
    };
    for (const Drawing &one : drawings) {
        SCOPED_TRACE(one.name);
        const auto glyphs = glyphsOf(one.document);
        const QRectF bounds = glyphs->bounds(1);
        EXPECT_LE(bounds.width(), 16 * kPointSize);
        for (const double ratio : {1.0, 8.0}) {
            const QImage picture = pictureOf(*glyphs, 1, ratio);
            if (!one.expected.empty())
                expectColors(picture, one.expected);
        }
    }
}

/// One document for each glyph from 1 on.
QByteArray svgTableOf(const QList<QByteArray> &documents)
{
    QByteArray records;
    QByteArray all;
    const qsizetype listSize = 2 + 12 * documents.size();
    for (qsizetype i = 0; i < documents.size(); ++i) {
        records += bigEndian(quint16(i + 1)) + bigEndian(quint16(i + 1))
            + bigEndian(quint32(listSize + all.size())) + bigEndian(quint32(documents[i].size()));
        all += documents[i];
    }
    return bigEndian(quint16(0)) + bigEndian(quint32(10)) + bigEndian(quint32(0))
        + bigEndian(quint16(documents.size())) + records + all;
}

/// Each glyph alone would be drawn.
TEST(SvgGlyphs, DrawsNoMoreOfATextThanATextMayCost)
{
    const QByteArray square = "<rect " + kSquare + " fill='red'/>";
    std::u32string characters;
    for (char32_t c = 0x4E00; characters.size() < 81; ++c)
        characters += c;
    const QByteArray bomb = gzipped(svg(QByteArray(5 << 20, ' ')));
    QList<QByteArray> bombs;
    QList<QByteArray> heaps;
    for (int i = 1; i <= 80; ++i) {
        bombs << bomb;
        heaps << gzipped(svg(square + "<path d='M0 0" + QByteArray(580'000, ' ') + "'/>",
                             "id='glyph" + QByteArray::number(i) + "'"));
    }
    bombs << glyphSvg(square).replace("glyph1", "glyph81");
    for (const auto &[documents, last] : {std::pair(bombs, 81U), std::pair(heaps, 80U)}) {
        FontBuilder builder("Costly");
        builder.codePoints(characters).table("SVG ", svgTableOf(documents));
        const Font font(builtFace(builder), kPointSize);
        auto spent = makeSvgGlyphs(font);
        for (quint32 glyph = 1; glyph < last; ++glyph)
            spent->has(glyph);
        EXPECT_FALSE(spent->has(last));
        spent.reset();
        EXPECT_TRUE(makeSvgGlyphs(font)->has(last));
    }
}

/// What one text leaves to the next must not hold its colours, its size or its limits.
TEST(SvgGlyphs, AreTheFontsOwnWhenKeptForTheNextText)
{
    FontBuilder builder("Kept");
    builder.codePoints(U"A").table(
        "SVG ", svgTable(glyphSvg("<rect " + kSquare + " fill='currentColor'/>"), 1, 1));
    const auto face = builtFace(builder);
    for (const double size : {kPointSize, kPointSize / 2., double(kPointSize)}) {
        for (const QColor &color : {QColor(Qt::red), QColor(Qt::blue)}) {
            const auto glyphs = makeSvgGlyphs(Font(face, size));
            const QImage picture = pictureOf(*glyphs, 1, 1, color);
            expectColors(picture, {{{size * 0.5, size * 0.4}, color.rgba()}});
            EXPECT_EQ(colorAt(picture, {size * 1.05, size * 0.4}), colorText(kNothing));
        }
    }
}

TEST(SvgGlyphs, SurvivesDamage)
{
    const QByteArray table = svgTable(glyphSvg("<rect " + kSquare + " fill='red'/>"), 1, 3);
    int shown = 0;
    for (qsizetype at = 0; at < table.size(); at += 1 + at / 32) {
        QByteArray turned = table;
        turned[at] = char(~turned[at]);
        for (const QByteArray &damaged : {turned, table.left(at)}) {
            FontBuilder builder("Damaged");
            builder.codePoints(U"AB").table("SVG ", damaged);
            const auto glyphs = makeSvgGlyphs(Font(builtFace(builder), kPointSize));
            if (glyphs && !pictureOf(*glyphs, 1).isNull())
                ++shown;
        }
    }
    EXPECT_GT(shown, 0);
    EXPECT_LT(shown, table.size());
}

TEST(SvgLibrary, IsAbsentWhereItLacksAnything)
{
    EXPECT_EQ(SvgLibrary::load("liblorva-none.so.0"), nullptr);
    EXPECT_EQ(SvgLibrary::load("libz.so.1"), nullptr);
    EXPECT_NE(SvgLibrary::shared(), nullptr);
}

} // namespace
