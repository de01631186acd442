// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "LorvactlSupport.h"
#include "support/FontBuilder.h"

#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QSvgRenderer>

namespace lorva {
namespace {

using test::expectFailure;
using test::FontBuilder;
using test::lorvactl;
using test::Outcome;
using test::path;
using test::TestHome;
using testing::HasSubstr;

const QString kGaramond =
    QStringLiteral("/usr/share/fonts/opentype/ebgaramond/EBGaramond12-Regular.otf");
const QString kInter = QStringLiteral("/usr/share/fonts/truetype/inter-vf/Inter-roman.var.ttf");
const QString kAmiri =
    QStringLiteral("/usr/share/fonts/opentype/fonts-hosny-amiri/Amiri-Regular.ttf");

FilePath homeFile(const char *name)
{
    return TestHome::instance().home().child(name);
}

Outcome specimen(const QString &font, const char *picture, const QStringList &options)
{
    return lorvactl(QStringList{"specimen", font, "-o", QString::fromLatin1(picture)} + options);
}

/// The bytes of the picture that lorvactl writes.
QByteArray pictureOf(const QString &font, const char *picture, const QStringList &options)
{
    const Outcome outcome = specimen(font, picture, options);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
    EXPECT_EQ(outcome.error, "");
    return test::readFile(homeFile(picture));
}

QImage imageOf(const QString &font, const QStringList &options)
{
    return QImage::fromData(pictureOf(font, "image.png", options))
        .convertToFormat(QImage::Format_Grayscale8);
}

QImage drawnSvg(const QByteArray &svg, QSize size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QSvgRenderer renderer(svg);
    EXPECT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.defaultSize(), size);
    QPainter painter(&image);
    renderer.render(&painter);
    return image;
}

/// The mean difference of pixels, channel by channel, in 1/255.
double meanDifference(const QImage &one, const QImage &other)
{
    const QImage a = one.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    const QImage b = other.convertToFormat(QImage::Format_ARGB32_Premultiplied);
    EXPECT_EQ(a.size(), b.size());
    qint64 sum = 0;
    for (qsizetype i = 0; i < std::min(a.sizeInBytes(), b.sizeInBytes()); ++i)
        sum += std::abs(int(a.constBits()[i]) - int(b.constBits()[i]));
    return double(sum) / double(std::max<qsizetype>(1, a.sizeInBytes()));
}

/// Where a black-on-white picture is not white, and how much ink there is in black pixels.
struct Ink
{
    QRect box;
    double amount = 0;
};

Ink inkOf(const QImage &image)
{
    Ink ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const int dark = 255 - qGray(image.pixel(x, y));
            ink.amount += dark / 255.0;
            if (dark > 127)
                ink.box |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

TEST(SpecimenCommand, DrawsTheSameAsHbView)
{
    struct Row
    {
        QString font;
        QString text;
        QStringList ours;
        QStringList theirs;
    };
    const Row rows[] = {
        {kGaramond, "Office 1234", {}, {}},
        {kGaramond, "Office 1234", {"--features", "smcp,onum=1"}, {"--features=smcp,onum=1"}},
        {kGaramond, "Office ct", {"--features", "-liga, +hlig"}, {"--features=-liga,+hlig"}},
        {kGaramond, "1/2", {"--features=frac=on"}, {"--features=frac"}},
        {kInter, "Weight", {}, {}},
        {kInter, "Weight", {"--variations", "wght=850.5"}, {"--variations=wght=850.5"}},
        {kAmiri, "abc 12", {"--direction", "rtl"}, {}},
        {kAmiri, "قلم", {"--features", "ss01"}, {"--features=ss01"}},
    };
    for (const Row &row : rows) {
        SCOPED_TRACE(row.font.toStdString() + ' ' + row.ours.join(u' ').toStdString());
        const Ink ours =
            inkOf(imageOf(row.font, QStringList{"--text", row.text, "--size", "100"} + row.ours));
        QProcess view;
        view.start("hb-view",
                   QStringList{"--font-size=100", "--output-format=png", "--margin=40"} + row.theirs
                       + QStringList{"--", row.font, row.text});
        ASSERT_TRUE(view.waitForFinished());
        const Ink theirs = inkOf(QImage::fromData(view.readAllStandardOutput()));
        ASSERT_GT(theirs.amount, 500);
        EXPECT_NEAR(ours.amount, theirs.amount, theirs.amount * 0.01);
        EXPECT_NEAR(ours.box.width(), theirs.box.width(), 2);
        EXPECT_NEAR(ours.box.height(), theirs.box.height(), 2);
    }
}

TEST(SpecimenCommand, TakesSettingsOfTheText)
{
    const auto ink = [](const QString &font, const QStringList &options) {
        return inkOf(imageOf(font, options));
    };
    const Ink plain = ink(kInter, {"--text", "HHHH"});
    const Ink spaced = ink(kInter, {"--text", "HHHH", "--letter-spacing", "10"});
    const Ink tight = ink(kInter, {"--text", "HHHH", "--letter-spacing=-5"});
    EXPECT_NEAR(spaced.box.width() - plain.box.width(), 30, 1);
    EXPECT_NEAR(plain.box.width() - tight.box.width(), 15, 1);

    const QStringList serbian{"--text", "\u0431\u0433\u0434\u043f\u0442"};
    const QString libertine =
        QStringLiteral("/usr/share/fonts/opentype/linux-libertine/LinLibertine_RI.otf");
    EXPECT_NE(imageOf(libertine, serbian + QStringList{"--language", "sr"}),
              imageOf(libertine, serbian + QStringList{"--language", "ru"}));

    const QStringList wide{"--text", "Abc.", "--width", "600"};
    const Ink left = ink(kInter, wide);
    const Ink right = ink(kInter, wide + QStringList{"--direction", "rtl"});
    EXPECT_LT(left.box.right(), 300);
    EXPECT_GT(right.box.left(), 300);
}

TEST(SpecimenCommand, WritesSvgOfPathsThatLooksTheSame)
{
    const QStringList options{"--text",       "Qu & <i>1/2</i>", "--size",  "80",
                              "--background", "transparent",     "--color", "#c03010"};
    const QByteArray svg = pictureOf(kGaramond, "a.svg", options);
    EXPECT_EQ(svg, pictureOf(kGaramond, "b.svg", options)) << "the same bytes each time";
    EXPECT_THAT(svg.toStdString(), HasSubstr("<title>Qu &amp; &lt;i&gt;1/2&lt;/i&gt;</title>"));
    EXPECT_THAT(svg.toStdString(), HasSubstr("<path"));
    for (const char *absent : {"<text", "font-family", "<image", "<rect", "lorva-specimen"})
        EXPECT_FALSE(svg.contains(absent)) << absent;
    const QImage picture = QImage::fromData(pictureOf(kGaramond, "a.png", options));
    const QImage drawn = drawnSvg(svg, picture.size());
    EXPECT_EQ(drawn.pixelColor(0, 0).alpha(), 0);
    // Baselines of the image stand on pixel edges, those of the drawing do not.
    EXPECT_LT(meanDifference(drawn, picture), 1.5);
    QImage empty(picture.size(), picture.format());
    empty.fill(Qt::transparent);
    EXPECT_GT(meanDifference(drawn, empty), 8);

    const QByteArray filled =
        pictureOf(kGaramond, "c.SVG",
                  {"--text", "\u202eA\nB\x01", "--background", "#102030", "--width", "77"});
    EXPECT_EQ(drawnSvg(filled, QSvgRenderer(filled).defaultSize()).pixelColor(0, 0),
              QColor(0x10, 0x20, 0x30));
    EXPECT_THAT(filled.toStdString(), HasSubstr("<svg width=\"77\" height=\""));
}

/// Each object of a PDF must stand where its table says.
void expectSoundTable(const QByteArray &pdf)
{
    const qsizetype table =
        pdf.mid(pdf.lastIndexOf("startxref\n") + 10).split('\n')[0].toLongLong();
    ASSERT_TRUE(pdf.mid(table).startsWith("xref\n0 "));
    const QList<QByteArray> lines = pdf.mid(table).split('\n');
    const int count = lines[1].split(' ')[1].toInt();
    EXPECT_GT(count, 5);
    for (int i = 1; i < count; ++i) {
        const qsizetype offset = lines[2 + i].left(10).toLongLong();
        EXPECT_TRUE(pdf.mid(offset).startsWith(QByteArray(QByteArray::number(i) + " 0 obj"))) << i;
    }
}

TEST(SpecimenCommand, WritesPdfOfPathsOfThePicturesSize)
{
    const QStringList options{"--text", "Office \u00e4", "--width", "333", "--height", "111"};
    const QByteArray pdf = pictureOf(kGaramond, "a.pdf", options);
    EXPECT_TRUE(pdf.startsWith("%PDF-1."));
    EXPECT_TRUE(pdf.trimmed().endsWith("%%EOF"));
    EXPECT_THAT(pdf.toStdString(), HasSubstr("/MediaBox [0 0 333.000000 111.000000]"));
    for (const char *absent :
         {"/Type /Font", "/FontFile", "/BaseFont", "CreationDate", "/Subtype /Image"})
        EXPECT_FALSE(pdf.contains(absent)) << absent;
    expectSoundTable(pdf);
    EXPECT_EQ(pdf, pictureOf(kGaramond, "b.pdf", options));
    EXPECT_NE(pdf, pictureOf(kGaramond, "b.pdf", options + QStringList{"--features", "-liga"}));
}

TEST(SpecimenCommand, MakesRoomForInkBeyondTheText)
{
    const QString dejavu = QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
    const QString stacked = "A" + QString(8, QChar(0x0301));
    const QImage whole = imageOf(dejavu, {"--text", stacked});
    const Ink ink = inkOf(whole);
    EXPECT_GT(ink.box.top(), 0);
    EXPECT_LT(ink.box.bottom(), whole.height() - 1);
    EXPECT_GT(whole.height(), imageOf(dejavu, {"--text", "A"}).height());

    const Outcome cropped = specimen(dejavu, "low.png", {"--text", stacked, "--height", "60"});
    EXPECT_EQ(cropped.exitCode, 0);
    EXPECT_EQ(cropped.error, "lorvactl: the picture is too small for all of the text\n");
}

TEST(SpecimenCommand, SaysWhatItCannotDo)
{
    const QString plain = path(test::writeFile(TestHome::instance().root().child("fonts"),
                                               "plain.ttf", FontBuilder("Plain").build()));
    const struct
    {
        QStringList options;
        int exitCode;
        const char *words;
    } rows[] = {
        {{"--features", "smcp;onum"}, 2, "--features takes a list"},
        {{"--features", "toolong"}, 2, "--features takes a list"},
        {{"--features", "smcp=x"}, 2, "--features takes a list"},
        {{"--features", "smcp,,onum"}, 2, "--features takes a list"},
        {{"--features", "kern[0:3]"}, 2, "--features takes a list"},
        {{"--variations", "wght"}, 2, "--variations takes a list"},
        {{"--variations", "wght=nan"}, 2, "--variations takes a list"},
        {{"--language", "de_DE"}, 2, "--language takes a language"},
        {{"--language", "de-"}, 2, "--language takes a language"},
        {{"--language", "e"}, 2, "--language takes a language"},
        {{"--language", "en\n"}, 2, "--language takes a language"},
        {{"--direction", "up"}, 2, "--direction takes ltr, rtl or auto"},
        {{"--letter-spacing", "1001"}, 2, "--letter-spacing takes a number from -1000 to 1000"},
        {{"--palette", "-1"}, 2, "--palette takes a whole number"},
        {{"--palette", "0"}, 1, "plain.ttf: the face has no palettes"},
        {{"--variations", "wght=400"}, 1, "plain.ttf: the face has no axes"},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(row.options.join(u' ').toStdString());
        expectFailure(specimen(plain, "no.png", row.options), row.exitCode, row.words);
    }
    for (const char *name : {"no.jpg", "no", ".png/no", "png"})
        EXPECT_EQ(specimen(plain, name, {}).exitCode, 1) << name;
    expectFailure(specimen(plain, "no.gif", {}), 1, "no.gif: the name of a picture ends in");
    expectFailure(specimen(kInter, "no.png", {"--variations", "wght=1,opsz=3"}), 1,
                  "has no axis \"opsz\", only wght");
    EXPECT_FALSE(QFile::exists(path(homeFile("no.png"))));
    for (const char *good : {"de", "zh-Hant-HK", "sr-Latn-RS", "es-419", "x-klingon", "sl-nedis"})
        EXPECT_EQ(specimen(plain, "ok.png", {"--language", QString::fromLatin1(good)}).exitCode, 0)
            << good;

    const Outcome noted = specimen(
        kInter, "noted.png", {"--variations", "wght=5000", "--features", "zero,zzzz=2,-yyyy"});
    EXPECT_EQ(noted.exitCode, 0);
    EXPECT_EQ(noted.error,
              "lorvactl: wght goes from 100 to 900: drawn with 900 instead of 5000\n"
              "lorvactl: the face has no feature \"zzzz\"\n"
              "lorvactl: the face has no feature \"yyyy\"\n");
    EXPECT_EQ(test::readFile(homeFile("noted.png")),
              pictureOf(kInter, "most.png", {"--variations", "wght=900", "--features", "zero"}));
}

} // namespace
} // namespace lorva
