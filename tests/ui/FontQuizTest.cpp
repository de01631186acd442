// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "support/LibraryFixture.h"
#include "ui/quiz/FontQuizCardView.h"
#include "ui/quiz/FontQuizCategoryView.h"
#include "ui/quiz/FontQuizCompletionPosterView.h"
#include "ui/quiz/FontQuizFlightView.h"
#include "ui/quiz/FontQuizIntroView.h"
#include "ui/quiz/FontQuizStageView.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/style/ReducedMotion.h"

#include <QLabel>
#include <QLocale>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using namespace std::chrono_literals;
using test::LibraryFixture;
using test::TestHome;
using test::waitUntil;
using Phase = FontQuizViewController::Phase;

/// Takes no change while it is told so.
class StubbornPreferences final : public ValuePreferenceStore
{
public:
    bool refuses = false;

    void inTransaction(std::function<void()> change) override
    {
        if (!refuses)
            change();
    }
    bool writeWaitingChanges() override { return true; }
    bool takeChangesElsewhere() override { return false; }
    PreferenceStoreStatus status() const override { return {}; }

private:
    std::optional<PreferenceRow> row(const QString &key) const override
    {
        const auto found = m_rows.find(key);
        return found == m_rows.end() ? std::nullopt : std::optional(found->second);
    }
    void setRow(const QString &key, const std::optional<PreferenceRow> &row) override
    {
        m_rows.erase(key);
        if (row)
            m_rows.emplace(key, *row);
    }

    std::map<QString, PreferenceRow> m_rows;
};

class FontQuiz : public testing::Test
{
protected:
    FontQuiz()
    {
        setReducedMotionOverride(false);
        window.resize(1240, 860);
    }
    ~FontQuiz() override
    {
        quiz.reset();
        QLocale::setDefault(QLocale::c());
    }

    /// Families "Face 000" …, dealt in their order.
    void open(int families)
    {
        library.addFamilies(QStringLiteral("Face"), families);
        ASSERT_TRUE(library.load());
        reopen();
    }
    void reopen()
    {
        FontQuizSources sources;
        sources.random = [](quint32 bound) { return bound - 1; };
        sources.today = [] { return QDate(2026, 3, 14); };
        quiz = std::make_unique<FontQuizViewController>(
            model(), makeFontResolver(model().fontLibraryService()), &window, sources);
        quiz->timeline().setManual();
        quiz->onClose = [this] { ++closed; };
        quiz->setGeometry(window.rect());
        window.show();
        quiz->show();
    }
    void play(int families)
    {
        open(families);
        press(Qt::Key_Return);
        land();
    }

    LorvaAppModel &model() { return *library.model; }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QWidget *target = quiz->focusWidget() ? quiz->focusWidget() : quiz.get();
        QTest::keyClick(target, key, modifiers);
    }
    void type(const QString &text, int key, Qt::KeyboardModifiers modifiers, bool repeats = false)
    {
        QKeyEvent event(QEvent::KeyPress, key, modifiers, text, repeats);
        QCoreApplication::sendEvent(quiz.get(), &event);
    }
    /// Whatever moves arrives.
    void land() { quiz->timeline().advance(2s); }
    void choose(int tile)
    {
        press(Qt::Key(Qt::Key_0 + tile));
        land();
    }
    QString current() const
    {
        return quiz->deck().isExhausted() ? QString() : quiz->deck().currentFamily();
    }
    QString styleOf(const char *family)
    {
        return model().styleIDByFamily().value(QString::fromLatin1(family));
    }
    template <class Part>
    Part *part(const char *name)
    {
        return quiz->findChild<Part *>(QString::fromLatin1(name));
    }
    FontQuizCategoryView *tile(int number)
    {
        const QByteArray name = "FontQuizCategoryView." + QByteArray::number(number);
        return part<FontQuizCategoryView>(name.constData());
    }
    FontQuizIntroView &intro() { return *part<FontQuizIntroView>("FontQuizIntroView"); }
    FontQuizCardView &card() { return *part<FontQuizCardView>("FontQuizCardView"); }
    QLabel &notice() { return *part<QLabel>("FontQuizNotice"); }
    FontQuizCompletionPosterView *poster()
    {
        return part<FontQuizCompletionPosterView>("FontQuizCompletionPosterView");
    }
    size_t pile(int number) { return quiz->stage().landedPiles()[size_t(number - 1)].size(); }

    LibraryFixture library;
    QWidget window;
    std::unique_ptr<FontQuizViewController> quiz;
    int closed = 0;
};

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
    EXPECT_EQ(tile(3)->accessibleName(), QStringLiteral("Display, key 3, 1 fonts"));
    QTest::mouseClick(tile(6), Qt::LeftButton);
    land();
    EXPECT_EQ(styleOf("Face 001"), QStringLiteral("decorative"));
    EXPECT_EQ(card().accessibleName(), QStringLiteral("Face 002"));

    quiz.reset();
    EXPECT_EQ(styleOf("Face 000"), QStringLiteral("display")) << "leaving midway keeps it";
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
    for (int left = 6; left >= 0; --left) {
        press(Qt::Key_Backspace);
        land();
        EXPECT_EQ(quiz->currentIndex(), left);
        EXPECT_EQ(tile(2)->accessibleName(),
                  QStringLiteral("Sans-Serif, key 2, %1 fonts").arg(left));
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

TEST_F(FontQuiz, AFailedChoiceKeepsTheCardAndSaysWhy)
{
    auto preferences = std::make_unique<StubbornPreferences>();
    StubbornPreferences &stubborn = *preferences;
    library.restart(TestHome::instance().makeFolder("quiz"), std::move(preferences));
    play(2);
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
}

TEST_F(FontQuiz, ChangesFromElsewhereTakeCardsAndBringThemBack)
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

TEST_F(FontQuiz, ANewCatalogInMidFlightTakesWhatHasVanished)
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

TEST_F(FontQuiz, ADeckEmptiedElsewhereIsSaidToBeCategorized)
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

TEST_F(FontQuiz, ThePosterFollowsTheLastCardAndALateUndoResumes)
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
    ASSERT_TRUE(waitUntil([this] {
        land();
        return quiz->isSettled();
    }));
    EXPECT_TRUE(card().shownParts().familyNameLabel.text.contains(
        QStringLiteral("“Face 000” could not be loaded")))
        << card().shownParts().familyNameLabel.text.toStdString();
    choose(1);
    EXPECT_EQ(card().shownParts().familyNameLabel.text, QStringLiteral("Face 001"));
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
