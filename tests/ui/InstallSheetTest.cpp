// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "SheetFixture.h"

#include <QAbstractButton>
#include <QAccessible>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr auto kCopy = InstallMethod::copy;
constexpr auto kRegister = InstallMethod::registerInPlace;

class InstallSheetTest : public test::SheetFixture
{
protected:
    void ask(const QString &name = QStringLiteral("Foo"), std::optional<QString> note = {})
    {
        m_presenter.askInstallMethod({name, std::move(note)},
                                     [this](std::optional<InstallMethod> method, bool remember) {
                                         m_answers.emplace_back(method, remember);
                                     });
    }

    std::vector<std::pair<std::optional<InstallMethod>, bool>> m_answers;
};

TEST_F(InstallSheetTest, SaysWhatTheMethodsDo)
{
    const QString note = QStringLiteral("This font's file also contains Bar. Activating makes it "
                                        "available too.");
    ask(QStringLiteral("3 Fonts"), note);
    const struct
    {
        const char *part;
        const char *text;
        const char *description;
    } rows[]{
        {"InstallSheet.Title", "3 Fonts", ""},
        {"InstallSheet.Body",
         "Choose how to activate this font family in macOS. Both methods make it available in "
         "every app on your Mac.",
         ""},
        {"InstallSheet.Copy", "Copy to Fonts Folder",
         "Copies the font files into your user Fonts folder. Works even if the originals move or "
         "go offline."},
        {"InstallSheet.Register", "Register in Place",
         "Activates the font from its current location, but deactivates if the source moves."},
        {"InstallSheet.Remember", "Remember this choice (change later in Settings)", ""},
        {"InstallSheet.Cancel", "Cancel", ""},
    };
    for (const auto &row : rows) {
        ASSERT_TRUE(part(row.part)) << row.part;
        EXPECT_EQ(textOf(row.part), QString::fromUtf8(row.text));
        EXPECT_EQ(part(row.part)->accessibleDescription(), QString::fromUtf8(row.description));
    }
    EXPECT_EQ(textOf("InstallSheet.Note"), note);
    QAccessibleInterface *panel = QAccessible::queryAccessibleInterface(part("InstallSheet.Panel"));
    EXPECT_EQ(panel->role(), QAccessible::Dialog);
    EXPECT_EQ(panel->text(QAccessible::Name), QStringLiteral("3 Fonts"));
    EXPECT_TRUE(panel->text(QAccessible::Description).endsWith(note));
    EXPECT_FALSE(qobject_cast<QAbstractButton *>(part("InstallSheet.Remember"))->isChecked());
    press(Qt::Key_Escape);
    ask();
    EXPECT_FALSE(part("InstallSheet.Note"));
}

TEST_F(InstallSheetTest, AnswersKeysAndClicks)
{
    const struct
    {
        const char *what;
        std::vector<int> keys;
        const char *click;
        std::optional<InstallMethod> method;
        bool remember;
    } rows[]{
        {"the first at once", {Qt::Key_Return}, nullptr, kCopy, false},
        {"or by Enter", {Qt::Key_Enter}, nullptr, kCopy, false},
        {"or by Space", {Qt::Key_Space}, nullptr, kCopy, false},
        {"the second by Tab", {Qt::Key_Tab, Qt::Key_Space}, nullptr, kRegister, false},
        {"or an arrow", {Qt::Key_Down, Qt::Key_Return}, nullptr, kRegister, false},
        {"and back", {Qt::Key_Down, Qt::Key_Up, Qt::Key_Return}, nullptr, kCopy, false},
        {"cancel is the last", {Qt::Key_Backtab, Qt::Key_Return}, nullptr, {}, false},
        {"Escape", {Qt::Key_Escape}, nullptr, {}, false},
        {"the check box before cancel",
         {Qt::Key_Down, Qt::Key_Down, Qt::Key_Space, Qt::Key_Up, Qt::Key_Return},
         nullptr,
         kRegister,
         true},
        {"Return on the check box chooses nothing",
         {Qt::Key_Tab, Qt::Key_Tab, Qt::Key_Return, Qt::Key_Escape},
         nullptr,
         {},
         false},
        {"click on one", {}, "InstallSheet.Copy", kCopy, false},
        {"on the other", {}, "InstallSheet.Register", kRegister, false},
        {"on cancel", {}, "InstallSheet.Cancel", {}, false},
    };
    for (const auto &row : rows) {
        m_answers.clear();
        ask();
        press(row.keys);
        if (row.click)
            click(row.click);
        EXPECT_THAT(m_answers, ElementsAre(Pair(row.method, row.remember))) << row.what;
        EXPECT_TRUE(m_field->hasFocus()) << row.what;
    }
    m_answers.clear();
    ask();
    click("InstallSheet.Remember");
    click("InstallSheet.Register");
    EXPECT_THAT(m_answers, ElementsAre(Pair(kRegister, true)));
}

TEST_F(InstallSheetTest, FitsEveryWindowAndShowsWhatHasTheFocus)
{
    const QString names[]{QString(300, u'M'), QStringLiteral("鼹文楷体"),
                          QStringLiteral("الخط الأميري"), QStringLiteral("देवनागरी")};
    const QSize windows[]{{960, 800}, {420, 420}, {300, 300}};
    for (const QString &name : names) {
        for (const QSize window : windows) {
            const bool isMirrored = name == names[2];
            m_window->resize(window);
            m_window->setLayoutDirection(isMirrored ? Qt::RightToLeft : Qt::LeftToRight);
            ask(name, name);
            const QRect panel = rectOf(*part("InstallSheet.Panel"));
            EXPECT_TRUE(m_window->rect().contains(panel)) << window.width();
            for (int i = 0; i < 4; ++i) {
                const QWidget *focused = QApplication::focusWidget();
                EXPECT_FALSE(focused->visibleRegion().isEmpty()) << window.width() << " " << i;
                EXPECT_TRUE(panel.contains(rectOf(*focused).center())) << i;
                press(Qt::Key_Tab);
            }
            const bool cancelIsRight =
                rectOf(*part("InstallSheet.Cancel")).center().x() > panel.center().x();
            EXPECT_NE(cancelIsRight, isMirrored);
            press(Qt::Key_Escape);
        }
    }
}

} // namespace
} // namespace lorva
