// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/AlertSheet.h"
#include "commands/OrganizationAlerts.h"
#include "support/Waiting.h"
#include "ui/sheets/SheetText.h"
#include "ui/style/Popover.h"
#include "ui/style/ReducedMotion.h"

#include <QAccessible>
#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QPainter>
#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Alert twoWays(Alert::Role first, Alert::Role second)
{
    return {Alert::Style::warning,
            QStringLiteral("Go?"),
            QStringLiteral("There."),
            {{QStringLiteral("One"), first}, {QStringLiteral("Two"), second}}};
}

class AlertSheetTest : public testing::Test
{
protected:
    AlertSheetTest()
        : m_field(new QLineEdit(m_window.get()))
    {
        setReducedMotionOverride(true);
        auto *action = new QAction(m_window.get());
        action->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_N));
        QObject::connect(action, &QAction::triggered, action, [this] { ++m_shortcuts; });
        m_window->addAction(action);
        m_window->setCentralWidget(m_field);
        m_window->resize(960, 800);
        m_window->show();
        m_window->activateWindow();
        m_field->setFocus();
        EXPECT_TRUE(test::waitUntil([this] { return m_field->hasFocus(); }));
    }

    void present(const Alert &alert)
    {
        presentAlert(*m_field, alert, [this](int button) { m_answers.push_back(button); });
    }
    QWidget *part(const char *name) const
    {
        // The answered one is on its way out.
        for (QWidget *widget : m_window->findChildren<QWidget *>(QString::fromLatin1(name)))
            if (widget->isVisible())
                return widget;
        return nullptr;
    }
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }

    std::unique_ptr<QMainWindow> m_window = std::make_unique<QMainWindow>();
    QLineEdit *m_field = nullptr;
    std::vector<int> m_answers;
    int m_shortcuts = 0;
};

TEST_F(AlertSheetTest, TakesTheWindowUntilItIsAnsweredAndGivesTheFocusBack)
{
    press(Qt::Key_N, Qt::ControlModifier);
    ASSERT_EQ(m_shortcuts, 1);
    present(deleteCollectionAlert());

    ASSERT_TRUE(part("AlertSheet"));
    EXPECT_TRUE(hasAlertSheet(*m_window));
    EXPECT_EQ(part("AlertSheet")->geometry(), m_window->rect());
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(part("AlertSheet")->isAncestorOf(QApplication::focusWidget())) << i;
        press(Qt::Key_N, Qt::ControlModifier);
        press(i < 3 ? Qt::Key_Tab : Qt::Key_Backtab);
    }
    m_field->setFocus();
    EXPECT_FALSE(m_field->hasFocus());
    QTest::mouseClick(part("AlertSheet"), Qt::LeftButton, {}, {5, 5});
    EXPECT_THAT(m_answers, IsEmpty());
    EXPECT_EQ(m_shortcuts, 1) << "no menu shortcut acts meanwhile";

    press(Qt::Key_Escape);
    EXPECT_THAT(m_answers, ElementsAre(1)) << "Cancel";
    EXPECT_TRUE(m_field->hasFocus());
    EXPECT_FALSE(hasAlertSheet(*m_window));
    press(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(m_shortcuts, 2);

    Popover::open(new QLineEdit, m_field, QStringLiteral("panel"));
    ASSERT_FALSE(m_field->hasFocus());
    present(deleteCollectionAlert());
    EXPECT_FALSE(part("Popover"));
    press(Qt::Key_Escape);
    EXPECT_TRUE(m_field->hasFocus()) << "where it was before the panel opened";
}

TEST_F(AlertSheetTest, AnswersKeysAndClicks)
{
    using Role = Alert::Role;
    const Alert single = refusedChangeAlert(QStringLiteral("no"));
    const struct
    {
        const char *what;
        Alert alert;
        std::vector<int> keys;
        int answer;
    } rows[]{
        {"Return chooses the first", twoWays(Role::accept, Role::cancel), {Qt::Key_Return}, 0},
        {"so does Enter", twoWays(Role::accept, Role::cancel), {Qt::Key_Enter}, 0},
        {"but never what destroys", twoWays(Role::destructive, Role::cancel), {Qt::Key_Return}, 1},
        {"unless it is gone to",
         twoWays(Role::destructive, Role::cancel),
         {Qt::Key_Tab, Qt::Key_Return},
         0},
        {"Space presses, too",
         twoWays(Role::accept, Role::cancel),
         {Qt::Key_Tab, Qt::Key_Space},
         1},
        {"Escape cancels", twoWays(Role::cancel, Role::accept), {Qt::Key_Escape}, 0},
        {"or chooses the last", twoWays(Role::accept, Role::accept), {Qt::Key_Escape}, 1},
        {"or the only one", single, {Qt::Key_Escape}, 0},
    };
    for (const auto &row : rows) {
        m_answers.clear();
        present(row.alert);
        for (const int key : row.keys)
            press(key);
        EXPECT_THAT(m_answers, ElementsAre(row.answer)) << row.what;
    }
    present(twoWays(Role::destructive, Role::cancel));
    QTest::mouseClick(part("AlertSheet.Button0"), Qt::LeftButton);
    EXPECT_THAT(m_answers, ElementsAre(0, 0));
}

TEST_F(AlertSheetTest, ShowsSeveralOneAfterTheOther)
{
    present(deleteCollectionAlert());
    present(hideFoundryAlert(QStringLiteral("Foo & Sons")));
    const auto title = [this] { return qobject_cast<QLabel *>(part("AlertSheet.Title"))->text(); };
    EXPECT_EQ(title(), QStringLiteral("Delete Collection?"));
    press(Qt::Key_Escape);
    EXPECT_EQ(title(), QStringLiteral("Hide “Foo & Sons”?"));
    press(Qt::Key_Return);
    EXPECT_THAT(m_answers, ElementsAre(1, 0));
    EXPECT_TRUE(m_field->hasFocus());
}

TEST_F(AlertSheetTest, StaysInsideTheWindowWhateverItSays)
{
    const QString endless(20000, u'M');
    const struct
    {
        QSize window;
        QString name;
        Qt::LayoutDirection direction;
    } rows[]{{{960, 800}, QStringLiteral("Foo"), Qt::LeftToRight},
             {{960, 800}, endless, Qt::LeftToRight},
             {{400, 300}, endless, Qt::RightToLeft},
             {{3840, 2160}, QStringLiteral("Foo"), Qt::RightToLeft}};
    for (const auto &row : rows) {
        m_window->resize(row.window);
        m_window->setLayoutDirection(row.direction);
        Alert alert = hideFoundryAlert(row.name);
        alert.body += row.name;
        present(alert);
        const QWidget *panel = part("AlertSheet.Panel");
        EXPECT_TRUE(m_window->rect().contains(panel->geometry())) << row.window.width();
        EXPECT_LE(panel->width(), 480);
        for (const char *name : {"AlertSheet.Button0", "AlertSheet.Button1"})
            EXPECT_TRUE(
                panel->rect().contains({part(name)->mapTo(panel, QPoint()), part(name)->size()}))
                << name;
        const bool firstIsRight = part("AlertSheet.Button0")->x() > part("AlertSheet.Button1")->x();
        EXPECT_EQ(firstIsRight, row.direction == Qt::LeftToRight);
        m_window->resize(500, 400);
        EXPECT_TRUE(m_window->rect().contains(panel->geometry())) << "made smaller meanwhile";
        press(Qt::Key_Escape);
    }
}

TEST_F(AlertSheetTest, TellsAssistiveTechnologyWhatItIs)
{
    present(deleteCollectionAlert());
    QAccessibleInterface *panel = QAccessible::queryAccessibleInterface(part("AlertSheet.Panel"));
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->role(), QAccessible::AlertMessage);
    EXPECT_EQ(panel->text(QAccessible::Name), QStringLiteral("Delete Collection?"));
    EXPECT_EQ(panel->text(QAccessible::Description),
              QStringLiteral("This removes the collection but keeps the fonts on your Mac."));
}

TEST_F(AlertSheetTest, SaysItsNoteAfterTheBody)
{
    Alert alert = deleteCollectionAlert();
    alert.note = QStringLiteral("More goes with it.");
    present(alert);
    const QWidget *note = part("AlertSheet.Note");
    ASSERT_TRUE(note);
    EXPECT_GE(note->y(), part("AlertSheet.Body")->geometry().bottom());
    EXPECT_LT(note->font().pixelSize(), part("AlertSheet.Body")->font().pixelSize());
    EXPECT_EQ(part("AlertSheet.Panel")->accessibleDescription(),
              QString(alert.body + QLatin1String("\nMore goes with it.")));
    press(Qt::Key_Escape);
    present(deleteCollectionAlert());
    EXPECT_FALSE(part("AlertSheet.Note"));
}

TEST_F(AlertSheetTest, GoesUnansweredWithItsWindow)
{
    present(deleteCollectionAlert());
    present(deleteCollectionAlert());
    m_window.reset();
    EXPECT_THAT(m_answers, IsEmpty());
}

TEST_F(AlertSheetTest, HasTheFocusAlsoWhileItFadesIn)
{
    setReducedMotionOverride(false);
    present(deleteCollectionAlert());
    press(Qt::Key_X);
    EXPECT_EQ(m_field->text(), QString());
    EXPECT_TRUE(test::waitUntil([this] {
        QWidget *button = part("AlertSheet.Button1");
        return button && button->hasFocus();
    }));
    press(Qt::Key_Return);
    EXPECT_THAT(m_answers, ElementsAre(1));
}

TEST_F(AlertSheetTest, BoundsTheNamesOfStrangers)
{
    const QString huge(1'000'000, u'm');
    const QString turning = QStringLiteral("Foo\u202Edlob\u2066");
    const auto heightOf = [](const QString &text, int lines) {
        return WrappedText{text, QApplication::font(), lines}.heightFor(400);
    };
    EXPECT_EQ(heightOf(turning, 0), heightOf(QStringLiteral("Foodlob"), 0));
    EXPECT_EQ(heightOf(huge, 0), heightOf(huge.left(100'000), 0));
    EXPECT_LT(heightOf(huge.left(1000), 0), heightOf(huge, 0));

    const int real = QFontDatabase::addApplicationFont(
        QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf"));
    const QFont letters(QFontDatabase::applicationFontFamilies(real).value(0));
    const auto picture = [&](const QString &text) {
        QImage image(400, 60, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        WrappedText{text, letters, 0}.draw(painter, image.rect(), Qt::LeftToRight);
        return image;
    };
    EXPECT_EQ(picture(turning), picture(QStringLiteral("Foodlob")));
    EXPECT_NE(picture(turning), picture(QStringLiteral("Foobold")));
    QFontDatabase::removeApplicationFont(real);

    Alert alert = twoWays(Alert::Role::accept, Alert::Role::cancel);
    alert.title = huge;
    alert.body = huge;
    present(alert);
    EXPECT_TRUE(m_window->rect().contains(part("AlertSheet.Panel")->geometry()));
}

} // namespace
} // namespace lorva
