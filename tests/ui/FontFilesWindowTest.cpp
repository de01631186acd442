// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Font files are opened, looked through and switched as a person does it: with keys, clicks and
// drops on the window.

#include "FontFilesFixture.h"
#include "ui/detail/CharacterGridView.h"
#include "ui/detail/WaterfallView.h"
#include "ui/files/FontFilesList.h"
#include "ui/style/Palette.h"

#include <QDropEvent>
#include <QMimeData>
#include <QTextEdit>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::waitUntil;
using test::writeFile;
using testing::Contains;
using testing::ElementsAre;

class FontFilesWindowTest : public test::FontFilesFixture
{
};

TEST_F(FontFilesWindowTest, ShowsOneFaceWithoutAListAndEverythingAboutIt)
{
    open({"two.ttf"});
    EXPECT_EQ(shown(), "Two Regular");
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Two"));
    EXPECT_FALSE(list().isVisible());
    EXPECT_EQ(preview().text(), QStringLiteral("Aa 123")) << "the pangram is not in the face";
    EXPECT_EQ(status(), QStringLiteral("Not active"));
    auto &inspector = part<QWidget>("InspectorInfoView");
    QStringList facts;
    for (const QTextEdit *value : inspector.findChildren<QTextEdit *>())
        facts << value->toPlainText();
    EXPECT_THAT(facts, Contains(QStringLiteral("Two")));
    const auto *grid = window->findChild<CharacterGridView *>();
    EXPECT_TRUE(waitUntil([&] { return !grid->model().characterSections().empty(); }));
    EXPECT_EQ(library.model->allFamilies()->size(), 0U) << "nothing is added to the library";
}

TEST_F(FontFilesWindowTest, KeysLeadFromFaceToFacePastHeadingsAndDamagedFiles)
{
    writeFile(folder, "bad.ttf", "no font");
    open({"one-bold.ttf", "bad.ttf", "two.ttf", "one.ttf"});
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(shown(), "One Regular");
    QStringList rows;
    for (int i = 0; i < list().model()->rowCount(); ++i)
        rows << list().model()->index(i, 0).data(Qt::AccessibleTextRole).toString();
    EXPECT_EQ(rows,
              QStringList({QStringLiteral("One"), QStringLiteral("Regular, One"),
                           QStringLiteral("Bold, One"), QStringLiteral("Two"),
                           QStringLiteral("Regular, Two"), QStringLiteral("Not Shown"),
                           QStringLiteral("bad.ttf, Not Shown")}));
    std::vector<std::string> passed;
    ASSERT_EQ(window->focusWidget(), &list()) << "without a click";
    for (int i = 0; i < 4; ++i) {
        QTest::keyClick(&list(), Qt::Key_Down);
        passed.push_back(shown());
    }
    EXPECT_THAT(passed, ElementsAre("One Bold", "Two Regular", "bad.ttf", "bad.ttf"));
    EXPECT_FALSE(button("fontFilesActivate").isVisible());
    EXPECT_TRUE(button("fontFilesActivateAll").isVisible()) << "the others can be switched";
    QTest::keyClick(&list(), Qt::Key_Home);
    EXPECT_EQ(shown(), "One Regular");
    // The row of before is on its way out.
    QTest::mouseClick(
        window->findChildren<QAbstractButton *>(QStringLiteral("styleRow Bold")).last(),
        Qt::LeftButton);
    EXPECT_EQ(shown(), "One Bold");
    EXPECT_EQ(list().currentIndex().row(), 2) << "the list follows the rows of the page";
}

TEST_F(FontFilesWindowTest, WhatIsTypedStaysFromFaceToFace)
{
    open({"one.ttf", "one-bold.ttf"});
    QTest::mouseClick(&preview(), Qt::LeftButton, {}, QPoint(20, 40));
    QTest::keySequence(&preview(), QKeySequence::SelectAll);
    QTest::keyClicks(&preview(), QStringLiteral("cab"));
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(shown(), "One Bold");
    EXPECT_EQ(preview().text(), QStringLiteral("cab"));
    QTest::mouseClick(part<QWidget>("fontFilesStages").findChildren<QAbstractButton *>().at(1),
                      Qt::LeftButton);
    EXPECT_FALSE(preview().isVisible());
    EXPECT_TRUE(window->findChild<WaterfallView *>()->isVisible());
    QTest::mouseClick(part<QWidget>("fontFilesStages").findChildren<QAbstractButton *>().at(0),
                      Qt::LeftButton);
    QTest::mouseClick(&preview(), Qt::LeftButton, {}, QPoint(20, 40));
    QTest::keyClick(&preview(), Qt::Key_Escape);
    EXPECT_TRUE(window->isVisible()) << "the first Escape leaves the text";
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_FALSE(window->isVisible());
}

TEST_F(FontFilesWindowTest, AFamilyIsSwitchedOnAndOff)
{
    open({"one.ttf", "one-bold.ttf", "two.ttf"});
    copyShownFamily();
    using std::filesystem::exists;
    EXPECT_TRUE(exists(library.folders.userFonts.child("one.ttf").c_str()));
    EXPECT_TRUE(exists(library.folders.userFonts.child("one-bold.ttf").c_str()));
    EXPECT_FALSE(exists(library.folders.userFonts.child("two.ttf").c_str()));
    EXPECT_FALSE(button("fontFilesActivate").isVisible());
    click("fontFilesDeactivate");
    answer(QStringLiteral("De-activate"));
    answer(QStringLiteral("Done"));
    EXPECT_TRUE(becomes("Not active"));
    EXPECT_FALSE(exists(library.folders.userFonts.child("one.ttf").c_str()));
    EXPECT_TRUE(exists(folder.child("one.ttf").c_str())) << "the opened file stays";
}

TEST_F(FontFilesWindowTest, ANamesakeInTheFontsFolderIsNotTakenForTheFont)
{
    writeFile(library.folders.userFonts, "two.ttf", FontBuilder("Stranger").build());
    library.installation->takeChangesElsewhere();
    open({"two.ttf"});
    EXPECT_TRUE(becomes("Another font has this file’s name in the Fonts folder"));
    EXPECT_FALSE(button("fontFilesActivate").isVisible());
    EXPECT_FALSE(button("fontFilesDeactivate").isVisible());
}

TEST_F(FontFilesWindowTest, FilesOfTheSystemAreSaidToBeActive)
{
    const FilePath file = library.addFamily(QStringLiteral("Listed"));
    window->open({file});
    settle();
    EXPECT_EQ(status(), QStringLiteral("Active through the system"));
    EXPECT_FALSE(button("fontFilesActivate").isVisible());
    EXPECT_FALSE(button("fontFilesDeactivate").isVisible());
}

TEST_F(FontFilesWindowTest, AnotherOpeningTakesThePlaceOfTheFirst)
{
    open({"one.ttf", "one-bold.ttf"});
    open({"two.ttf"});
    EXPECT_EQ(shown(), "Two Regular");
    EXPECT_FALSE(list().isVisible());
    // The file is another one now.
    add("two.ttf", FontBuilder("Second").codePoints(U"Aa"));
    open({"two.ttf"});
    EXPECT_EQ(shown(), "Second Regular");
    EXPECT_FALSE(page().face().font.isStandIn());
    window->open({}, {QStringLiteral("http://x.example/y.ttf")});
    settle();
    EXPECT_EQ(shown(), "http://x.example/y.ttf");
}

TEST_F(FontFilesWindowTest, HundredsOfFilesComeInPartsAndKeepWhatIsChosen)
{
    std::vector<FilePath> files;
    for (int i = 0; i < 300; ++i) {
        const QByteArray name = "many" + QByteArray::number(i).rightJustified(3, '0');
        files.push_back(
            writeFile(folder, name + ".ttf",
                      FontBuilder(QString::fromLatin1(name)).codePoints(U"Aa").build()));
    }
    window->open(files);
    window->present();
    ASSERT_TRUE(waitUntil([this] { return window->state().families.size() > 2; }));
    QTest::keyClick(&list(), Qt::Key_Down);
    EXPECT_EQ(shown(), "many001 Regular");
    settle();
    EXPECT_EQ(window->state().families.size(), 300U);
    EXPECT_EQ(shown(), "many001 Regular");
}

TEST_F(FontFilesWindowTest, LeadsToTheLibraryAndTakesDrops)
{
    open({"two.ttf"});
    click("fontFilesLibrary");
    EXPECT_THAT(wanted, ElementsAre(QStringLiteral("Two")));
    QMimeData data;
    data.setData(QStringLiteral("text/uri-list"), folder.child("one.ttf").toUrl());
    QDragEnterEvent enter(QPoint(200, 200), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          {});
    QApplication::sendEvent(window.get(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(QPointF(200, 200), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(window.get(), &drop);
    EXPECT_TRUE(drop.isAccepted());
    EXPECT_EQ(drop.dropAction(), Qt::CopyAction) << "the file manager keeps its file";
    EXPECT_THAT(dropped, ElementsAre(folder.child("one.ttf")));
}

TEST_F(FontFilesWindowTest, IsUsableNarrowMirroredAndDark)
{
    open({"one.ttf", "two.ttf"});
    window->resize(FontFilesWindow::kSmallestSize);
    auto &inspector = part<QWidget>("FontInspector");
    EXPECT_FALSE(inspector.isVisible());
    click("fontFilesInspector");
    EXPECT_TRUE(inspector.isVisible()) << "over the page";
    EXPECT_EQ(inspector.geometry().right(), window->width() - 1);
    window->setLayoutDirection(Qt::RightToLeft);
    EXPECT_EQ(inspector.geometry().left(), 0);
    EXPECT_EQ(part<QWidget>("FontFilesList").geometry().right(), window->width() - 1);
    setDarkDesktopOverride(true);
    const QImage picture = window->grab().toImage();
    EXPECT_LT(qGray(picture.pixel(picture.width() / 2, picture.height() - 4)), 60);
    setDarkDesktopOverride(std::nullopt);
}

} // namespace
} // namespace lorva
