// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What LanguagesTest.cpp does for the main window, for what comes over it and for opened files.

#include "LanguagesFixture.h"

#include "commands/ActivationTexts.h"
#include "commands/UpdateAlerts.h"
#include "platform/SingleInstance.h"
#include "ui/files/FontFilesWindow.h"
#include "ui/sheets/FontIndexingSheetController.h"
#include "ui/sheets/WindowPresenter.h"
#include "ui/style/SegmentedControl.h"

#include <QAbstractItemView>
#include <QLocale>

namespace lorva {
namespace {

using test::FontBuilder;
using test::kSerif;
using test::waitUntil;
using test::writeFile;

const QString kNew = QStringLiteral("Ζήτα");

class LanguagesOfSheets : public test::Languages
{
protected:
    LanguagesOfSheets()
    {
        QDir(xdgFolders().userFonts.displayText()).removeRecursively();
        QDir(folder.displayText()).removeRecursively();
    }
    void add(const char *file, const QByteArray &bytes) { writeFile(folder, file, bytes); }

    const FilePath folder = test::TestHome::instance().home().child("Ζώνη");
};

TEST_P(LanguagesOfSheets, CoverSwitchingFonts)
{
    add("1.ttf", FontBuilder(kNew).build());
    m_audit.data << QLocale().monthName(QDate::currentDate().month(), QLocale::ShortFormat);
    LaunchOptions options;
    options.folders = {folder};
    ActivationCommands &activation = launch(options, 3).activation();
    activation.showHistory();
    checkSheet("no history");
    leaveSheet();
    activation.activate({kNew});
    checkSheet("the question how to switch on");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    const QString copy = xdgFolders().userFonts.child("1.ttf").displayText();
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(copy) && !activation.isRunning(); }));
    checkSheet("what became of it");
    leaveSheet();
    activation.showHistory();
    checkSheet("history");
    leaveSheet();
    activation.deactivate({kNew});
    checkSheet("the question before switching off");
    leaveSheet();
    activation.deactivate({kSerif});
    checkSheet("a refusal");
}

TEST_P(LanguagesOfSheets, CoverFailuresAndProgress)
{
    launch();
    QMainWindow &window = *m_delegate->window();
    WindowPresenter presenter(window, std::chrono::milliseconds(0));
    presenter.showReport(failuresReport({{FilePath("/1.ttf"), {}},
                                         {FilePath("/2.ttf"), {{}, 1, QStringLiteral("Γ")}}}),
                         {});
    checkSheet("failures");
    leaveSheet();
    const auto progress = presenter.showProgress(activationProgress(kNew, 1, 4), [] {});
    checkSheet("progress");
}

TEST_P(LanguagesOfSheets, CoverTheFirstScan)
{
    using Kind = FontScanPhase::Kind;
    launch();
    auto *sheet = new FontIndexingSheetController(*m_delegate->window());
    sheet->present();
    check("before it begins");
    for (const Kind kind :
         {Kind::enumerating, Kind::scanning, Kind::identifying, Kind::preparing}) {
        sheet->update(1000, 4000, kind);
        check("a phase");
    }
    sheet->dismiss();
}

TEST_P(LanguagesOfSheets, CoverUpdates)
{
    using Kind = UpdateOutcome::Kind;
    launch();
    const Release release{QStringLiteral("9.9"), QDate(2030, 1, 2),
                          QUrl(QStringLiteral("https://1.2/3")), QStringLiteral("Νέα.")};
    m_audit.data << QLocale().toString(release.date).split(u' ');
    std::vector<Alert> alerts{updateAlert({Kind::newer, release, {}}, QStringLiteral("1.2")),
                              updateAlert({Kind::upToDate, release, {}}, QStringLiteral("9.9")),
                              noUpdatesAlert(std::nullopt),
                              noUpdatesAlert(Error{ErrorKind::ioFailure, QStringLiteral("Γ")})};
    for (const ErrorKind kind : {ErrorKind::ioFailure, ErrorKind::notFound, ErrorKind::malformed,
                                 ErrorKind::invalidValue, ErrorKind::unsupported})
        alerts.push_back(updateAlert({Kind::failed, {}, Error{kind, QStringLiteral("Γ")}},
                                     QStringLiteral("1.2")));
    for (const Alert &alert : alerts) {
        presentAlert(*m_delegate->window(), alert, {});
        checkSheet("updates");
        leaveSheet();
    }
}

TEST_P(LanguagesOfSheets, CoverOpenedFiles)
{
    add("1.ttf", FontBuilder(kNew).codePoints(U"Aa 123").substitution("smcp", U'a', U'A').build());
    add("2.ttf",
        FontBuilder(kNew, QStringLiteral("Bold")).weightClass(700).codePoints(U"Aa").build());
    add("3.ttf", "OTTO");
    m_audit.data << QStringLiteral("smcp");
    launch();
    m_delegate->takeOver({{"1.ttf", "2.ttf", "3.ttf", "4.ttf", "https://1.2/3"}, folder, {}});
    ASSERT_TRUE(waitUntil([&] {
        return m_delegate->filesWindow() && m_delegate->filesWindow()->isVisible()
            && m_delegate->filesWindow()->isSettled();
    }));
    m_delegate->window()->hide();
    FontFilesWindow &window = *m_delegate->filesWindow();
    const auto settleFiles = [&] { EXPECT_TRUE(waitUntil([&] { return window.isSettled(); })); };
    for (const char *name : {"InspectorTabs", "fontFilesStages"}) {
        auto *segments = window.findChild<SegmentedControl *>(QString::fromLatin1(name));
        ASSERT_TRUE(segments);
        for (const int index : {1, 0}) {
            Q_EMIT segments->activated(index);
            settleFiles();
            check(name);
        }
    }
    auto *list = window.findChild<QAbstractItemView *>(QStringLiteral("FontFilesListView"));
    ASSERT_TRUE(list);
    list->setFocus();
    for (int row = 0; row < list->model()->rowCount(); ++row) {
        QTest::keyClick(list, Qt::Key_Down);
        settleFiles();
        check(qPrintable(list->currentIndex().data().toString()));
    }
    EXPECT_EQ(list->currentIndex().row(), list->model()->rowCount() - 1);
    window.activation().activate({kNew});
    ASSERT_TRUE(waitUntil([&] { return hasAlertSheet(window); }));
    check("the question how to switch on");
}

INSTANTIATE_TEST_SUITE_P(All, LanguagesOfSheets, testing::ValuesIn(test::languages()),
                         [](const auto &row) { return row.param; });

} // namespace
} // namespace lorva
