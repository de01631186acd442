// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/detail/EditableText.h"

#include "PreviewFonts.h"
#include "support/QtPrinters.h"
#include "ui/detail/CaretMotion.h"
#include "ui/detail/PreviewPlacement.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

using Kind = EditableText::Kind;

TEST(EditableText, KeepsWhatCanBeSeenOrSetAndDropsWhatCannot)
{
    const struct
    {
        QString given;
        QString kept;
    } rows[]{
        {"one\r\ntwo\rthree\nfour", "one\ntwo\nthree\nfour"},
        {QString("a") + QChar(0x2028) + "b" + QChar(0x2029) + "c" + QChar(0x85) + "d" + QChar(0x0C),
         "a\nb\nc\nd\n"},
        {QString("tab\there\x01\x1B") + QChar(0) + QChar(0x7F) + QChar(0x9F) + "!", "tab here!"},
        {QString("x") + QChar(0xD800) + "y" + QChar(0xDC00) + QChar(0xD83D), "xy"},
        {QString::fromUtf8("😀 é"), QString::fromUtf8("😀 é")},
        {QString(QChar(0x2067)) + "a" + QChar(0x200D),
         QString(QChar(0x2067)) + "a" + QChar(0x200D)},
    };
    for (const auto &row : rows)
        EXPECT_EQ(editableText(row.given), row.kept) << qPrintable(row.given);
}

TEST(EditableText, TakesAsMuchAsThereIsRoomForAndNeverHalfACharacter)
{
    EditableText text(6);
    text.reset("abcd");
    EXPECT_TRUE(text.insert(QString::fromUtf8("x😀y"), Kind::single));
    EXPECT_EQ(text.text(), QStringLiteral("abcdx"));
    EXPECT_FALSE(text.insert(QString::fromUtf8("😀"), Kind::single));
    text.select(1, 4);
    EXPECT_TRUE(text.insert("123456", Kind::single)) << "what is selected makes room";
    EXPECT_EQ(text.text(), QStringLiteral("a1234x"));
    text.select(0, 3);
    EXPECT_FALSE(text.insert(QString(QChar(1)), Kind::single));
    EXPECT_EQ(text.selectedText(), QStringLiteral("a12")) << "nothing came in its place";
}

/// Each letter types itself, "<" erases before the caret, "|" moves it and back, "P" pastes "##".
void edit(EditableText &text, const char *keys)
{
    for (const char *key = keys; *key; ++key) {
        const int at = text.caret().index;
        if (*key == '<')
            text.erase(at - 1, at, Kind::erasing);
        else if (*key == '|')
            text.moveTo({at, true});
        else if (*key == 'P')
            text.insert("##", Kind::single);
        else
            text.insert(QString(QLatin1Char(*key)), Kind::typing);
    }
}

TEST(EditableText, UndoTakesBackRunsOfOneKindAndRedoBringsThemAgain)
{
    const struct
    {
        const char *what;
        const char *keys;
        QStringList undone;
    } rows[]{
        {"one run", "abc", {"start"}},
        {"the caret was elsewhere meanwhile", "ab|c", {"startab", "start"}},
        {"a line is a step", "ab\ncd", {"startab\n", "start"}},
        {"erasing is another kind", "abc<<", {"startabc", "start"}},
        {"pasting stands alone", "aPPb", {"starta####", "starta##", "starta", "start"}},
    };
    for (const auto &row : rows) {
        EditableText text(100);
        text.reset("start");
        edit(text, row.keys);
        QStringList forwards{text.text()};
        for (const QString &undone : row.undone) {
            EXPECT_TRUE(text.undo()) << row.what;
            EXPECT_EQ(text.text(), undone) << row.what;
            forwards.prepend(undone);
        }
        EXPECT_FALSE(text.undo()) << row.what;
        for (qsizetype i = 1; i < forwards.size(); ++i) {
            EXPECT_TRUE(text.redo()) << row.what;
            EXPECT_EQ(text.text(), forwards.at(i)) << row.what;
        }
        EXPECT_FALSE(text.canRedo()) << row.what;
    }
}

TEST(EditableText, UndoBringsTheSelectionBackAndANewTextForgetsAll)
{
    EditableText text(100);
    text.reset("one two");
    text.select(7, 4);
    text.insert("x", Kind::typing);
    text.insert("y", Kind::typing);
    EXPECT_EQ(text.text(), QStringLiteral("one xy"));
    text.undo();
    EXPECT_EQ(text.selectedText(), QStringLiteral("two"));
    EXPECT_EQ(text.caret().index, 4);
    text.insert("z", Kind::typing);
    EXPECT_FALSE(text.canRedo());
    text.reset("other");
    EXPECT_FALSE(text.canUndo());
    EXPECT_EQ(text.caret().index, 5);
    text.moveTo({99, false});
    EXPECT_EQ(text.caret().index, 5) << "indices stay within the text";
}

// Letters of the built font are 24 points wide at size 40.
constexpr double kAdvance = 24;

TextCarets caretsOf(const QString &text, double width = 1000)
{
    TextLayoutOptions options;
    options.width = width;
    const Font font = test::fontWith(U"abcdefgh \u05D0\u05D1\u05D2.");
    return {text, TextLayout(text, font, options)};
}

TEST(CaretMotion, GoesAsSeenAndKeepsItsPlaceUpAndDown)
{
    const QString hebrew = QString::fromUtf8("אב גא");
    const struct
    {
        const char *what;
        QString text;
        int from;
        std::vector<CaretMove> moves;
        int to;
    } rows[]{
        {"words", "ab cd ef", 0, {CaretMove::wordRight, CaretMove::wordRight}, 6},
        {"words back", "ab cd ef", 8, {CaretMove::wordLeft}, 6},
        {"words that read from the right", hebrew, 0, {CaretMove::wordLeft}, 3},
        {"and left is on", hebrew, 0, {CaretMove::left}, 1},
        {"a short line between", "abcdef\nab\nabcdef", 5, {CaretMove::down, CaretMove::down}, 15},
        {"sideways forgets",
         "abcdef\nab\nabcdef",
         5,
         {CaretMove::down, CaretMove::left, CaretMove::down},
         11},
        {"up from the first line", "abc\nabc", 2, {CaretMove::up}, 0},
        {"down from the last line", "abc\nabc", 5, {CaretMove::down}, 7},
        {"line start", "abc\nabc", 6, {CaretMove::lineStart}, 4},
        {"line end", "abc\nabc", 1, {CaretMove::lineEnd}, 3},
    };
    for (const auto &row : rows) {
        const TextCarets carets = caretsOf(row.text);
        CaretMotion motion;
        TextPosition at{row.from, false};
        for (const CaretMove move : row.moves) {
            at = motion.moved(carets, at, move);
            at.index = std::min(at.index, int(row.text.size()));
        }
        EXPECT_EQ(at.index, row.to) << row.what;
    }
    EXPECT_EQ(CaretMotion::collapsed(caretsOf("abc"), 1, 2, true).index, 2);
    EXPECT_EQ(CaretMotion::collapsed(caretsOf(hebrew), 1, 2, true).index, 1);
}

TEST(CaretMotion, ClicksTakeTheWordOrTheParagraphUnderThem)
{
    const QString text = QStringLiteral("ab cd\n\nef gh");
    const TextCarets carets = caretsOf(text);
    const double line = carets.caretRect({text.size() > 0 ? 6 : 0, false}).top();
    const struct
    {
        double column;
        int line;
        SelectionUnit unit;
        QString taken;
    } rows[]{
        {0.2, 0, SelectionUnit::word, "ab"},    {1.9, 0, SelectionUnit::word, "ab"},
        {4.9, 0, SelectionUnit::word, "cd"},    {30, 0, SelectionUnit::word, "cd"},
        {3, 1, SelectionUnit::word, ""},        {1, 0, SelectionUnit::paragraph, "ab cd"},
        {3, 1, SelectionUnit::paragraph, ""},   {3.5, 2, SelectionUnit::paragraph, "ef gh"},
        {3.5, 2, SelectionUnit::character, ""},
    };
    for (const auto &row : rows) {
        const QPointF at(row.column * kAdvance, (row.line + 0.5) * line);
        const auto [start, end] = unitAt(carets, text, clusterAt(carets, at), row.unit);
        EXPECT_EQ(text.mid(start, end - start), row.taken) << row.column << " " << row.line;
    }
}

DetailSpecimen specimenOf(const Font &font)
{
    DetailSpecimen specimen;
    specimen.font = font;
    return specimen;
}

TEST(PreviewPlacement, AlignsByInkAndLeavesRoomForWhatStandsOut)
{
    const Font sans =
        test::fontFromFile(test::realFont("opentype/ebgaramond/EBGaramond12-Italic.otf"), 200);
    const Font arabic =
        test::fontFromFile(test::realFont("opentype/fonts-hosny-amiri/Amiri-Regular.ttf"), 120);
    constexpr double width = 700;
    for (const char *text :
         {"Hamburg", "jjjj\nHH", "ffff", "Sphinx of black quartz, judge my vow f"}) {
        const PreviewPlacement placed = placePreview(QLatin1String(text), specimenOf(sans), width);
        EXPECT_NEAR(placed.ink.left(), 0, 0.01) << text;
        EXPECT_LE(placed.ink.right(), width + 0.01) << text;
        EXPECT_GE(placed.ink.top(), 0) << text;
        EXPECT_LE(placed.ink.bottom(), placed.height) << text;
    }
    const QString persian = QString::fromUtf8("نص حكيم");
    EXPECT_NEAR(placePreview(persian, specimenOf(arabic), width).ink.right(), width, 0.01);
    const QString indented = QStringLiteral("    H");
    EXPECT_GT(placePreview(indented, specimenOf(sans), width).ink.left(), 50)
        << "spaces that were typed are meant";

    const QString marked = QString::fromUtf8("Z\u0301\u0302\u0303\u0304\u0306\u0307\u0308");
    const Font stacking = test::fontFromFile(test::realFont("truetype/dejavu/DejaVuSans.ttf"), 100);
    const PreviewPlacement high = placePreview(marked, specimenOf(stacking), width);
    EXPECT_GE(high.ink.top(), 0);
    EXPECT_GT(high.origin.y(), 0) << "moved down for its marks";
}

TEST(PreviewPlacement, PutsTheLogoBeforeTheText)
{
    DetailSpecimen specimen = specimenOf(test::fontWith(U"ab\u05D0\u05D1", 100));
    specimen.logoImage = QImage(200, 100, QImage::Format_ARGB32_Premultiplied);
    specimen.logoSpacing = 0.5;
    const double high = specimen.font.capHeight();
    const PreviewPlacement latin = placePreview("ab", specimen, 1000);
    EXPECT_EQ(latin.logoRect.size(), QSizeF(2 * high, high));
    EXPECT_EQ(latin.logoRect.left(), 0);
    EXPECT_EQ(latin.carets.caretRect({0, false}).x(), 2 * high + 50);
    const PreviewPlacement hebrew = placePreview(QString::fromUtf8("אב"), specimen, 1000);
    EXPECT_EQ(hebrew.logoRect.right(), 1000);
}

TEST(PreviewPlacement, BoundsWhatHostileTextsAskFor)
{
    const Font font = test::fontFromFile(test::realFont("truetype/dejavu/DejaVuSans.ttf"), 96);
    const struct
    {
        const char *what;
        QString text;
        Font font;
    } rows[]{
        {"no font", "abc", Font()},
        {"nothing", "", font},
        {"no space", QString(5000, QLatin1Char('m')), font},
        {"marks", QStringLiteral("a") + QString(10000, QChar(0x0301)), font},
        {"controls", QString(500, QChar(0x2067)) + "a" + QString(500, QChar(0x2069)), font},
        {"lone surrogates", QString(20, QChar(0xD800)), font},
    };
    for (const auto &row : rows) {
        for (const double width : {0.0, 40.0, 900.0}) {
            const PreviewPlacement placed = placePreview(row.text, specimenOf(row.font), width);
            EXPECT_GE(placed.height, 48) << row.what;
            EXPECT_LT(placed.height, 5000 * 150) << row.what;
            const auto shapes = selectionShapes(placed.carets, 0, int(row.text.size()));
            EXPECT_LE(shapes.size(), size_t(5001)) << row.what;
        }
    }
}

TEST(PreviewPlacement, SelectionHasNoGapsAndShowsLineEnds)
{
    const QString text = QStringLiteral("ab\n\ncd");
    const TextCarets carets = caretsOf(text);
    const std::vector<QRectF> all = selectionShapes(carets, 0, int(text.size()));
    ASSERT_EQ(all.size(), 4U) << "two words, two line ends";
    EXPECT_EQ(all[0].right(), all[1].left());
    EXPECT_EQ(all[1].bottom(), all[2].top());
    EXPECT_EQ(all[2].bottom(), all[3].top());
    EXPECT_EQ(selectionShapes(carets, 0, 2).size(), 1U) << "up to the line end, not with it";
    const std::vector<QRectF> lines = underlines(carets, 4, 6, 2);
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_GT(lines[0].top(), carets.layout().lines()[2].origin.y());
    EXPECT_EQ(lines[0].width(), 2 * kAdvance);
}

} // namespace
} // namespace lorva
