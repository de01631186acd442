// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "LorvactlSupport.h"
#include "support/AdverseSystem.h"
#include "support/FontBuilder.h"
#include "text/MadeFonts.h"

#include <QDir>
#include <QImage>

#include <random>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>

namespace lorva {
namespace {

using test::expectFailure;
using test::FontBuilder;
using test::lorvactl;
using test::madeFont;
using test::Outcome;
using test::path;
using test::realFont;

class ThumbnailCommand : public testing::Test
{
protected:
    ThumbnailCommand()
        : folder(test::makeCaseFolder())
        , picture(folder.child("out").child("thumbnail.png"))
    {
        QDir().mkpath(path(picture.parent()));
        for (const FilePath &each : {test::TestHome::instance().home(), folder, picture.parent()})
            ::chmod(each.c_str(), 0777);
    }

    Outcome thumbnail(const QString &font, const QStringList &options = {}) const
    {
        ::unlink(picture.c_str());
        return lorvactl(QStringList{"thumbnail"} + options + QStringList{font, path(picture)});
    }

    QImage drawn(const QString &font, const QStringList &options = {}) const
    {
        const Outcome outcome = thumbnail(font, options);
        EXPECT_EQ(outcome.exitCode, 0) << outcome.error.constData();
        EXPECT_EQ(outcome.error, "");
        return QImage(path(picture)).convertToFormat(QImage::Format_RGB32);
    }
    QImage drawn(const FilePath &font, const QStringList &options = {}) const
    {
        return drawn(path(font), options);
    }

    /// What lies in the folder of the picture, half-written files included.
    QStringList written() const
    {
        return QDir(path(picture.parent()))
            .entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
    }

    FilePath write(const char *name, const QByteArray &bytes) const
    {
        return test::writeFile(folder, name, bytes);
    }

    const FilePath folder;
    const FilePath picture;
};

/// The box of what is neither sheet nor its edge.
QRect inkBox(const QImage &image)
{
    QRect box;
    for (int y = 1; y < image.height() - 1; ++y)
        for (int x = 1; x < image.width() - 1; ++x)
            if (qGray(image.pixel(x, y)) < 200)
                box |= QRect(x, y, 1, 1);
    return box;
}

/// The ink alone, as large as each other picture's: what is compared is the letters' shapes.
QImage letters(const QImage &image)
{
    return image.copy(inkBox(image))
        .scaled(48, 48, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_Grayscale8);
}

double difference(const QImage &one, const QImage &other)
{
    double sum = 0;
    for (int y = 0; y < one.height(); ++y)
        for (int x = 0; x < one.width(); ++x)
            sum += std::abs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y)));
    return sum / (one.width() * one.height());
}

int countPixels(const QImage &image, bool (*isWanted)(const QColor &))
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += isWanted(image.pixelColor(x, y)) ? 1 : 0;
    return count;
}

bool isColored(const QColor &color)
{
    return color.saturation() > 100 && color.value() > 60;
}

} // namespace

TEST_F(ThumbnailCommand, ShowsLettersThatTheFontIsMadeFor)
{
    const struct
    {
        const char *font;
        const char *text;
    } rows[]{
        {"opentype/ebgaramond/EBGaramond12-Regular.otf", "Aa"},
        {"truetype/firacode/FiraCode-Regular.ttf", "Aa"},
        {"truetype/dejavu/DejaVuSans.ttf", "Aa"},
        {"opentype/noto/NotoSansCJK-Regular.ttc", "永あ"},
        {"truetype/nanum/NanumMyeongjo.ttf", "한글"},
        {"truetype/nanum/NanumBarunGothic.ttf", "한글"},
        {"truetype/lxgw-wenkai/LXGWWenKai-Regular.ttf", "永汉"},
        {"opentype/fonts-hosny-amiri/Amiri-Regular.ttf", "أب"},
        {"truetype/lohit-devanagari/Lohit-Devanagari.ttf", "अक"},
        {"truetype/noto/NotoSansHebrew-Regular.ttf", "אב"},
        {"truetype/noto/NotoSansArmenian-Regular.ttf", "Աա"},
        {"truetype/noto/NotoSansGothic-Regular.ttf", "𐌰𐌱"},
    };
    QImage before(48, 48, QImage::Format_Grayscale8);
    before.fill(Qt::white);
    for (const auto &row : rows) {
        SCOPED_TRACE(row.font);
        const QString font = path(realFont(row.font));
        const QImage shown = letters(drawn(font));
        const QString specimen = path(folder.child("specimen.png"));
        ASSERT_EQ(lorvactl({"specimen", font, "-o", specimen, "--size", "300", "--text",
                            QString::fromUtf8(row.text)})
                      .exitCode,
                  0);
        EXPECT_LT(difference(shown, letters(QImage(specimen))), 16);
        EXPECT_GT(difference(shown, before), 30);
        before = shown;
    }
}

TEST_F(ThumbnailCommand, CentresItsInkInAnySize)
{
    const FilePath fonts[]{realFont("truetype/inter-vf/Inter-roman.var.ttf"),
                           realFont("opentype/noto/NotoSerifCJK-Bold.ttc"),
                           realFont("truetype/noto/NotoNastaliqUrdu-Regular.ttf"),
                           realFont("truetype/noto/NotoSansSymbols2-Regular.ttf")};
    for (const FilePath &font : fonts) {
        for (const int side : {16, 32, 128, 256, 512, 1024, 2048}) {
            SCOPED_TRACE(font.fileName().toStdString() + ' ' + std::to_string(side));
            const QImage image = drawn(font, {"--size", QString::number(side)});
            ASSERT_EQ(image.size(), QSize(side, side));
            EXPECT_EQ(image.pixelColor(side / 16, side / 16), QColor(Qt::white));
            const QRect ink = inkBox(image);
            const QPointF off = QRectF(ink).center() - QPointF(side / 2.0, side / 2.0);
            EXPECT_LT(std::max(std::abs(off.x()), std::abs(off.y())), 1.5 + side * 0.02);
            EXPECT_LT(std::max(ink.width(), ink.height()), side * 0.84);
            EXPECT_GT(std::max(ink.width(), ink.height()), side * 0.5);
        }
    }
}

TEST_F(ThumbnailCommand, ShowsColoursWithinItsConfinement)
{
    EXPECT_GT(countPixels(drawn(realFont("truetype/noto/NotoColorEmoji.ttf")), isColored), 5000);
    for (const char *name : {"svg.ttf", "sbix.ttf", "cbdt.ttf"})
        EXPECT_GT(countPixels(drawn(madeFont(name)), isColored), 500) << name;
    // Where the tables are listed behind all of another font.
    const QByteArray large = FontBuilder("Large").table("TEST", QByteArray(10000, 'x')).build();
    const QByteArray svg = test::readFile(madeFont("svg.ttf"));
    const FilePath collection = write("svg.ttc", FontBuilder::collection({large, svg}));
    const FilePath suitcase = write("svg.dfont", FontBuilder::dfont({large, svg}));
    for (const FilePath &each : {collection, suitcase})
        EXPECT_GT(countPixels(drawn(each, {"--face", "1"}), isColored), 500)
            << each.bytes().constData();
}

TEST_F(ThumbnailCommand, IsDrawnInAProcessOfItsOwn)
{
    QProcess process;
    process.setChildProcessModifier([] {
        const rlimit none{0, 0};
        // Root may always have another one.
        if (::geteuid() == 0 && ::setuid(65534) != 0)
            ::_exit(99);
        ::setrlimit(RLIMIT_NPROC, &none);
    });
    // The search for leaks needs a process of its own, too.
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("ASAN_OPTIONS"), QStringLiteral("detect_leaks=0"));
    process.setProcessEnvironment(environment);
    process.start(QStringLiteral(LORVACTL_PATH),
                  {"thumbnail", path(realFont("truetype/dejavu/DejaVuSans.ttf")), path(picture)});
    expectFailure(test::finished(process), 1, "no new process can be started");
    EXPECT_EQ(written(), QStringList());
}

TEST_F(ThumbnailCommand, TakesPathsAddressesAndFaces)
{
    const QByteArray wide = FontBuilder("Wide").codePoints(U"A").build();
    const QByteArray low = FontBuilder("Low").codePoints(U"a").build();
    const QByteArray empty = FontBuilder("Empty").codePoints(U" ").build();
    const QString plain = path(write("a b\u00fc%.ttf", wide));
    const QImage big = drawn(plain);
    const QImage small = drawn(write("low.ttf", low));
    EXPECT_NE(big, small);
    EXPECT_EQ(drawn(QString::fromLatin1(FilePath::fromText(plain).toUrl())), big);
    EXPECT_EQ(drawn(write("two.ttc", FontBuilder::collection({wide, low}))), big);
    EXPECT_EQ(drawn(write("two.ttc", FontBuilder::collection({wide, low})), {"--face", "1"}),
              small);
    EXPECT_EQ(drawn(write("second.ttc", FontBuilder::collection({empty, low}))), small);
    EXPECT_EQ(drawn(write("suitcase.dfont", FontBuilder::dfont({wide}))), big);
    // No type by its name, as a download has.
    EXPECT_EQ(drawn(write("download", wide)), big);
    EXPECT_EQ(written(), QStringList("thumbnail.png"));
}

TEST_F(ThumbnailCommand, WritesNothingForWhatItCannotShow)
{
    write("text.ttf", "no font at all, but long enough to be looked at");
    write("empty.ttf", "");
    write("blank.ttf", FontBuilder().codePoints(U" \u00a0").build());
    write("unmapped.ttf", FontBuilder().withoutCmap().build());
    const FilePath secret = write("secret.ttf", FontBuilder().build());
    ::chmod(secret.c_str(), 0);
    ::mkfifo(folder.child("pipe.ttf").c_str(), 0666);
    ::mkdir(folder.child("folder.ttf").c_str(), 0777);
    const FilePath huge = write("huge.ttf", FontBuilder().build());
    ASSERT_EQ(::truncate(huge.c_str(), off_t(1) << 40), 0);
    ::symlink("loop.ttf", folder.child("loop.ttf").c_str());
    ::symlink("/dev/zero", folder.child("endless.ttf").c_str());
    const struct
    {
        const char *name;
        const char *words;
    } rows[]{
        {"text.ttf", "text.ttf: "},
        {"empty.ttf", "empty.ttf: "},
        {"blank.ttf", "has no letters or symbols to show"},
        {"unmapped.ttf", "has no letters or symbols to show"},
        {"secret.ttf", "may not be read"},
        {"pipe.ttf", "is not a regular file"},
        {"folder.ttf", "is not a regular file"},
        {"huge.ttf", "is larger than any font"},
        {"loop.ttf", "leads in a circle"},
        {"endless.ttf", "is not a regular file"},
        {"missing.ttf", "no such file"},
    };
    const test::AsOrdinaryUser user;
    for (const auto &row : rows) {
        expectFailure(thumbnail(path(folder.child(row.name))), 1, row.words);
        EXPECT_EQ(written(), QStringList()) << row.name;
    }
    expectFailure(thumbnail(path(realFont("truetype/dejavu/DejaVuSans.ttf")), {"--face", "1"}), 1,
                  "has no face number 1");
}

TEST_F(ThumbnailCommand, SurvivesDamagedFonts)
{
    const char *const fonts[]{
        "truetype/dejavu/DejaVuSans.ttf", "truetype/inter-vf/Inter-roman.var.ttf",
        "opentype/ebgaramond/EBGaramond12-Regular.otf",
        "opentype/fonts-hosny-amiri/Amiri-Regular.ttf", "truetype/noto/NotoColorEmoji.ttf"};
    int shown = 0;
    int refused = 0;
    const auto tryFont = [&](const QByteArray &bytes) {
        const Outcome outcome = thumbnail(path(write("damaged.ttf", bytes)));
        const bool isShown = outcome.exitCode == 0;
        ++(isShown ? shown : refused);
        EXPECT_LE(outcome.exitCode, 1);
        EXPECT_EQ(outcome.error.count('\n'), isShown ? 0 : 1) << outcome.error.constData();
        EXPECT_EQ(written(), isShown ? QStringList("thumbnail.png") : QStringList());
        EXPECT_EQ(QImage(path(picture)).isNull(), !isShown);
    };
    std::mt19937 random(20260715);
    for (const char *name : fonts) {
        SCOPED_TRACE(name);
        const QByteArray sound = test::readFile(realFont(name));
        for (const qsizetype length : {4, 12, 100, 300, 5000, int(sound.size() / 2)})
            tryFont(sound.first(length));
        for (int round = 0; round < 12; ++round) {
            QByteArray damaged = sound;
            for (int flip = 0; flip < 60; ++flip) {
                const quint32 span = flip % 6 == 0 ? 1024 : quint32(sound.size());
                damaged[qsizetype(random() % span)] = char(random());
            }
            tryFont(damaged);
        }
    }
    EXPECT_GT(shown, 10);
    EXPECT_GT(refused, 20);
}

TEST_F(ThumbnailCommand, SaysWhyThePictureCannotBeWritten)
{
    const QString font = path(realFont("truetype/dejavu/DejaVuSans.ttf"));
    const FilePath precious = write("precious.png", FontBuilder().build());
    const auto into = [&](const QString &target) { return lorvactl({"thumbnail", font, target}); };
    expectFailure(into(path(folder.child("gone").child("a.png"))), 1, "a.png");
    expectFailure(into(path(folder)), 1, "cannot write");
    expectFailure(into(QStringLiteral("/dev/null")), 1, "not a regular file");
    expectFailure(into(path(precious)), 1, "refusing to write over a font file");
    expectFailure(into(path(folder.child("new.otf"))), 1, "refusing to write over a font file");
    {
        const test::FullDisk disk(1000);
        expectFailure(thumbnail(font), 1, "thumbnail.png");
    }
    ::chmod(picture.parent().c_str(), 0555);
    {
        const test::AsOrdinaryUser user;
        expectFailure(thumbnail(font), 1, "thumbnail.png");
    }
    ::chmod(picture.parent().c_str(), 0777);
    EXPECT_EQ(written(), QStringList());
    EXPECT_EQ(test::readFile(precious), FontBuilder().build());
}

TEST_F(ThumbnailCommand, ExplainsItsUse)
{
    const QStringList words{"font.ttf", "a.png"};
    test::expect({
        {{"thumbnail"}, "takes a font file and a picture", 2},
        {{"thumbnail", "a", "b", "c"}, "takes a font file and a picture", 2},
        {QStringList{"thumbnail", "--size", "0"} + words, "from 16 to 2048", 2},
        {QStringList{"thumbnail", "--size", "100000"} + words, "from 16 to 2048", 2},
        {QStringList{"thumbnail", "--face", "-1"} + words, "from 0", 2},
        {{"thumbnail", "file://elsewhere/a.ttf", "a.png"}, "", 1},
    });
}

} // namespace lorva
