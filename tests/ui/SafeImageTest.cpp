// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/SafeImage.h"

#include "base/SvgStyleText.h"
#include "support/AdverseSystem.h"
#include "ui/display/JpegScan.h"
#include "ui/display/SafeSvg.h"

#include <QBuffer>
#include <QColor>
#include <QtEndian>

#include <gmock/gmock.h>

namespace lorva {
namespace {

quint32 crc32(const QByteArray &bytes)
{
    quint32 sum = 0xffffffffU;
    for (const char byte : bytes) {
        sum ^= quint8(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = sum >> 1 ^ (sum & 1 ? 0xedb88320U : 0U);
    }
    return ~sum;
}

QByteArray chunk(const QByteArray &type, const QByteArray &data)
{
    QByteArray bytes(4, '\0');
    qToBigEndian(quint32(data.size()), bytes.data());
    bytes += type + data;
    QByteArray sum(4, '\0');
    qToBigEndian(crc32(type + data), sum.data());
    return bytes + sum;
}

/// A grey PNG; without its pixels it is only what it claims to be.
QByteArray greyPng(quint32 width, quint32 height, bool hasPixels)
{
    QByteArray header(13, '\0');
    qToBigEndian(width, header.data());
    qToBigEndian(height, header.data() + 4);
    header[8] = 8;
    QByteArray bytes = "\x89PNG\r\n\x1a\n" + chunk("IHDR", header);
    QByteArray pixels;
    if (hasPixels)
        pixels = qCompress(QByteArray(qsizetype(width + 1) * height, '\0'), 1).mid(4);
    bytes += chunk("IDAT", pixels);
    return bytes + chunk("IEND", {});
}

QByteArray saved(const QImage &image, const char *format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, format);
    return bytes;
}

QImage plain(int width, int height, const QColor &color)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(color);
    return image;
}

/// Two pictures of two by two pixels: red, then blue.
QByteArray animatedGif()
{
    const auto frame = [](const char *pixels) -> QByteArray {
        return QByteArray::fromHex("21f904000a000000"
                                   "2c0000000002000200"
                                   "00")
            + QByteArray::fromHex(pixels);
    };
    return "GIF89a"
        + QByteArray::fromHex("02000200f00000"
                              "ff0000"
                              "0000ff")
        + frame("0203840051"
                "00")
        + frame("02038c2d59"
                "00")
        + ";";
}

QByteArray svg(const QByteArray &content, const QByteArray &attributes = "viewBox='0 0 100 100'")
{
    return "<svg xmlns='http://www.w3.org/2000/svg' xmlns:xlink='http://www.w3.org/1999/xlink' "
        + attributes + ">" + content + "</svg>";
}

TEST(SafeImage, ReadsEachFormatWithinTheAskedSize)
{
    struct Case
    {
        const char *name;
        QByteArray bytes;
        int side;
        QSize size;
        QByteArray extension;
    };
    const QImage wide = plain(300, 100, Qt::red);
    const Case cases[]{
        {"small png stays", saved(wide, "png"), 500, {300, 100}, "png"},
        {"png", saved(wide, "png"), 150, {150, 50}, "png"},
        {"jpeg", saved(wide, "jpg"), 150, {150, 50}, "jpg"},
        {"bmp", saved(wide, "bmp"), 150, {150, 50}, "bmp"},
        {"sliver keeps a height", saved(plain(4000, 2, Qt::red), "png"), 100, {100, 1}, "png"},
        {"animation", animatedGif(), 100, {2, 2}, "gif"},
        {"svg fills", svg("<rect width='100' height='100' fill='red'/>"), 64, {64, 64}, "svg"},
        {"svg of no size",
         svg("<rect width='200' height='100' fill='red'/>", ""),
         64,
         {64, 32},
         "svg"},
        {"svg by width",
         svg("<path d='M0 0h9v9h-9z' fill='red'/>", "width='40mm' height='20mm'"),
         64,
         {64, 32},
         "svg"},
        {"svg of absurd size",
         "\xef\xbb\xbf<?xml version='1.0'?>"
             + svg("<rect width='1e5' height='1e5' fill='red'/>",
                   "width='1e300' height='1e300' viewBox='0 0 0 1e99'"),
         64,
         {64, 64},
         "svg"},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        const Result<QImage> image = readSafeImage(one.bytes, one.side);
        ASSERT_TRUE(image) << image.error().detail.toStdString();
        EXPECT_EQ(image->size(), one.size);
        EXPECT_EQ(image->format(), QImage::Format_ARGB32_Premultiplied);
        EXPECT_EQ(safeImageExtension(one.bytes), one.extension);
        EXPECT_GT(qRed(image->pixel(0, 0)), 250);
        EXPECT_LT(qBlue(image->pixel(0, 0)), 5);
    }
}

TEST(SafeImage, RefusesWithAReason)
{
    const QByteArray whole = saved(plain(64, 64, Qt::red), "png");
    struct Case
    {
        const char *name;
        QByteArray bytes;
        ErrorKind kind;
    };
    const Case cases[]{
        {"empty", {}, ErrorKind::unsupported},
        {"text", "Dear reader, <svg> is a word here", ErrorKind::unsupported},
        {"web page", "<!DOCTYPE html><html></html>", ErrorKind::unsupported},
        {"compressed drawing", QByteArray::fromHex("1f8b0800000000000003"), ErrorKind::unsupported},
        {"another format", QByteArray::fromHex("00000100010010100000"), ErrorKind::unsupported},
        {"cut png", whole.left(40), ErrorKind::malformed},
        {"png head alone", "\x89PNG\r\n\x1a\n", ErrorKind::malformed},
        {"cut jpeg", QByteArray("\xff\xd8\xff\xe0", 4), ErrorKind::malformed},
        {"claims 900 megapixels", greyPng(30000, 30000, false), ErrorKind::tooLarge},
        {"claims more than there is", greyPng(2'000'000'000, 2'000'000'000, false),
         ErrorKind::malformed},
        {"cut drawing", svg("<rect").chopped(8), ErrorKind::malformed},
        {"other root", "<?xml version='1.0'?><html><svg/></html>", ErrorKind::malformed},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        const Result<QImage> image = readSafeImage(one.bytes, 100);
        ASSERT_FALSE(image);
        EXPECT_EQ(image.error().kind, one.kind) << image.error().detail.toStdString();
        EXPECT_FALSE(image.error().detail.isEmpty());
    }
}

TEST(SafeImage, ReadsAHundredMegapixelsSmall)
{
    QImage large(12000, 9000, QImage::Format_Grayscale8);
    large.fill(Qt::black);
    for (const QByteArray &bytes : {saved(large, "jpg"), greyPng(10001, 10000, true)}) {
        const Result<QImage> image = readSafeImage(bytes, 500);
        ASSERT_TRUE(image) << image.error().detail.toStdString();
        EXPECT_EQ(image->width(), 500);
        EXPECT_EQ(image->pixelColor(250, 180), QColor(Qt::black));
    }
}

TEST(SafeImage, TellsTheWorkOfAJpeg)
{
    const QByteArray progressive =
        QByteArray::fromHex("ffd8ffc2000411111111ffda0003aa01ff00ffda0002");
    EXPECT_TRUE(scanJpeg(progressive).isProgressive);
    EXPECT_EQ(scanJpeg(progressive).scanCount, 2);
    EXPECT_FALSE(scanJpeg(saved(plain(20, 20, Qt::red), "jpg")).isProgressive);
    EXPECT_EQ(scanJpeg(QByteArray(1000, '\xff')).scanCount, 0);
}

TEST(SafeImage, CopiesOnlyHarmlessPartsOfADrawing)
{
    struct Case
    {
        const char *name;
        QByteArray content;
        QByteArray gone;
        QByteArray kept;
    };
    const QByteArray picture = saved(plain(2, 2, Qt::red), "png").toBase64();
    const Case cases[]{
        {"script", "<script>alert(1)</script><path d='M0 0'/>", "alert", "M0 0"},
        {"handler", "<rect onclick='go()' OnLoad='go()' x='7'/>", "go()", "x=\"7\""},
        {"foreign content", "<foreignObject><p>x</p><rect y='3'/></foreignObject><g id='a'/>",
         "<rect", "id=\"a\""},
        {"animation", "<rect x='7'><animate to='9'/></rect>", "animate", "x=\"7\""},
        {"file", "<image href='/etc/passwd' width='9'/>", "passwd", "width=\"9\""},
        {"net", "<image xlink:href='https://a.example/b.png' width='9'/>", "example",
         "width=\"9\""},
        {"drawing within", "<image href='data:image/svg+xml;base64,PHN2Zy8+' width='9'/>",
         "data:", "width=\"9\""},
        {"other document", "<use href='b.svg#c' x='9'/>", "b.svg", "x=\"9\""},
        {"own part", "<g id='c'/><use href='#c'/>", " href", "xlink:href=\"#c\""},
        {"own picture", "<image href='data:image/png;base64," + picture + "'/>", picture,
         "data:image/png;base64,"},
        {"fill from elsewhere", "<rect fill='url(b.svg#c)' x='9'/>", "url", "x=\"9\""},
        {"own fill", "<rect fill='url(#c)' x='9'/>", "b.svg", "url(#c)"},
        {"style attribute", "<rect style='fill:URL( &quot;http://x&quot; );stroke:red'/>", "http",
         "stroke:red"},
        {"style sheet", "<style>@import url(x.css); .a{fill:red} @font-face{src:url(y)}</style>",
         "x.css", ".a{fill:red}"},
        {"hidden by escapes", "<style>.a{fill:\\75rl(x)}</style>", "fill", "<style"},
        {"hidden by a comment", "<style>.a{fill:u/**/rl(x)} .b{fill:red}</style>", "x)",
         ".b{fill:red}"},
        {"style sheet of the document", "<?xml-stylesheet href='/a.css'?><g id='a'/>", "a.css",
         "id=\"a\""},
        {"other programs' parts", "<sodipodi:view inkscape:x='5'/><g id='a' inkscape:x='5'/>",
         "inkscape", "id=\"a\""},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        const Result<SafeSvg> safe = sanitizeSvg(svg(one.content));
        ASSERT_TRUE(safe) << safe.error().detail.toStdString();
        const QByteArray rest = safe->xml.mid(safe->xml.indexOf('>'));
        EXPECT_FALSE(rest.contains(one.gone)) << rest.toStdString();
        EXPECT_TRUE(rest.contains(one.kept)) << rest.toStdString();
    }
}

/// What the renderer would read by itself is there, and must not be seen.
TEST(SafeImage, ReadsNothingFromTheDiskForADrawing)
{
    const FilePath folder = test::makeCaseFolder();
    const QByteArray picture =
        test::writeFile(folder, "red.png", saved(plain(8, 8, Qt::red), "png")).bytes();
    const QByteArray sheet = test::writeFile(folder, "red.css", "rect{fill:#ff0000}").bytes();
    const QByteArray size = "' width='100' height='100'/>";
    const QByteArray contents[]{
        "<image xlink:href='" + picture + size, "<image href='file://" + picture + size,
        "<image xlink:href='file://" + picture + size,
        "<?xml-stylesheet type='text/css' href='" + sheet + "'?><rect fill='none" + size,
        "<style>@import url(" + sheet + ");</style><rect fill='none" + size};
    for (const QByteArray &content : contents) {
        const Result<QImage> image = readSafeImage(svg(content), 50);
        ASSERT_TRUE(image) << image.error().detail.toStdString();
        EXPECT_EQ(image->pixel(25, 25), 0U) << content.toStdString();
    }
    const QByteArray outside = "<!DOCTYPE svg [<!ENTITY x SYSTEM 'file://" + sheet + "'>]>";
    const Result<SafeSvg> safe = sanitizeSvg(outside + svg("<text>&x;</text>"));
    EXPECT_TRUE(!safe || !safe->xml.contains("ff0000"));
}

TEST(SafeImage, RefusesDrawingsThatMultiply)
{
    QByteArray uses = "<g id='n0'><path d='M0 0h9v9z'/></g>";
    QByteArray entities = "<!DOCTYPE svg [<!ENTITY n0 'aaaaaaaaaa'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray last = QByteArray::number(i - 1);
        uses += "<g id='n" + QByteArray::number(i) + "'>"
            + QByteArray("<use href='#n" + last + "'/>").repeated(10) + "</g>";
        entities += "<!ENTITY n" + QByteArray::number(i) + " '"
            + QByteArray("&n" + last + ";").repeated(10) + "'>";
    }
    QByteArray zigzag = "<path stroke='red' d='M0 0";
    for (int i = 0; i < 60000; ++i)
        zigzag += i % 2 ? "L0 0" : "L100 100";
    QByteArray rules = "<style>";
    rules += QByteArray(".a .b .c{fill:red}").repeated(5000) + "</style>";
    struct Case
    {
        const char *name;
        QByteArray bytes;
    };
    const Case cases[]{
        {"repeats repeats", svg(uses)},
        {"repeats itself", svg("<g id='a'><use href='#a'/></g>")},
        {"repeats in a circle",
         svg("<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>")},
        {"entities of entities", entities + "]>" + svg("<text>&n11;</text>")},
        {"too deep", svg(QByteArray("<g>").repeated(5000) + QByteArray("</g>").repeated(5000))},
        {"too many", svg(QByteArray("<g/>").repeated(60000))},
        {"too much text", svg("<text>" + QByteArray(100000, 'a') + "</text>")},
        {"rules by elements", svg(rules + QByteArray("<g/>").repeated(2000))},
        {"dashes without end",
         svg(QByteArray("<path stroke='red' stroke-dasharray='1e-7' d='M0 0H1e6'/>").repeated(50))},
        {"edges without end", svg(zigzag.repeated(2) + "'/>")},
    };
    for (const Case &one : cases) {
        SCOPED_TRACE(one.name);
        const Result<QImage> image = readSafeImage(one.bytes, 2000);
        if (image)
            ADD_FAILURE() << image->width();
    }
}

TEST(SafeImage, PaintsGradientsThatSayNothingOrPerCent)
{
    for (const QByteArray place : {"", "cx='50%' cy='50%' r='50%'", "r='.5'"}) {
        const Result<QImage> image = readSafeImage(
            svg("<defs><radialGradient id='g' " + place
                + "><stop offset='0' stop-color='red'/><stop offset='1' stop-color='blue'/>"
                  "</radialGradient></defs><rect width='100' height='100' fill='url(#g)'/>"),
            100);
        ASSERT_TRUE(image) << image.error().detail.toStdString();
        EXPECT_GT(qRed(image->pixel(50, 50)), 240) << place.toStdString();
        EXPECT_EQ(image->pixelColor(1, 1), QColor(Qt::blue)) << place.toStdString();
    }
}

TEST(SafeImage, KeepsTheGroundOfADrawingTransparent)
{
    const QByteArray logo = "<!DOCTYPE svg [<!ENTITY ns 'http://ns'>]>"
        + svg("<g xmlns:i='&ns;'><circle id='c' cx='50' cy='50' r='20' fill='#00f'/></g>"
              "<use href='#c' x='-50' y='-50'/>");
    const Result<QImage> image = readSafeImage(logo, 100);
    ASSERT_TRUE(image) << image.error().detail.toStdString();
    EXPECT_EQ(image->pixel(80, 80), 0U);
    EXPECT_EQ(image->pixelColor(50, 50), QColor(Qt::blue));
    EXPECT_EQ(image->pixelColor(2, 2), QColor(Qt::blue));
}

} // namespace
} // namespace lorva
