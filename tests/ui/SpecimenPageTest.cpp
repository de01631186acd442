// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/SpecimenPage.h"

#include "PreviewFonts.h"
#include "support/AdverseSystem.h"
#include "ui/detail/PreviewPage.h"

#include <QBuffer>
#include <QImageReader>

#include <gmock/gmock.h>

#include <unistd.h>

namespace lorva {
namespace {

using test::fontWith;
using test::makeCaseFolder;
using test::readFile;
using testing::HasSubstr;

DetailSpecimen specimenWith(const QString &text, const Font &font)
{
    DetailSpecimen specimen{QStringLiteral("Fixture"), QStringLiteral("Bold"), text, font};
    specimen.foreground = QColor(0xa0, 0x20, 0x10);
    return specimen;
}

/// A page with one of everything.
SpecimenPage fullPage()
{
    SpecimenPage page = previewPage(specimenWith(QStringLiteral("AB"), fontWith(U"AB")), 200);
    page.captions.push_back({QStringLiteral("Fixture & Bold"), QRectF(0, 0, 150, 20),
                             Qt::AlignLeft | Qt::AlignVCenter, 11, Qt::black});
    QImage logo(8, 8, QImage::Format_ARGB32_Premultiplied);
    logo.fill(QColor(0, 0, 255));
    page.pictures.push_back({logo, QRectF(180, 0, 20, 20)});
    page.rules.push_back({QRectF(0, 0, 200, page.size.height()), Qt::black});
    page.dots.push_back({QRectF(150, 20, 10, 10), Qt::green});
    page.title = QStringLiteral("A \x01<b> & \"c\"");
    return page;
}

QImage drawn(const QByteArray &svg)
{
    QBuffer buffer;
    buffer.setData(svg);
    QImageReader reader(&buffer, "svg");
    reader.setScaledSize(reader.size() * 2);
    const QImage image = reader.read();
    EXPECT_FALSE(image.isNull()) << reader.errorString().toStdString();
    return image;
}

TEST(SpecimenPageTest, picturesOfAPageShowTheSameOnItsGround)
{
    const FilePath folder = makeCaseFolder();
    const SpecimenPage page = fullPage();
    for (const QColor ground : {QColor(Qt::transparent), QColor(0xf0, 0xf0, 0xe0)}) {
        ASSERT_TRUE(writePage(page, ground, folder.child("a.png")));
        ASSERT_TRUE(writePage(page, ground, folder.child("a.SVG")));
        const QImage png = QImage::fromData(readFile(folder.child("a.png")));
        const QImage svg = drawn(readFile(folder.child("a.SVG")));
        EXPECT_EQ(png.size(), QSize(2 * (200 + 96), 2 * (int(page.size.height()) + 96)));
        ASSERT_EQ(svg.size(), png.size());
        const auto at = [](double x, double y) { return QPoint(int(2 * x) + 96, int(2 * y) + 96); };
        const std::pair<QPoint, QColor> spots[]{
            {{3, 3}, ground},
            {at(190, 10), QColor(Qt::blue)},
            {at(155, 25), QColor(Qt::green)},
            // Within the box that stands for an A of 40 points.
            {at(5, page.texts[0].layout.lines()[0].origin.y() - 10), QColor(0xa0, 0x20, 0x10)},
        };
        for (const auto &[spot, color] : spots) {
            EXPECT_EQ(png.pixelColor(spot), color) << spot.x() << ' ' << spot.y();
            EXPECT_EQ(svg.pixelColor(spot), color) << spot.x() << ' ' << spot.y();
        }
        int captionInk = 0;
        for (int x = at(0, 0).x(); x < at(140, 0).x(); ++x)
            captionInk += svg.pixelColor(x, at(0, 11).y()) != ground ? 1 : 0;
        EXPECT_GT(captionInk, 20);
    }
}

TEST(SpecimenPageTest, documentsHoldOutlinesAndTheSameBytesEachTime)
{
    const FilePath folder = makeCaseFolder();
    for (const char *ending : {"svg", "pdf", "png"}) {
        const QByteArray name = QByteArray("a.") + ending;
        const FilePath other = folder.child(QByteArray("b.") += ending);
        ASSERT_TRUE(writePage(fullPage(), Qt::white, folder.child(name)));
        ASSERT_TRUE(writePage(fullPage(), Qt::white, other));
        const QByteArray bytes = readFile(folder.child(name));
        EXPECT_EQ(bytes, readFile(other)) << ending;
        for (const char *absent : {"<text", "font-family", "/Type /Font", "/FontFile", "/BaseFont"})
            EXPECT_FALSE(bytes.contains(absent)) << ending << ' ' << absent;
    }
    EXPECT_THAT(readFile(folder.child("a.svg")).toStdString(),
                HasSubstr("<title>A  &lt;b&gt; &amp; &quot;c&quot;</title>"));
    EXPECT_THAT(readFile(folder.child("a.pdf")).toStdString(),
                HasSubstr("/MediaBox [0 0 296.000000 "));
}

TEST(SpecimenPageTest, whatCannotBeWrittenIsSaidAndLeavesWhatWasThere)
{
    const FilePath folder = makeCaseFolder();
    const SpecimenPage page = fullPage();
    SpecimenPage empty;
    SpecimenPage endless = page;
    endless.size.setHeight(20'000);
    SpecimenPage large = page;
    large.size = QSizeF(6000, 6000);
    SpecimenPage broken = page;
    broken.size.setWidth(std::numeric_limits<double>::quiet_NaN());
    const FilePath font = test::writeFile(folder, "font.png", test::FontBuilder("Kept").build());
    ASSERT_EQ(::symlink("font.png", folder.child("link.pdf").c_str()), 0);
    const struct
    {
        const SpecimenPage &page;
        FilePath target;
        ErrorKind kind;
        const char *words;
    } rows[]{
        {page, folder.child("a.gif"), ErrorKind::usage, "ends in .png, .svg or .pdf"},
        {page, folder.child("png"), ErrorKind::usage, "ends in"},
        {page, folder.child("no").child("a.png"), ErrorKind::notFound, "a.png"},
        {page, font, ErrorKind::invalidValue, "refusing to write over a font file"},
        {page, folder.child("link.pdf"), ErrorKind::invalidValue, "refusing to write"},
        {empty, folder.child("a.pdf"), ErrorKind::invalidValue, "nothing to export"},
        {broken, folder.child("a.pdf"), ErrorKind::invalidValue, "nothing to export"},
        {endless, folder.child("a.pdf"), ErrorKind::tooLarge, "too large for a file"},
        {large, folder.child("a.png"), ErrorKind::tooLarge, "too large for a PNG"},
    };
    for (const auto &row : rows) {
        const Result<void> written = writePage(row.page, Qt::white, row.target);
        ASSERT_FALSE(written) << row.words;
        EXPECT_EQ(written.error().kind, row.kind) << row.words;
        EXPECT_THAT(written.error().detail.toStdString(), HasSubstr(row.words));
    }
    EXPECT_EQ(readFile(font), test::FontBuilder("Kept").build());
    EXPECT_TRUE(writePage(large, Qt::white, folder.child("large.svg")));

    const FilePath old = test::writeFile(folder, "old.pdf", "what was there");
    {
        const test::FullDisk full(512);
        const Result<void> written = writePage(page, Qt::white, old);
        ASSERT_FALSE(written);
        EXPECT_THAT(written.error().detail.toStdString(), HasSubstr("old.pdf"));
    }
    EXPECT_EQ(readFile(old), "what was there");
    const test::AsOrdinaryUser nobody;
    const Result<void> refused = writePage(page, Qt::white, folder.child("new.pdf"));
    ASSERT_FALSE(refused);
    EXPECT_EQ(refused.error().kind, ErrorKind::permissionDenied);
}

TEST(SpecimenPageTest, theLogoStandsAtTheLeadingEdgeOnTheCapHeight)
{
    const Font font = fontWith(U"AB \u05d0");
    for (const bool isRightToLeft : {false, true}) {
        DetailSpecimen specimen = specimenWith(
            isRightToLeft ? QString(4, QChar(0x05d0)) : QStringLiteral("AAAA AAAA AAAA"), font);
        QImage logo(20, 10, QImage::Format_ARGB32_Premultiplied);
        logo.fill(Qt::black);
        specimen.logoImage = logo;
        specimen.logoSizeRatio = 2;
        const SpecimenPage page = previewPage(specimen, 150);
        ASSERT_EQ(page.pictures.size(), 1u);
        const QRectF rect = page.pictures[0].rect;
        const LayoutLine &line = page.texts[0].layout.lines()[0];
        // Caps of 700 units at 40 points are 28 high.
        EXPECT_EQ(rect.size(), QSizeF(112, 56));
        EXPECT_NEAR(rect.center().y(), page.texts[0].origin.y() + line.origin.y() - 14, 0.01);
        EXPECT_NEAR(isRightToLeft ? 150 - rect.right() : rect.left(), 0, 0.01);
        EXPECT_EQ(page.pictures[0].image.pixelColor(5, 5), specimen.foreground);
        EXPECT_GT(page.texts[0].layout.lines().size(), 1u) << "what does not fit beside it wraps";
    }
    EXPECT_TRUE(previewPage(specimenWith(QStringLiteral("A"), {}), 100).size.isEmpty());
}

TEST(SpecimenPageTest, fileNamesAreThoseThatFileSystemsTake)
{
    const std::tuple<QString, QString, QString> rows[]{
        {"EB Garamond", "Italic", "EB Garamond Italic"},
        {"A/B\\C:D*?\"<>|", "Bold", "A-B-C-D------ Bold"},
        {"..hidden", "x. ", "hidden x"},
        {"Tab\tand\nline", "Regular", "Tab-and-line Regular"},
        {QChar(0x202e) + QStringLiteral("evil"), QString(QChar(0x200b)), "-evil -"},
        {"", "", "Specimen"},
        {"本明朝", "標準", "本明朝 標準"},
    };
    for (const auto &[family, style, name] : rows)
        EXPECT_EQ(specimenFileName(family, style), name);
    const QString longest = specimenFileName(QString(60'000, QChar(0x672c)), QStringLiteral("B"));
    EXPECT_LE(longest.toUtf8().size(), 200);
    EXPECT_GE(longest.toUtf8().size(), 190);
    const QString emoji = QStringLiteral("\U0001F600").repeated(100);
    EXPECT_TRUE(QString(emoji).startsWith(specimenFileName(emoji, {})));
    EXPECT_FALSE(specimenFileName(emoji, {}).back().isHighSurrogate());
}

} // namespace
} // namespace lorva
