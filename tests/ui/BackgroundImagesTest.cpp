// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/BackgroundImages.h"

#include "support/AdverseSystem.h"
#include "support/Waiting.h"
#include "ui/display/BackgroundImageStore.h"
#include "ui/display/LorvaWindowBackgroundView.h"
#include "ui/style/Palette.h"

#include <QBuffer>
#include <QSet>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::waitUntil;

QByteArray pngOf(const QColor &color, QSize size = {40, 20})
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(color);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "png");
    return bytes;
}

/// The largest step between neighbours of a column, in 255ths of grey.
int largestStep(const QImage &image)
{
    int largest = 0;
    for (int y = 1; y < image.height(); ++y)
        largest = std::max(largest,
                           std::abs(qGray(image.pixel(image.width() / 2, y))
                                    - qGray(image.pixel(image.width() / 2, y - 1))));
    return largest;
}

TEST(BackgroundImages, AreDistinctAndTheSameEachTime)
{
    EXPECT_GE(builtInBackgroundImages().size(), 8U);
    QSet<QString> names;
    for (const BackgroundImage &image : builtInBackgroundImages()) {
        SCOPED_TRACE(image.id);
        const QString id = QLatin1String(image.id);
        names.insert(backgroundImageName(id));
        for (const QSize size : {QSize(1, 1), QSize(7, 300), QSize(301, 5), QSize(430, 240)}) {
            const QImage drawn = drawBackgroundImage(id, size);
            EXPECT_EQ(drawn.size(), size);
            EXPECT_EQ(drawn, drawBackgroundImage(id, size));
        }
        const QColor tiny = averageBackgroundColor(id);
        const QColor large = averageColor(drawBackgroundImage(id, {860, 480}));
        EXPECT_NEAR(qGray(tiny.rgb()), qGray(large.rgb()), 8);
    }
    EXPECT_EQ(names.size(), qsizetype(builtInBackgroundImages().size()));
    EXPECT_TRUE(drawBackgroundImage(QStringLiteral("../dusk"), {10, 10}).isNull());
    EXPECT_TRUE(drawBackgroundImage(QStringLiteral("dusk"), {0, 10}).isNull());
    EXPECT_FALSE(averageBackgroundColor({}).isValid());
}

/// Specimens are read on them: black or white stands out from nearly every pixel.
TEST(BackgroundImages, LetTextBeReadAndHaveNoBands)
{
    for (const BackgroundImage &image : builtInBackgroundImages()) {
        SCOPED_TRACE(image.id);
        const QString id = QLatin1String(image.id);
        const QColor text = contrastingNeutral(averageBackgroundColor(id));
        const QImage drawn = drawBackgroundImage(id, {430, 240});
        int unread = 0;
        for (int y = 0; y < drawn.height(); y += 3) {
            for (int x = 0; x < drawn.width(); x += 3)
                unread += contrastRatio(text, drawn.pixelColor(x, y)) < 3.0;
        }
        EXPECT_LT(unread, 144 * 80 / 10);
    }
    EXPECT_LE(largestStep(drawBackgroundImage(QStringLiteral("dawn"), {200, 900})), 2);
}

TEST(BackgroundImages, CoverFromTheMiddle)
{
    QImage striped(300, 100, QImage::Format_RGB32);
    striped.fill(Qt::red);
    for (int y = 0; y < 100; ++y) {
        for (int x = 100; x < 200; ++x)
            striped.setPixel(x, y, qRgb(0, 0, 255));
    }
    const QImage square = coveringImage(striped, {50, 50});
    EXPECT_EQ(square.size(), QSize(50, 50));
    EXPECT_EQ(square.pixelColor(3, 25), QColor(Qt::blue));
    EXPECT_EQ(square.pixelColor(47, 25), QColor(Qt::blue));
    EXPECT_EQ(coveringImage(striped, {30, 4000}).size(), QSize(30, 4000));
    EXPECT_TRUE(coveringImage({}, {5, 5}).isNull());
}

TEST(BackgroundImageStore, KeepsEachImageOnce)
{
    const FilePath folder = test::makeCaseFolder().child("not").child("yet");
    const BackgroundImageStore store(folder);
    EXPECT_TRUE(store.fileNames().isEmpty());
    const Result<QString> red = store.add(pngOf(Qt::red));
    ASSERT_TRUE(red);
    ASSERT_TRUE(store.add(pngOf(Qt::blue)));
    EXPECT_EQ(store.add(pngOf(Qt::red)).value(), *red);
    EXPECT_EQ(store.fileNames().size(), 2);
    EXPECT_TRUE(red->endsWith(QLatin1String(".png")));
    EXPECT_EQ(store.read(*red, 10)->size(), QSize(10, 5));
    EXPECT_FALSE(store.add("no image"));
    EXPECT_FALSE(store.add(pngOf(Qt::green).left(50)));
    ASSERT_TRUE(store.remove(*red));
    EXPECT_EQ(store.remove(*red).error().kind, ErrorKind::notFound);
    EXPECT_EQ(store.read(*red, 10).error().kind, ErrorKind::notFound);
    EXPECT_EQ(store.fileNames().size(), 1);
}

TEST(BackgroundImageStore, NeverLeavesItsFolder)
{
    const FilePath folder = test::makeCaseFolder();
    const QByteArray name = QByteArray(32, 'a') + ".png";
    const FilePath outside = test::writeFile(folder, name, pngOf(Qt::red));
    test::writeFile(folder.child("in"), "notes.txt", "mine");
    const BackgroundImageStore store(folder.child("in"));
    const QString file = QString::fromLatin1(name);
    const QString evil[]{{},
                         QStringLiteral("."),
                         QStringLiteral(".."),
                         QString(QStringLiteral("../") + file),
                         QString(QStringLiteral("/") + file),
                         QString::fromUtf8(outside.bytes()),
                         QString(file + QChar(0)),
                         QString(file.left(32) + QStringLiteral("./.p")),
                         QStringLiteral("notes.txt"),
                         QString(QChar(0) + file.mid(1))};
    for (const QString &one : evil) {
        EXPECT_FALSE(store.read(one, 10)) << one.toStdString();
        EXPECT_FALSE(store.remove(one)) << one.toStdString();
    }
    EXPECT_FALSE(test::readFile(outside).isEmpty());
    EXPECT_EQ(test::readFile(folder.child("in").child("notes.txt")), "mine");
    EXPECT_TRUE(store.fileNames().isEmpty());
}

TEST(BackgroundImageStore, SaysWhyItCannotWrite)
{
    const FilePath folder = test::makeCaseFolder();
    const BackgroundImageStore blocked(test::writeFile(folder, "file", "in the way").child("in"));
    EXPECT_FALSE(blocked.add(pngOf(Qt::red)));
    const BackgroundImageStore full(folder.child("full"));
    {
        const test::FullDisk disk(8);
        EXPECT_FALSE(full.add(pngOf(Qt::red)));
    }
    EXPECT_TRUE(full.fileNames().isEmpty());
}

struct BackgroundView : ::testing::Test
{
    std::shared_ptr<BackgroundImageStore> store =
        std::make_shared<BackgroundImageStore>(test::makeCaseFolder());
    std::unique_ptr<LorvaWindowBackgroundView> view =
        std::make_unique<LorvaWindowBackgroundView>(store, nullptr);

    BackgroundView()
    {
        view->resize(120, 80);
        view->show();
    }
    QColor middle() { return view->grab().toImage().pixelColor(60, 40); }
    bool settles()
    {
        return waitUntil([this] { return !view->isWaiting(); });
    }
    LorvaWindowBackgroundView::Ground user(const QString &name) const
    {
        return {ColorMode::image, Qt::white, {}, name};
    }
};

TEST_F(BackgroundView, ShowsColourThenImageThenColour)
{
    view->apply({ColorMode::custom, QColor(1, 2, 3), {}, {}});
    EXPECT_EQ(middle(), QColor(1, 2, 3));
    view->apply({ColorMode::image, Qt::white, QStringLiteral("dusk"), {}});
    EXPECT_TRUE(view->isWaiting());
    // Until it is there, what it comes to from afar.
    EXPECT_EQ(middle(), averageBackgroundColor(QStringLiteral("dusk")));
    ASSERT_TRUE(settles());
    EXPECT_EQ(view->grab().toImage().convertToFormat(QImage::Format_RGB32),
              drawBackgroundImage(QStringLiteral("dusk"), {120, 80}));
    view->apply({ColorMode::black, Qt::black, QStringLiteral("dusk"), {}});
    EXPECT_EQ(middle(), QColor(Qt::black));
}

TEST_F(BackgroundView, ShowsTheLastWishOnly)
{
    const QString red = store->add(pngOf(Qt::red)).value();
    const QString blue = store->add(pngOf(Qt::blue)).value();
    view->apply(user(red));
    view->apply(user(blue));
    ASSERT_TRUE(settles());
    EXPECT_EQ(middle(), QColor(Qt::blue));
    view->resize(200, 90);
    EXPECT_EQ(middle(), QColor(Qt::blue));
    view->resize(120, 300);
    ASSERT_TRUE(settles());
    EXPECT_EQ(middle(), QColor(Qt::blue));
}

TEST_F(BackgroundView, StaysNeutralWhereThereIsNoImage)
{
    const QColor neutral = neutralColors(isDarkDesktop()).sidebar;
    for (const QString &name : {QStringLiteral("../x"), QString(QString(32, u'a') + u".png")}) {
        view->apply(user(name));
        ASSERT_TRUE(settles());
        EXPECT_EQ(middle(), neutral);
    }
    // Gone while it is drawn: nothing comes back.
    view->resize(4000, 3000);
    view->apply({ColorMode::image, Qt::white, QStringLiteral("ink"), {}});
    view.reset();
}

} // namespace
} // namespace lorva
