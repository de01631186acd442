// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "FontQuizFixture.h"
#include "ui/quiz/FontQuizGround.h"
#include "ui/style/Palette.h"

#include <algorithm>
#include <future>

namespace lorva {
namespace {

using test::waitUntil;
using Phase = FontQuizViewController::Phase;

using namespace std::chrono_literals;
using FontQuiz = test::FontQuizFixture;

TEST_F(FontQuiz, TheIntroductionCountsWithTheRegionsSeparators)
{
    FontQuizIntroView view(&window);
    const struct
    {
        const char *region;
        int sorted;
        int waiting;
        const char *says;
    } rows[]{
        {"en_US", 1000, 234, "We've sorted 1,000 for you, but 234 need your eye."},
        {"de_DE", 1000, 1234, "We've sorted 1.000 for you, but 1.234 need your eye."},
        {"en_US", 0, 7, "appear in that style folder. Don't worry,"},
        {"en_US", 7, 0, "Every font is already categorized."},
    };
    for (const auto &row : rows) {
        QLocale::setDefault(QLocale(QString::fromLatin1(row.region)));
        view.setNumbers(row.sorted, row.waiting);
        EXPECT_TRUE(view.sentence().contains(QString::fromLatin1(row.says)))
            << view.sentence().toStdString();
    }
}

TEST_F(FontQuiz, AFamilyIsSortedByKeyAndByClickAndWrittenAtOnce)
{
    open(4);
    ASSERT_TRUE(waitUntil([this] { return model().hasSeenQuizIntro(); }));
    EXPECT_EQ(quiz->phase(), Phase::intro);
    press(Qt::Key_3);
    EXPECT_TRUE(styleOf("Face 000").isEmpty()) << "nothing is chosen before it begins";
    QTest::mouseClick(part<QWidget>("FontQuizIntroView.Start"), Qt::LeftButton);
    land();
    EXPECT_EQ(quiz->phase(), Phase::playing);

    press(Qt::Key_3);
    EXPECT_EQ(styleOf("Face 000"), QStringLiteral("display")) << "before the card has landed";
    EXPECT_EQ(quiz->currentIndex(), 1);
    EXPECT_EQ(pile(3), 0U);
    land();
    EXPECT_EQ(pile(3), 1U);
    EXPECT_EQ(tile(3)->accessibleName(), QStringLiteral("Display, key 3, 1 font"));
    QTest::mouseClick(tile(6), Qt::LeftButton);
    land();
    EXPECT_EQ(styleOf("Face 001"), QStringLiteral("decorative"));
    EXPECT_EQ(card().accessibleName(), QStringLiteral("Face 002"));

    quiz.reset();
    EXPECT_EQ(styleOf("Face 000"), QStringLiteral("display")) << "leaving midway keeps it";
}

TEST_F(FontQuiz, AHeldKeySortsOneFontHoweverTheDesktopTellsIt)
{
    play(4);
    const auto send = [this](QEvent::Type type, quint64 time) {
        QKeyEvent event(type, Qt::Key_5, Qt::NoModifier, QStringLiteral("5"));
        event.setTimestamp(time);
        QCoreApplication::sendEvent(quiz.get(), &event);
        land();
    };
    send(QEvent::KeyPress, 1000);
    for (const quint64 repeated : {1500, 1530, 1560}) {
        send(QEvent::KeyRelease, repeated);
        send(QEvent::KeyPress, repeated);
    }
    EXPECT_EQ(quiz->currentIndex(), 1);
    send(QEvent::KeyRelease, 1590);
    send(QEvent::KeyPress, 1700);
    EXPECT_EQ(quiz->currentIndex(), 2) << "pressed anew";
}

TEST_F(FontQuiz, StandsOnPlainGroundWithoutACard)
{
    setReducedMotionOverride(true);
    open(0);
    EXPECT_EQ(intro().sentence(), QStringLiteral("Every font is already categorized."));
    ASSERT_TRUE(settle());
    const QColor ground = fontQuizColors(isDarkDesktop()).ground;
    EXPECT_TRUE(waitUntil([&] {
        const QImage image = quiz->grab().toImage();
        return image.pixelColor(image.width() / 2, image.height() / 3) == ground;
    }));
}

TEST_F(FontQuiz, OnlyTheNumbersOfTilesChoose)
{
    play(9);
    const struct
    {
        const char16_t *text;
        int key;
        Qt::KeyboardModifiers modifiers;
        bool chooses;
    } rows[]{
        {u"7", Qt::Key_7, {}, false},
        {u"0", Qt::Key_0, {}, false},
        {u"a", Qt::Key_A, {}, false},
        {u"", Qt::Key_Right, {}, false},
        {u"1", Qt::Key_1, Qt::ControlModifier, false},
        {u"1", Qt::Key_1, Qt::ShiftModifier, true},
        {u"2", Qt::Key_Eacute, Qt::ShiftModifier, true},
        {u"é", Qt::Key_Eacute, {}, false},
        {u"6", Qt::Key_6, Qt::KeypadModifier, true},
        {u"٣", Qt::Key_3, {}, true},
    };
    int expected = 0;
    for (const auto &row : rows) {
        type(QString::fromUtf16(row.text), row.key, row.modifiers);
        land();
        expected += row.chooses ? 1 : 0;
        EXPECT_EQ(quiz->currentIndex(), expected) << QString::fromUtf16(row.text).toStdString();
    }
    type(QStringLiteral("1"), Qt::Key_1, {}, true);
    EXPECT_EQ(quiz->currentIndex(), expected) << "a key that is held down";
}

TEST_F(FontQuiz, ACardFliesInAnArcAndNothingIsChosenMeanwhile)
{
    play(3);
    press(Qt::Key_1);
    ASSERT_TRUE(quiz->isAnimating());
    const auto &flying = part<FontQuizFlightView>("FontQuizFlightView")->card();
    ASSERT_TRUE(flying);
    const QPointF from = flying->pose.centre;
    press(Qt::Key_3);
    QTest::mouseClick(tile(2), Qt::LeftButton);
    press(Qt::Key_Space);
    press(Qt::Key_Backspace);
    EXPECT_EQ(quiz->currentIndex(), 1) << "all that waits";
    EXPECT_EQ(current(), QStringLiteral("Face 001"));

    quiz->timeline().advance(FontQuizStageView::kFlight / 2);
    const FontQuizPose middle = flying->pose;
    quiz->timeline().advance(FontQuizStageView::kFlight / 2 - 1ms);
    const QPointF to = flying->pose.centre;
    EXPECT_LT(middle.centre.y(), (from.y() + to.y()) / 2 - 20) << "above the straight line";
    EXPECT_LT(middle.scale, 0.5);
    EXPECT_TRUE(tile(1)->geometry().contains(to.toPoint()));
    quiz->timeline().advance(1ms);
    EXPECT_FALSE(quiz->isAnimating());
    choose(2);
    EXPECT_EQ(quiz->currentIndex(), 2);
}

TEST_F(FontQuiz, WithReducedMotionTheCardIsOnThePileAtOnce)
{
    setReducedMotionOverride(true);
    play(3);
    press(Qt::Key_1);
    EXPECT_EQ(pile(1), 1U);
    press(Qt::Key_Backspace);
    EXPECT_EQ(pile(1), 0U);
    EXPECT_EQ(current(), QStringLiteral("Face 000"));
    EXPECT_FALSE(quiz->timeline().isRunning());
}

TEST_F(FontQuiz, PilesDrawOnlyTheirTopmostCardsAndGiveThemBack)
{
    play(8);
    for (int i = 0; i < 7; ++i)
        choose(2);
    EXPECT_EQ(pile(2), size_t(quiz->stage().maxPileSize()));
    EXPECT_EQ(quiz->deck().counts()[1], 7);
    ASSERT_TRUE(settle());
    EXPECT_LT(quiz->stage().landedPiles()[1].front().picture->image.width(), 300);
    press(Qt::Key_Backspace);
    ASSERT_TRUE(settle());
    EXPECT_TRUE(quiz->stage().landedPiles()[1].front().picture) << "the card that lay below";
    choose(2);
    for (int left = 6; left >= 0; --left) {
        press(Qt::Key_Backspace);
        land();
        EXPECT_EQ(quiz->currentIndex(), left);
        EXPECT_EQ(pile(2), size_t(std::min(left, 4)));
        EXPECT_TRUE(tile(2)->accessibleName().startsWith(
            QStringLiteral("Sans-Serif, key 2, %1 font").arg(left)));
    }
    EXPECT_EQ(pile(2), 0U);
    EXPECT_TRUE(model().styleIDByFamily().isEmpty());
    press(Qt::Key_Backspace);
    EXPECT_EQ(quiz->currentIndex(), 0);
}

TEST_F(FontQuiz, TakingBackUndoesTheChoiceAndNoOtherChange)
{
    play(3);
    choose(1);
    const QString id = model().createCollection(QStringLiteral("Mine")).value();
    press(Qt::Key_Backspace);
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 000"));
    EXPECT_EQ(model().collections().size(), 1U);
    choose(4);
    const int steps = model().undoStack().index();
    press(Qt::Key_Backspace);
    land();
    EXPECT_EQ(model().undoStack().index(), steps - 1) << "as if it had been undone in the menu";
}

TEST_F(FontQuiz, SkippedFamiliesComeAgainAtTheEnd)
{
    play(3);
    press(Qt::Key_Space);
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 001"));
    choose(1);
    choose(1);
    EXPECT_EQ(current(), QStringLiteral("Face 000"));
    EXPECT_TRUE(styleOf("Face 000").isEmpty());
    press(Qt::Key_Space);
    EXPECT_FALSE(quiz->isAnimating()) << "there is no other one";
}

TEST_F(FontQuiz, EscapeAndTheButtonCloseItInEveryPhase)
{
    open(1);
    const auto closes = [this] {
        const int before = closed;
        press(Qt::Key_Escape);
        QTest::mouseClick(part<QWidget>("FontQuizViewController.Close"), Qt::LeftButton);
        return closed == before + 2;
    };
    EXPECT_TRUE(closes());
    press(Qt::Key_Return);
    land();
    EXPECT_TRUE(closes());
    choose(1);
    EXPECT_EQ(quiz->phase(), Phase::done);
    EXPECT_TRUE(closes());
    quiz->onClose = [this] { ++closed; };
    part<QWidget>("FontQuizViewController.Close")->setFocus();
    press(Qt::Key_Return);
    EXPECT_EQ(closed, 7);
    quiz->onClose = [this] { quiz.release()->deleteLater(); };
    press(Qt::Key_Escape);
    EXPECT_FALSE(quiz) << "it may be deleted by its own key";
}

TEST_F(FontQuiz, TabGoesFromTheCardToTheTilesAndTheButtonAndRound)
{
    play(2);
    QStringList names;
    for (int i = 0; i < 9; ++i) {
        names.append(quiz->focusWidget()->objectName());
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(names.join(u' '),
              QStringLiteral("FontQuizCardView FontQuizCategoryView.1 FontQuizCategoryView.2 "
                             "FontQuizCategoryView.3 FontQuizCategoryView.4 "
                             "FontQuizCategoryView.5 FontQuizCategoryView.6 "
                             "FontQuizViewController.Close FontQuizCardView"));
    press(Qt::Key_Space);
    land();
    EXPECT_EQ(styleOf("Face 000"), QStringLiteral("serif")) << "on a tile Space presses it";
    press(Qt::Key_2);
    EXPECT_EQ(styleOf("Face 001"), QStringLiteral("sans")) << "and numbers choose all the same";
}

TEST_F(FontQuiz, AFaceThatCannotBeLoadedShowsTheSystemsAndSaysSo)
{
    library.addFamilies(QStringLiteral("Face"), 2);
    ASSERT_TRUE(library.load());
    ASSERT_TRUE(QFile::remove(library.fonts->files.front().displayText()));
    reopen();
    quiz->start();
    ASSERT_TRUE(settle());
    EXPECT_TRUE(card().shownParts().familyNameLabel.text.contains(
        QStringLiteral("“Face 000” could not be loaded")))
        << card().shownParts().familyNameLabel.text.toStdString();
    choose(1);
    EXPECT_EQ(card().shownParts().familyNameLabel.text, QStringLiteral("Face 001"));
}

TEST_F(FontQuiz, ThePosterNamesThePlayerWhoseNameComesLate)
{
    std::promise<QString> name;
    sources.fullName = [answer = name.get_future().share()] { return answer.get(); };
    play(1);
    choose(1);
    ASSERT_TRUE(poster()) << "nobody waits for it";
    EXPECT_FALSE(poster()->accessibleDescription().contains(QStringLiteral("Ada")));
    name.set_value(QStringLiteral("Ada Lovelace"));
    ASSERT_TRUE(settle());
    EXPECT_TRUE(poster()->accessibleDescription().contains(QStringLiteral("by Ada Lovelace on")));
}

TEST_F(FontQuiz, KeysForTheLastCardDoNotEndThePoster)
{
    play(1);
    press(Qt::Key_6);
    quiz->timeline().advance(FontQuizStageView::kFlight);
    ASSERT_EQ(quiz->phase(), Phase::done);
    press(Qt::Key_Return);
    press(Qt::Key_Space);
    EXPECT_EQ(closed, 0) << "before it can be seen";
    land();
    auto *done = part<QWidget>("QuizPoster.Done");
    EXPECT_EQ(quiz->focusWidget(), done);
    EXPECT_TRUE(done->accessibleDescription().contains(QStringLiteral("Decorative: 1")));
    EXPECT_TRUE(done->accessibleDescription().contains(QStringLiteral("Organized by hand")));
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, {}, QStringLiteral("\r"), true);
    QCoreApplication::sendEvent(done, &held);
    EXPECT_EQ(closed, 0);
    press(Qt::Key_Return);
    EXPECT_EQ(closed, 1);
}

TEST_F(FontQuiz, CoversEveryPixelOfAScreenOfAnotherRatio)
{
    play(3);
    choose(1);
    ASSERT_TRUE(settle());
    const auto corner = [this](double ratio) {
        QImage image((QSizeF(quiz->size()) * ratio).toSize(), QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        image.fill(Qt::magenta);
        quiz->render(&image);
        return image.pixelColor(image.width() - 5, image.height() - 5);
    };
    EXPECT_EQ(corner(2), corner(1));
    EXPECT_EQ(corner(1.5), corner(1));
}

TEST_F(FontQuiz, MayBeDeletedWhileFacesArriveAndCardsFly)
{
    play(9);
    press(Qt::Key_1);
    quiz.reset();
    QCoreApplication::processEvents();
    reopen();
    quiz.reset();
    EXPECT_EQ(styleOf("Face 000"), QStringLiteral("serif"));
}

} // namespace
} // namespace lorva
