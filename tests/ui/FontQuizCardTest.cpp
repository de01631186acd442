// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the cards of the quiz show, and where everything stands.

#include "ui/quiz/FontQuizCard.h"
#include "PreviewFonts.h"
#include "ui/quiz/FontQuizLayout.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::TestHome;

TEST(FontQuizLayout, EverythingHasItsPlaceInEveryWindow)
{
    for (const QSize size : {QSize(640, 480), QSize(960, 800), QSize(1239, 800), QSize(1240, 860),
                             QSize(1720, 920), QSize(3840, 2160)}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            const FontQuizLayout layout = fontQuizLayout(size, direction);
            const QRect whole(QPoint(0, 0), size);
            QRegion taken;
            for (const QRect &rect : layout.tiles) {
                EXPECT_TRUE(whole.contains(rect)) << size.width();
                EXPECT_FALSE(taken.intersects(rect)) << size.width();
                taken += rect;
            }
            EXPECT_LE(layout.card.width(), 760);
            for (int depth = 0; depth < 3; ++depth) {
                const QRect place = fontQuizRestPose(layout, depth).bounds(0).toAlignedRect();
                EXPECT_TRUE(whole.contains(place)) << size.width();
                EXPECT_FALSE(taken.intersects(place)) << size.width();
                EXPECT_FALSE(layout.progress.intersects(place)) << size.width();
            }
            EXPECT_EQ(layout.tiles[0].x() < layout.tiles[5].x(), direction == Qt::LeftToRight);
            EXPECT_EQ(layout.tiles[0].width() == 176, size.width() >= 1240) << size.width();
        }
    }
}

/// What a card of a face of these characters shows.
FontQuizCardParts partsFor(const QString &family, const std::u32string &characters,
                           WritingScript script = WritingScript::latin, int advance = 600)
{
    FontBuilder builder(family);
    builder.codePoints(characters);
    for (const char32_t each : characters)
        builder.advance(each, advance);
    const FilePath file = test::writeFile(TestHome::instance().root().child("cards"),
                                          family.toUtf8() + ".ttf", builder.build());
    const auto face = FontFile::open(file).value()->face({0, -1}).value();
    return layOutFontQuizCard({family, std::nullopt, script, fontQuizCardThemes()[0]},
                              Font(face, 40));
}

TEST(FontQuizCard, ShowsWhatItsFaceCanDraw)
{
    std::u32string latin;
    for (char32_t c = U' '; c < 0x7f; ++c)
        latin += c;
    const QString pangram =
        QStringLiteral("5 quick brown foxes jumped over 12 lazy dogs at the park");
    const struct
    {
        const char *family;
        std::u32string characters;
        WritingScript script;
        QString preview;
        QString pangram;
    } rows[]{
        {"Vollkorn", latin, WritingScript::latin, QStringLiteral("Vollkorn"), pangram},
        {"Grün", latin, WritingScript::latin, QStringLiteral("Aa 123"), pangram},
        {"Han", U"永汉 123", WritingScript::simplifiedChinese, QStringLiteral("永汉 123"), {}},
        {"Caps", U"CAPS caps", WritingScript::latin, QStringLiteral("Caps"),
         QStringLiteral("ACPSacps")},
        {"Runes", U"ᚠᚡᚢᚣᚤᚥᚦᚧ", WritingScript::latin, QStringLiteral("ᚠᚡᚢᚣᚤᚥ"),
         QStringLiteral("ᚠᚡᚢᚣᚤᚥᚦᚧ")},
        {"Icons",
         U"\uF000\uF001\uF002",
         WritingScript::latin,
         QStringLiteral("\uF000\uF001\uF002"),
         {}},
    };
    for (const auto &row : rows) {
        const auto parts = partsFor(QString::fromUtf8(row.family), row.characters, row.script);
        EXPECT_EQ(parts.previewLabel.text, row.preview) << row.family;
        EXPECT_EQ(parts.pangramLabel.text, row.pangram) << row.family;
    }
}

TEST(FontQuizCard, NothingIsWiderThanTheCardAndAllIsCentredOnItsInk)
{
    std::u32string latin;
    for (char32_t c = U' '; c < 0x7f; ++c)
        latin += c;
    for (const int advance : {120, 600, 4000}) {
        for (const int length : {1, 12, 120}) {
            const auto parts =
                partsFor(QString(length, u'W'), latin, WritingScript::latin, advance);
            const QRectF card(QPointF(0, 0), kFontQuizCardSize);
            for (const auto *label : {&parts.previewLabel, &parts.pangramLabel}) {
                EXPECT_FALSE(label->ink.isEmpty());
                EXPECT_TRUE(card.contains(label->ink)) << advance << ' ' << length;
                EXPECT_NEAR(label->ink.center().x(), card.center().x(), 0.5);
            }
            EXPECT_FALSE(parts.previewLabel.ink.intersects(parts.pangramLabel.ink)) << advance;
        }
    }
}

} // namespace
} // namespace lorva
