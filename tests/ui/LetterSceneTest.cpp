// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/LetterScene.h"

#include "PreviewFonts.h"
#include "ui/onboarding/ConvexParts.h"
#include "ui/onboarding/FallingLetter.h"
#include "ui/onboarding/PolygonRings.h"

#include <QImage>
#include <QPainter>

#include <cmath>
#include <deque>

namespace lorva {
namespace {

using namespace std::chrono_literals;

constexpr QSize kCanvas(300, 300);

/// What the physics takes without stopping the program.
void expectSound(const std::vector<QPolygonF> &parts)
{
    EXPECT_LE(parts.size(), size_t(kMaximumParts));
    for (const QPolygonF &part : parts) {
        ASSERT_GE(part.size(), 3);
        ASSERT_LE(part.size(), kMaximumPartCorners);
        EXPECT_GE(signedArea(part), 1);
        for (qsizetype i = 0; i < part.size(); ++i)
            EXPECT_GT(turn(part[i], part[(i + 1) % part.size()], part[(i + 2) % part.size()]), 0);
    }
}

QImage painted(const std::vector<QPainterPath> &paths)
{
    QImage image(kCanvas, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.translate(QRect({}, kCanvas).center());
    for (const QPainterPath &path : paths)
        painter.fillPath(path, Qt::black);
    return image;
}

QImage painted(const std::vector<QPolygonF> &parts)
{
    std::vector<QPainterPath> paths(parts.size());
    for (size_t i = 0; i < parts.size(); ++i)
        paths[i].addPolygon(parts[i]);
    return painted(paths);
}

bool isInk(const QImage &image, int x, int y)
{
    return image.constScanLine(y)[x] < 128;
}

/// With everything that cannot be reached from the border.
QImage withCountersFilled(const QImage &ink)
{
    QImage filled(ink.size(), QImage::Format_Grayscale8);
    filled.fill(Qt::black);
    std::deque<QPoint> open{{0, 0}};
    while (!open.empty()) {
        const QPoint at = open.front();
        open.pop_front();
        if (!ink.rect().contains(at) || isInk(ink, at.x(), at.y())
            || !isInk(filled, at.x(), at.y()))
            continue;
        filled.scanLine(at.y())[at.x()] = 255;
        for (const QPoint step : {QPoint(1, 0), QPoint(-1, 0), QPoint(0, 1), QPoint(0, -1)})
            open.push_back(at + step);
    }
    return filled;
}

struct Difference
{
    double missing = 0;
    double tooMuch = 0;
};

/// As shares of what is wanted.
Difference difference(const QImage &wanted, const QImage &is)
{
    double ink = 0;
    Difference result;
    for (int y = 0; y < wanted.height(); ++y)
        for (int x = 0; x < wanted.width(); ++x) {
            ink += isInk(wanted, x, y);
            result.missing += isInk(wanted, x, y) && !isInk(is, x, y);
            result.tooMuch += !isInk(wanted, x, y) && isInk(is, x, y);
        }
    return {result.missing / ink, result.tooMuch / ink};
}

struct RealLetters
{
    const char *name;
    const char *file;
    std::u32string characters;
};

class ConvexPartsOfLetters : public testing::TestWithParam<RealLetters>
{
};

TEST_P(ConvexPartsOfLetters, CoverTheInkAndItsCountersAndLittleElse)
{
    const Font font = test::fontFromFile(test::realFont(GetParam().file), 160);
    for (const char32_t character : GetParam().characters) {
        SCOPED_TRACE(unsigned(character));
        const auto letter = makeFallingLetter(font, std::u32string(1, character));
        ASSERT_TRUE(letter);
        expectSound(letter->parts);
        EXPECT_LT(std::abs(letter->outline.boundingRect().center().x()), 1);
        const QImage wanted = withCountersFilled(painted({letter->outline}));
        const Difference found = difference(wanted, painted(letter->parts));
        EXPECT_LT(found.missing, 0.06);
        EXPECT_LT(found.tooMuch, 0.1);
    }
}

const RealLetters kRealLetters[]{
    {"Quadratic", "truetype/dejavu/DejaVuSans.ttf", U"agRQ&?@3SkЖΩ"},
    {"Cubic", "opentype/ebgaramond/EBGaramond12-Regular.otf", U"agRQ&?@3Skß"},
    {"Variable", "truetype/inter-vf/Inter.var.ttf", U"agRQ&@e"},
    {"Arabic", "opentype/fonts-hosny-amiri/Amiri-Regular.ttf", U"عag&@"},
};
INSTANTIATE_TEST_SUITE_P(Fonts, ConvexPartsOfLetters, testing::ValuesIn(kRealLetters),
                         [](const auto &row) { return row.param.name; });

TEST(FallingLetter, PassesOverWhatHasNoOutline)
{
    const Font boxes = test::fontWith(U"A ");
    EXPECT_FALSE(makeFallingLetter(boxes, U" ")) << "no ink";
    EXPECT_FALSE(makeFallingLetter(boxes, U"Z")) << "no glyph: never the missing one";
    EXPECT_TRUE(makeFallingLetter(boxes, U"Z A"));
    EXPECT_FALSE(makeFallingLetter(Font(), U"A"));
    const Font emoji = test::fontFromFile(test::realFont("truetype/noto/NotoColorEmoji.ttf"));
    EXPECT_FALSE(makeFallingLetter(emoji, U"\U0001F600")) << "a picture";
}

TEST(ConvexParts, MakesALetterOfManyPiecesSolid)
{
    QPainterPath path;
    for (int i = 0; i < 5; ++i)
        path.addRect(i * 30, 0, 10, 100);
    const std::vector<QPolygonF> parts = convexParts(path);
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_NEAR(signedArea(parts[0]), 130 * 100, 1);
}

QPainterPath ringOf(int points, const std::function<QPointF(double turn)> &at)
{
    QPolygonF ring;
    for (int i = 0; i < points; ++i)
        ring.append(at(2 * M_PI * i / points));
    QPainterPath path;
    path.addPolygon(ring);
    path.closeSubpath();
    return path;
}

QPainterPath polygon(std::initializer_list<QPointF> points)
{
    QPainterPath path;
    path.addPolygon(QPolygonF(points));
    path.closeSubpath();
    return path;
}

struct HostileOutline
{
    const char *name;
    QPainterPath path;
    bool hasParts;
};

std::vector<HostileOutline> hostileOutlines()
{
    QPainterPath manyRings;
    for (int i = 0; i < 500; ++i)
        manyRings.addEllipse(QPoint(i % 25 * 8, i / 25 * 8), 3, 3);
    QPainterPath nested;
    for (int i = 0; i < 60; ++i)
        nested.addRect(i, i, 200 - 2 * i, 200 - 2 * i);
    QPainterPath curves;
    curves.moveTo(0, 0);
    curves.cubicTo(3000, 3000, -3000, 3000, 0, 0);
    curves.cubicTo(-3000, -3000, 3000, -3000, 0, 0);
    return {
        {"Empty", {}, false},
        {"OnePoint", polygon({{5, 5}, {5, 5}, {5, 5}}), false},
        {"Line", polygon({{0, 0}, {100, 100}, {50, 50}}), false},
        {"ThereAndBack", polygon({{0, 0}, {100, 0}, {100, 0.001}, {0, 0.001}}), false},
        {"Speck", polygon({{0, 0}, {0.5, 0}, {0.5, 0.5}, {0, 0.5}}), false},
        {"Needle", polygon({{0, 0}, {400, 0.4}, {400, 0}}), false},
        {"BowTie", polygon({{0, 0}, {100, 100}, {100, 0}, {0, 80}}), true},
        {"Pentagram", ringOf(5, [](double t) { return 90 * QPointF(cos(2 * t), sin(2 * t)); }),
         true},
        {"RunTwice", ringOf(400, [](double t) { return 90 * QPointF(cos(2 * t), sin(2 * t)); }),
         true},
        {"StraightCorners", polygon({{0, 0}, {50, 0}, {100, 0}, {100, 100}, {50, 100}, {0, 100}}),
         true},
        {"Spike", polygon({{0, 0}, {100, 0}, {100, 50}, {300, 50}, {100, 50}, {0, 50}}), true},
        {"Comb",
         ringOf(2500, [](double t) { return (60 + 40 * sin(900 * t)) * QPointF(cos(t), sin(t)); }),
         true},
        {"Thousands", ringOf(60000, [](double t) { return 100 * QPointF(cos(t), sin(t)); }), true},
        {"Scribble", ringOf(900, [](double t) { return 100 * QPointF(sin(17 * t), cos(23 * t)); }),
         true},
        {"ManyRings", manyRings, true},
        {"Nested", nested, true},
        {"Loops", curves, true},
        {"Huge", polygon({{0, 0}, {1e9, 0}, {1e9, 1e9}}), false},
        {"FarAway", polygon({{1e6, 1e6}, {1e6 + 100, 1e6}, {1e6, 1e6 + 100}}), false},
        {"BeyondNumbers", polygon({{0, 0}, {1e308, 0}, {-1e308, 1e308}}), false},
    };
}

TEST(ConvexParts, GivesOnlyWhatThePhysicsTakesOfHostileOutlines)
{
    LetterScene scene({400, 400});
    for (const HostileOutline &row : hostileOutlines()) {
        SCOPED_TRACE(row.name);
        const std::vector<QPolygonF> parts = convexParts(row.path);
        EXPECT_EQ(!parts.empty(), row.hasParts);
        expectSound(parts);
        if (!parts.empty())
            scene.add(parts, {{200, 100}});
    }
    scene.advance(16ms);
}

/// Deterministic, and worse than any font: points on a coarse grid coincide and cross.
TEST(ConvexParts, TakesRandomRings)
{
    quint32 state = 1;
    const auto next = [&state](int below) {
        state = state * 1664525 + 1013904223;
        return int((state >> 8) % quint32(below));
    };
    for (int i = 0; i < 400; ++i) {
        QPainterPath path;
        for (int ring = 0; ring <= next(3); ++ring) {
            QPolygonF points;
            for (int p = 0; p < 3 + next(40); ++p)
                points.append(QPointF(next(12), next(12)) * 10);
            path.addPolygon(points);
            path.closeSubpath();
        }
        SCOPED_TRACE(i);
        expectSound(convexParts(path));
    }
}

class LetterSceneOfFont : public testing::Test
{
protected:
    static constexpr QSize kSize{500, 400};

    void drop(int count)
    {
        const Font font = test::fontFromFile(test::realFont("truetype/dejavu/DejaVuSans.ttf"), 90);
        for (int i = 0; i < count; ++i) {
            auto letter = makeFallingLetter(font, lettersToTry(i, {}));
            ASSERT_TRUE(letter);
            m_scene.add(letter->parts, {{60.0 + i * 83 % 380, -90.0 - 45 * i}, i * 0.7});
            m_letters.push_back(std::move(*letter));
        }
    }
    void expectInside(QSizeF size) const
    {
        EXPECT_TRUE(m_scene.isAtRest());
        const QRectF room(-1.5, -10000, size.width() + 3, 10000 + size.height() + 1.5);
        for (int i = 0; i < m_scene.count(); ++i)
            EXPECT_TRUE(room.contains(m_scene.bounds(i))) << i;
    }
    /// The share of all ink that lies on other ink.
    double overlap() const
    {
        QImage together(kSize, QImage::Format_Grayscale8);
        together.fill(Qt::white);
        double ink = 0;
        double twice = 0;
        for (int i = 0; i < m_scene.count(); ++i) {
            QImage letter(kSize, QImage::Format_Grayscale8);
            letter.fill(Qt::white);
            QPainter painter(&letter);
            painter.setTransform(m_scene.transform(i));
            painter.fillPath(m_letters[size_t(i)].outline, Qt::black);
            painter.end();
            for (int y = 0; y < kSize.height(); ++y)
                for (int x = 0; x < kSize.width(); ++x)
                    if (isInk(letter, x, y)) {
                        ink += 1;
                        twice += isInk(together, x, y);
                        together.scanLine(y)[x] = 0;
                    }
        }
        return twice / ink;
    }

    LetterScene m_scene{kSize};
    std::vector<FallingLetter> m_letters;
};

TEST_F(LetterSceneOfFont, PilesUpInsideAndComesToRest)
{
    EXPECT_TRUE(m_scene.isAtRest()) << "without letters";
    drop(12);
    EXPECT_FALSE(m_scene.isAtRest());
    m_scene.settle();
    expectInside(kSize);
    EXPECT_LT(overlap(), 0.01);
    const QTransform before = m_scene.transform(3);
    m_scene.advance(1s);
    EXPECT_EQ(m_scene.transform(3), before);
}

TEST_F(LetterSceneOfFont, FollowsTheWindow)
{
    for (const QSize size : {QSize(900, 700), QSize(420, 500), QSize(1000, 300)}) {
        drop(4);
        for (int frame = 0; frame < 40; ++frame)
            m_scene.advance(16ms);
        m_scene.resize(size);
        m_scene.settle();
        expectInside(size);
        m_scene.resize(kSize);
    }
}

TEST_F(LetterSceneOfFont, GetsBackWhatIsThrownOut)
{
    const std::vector<QPolygonF> box{{{-30, -30}, {30, -30}, {30, 30}, {-30, 30}}};
    m_scene.add(box, {{250, 200}, 0, {60000, 0}, 40});
    m_scene.add(box, {{250, -100}, 0, {0, 60000}});
    m_scene.add(box, {{-5000, 200}});
    m_scene.settle();
    expectInside(kSize);
}

TEST_F(LetterSceneOfFont, DoesNotJumpAfterAPause)
{
    const std::vector<QPolygonF> box{{{-30, -30}, {30, -30}, {30, 30}, {-30, 30}}};
    m_scene.add(box, {{250, 40}});
    m_scene.advance(1h);
    EXPECT_LT(m_scene.bounds(0).top(), 20);
}

} // namespace
} // namespace lorva
