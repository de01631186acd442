// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What others do to the families while the quiz is open, and what fails.

#include "FontQuizFixture.h"
#include "support/MemoryPreferences.h"

namespace lorva {
namespace {

using test::TestHome;
using Phase = FontQuizViewController::Phase;

using test::StubbornPreferences;
using FontQuizChanges = test::FontQuizFixture;

TEST_F(FontQuizChanges, AFailedChoiceKeepsTheCardAndSaysWhy)
{
    auto preferences = std::make_unique<StubbornPreferences>();
    StubbornPreferences &stubborn = *preferences;
    library.restart(TestHome::instance().makeFolder("quiz"), std::move(preferences));
    play(3);
    stubborn.refuses = true;
    press(Qt::Key_4);
    EXPECT_FALSE(quiz->isAnimating());
    EXPECT_EQ(current(), QStringLiteral("Face 000"));
    EXPECT_TRUE(notice().isVisible());
    EXPECT_TRUE(notice().text().contains(QStringLiteral("the preferences took no change")));
    stubborn.refuses = false;
    press(Qt::Key_4);
    EXPECT_FALSE(notice().isVisible());
    EXPECT_EQ(styleOf("Face 000"), QStringLiteral("mono"));
    land();

    choose(1);
    stubborn.refuses = true;
    press(Qt::Key_Backspace);
    EXPECT_TRUE(notice().text().contains(QStringLiteral("could not be taken back")));
    EXPECT_EQ(quiz->phase(), Phase::playing) << "the notice is seen";
    stubborn.refuses = false;
    press(Qt::Key_Backspace);
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 001")) << "the newest choice, not an older one";
    EXPECT_EQ(styleOf("Face 000"), QStringLiteral("mono"));
}

TEST_F(FontQuizChanges, ChangesFromElsewhereTakeCardsAndBringThemBack)
{
    play(5);
    choose(2);
    ASSERT_TRUE(model().setStyle({QStringLiteral("Face 001")}, QStringLiteral("serif")));
    EXPECT_TRUE(quiz->isAnimating()) << "it fades";
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 002"));
    EXPECT_EQ(quiz->deck().size(), 4);
    ASSERT_TRUE(model().setStyle({QStringLiteral("Face 004")}, QStringLiteral("serif")));
    EXPECT_FALSE(quiz->isAnimating()) << "nobody saw that card";
    EXPECT_EQ(quiz->deck().size(), 3);

    choose(5);
    model().undoStack().undo();
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 002"));
    EXPECT_EQ(pile(5), 0U);
    EXPECT_EQ(card().accessibleName(), QStringLiteral("Face 002"));

    press(Qt::Key_5);
    model().undoStack().undo();
    EXPECT_EQ(pile(5), 0U) << "taken back while it flew";
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 002"));
}

TEST_F(FontQuizChanges, WhatOthersUndoAndRedoIsFollowed)
{
    play(2);
    choose(3);
    model().undoStack().undo();
    land();
    model().undoStack().redo();
    EXPECT_TRUE(quiz->isAnimating()) << "it flies again";
    land();
    EXPECT_EQ(pile(3), 1U);
    EXPECT_EQ(current(), QStringLiteral("Face 001"));
    EXPECT_EQ(quiz->deck().size(), 2);

    ASSERT_TRUE(model().setStyle({QStringLiteral("Face 001")}, QStringLiteral("serif")));
    land();
    land();
    ASSERT_EQ(quiz->phase(), Phase::done);
    ASSERT_TRUE(poster());
    EXPECT_EQ(poster()->counts().total, 1);
    EXPECT_EQ(poster()->counts().display, 1);
    model().undoStack().undo();
    land();
    EXPECT_EQ(quiz->phase(), Phase::playing);
    EXPECT_EQ(current(), QStringLiteral("Face 001"));
    press(Qt::Key_Backspace);
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 000"));
}

TEST_F(FontQuizChanges, FamiliesThatComeBeforeItBeginsAreDealt)
{
    open(2);
    library.addFamily(QStringLiteral("Late"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(quiz->deck().size(), 3);
    EXPECT_FALSE(intro().sentence().contains(QStringLiteral("for you"))) << "none was sorted";
    ASSERT_TRUE(model().setStyle({QStringLiteral("Late")}, QStringLiteral("serif")));
    EXPECT_TRUE(intro().sentence().contains(QStringLiteral("sorted 1 for you, but 2 need")));
    model().undoStack().undo();
    EXPECT_EQ(quiz->deck().size(), 3);

    press(Qt::Key_Return);
    land();
    library.addFamily(QStringLiteral("Later"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(quiz->deck().size(), 3) << "the cards are on the table";
}

TEST_F(FontQuizChanges, ALongNameLeavesRoomForTheReason)
{
    auto preferences = std::make_unique<StubbornPreferences>();
    StubbornPreferences &stubborn = *preferences;
    library.restart(TestHome::instance().makeFolder("quiz"), std::move(preferences));
    library.addFamily(QString(160, u'W'));
    ASSERT_TRUE(library.load());
    reopen();
    press(Qt::Key_Return);
    land();
    stubborn.refuses = true;
    press(Qt::Key_4);
    EXPECT_TRUE(notice().text().contains(u'…'));
    EXPECT_LT(notice().fontMetrics().horizontalAdvance(notice().text()), notice().width());
}

TEST_F(FontQuizChanges, ANewCatalogInMidFlightTakesWhatHasVanished)
{
    play(4);
    press(Qt::Key_1);
    library.fonts->files.erase(library.fonts->files.begin() + 1);
    ASSERT_TRUE(library.load());
    land();
    EXPECT_EQ(current(), QStringLiteral("Face 002"));
    EXPECT_EQ(quiz->deck().size(), 3);
    EXPECT_EQ(pile(1), 1U) << "the card that flew has landed all the same";
    press(Qt::Key_1);
    library.fonts->files.clear();
    ASSERT_TRUE(library.load());
    land();
    land();
    EXPECT_EQ(quiz->phase(), Phase::done) << "two were sorted, no other is left";
    ASSERT_TRUE(poster());
    EXPECT_EQ(poster()->counts().serif, 2);
}

TEST_F(FontQuizChanges, ADeckEmptiedElsewhereIsSaidToBeCategorized)
{
    for (const bool hasBegun : {false, true}) {
        open(2);
        if (hasBegun)
            press(Qt::Key_Space);
        land();
        ASSERT_TRUE(model().setStyle({QStringLiteral("Face 000"), QStringLiteral("Face 001")},
                                     QStringLiteral("serif")));
        land();
        land();
        EXPECT_TRUE(intro().isVisible());
        EXPECT_EQ(intro().sentence(), QStringLiteral("Every font is already categorized."));
        EXPECT_FALSE(poster());
        press(Qt::Key_Return);
        EXPECT_NE(quiz->phase(), Phase::playing);
        ASSERT_TRUE(model().setStyle({QStringLiteral("Face 000"), QStringLiteral("Face 001")},
                                     std::nullopt));
    }
}

TEST_F(FontQuizChanges, APosterIsNotShownForWhatOthersSorted)
{
    play(1);
    choose(1);
    ASSERT_TRUE(poster());
    model().undoStack().undo();
    land();
    ASSERT_TRUE(model().setStyle({QStringLiteral("Face 000")}, QStringLiteral("mono")));
    land();
    land();
    EXPECT_EQ(quiz->phase(), Phase::done);
    EXPECT_TRUE(intro().isVisible());
    EXPECT_FALSE(poster() && poster()->isVisible());
    EXPECT_EQ(quiz->focusWidget()->accessibleDescription(), intro().sentence());
}

TEST_F(FontQuizChanges, ThePosterFollowsTheLastCardAndALateUndoResumes)
{
    play(3);
    choose(1);
    choose(5);
    press(Qt::Key_1);
    EXPECT_EQ(quiz->phase(), Phase::playing) << "the last card still flies";
    land();
    ASSERT_EQ(quiz->phase(), Phase::done);
    ASSERT_TRUE(poster());
    FontQuizCounts expected;
    expected.total = 3;
    expected.serif = 2;
    expected.script = 1;
    EXPECT_EQ(poster()->counts(), expected);
    EXPECT_EQ(poster()->completionDate(), QDate(2026, 3, 14));

    model().undoStack().undo();
    land();
    EXPECT_EQ(quiz->phase(), Phase::playing);
    EXPECT_FALSE(poster()->isVisible());
    choose(2);
    EXPECT_EQ(poster()->counts().sans, 1);
    EXPECT_TRUE(poster()->isVisible());
    Q_EMIT poster()->doneWanted();
    EXPECT_EQ(closed, 1);
}

} // namespace
} // namespace lorva
