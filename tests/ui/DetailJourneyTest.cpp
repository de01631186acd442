// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// A family is opened, tried and left as a person does it: with keys and clicks in the whole window.

#include "support/LibraryFixture.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/detail/DetailPreviewView.h"
#include "ui/detail/FontDetailViewController.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenu>
#include <QSlider>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::LibraryFixture;
using test::waitUntil;
using testing::HasSubstr;
using testing::Not;

/// What the inspector opens outside of the program.
struct RecordingDesktop final : DesktopOpener
{
    void openLink(const QUrl &link) override { opened << link.toString(); }
    void showFile(const FilePath &file) override { opened << file.displayText(); }
    QStringList opened;
};

class DetailJourney : public ::testing::Test
{
protected:
    DetailJourney()
    {
        setReducedMotionOverride(true);
        const FilePath folder = test::TestHome::instance().root().child("library");
        // Two styles that can do something, and two families around them.
        library.addFamilies(QStringLiteral("Face"), 2);
        add(folder, "Lively", FontBuilder(QStringLiteral("Lively"), QStringLiteral("Regular")));
        add(folder, "LivelyBold",
            FontBuilder(QStringLiteral("Lively"), QStringLiteral("Bold")).weightClass(700));
        root = std::make_unique<LorvaRootSplitViewController>(
            *library.model, PaneServices{nullptr, nullptr, desktop});
        root->resize(1500, 900);
        root->show();
        root->activateWindow();
        EXPECT_TRUE(library.load());
        EXPECT_TRUE(waitUntil([this] { return root->isSettled(); }));
    }
    ~DetailJourney() override { setReducedMotionOverride(std::nullopt); }

    void add(const FilePath &folder, const QByteArray &name, FontBuilder builder)
    {
        builder.postScriptName(QString::fromLatin1(name)).codePoints(U"Aabc 123");
        builder.advance(U'b', 900).substitution("smcp", U'a', U'b').axis("SOFT", 0, 10, 100);
        library.fonts->files.push_back(test::writeFile(folder, name + ".ttf", builder.build()));
    }
    void open(const char *family)
    {
        model().selectFamily(QString::fromLatin1(family));
        root->render();
        root->browser().focusCards();
        QTest::keyClick(&root->browser().collectionView(), Qt::Key_Return);
        settle();
    }
    void settle()
    {
        root->render();
        EXPECT_TRUE(waitUntil([this] { return root->isSettled(); }));
    }
    LorvaAppModel &model() { return *library.model; }
    FontDetailViewController &detail() { return *root->detail(); }
    DetailPreviewView &preview() { return *root->findChild<DetailPreviewView *>(); }
    std::string css() { return detail().css().toStdString(); }
    template <class Widget>
    Widget *part(const QString &name)
    {
        auto *found = root->findChild<Widget *>(name);
        EXPECT_NE(found, nullptr) << name.toStdString();
        return found;
    }
    void press(QWidget *widget, Qt::Key key) { QTest::keyClick(widget, key); }

    std::shared_ptr<RecordingDesktop> desktop = std::make_shared<RecordingDesktop>();
    LibraryFixture library;
    std::unique_ptr<LorvaRootSplitViewController> root;
};

TEST_F(DetailJourney, ReturnOpensAFamilyAndEscapeLeadsBackToItsCard)
{
    open("Lively");
    EXPECT_TRUE(root->isDetailOpen());
    EXPECT_EQ(root->title(), QStringLiteral("Lively"));
    EXPECT_FALSE(root->browser().isVisible());
    EXPECT_TRUE(root->inspector()->isVisible());
    EXPECT_EQ(root->selectedNames(), QStringList("Lively"));
    root->detailActions().detailNeighbourWanted(-1);
    settle();
    EXPECT_EQ(root->title(), QStringLiteral("Face 001"));
    press(QApplication::focusWidget(), Qt::Key_Escape);
    root->render();
    EXPECT_FALSE(root->isDetailOpen());
    EXPECT_TRUE(root->browser().isVisible());
    EXPECT_TRUE(root->browser().collectionView().hasFocus());
    EXPECT_EQ(root->browser().selectedNames(), QStringList("Face 001"));
}

TEST_F(DetailJourney, WhatIsTypedIsTheSampleTextAndSurvivesTheFacesOwnJudgement)
{
    open("Lively");
    QTest::mouseClick(&preview(), Qt::LeftButton, {}, QPoint(20, 40));
    QTest::keySequence(&preview(), QKeySequence::SelectAll);
    QTest::keyClicks(&preview(), QStringLiteral("cab"));
    root->render();
    EXPECT_EQ(model().sampleText(), QStringLiteral("cab"));
    QTest::keySequence(&preview(), QKeySequence::SelectAll);
    press(&preview(), Qt::Key_Backspace);
    root->render();
    EXPECT_EQ(preview().text(), QString()) << "nothing is put in its place while one types";
    EXPECT_EQ(model().sampleText(), QStringLiteral("cab")) << "a blank text is nobody's choice";
    press(&preview(), Qt::Key_Escape);
    root->render();
    EXPECT_TRUE(root->isDetailOpen()) << "the first Escape leaves the text";
    EXPECT_EQ(preview().text(), QStringLiteral("cab"));
    press(QApplication::focusWidget(), Qt::Key_Escape);
    root->render();
    EXPECT_FALSE(root->isDetailOpen());
}

TEST_F(DetailJourney, FeaturesAndAxesShapeThePreviewUntilAnotherFaceIsShown)
{
    open("Lively");
    EXPECT_THAT(css(), Not(HasSubstr("smcp")));
    QTest::mouseClick(part<QAbstractButton>(QStringLiteral("Feature.37:1.switch")), Qt::LeftButton);
    EXPECT_THAT(css(), HasSubstr("\"smcp\""));
    auto *value = part<QLineEdit>(QStringLiteral("Axis.SOFT.value"));
    value->setFocus();
    value->selectAll();
    QTest::keyClicks(value, QStringLiteral("60"));
    press(value, Qt::Key_Return);
    EXPECT_THAT(css(), HasSubstr("\"SOFT\" 60"));
    const QImage changed = preview().grab().toImage();

    QTest::mouseClick(part<QWidget>(QStringLiteral("styleRow Bold")), Qt::LeftButton, {},
                      QPoint(20, 20));
    settle();
    EXPECT_THAT(css(), HasSubstr("font-weight: 700"));
    EXPECT_THAT(css(), Not(testing::AnyOf(HasSubstr("smcp"), HasSubstr("SOFT"))));
    EXPECT_NE(preview().grab().toImage(), changed);
}

TEST_F(DetailJourney, AFamilyThatIsGoneIsClosedAndAnotherSourceClosesToo)
{
    open("Lively");
    ASSERT_TRUE(QFile::remove(library.fonts->files.back().displayText()));
    ASSERT_TRUE(QFile::remove((library.fonts->files.end() - 2)->displayText()));
    preview().grab();
    ASSERT_TRUE(root->isDetailOpen()) << "its file is missing, and nobody has looked yet";
    library.fonts->files.resize(library.fonts->files.size() - 2);
    ASSERT_TRUE(library.load());
    root->render();
    root->render();
    EXPECT_FALSE(root->isDetailOpen());

    open("Face 000");
    ASSERT_TRUE(root->isDetailOpen());
    root->sidebarActions().sidebarSelected(BrowserSource::active());
    root->render();
    EXPECT_FALSE(root->isDetailOpen());
}

TEST_F(DetailJourney, ANarrowWindowKeepsTheInspectorAwayUntilItIsAskedFor)
{
    open("Lively");
    const int width = detail().width();
    EXPECT_EQ(width, 1500 - 232 - FontInspectorViewController::kWidth);
    root->resize(1000, 900);
    settle();
    EXPECT_FALSE(root->inspector()->isVisible());
    EXPECT_EQ(detail().width(), 1000 - 232);
    QTest::mouseClick(part<QAbstractButton>(QStringLiteral("inspectorButton")), Qt::LeftButton);
    settle();
    EXPECT_TRUE(root->inspector()->isVisible());
    EXPECT_EQ(detail().width(), 1000 - 232) << "it lies over the page";
    root->resize(1500, 900);
    settle();
    EXPECT_EQ(detail().width(), width);
}

TEST_F(DetailJourney, EveryStageCanBeTakenAwayAsAFile)
{
    const FilePath folder = test::TestHome::instance().makeFolder("exports");
    open("Lively");
    int files = 0;
    for (const DetailStage stage :
         {DetailStage::text, DetailStage::waterfall, DetailStage::comparison}) {
        root->detailActions().detailStageChanged(stage);
        settle();
        root->exportDetail();
        auto *dialog = root->window()->findChild<QFileDialog *>(QStringLiteral("SaveDialog"));
        ASSERT_NE(dialog, nullptr);
        const QString path =
            folder.child(QByteArray("page" + QByteArray::number(++files) + ".svg")).displayText();
        dialog->selectFile(path);
        QMetaObject::invokeMethod(dialog, "accept");
        ASSERT_TRUE(waitUntil([&path] { return QFile::exists(path); }));
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_THAT(file.readAll().toStdString(), HasSubstr("<path")) << int(stage);
        ASSERT_TRUE(waitUntil([&] { return !root->window()->findChild<QFileDialog *>(); }));
    }
}

TEST_F(DetailJourney, TheMenuKnowsWhereTheFamilyBelongs)
{
    const QString id = model().createCollection(QStringLiteral("Posters")).value();
    open("Lively");
    QTest::mouseClick(part<QAbstractButton>(QStringLiteral("detailMenuButton")), Qt::LeftButton);
    auto *collections = part<QMenu>(QStringLiteral("collectionsMenu"));
    ASSERT_NE(collections, nullptr);
    collections->popup({});
    ASSERT_EQ(collections->actions().size(), 1);
    collections->actions().constFirst()->trigger();
    EXPECT_TRUE(model().isMember(QStringLiteral("Lively"), id));
}

TEST_F(DetailJourney, WhoStopsTypingBeforeTheModelAnswersKeepsTextAndHistory)
{
    open("Lively");
    QTest::mouseClick(&preview(), Qt::LeftButton, {}, QPoint(20, 40));
    QTest::keySequence(&preview(), QKeySequence::SelectAll);
    QTest::keyClicks(&preview(), QStringLiteral("cab"));
    press(&preview(), Qt::Key_Escape);
    EXPECT_EQ(preview().text(), QStringLiteral("cab"));
    root->render();
    EXPECT_EQ(preview().text(), QStringLiteral("cab"));
    EXPECT_TRUE(preview().canUndo());
}

TEST_F(DetailJourney, TheWeightControlTakesTheChoiceOfAStyleBack)
{
    open("Lively");
    QTest::mouseClick(part<QAbstractButton>(QStringLiteral("styleRow Bold")), Qt::LeftButton);
    settle();
    EXPECT_THAT(css(), HasSubstr("font-weight: 700"));
    auto *weight = detail().findChild<QSlider *>(QStringLiteral("fontWeightSlider"));
    ASSERT_NE(weight, nullptr);
    EXPECT_EQ(weight->value(), 700);
    weight->setValue(400);
    settle();
    EXPECT_THAT(css(), HasSubstr("font-weight: 400")) << "the model has had it all the time";
}

TEST_F(DetailJourney, AVariantIsOfOneFamilyOnly)
{
    open("Lively");
    root->detailActions().detailVariantSelected(QStringLiteral("Condensed"));
    settle();
    EXPECT_EQ(detail().state().selectedVariantLabel, QStringLiteral("Condensed"));
    root->detailActions().detailNeighbourWanted(-1);
    settle();
    EXPECT_EQ(detail().state().selectedVariantLabel, QString());
}

} // namespace
} // namespace lorva
