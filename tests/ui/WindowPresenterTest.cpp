// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/WindowPresenter.h"
#include "commands/OrganizationAlerts.h"
#include "SheetFixture.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QPushButton>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class WindowPresenterTest : public test::SheetFixture
{
protected:
    static QString folder(const char *name)
    {
        const QString path = QDir::homePath() + u'/' + QLatin1String(name);
        EXPECT_TRUE(QDir().mkpath(path));
        return path;
    }
    void ask(bool several, const QString &prompt = QStringLiteral("Watch"))
    {
        m_presenter.askFolders(
            {QStringLiteral("Choose one."), prompt, several},
            [this](const std::vector<FilePath> &chosen) { m_chosen.push_back(chosen); });
    }
    QFileDialog *dialog() const { return qobject_cast<QFileDialog *>(part("FolderDialog")); }
    /// Waits for the folder to be listed, and clicks it.
    void clickFolder(const QString &name, Qt::KeyboardModifiers modifiers)
    {
        auto *view = dialog()->findChild<QAbstractItemView *>(QStringLiteral("listView"));
        QModelIndex found;
        ASSERT_TRUE(test::waitUntil([&] {
            const QModelIndexList hits =
                view->model()->match(view->model()->index(0, 0, view->rootIndex()), Qt::DisplayRole,
                                     name, 1, Qt::MatchExactly);
            found = hits.value(0);
            return found.isValid() && !view->visualRect(found).isEmpty();
        }));
        view->scrollTo(found);
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers,
                          view->visualRect(found).center());
    }
    void accept(const QString &prompt)
    {
        for (QPushButton *button : dialog()->findChildren<QPushButton *>())
            if (button->text().remove(u'&') == prompt) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        FAIL() << "no such button";
    }

    std::vector<std::vector<FilePath>> m_chosen;
};

TEST_F(WindowPresenterTest, ShowsEveryKindInTurn)
{
    QStringList said;
    m_presenter.showAlert(deleteCollectionAlert(), [&](int) {
        said << QStringLiteral("alert");
        m_presenter.showAlert(deleteCollectionAlert(),
                              [&](int) { said << QStringLiteral("asked in an answer"); });
    });
    m_presenter.askInstallMethod({QStringLiteral("Foo"), {}},
                                 [&](auto, bool) { said << QStringLiteral("method"); });
    ask(false);
    m_presenter.showReport({QStringLiteral("List"), {}, {}}, {});
    const char *const kinds[]{"AlertSheet", "InstallSheet", "FolderDialog", "ReportSheet",
                              "AlertSheet"};
    for (const char *kind : kinds) {
        EXPECT_TRUE(hasAlertSheet(*m_window));
        ASSERT_TRUE(part(kind)) << kind;
        QTest::keyClick(dialog() ? dialog() : QApplication::focusWidget(), Qt::Key_Escape);
    }
    EXPECT_FALSE(hasAlertSheet(*m_window));
    EXPECT_THAT(said,
                ElementsAre(QStringLiteral("alert"), QStringLiteral("method"),
                            QStringLiteral("asked in an answer")));
    EXPECT_THAT(m_chosen, ElementsAre(IsEmpty()));
}

TEST_F(WindowPresenterTest, ChoosesSeveralFoldersAndBeginsThereAgain)
{
    const QString one = folder("fonts of mine/one \"quoted\"");
    const QString two = folder("fonts of mine/two");
    folder("fonts of mine/three");
    ask(true);
    ASSERT_TRUE(dialog());
    EXPECT_EQ(dialog()->windowTitle(), QStringLiteral("Choose one."));
    EXPECT_EQ(dialog()->directory().absolutePath(), QDir::homePath());
    dialog()->setDirectory(QDir::homePath() + QLatin1String("/fonts of mine"));
    clickFolder(QStringLiteral("two"), Qt::NoModifier);
    clickFolder(QStringLiteral("one \"quoted\""), Qt::ControlModifier);
    accept(QStringLiteral("Watch"));
    ASSERT_TRUE(test::waitUntil([this] { return !m_chosen.empty(); }));
    EXPECT_THAT(m_chosen.front(),
                UnorderedElementsAre(FilePath::fromText(one), FilePath::fromText(two)));

    ask(false);
    EXPECT_EQ(dialog()->directory().absolutePath(),
              QDir::homePath() + QLatin1String("/fonts of mine"));
    clickFolder(QStringLiteral("two"), Qt::NoModifier);
    accept(QStringLiteral("Watch"));
    ASSERT_TRUE(test::waitUntil([this] { return m_chosen.size() == 2; }));
    EXPECT_THAT(m_chosen.back(), ElementsAre(FilePath::fromText(two)));

    ASSERT_TRUE(QDir(QDir::homePath() + QLatin1String("/fonts of mine")).removeRecursively());
    ask(false, QString());
    EXPECT_EQ(dialog()->directory().absolutePath(), QDir::homePath()) << "that one has gone";
}

TEST_F(WindowPresenterTest, NothingAnswersWhenTheWindowGoes)
{
    const struct
    {
        const char *what;
        std::function<void(WindowPresenter &, int &)> ask;
    } rows[]{
        {"alert",
         [](WindowPresenter &presenter, int &answers) {
             presenter.showAlert(deleteCollectionAlert(), [&answers](int) { ++answers; });
         }},
        {"method",
         [](WindowPresenter &presenter, int &answers) {
             presenter.askInstallMethod({}, [&answers](auto, bool) { ++answers; });
         }},
        {"folders",
         [](WindowPresenter &presenter, int &answers) {
             presenter.askFolders({}, [&answers](const auto &) { ++answers; });
         }},
        {"report",
         [](WindowPresenter &presenter, int &answers) {
             presenter.showReport({}, [&answers](const auto &) { ++answers; });
         }},
    };
    for (const auto &row : rows) {
        auto window = std::make_unique<QMainWindow>();
        window->show();
        WindowPresenter presenter(*window);
        int answers = 0;
        for (int i = 0; i < 2; ++i)
            row.ask(presenter, answers);
        EXPECT_TRUE(hasAlertSheet(*window)) << row.what;
        window.reset();
        EXPECT_FALSE(presenter.isAvailable()) << row.what;
        row.ask(presenter, answers);
        EXPECT_EQ(answers, 0) << row.what;
    }
}

TEST_F(WindowPresenterTest, GoesOnWhenSomethingElseDeletesWhatIsShown)
{
    m_presenter.askInstallMethod({}, [](auto, bool) {});
    m_presenter.showAlert(deleteCollectionAlert(), {});
    delete part("InstallSheet");
    EXPECT_TRUE(part("AlertSheet"));
}

} // namespace
} // namespace lorva
