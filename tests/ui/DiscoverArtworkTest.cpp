// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <QXmlStreamReader>

#include <gmock/gmock.h>

#include <set>
#include <vector>

// Resources of a static library are only linked in when someone asks for them; the macro must stand
// outside of every namespace.
static void initDiscoverResources()
{
    Q_INIT_RESOURCE(discover);
}

namespace lorva {
namespace {

constexpr QRect kFrame(8, 8, 320, 180);

QString artwork(const std::string &imageName)
{
    initDiscoverResources();
    return QStringLiteral(":/discover/%1.svg").arg(QString::fromStdString(imageName));
}

/// The picture in its frame, with clear pixels around.
QImage painted(const std::string &imageName)
{
    QImage image(kFrame.marginsAdded(QMargins(8, 8, 8, 8)).size(), QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(artwork(imageName)).render(&painter, kFrame);
    return image;
}

struct Ink
{
    std::set<QRgb> inside;
    bool isFrameOpaque = true;
    bool isOutsideClear = true;
};

Ink inkOf(const QImage &image)
{
    Ink ink;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            if (kFrame.contains(x, y)) {
                ink.inside.insert(pixel);
                ink.isFrameOpaque = ink.isFrameOpaque && qAlpha(pixel) == 255;
            } else {
                ink.isOutsideClear = ink.isOutsideClear && qAlpha(pixel) == 0;
            }
        }
    }
    return ink;
}

std::set<std::string> elements(const std::string &imageName)
{
    QFile file(artwork(imageName));
    std::set<std::string> names;
    if (!file.open(QIODevice::ReadOnly))
        return names;
    QXmlStreamReader reader(&file);
    while (!reader.atEnd()) {
        if (reader.readNext() == QXmlStreamReader::StartElement)
            names.insert(reader.name().toString().toStdString());
    }
    return reader.hasError() ? std::set<std::string>{} : names;
}

const std::vector<std::string> kImageNames{
    "DiscoverGrilliType", "DiscoverKlim",      "DiscoverPangramPangram",
    "DiscoverDinamo",     "DiscoverPowerType", "DiscoverAtipo",
    "DiscoverDisplaay",   "DiscoverOhNo",      "DiscoverLettersFromSweden",
    "DiscoverOptimo",     "DiscoverYep",       "DiscoverWeltkern",
    "DiscoverFort",       "DiscoverHoodzpah",  "DiscoverPlainForm",
    "DiscoverNuform",     "DiscoverDSType",    "DiscoverLeague",
};

class DiscoverArtworkTest : public testing::TestWithParam<std::string>
{
};

TEST_P(DiscoverArtworkTest, FillsItsFrameWithAPictureOfPlainShapes)
{
    const QSvgRenderer renderer(artwork(GetParam()));
    ASSERT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.viewBoxF(), QRectF(0, 0, 640, 360));

    const Ink ink = inkOf(painted(GetParam()));
    EXPECT_TRUE(ink.isFrameOpaque);
    EXPECT_TRUE(ink.isOutsideClear);
    EXPECT_GT(ink.inside.size(), 1U);

    // What needs a font, a decoder or a style sheet would look different elsewhere, or not at all.
    EXPECT_THAT(elements(GetParam()),
                testing::AllOf(testing::Contains("svg"),
                               testing::Each(testing::AnyOf("svg", "g", "use", "path", "rect",
                                                            "circle", "ellipse"))));
}

INSTANTIATE_TEST_SUITE_P(Catalogue, DiscoverArtworkTest, testing::ValuesIn(kImageNames),
                         [](const auto &row) { return row.param; });

TEST(DiscoverArtworkSetTest, NoTwoFoundriesShareAPicture)
{
    std::vector<QImage> seen;
    for (const std::string &name : kImageNames) {
        const QImage image = painted(name);
        EXPECT_THAT(seen, testing::Not(testing::Contains(image))) << name;
        seen.push_back(image);
    }
}

} // namespace
} // namespace lorva
