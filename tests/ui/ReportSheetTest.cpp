// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "SheetFixture.h"

#include <QAccessible>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QListView>
#include <QPushButton>
#include <QScrollBar>
#include <QToolTip>

namespace lorva {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

Report historyOf(int rowCount)
{
    Report report;
    report.title = QStringLiteral("Activation History");
    for (int i = 0; i < rowCount; ++i)
        report.rows.push_back(
            {QStringLiteral("Row %1").arg(i), QStringLiteral("detail"), QStringLiteral("noon")});
    report.copyText = QStringLiteral("everything");
    report.exportLabel = QStringLiteral("Export…");
    report.emptyText = QStringLiteral("Nothing yet.");
    return report;
}

class ReportSheetTest : public test::SheetFixture
{
protected:
    void show(const Report &report)
    {
        m_presenter.showReport(report, [this](const FilePath &file) { m_saved.push_back(file); });
    }
    QListView *list() const { return qobject_cast<QListView *>(part("ReportSheet.List")); }
    void clickRow(int row, Qt::KeyboardModifiers modifiers = {}) const
    {
        const QRect rect = list()->visualRect(list()->model()->index(row, 0));
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, modifiers, rect.center());
    }
    static QString copied() { return QGuiApplication::clipboard()->text(); }
    QFileDialog *dialog() const { return qobject_cast<QFileDialog *>(part("SaveDialog")); }

    std::vector<FilePath> m_saved;
};

TEST_F(ReportSheetTest, GoesThroughManyRowsByKeyboard)
{
    show(historyOf(20'000));
    const struct
    {
        int key;
        int row;
    } steps[]{{Qt::Key_Down, 1},
              {Qt::Key_End, 19'999},
              {Qt::Key_Up, 19'998},
              {Qt::Key_PageDown, 19'999},
              {Qt::Key_Home, 0}};
    for (const auto &step : steps) {
        press(step.key);
        const QModelIndex current = list()->currentIndex();
        EXPECT_EQ(current.row(), step.row);
        EXPECT_TRUE(list()->viewport()->rect().contains(list()->visualRect(current)));
    }
    EXPECT_TRUE(list()->hasFocus());
    press(Qt::Key_Return);
    EXPECT_FALSE(hasAlertSheet(*m_window)) << "Done is what Return presses";
    show(historyOf(3));
    press(Qt::Key_Escape);
    EXPECT_FALSE(hasAlertSheet(*m_window));
    EXPECT_TRUE(m_field->hasFocus());
}

TEST_F(ReportSheetTest, CopiesWhatIsSelectedOrEverything)
{
    show(historyOf(5));
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied(), QStringLiteral("everything"));
    clickRow(3);
    clickRow(1, Qt::ControlModifier);
    const QString two = QStringLiteral("noon\tRow 1\tdetail\nnoon\tRow 3\tdetail\n");
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied(), two) << "from the top down";
    QGuiApplication::clipboard()->clear();
    click("ReportSheet.Copy");
    EXPECT_EQ(copied(), two);
    clickRow(0);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Tab);
    EXPECT_FALSE(list()->hasFocus());
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(copied().count(u'\n'), 5) << "wherever the focus is";
}

TEST_F(ReportSheetTest, OffersOnlyWhatThereIs)
{
    Report bare = historyOf(1);
    bare.copyText.clear();
    bare.exportLabel.clear();
    const struct
    {
        const char *what;
        Report report;
        bool copy;
        bool exports;
        bool empty;
    } rows[]{{"all", historyOf(1), true, true, false},
             {"bare", bare, false, false, false},
             {"no rows", historyOf(0), false, false, true}};
    for (const auto &row : rows) {
        show(row.report);
        EXPECT_EQ(part("ReportSheet.Copy") != nullptr, row.copy) << row.what;
        EXPECT_EQ(part("ReportSheet.Export") != nullptr, row.exports) << row.what;
        EXPECT_EQ(textOf("ReportSheet.Empty"), row.empty ? row.report.emptyText : QString());
        EXPECT_EQ(list() != nullptr, !row.empty);
        click("ReportSheet.Done");
    }
    m_presenter.showReport(historyOf(1), {});
    EXPECT_FALSE(part("ReportSheet.Export")) << "nobody saves it";
}

TEST_F(ReportSheetTest, ExportsToTheFileThatIsChosen)
{
    show(historyOf(2));
    click("ReportSheet.Export");
    ASSERT_TRUE(dialog());
    EXPECT_EQ(QFileInfo(dialog()->selectedFiles().value(0)).fileName(),
              QStringLiteral("Activation History.csv"));
    dialog()->reject();
    EXPECT_TRUE(part("ReportSheet")) << "cancelled: back to the list";
    EXPECT_THAT(m_saved, IsEmpty());

    click("ReportSheet.Export");
    auto *name = dialog()->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    name->selectAll();
    QTest::keyClicks(name, QStringLiteral("mine"));
    QTest::keyClick(name, Qt::Key_Return);
    ASSERT_TRUE(test::waitUntil([this] { return !m_saved.empty(); }));
    EXPECT_THAT(m_saved,
                ElementsAre(FilePath::fromText(QDir::homePath() + QLatin1String("/mine.csv"))));
    EXPECT_FALSE(hasAlertSheet(*m_window)) << "what failed can be told at once";
}

TEST_F(ReportSheetTest, FitsEveryWindowAndElidesPathsInTheirMiddle)
{
    Report report = historyOf(300);
    report.body = QString(2000, u'b');
    report.rows[0].title =
        QLatin1String("/home/<b>") + QString(400, u'm') + QLatin1String("/Font.otf");
    for (const QSize window : {QSize(960, 800), QSize(500, 360), QSize(3000, 2000)}) {
        for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            m_window->resize(window);
            m_window->setLayoutDirection(direction);
            show(report);
            const QWidget *panel = part("ReportSheet.Panel");
            EXPECT_TRUE(m_window->rect().contains(panel->geometry())) << window.width();
            EXPECT_LE(panel->width(), 640);
            EXPECT_GE(list()->height(), 100) << "rows are seen beside any body";
            EXPECT_TRUE(rectOf(*panel).contains(rectOf(*part("ReportSheet.Done"))));
            press(Qt::Key_Escape);
        }
    }
    show(report);
    const QPoint first = list()->visualRect(list()->model()->index(0, 0)).center();
    QHelpEvent help(QEvent::ToolTip, first, list()->viewport()->mapToGlobal(first));
    QApplication::sendEvent(list()->viewport(), &help);
    EXPECT_TRUE(QToolTip::text().contains(QLatin1String("/home/&lt;b&gt;")));
    EXPECT_TRUE(QToolTip::text().contains(QLatin1String("Font.otf")));
    QToolTip::hideText();
}

} // namespace
} // namespace lorva
