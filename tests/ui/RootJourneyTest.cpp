// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the panes ask for reaches the model, and what the model says reaches the panes.

#include "base/NotificationCentre.h"
#include "support/LibraryFixture.h"
#include "ui/browser/BrowserTopBar.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/detail/FontDetailViewController.h"
#include "ui/discover/DiscoverViewController.h"
#include "ui/display/BackgroundImageStore.h"
#include "ui/display/ImageIntake.h"
#include "ui/display/LorvaWindowBackgroundView.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/quiz/FontQuizViewController.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/style/ReducedMotion.h"

#include <QAbstractButton>
#include <QBuffer>
#include <QTest>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::LibraryFixture;
using test::waitUntil;
using ::testing::IsEmpty;

FilePath writePicture(const FilePath &folder, const QByteArray &name, const QColor &color)
{
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(color);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return test::writeFile(folder, name, png);
}

class RootJourney : public ::testing::Test
{
protected:
    RootJourney()
    {
        static int cases = 0;
        setReducedMotionOverride(true);
        folder = test::TestHome::instance().makeFolder("root" + QByteArray::number(++cases));
        images = std::make_shared<const BackgroundImageStore>(folder.child("images"));
        library.addFamilies(QStringLiteral("Face"), 6);
        root = std::make_unique<LorvaRootSplitViewController>(*library.model, PaneServices{images});
        root->resize(1300, 900);
        root->show();
        root->activateWindow();
        EXPECT_TRUE(library.load());
        EXPECT_TRUE(waitUntil([this] { return root->isSettled(); }));
    }
    ~RootJourney() override { setReducedMotionOverride(std::nullopt); }

    LorvaAppModel &model() { return *library.model; }
    SidebarDelegate &sidebar() { return root->sidebarActions(); }
    FontBrowserDelegate &browser() { return root->browserActions(); }
    QString collection(const char *name)
    {
        return model().createCollection(QString::fromLatin1(name)).value();
    }
    QAbstractButton *shownButton(const char *name)
    {
        for (auto *button : root->findChildren<QAbstractButton *>(QString::fromLatin1(name))) {
            if (button->isVisible())
                return button;
        }
        return nullptr;
    }
    void answer(const char *button)
    {
        ASSERT_TRUE(waitUntil([&] { return shownButton(button) != nullptr; })) << button;
        QTest::mouseClick(shownButton(button), Qt::LeftButton);
    }
    QStringList shown() { return library.visibleNames(); }

    FilePath folder;
    std::shared_ptr<const BackgroundImageStore> images;
    LibraryFixture library;
    std::unique_ptr<LorvaRootSplitViewController> root;
};

TEST_F(RootJourney, ACollectionIsMadeFilledShownAndDeletedAfterAQuestion)
{
    const QString id = sidebar().sidebarCollectionWanted().value();
    sidebar().sidebarCollectionRenamed(id, QStringLiteral("Posters"));
    sidebar().sidebarFamiliesDropped(SidebarItem::collection(id),
                                     {QStringLiteral("Face 002"), QStringLiteral("Face 001")});
    sidebar().sidebarSelected(BrowserSource::collection(id));
    root->render();
    EXPECT_EQ(shown(), (QStringList{"Face 001", "Face 002"}));
    EXPECT_EQ(root->browser().state().title, QStringLiteral("Posters"));

    sidebar().sidebarCollectionDeletionWanted(id);
    answer("AlertSheet.Button1");
    EXPECT_EQ(model().collections().size(), 1U) << "Cancel keeps it";
    sidebar().sidebarCollectionDeletionWanted(id);
    answer("AlertSheet.Button0");
    EXPECT_THAT(model().collections(), IsEmpty());
    root->render();
    EXPECT_EQ(root->browser().state().title, QStringLiteral("All Fonts"));
    model().undoStack().undo();
    EXPECT_EQ(model().collections().front().familyNames.size(), 2) << "and it can be undone";
}

TEST_F(RootJourney, ARefusedNameIsSaidAndChangesNothing)
{
    const QString first = collection("First");
    const QString second = collection("Second");
    sidebar().sidebarCollectionRenamed(second, QString(u' '));
    answer("AlertSheet.Button0");
    EXPECT_EQ(model().collections()[1].name, QStringLiteral("Second"));
    EXPECT_EQ(model().collections()[0].id, first);
}

TEST_F(RootJourney, FamiliesGoToStylesAndFoundriesByMenuAndByDrop)
{
    const QStringList two{QStringLiteral("Face 000"), QStringLiteral("Face 003")};
    browser().browserStyleChosen(two, QStringLiteral("mono"));
    EXPECT_EQ(model().styleIDByFamily().value(two[1]), QStringLiteral("mono"));
    sidebar().sidebarFamiliesDropped(SidebarItem::style(QStringLiteral("serif")), {two[0]});
    EXPECT_EQ(model().styleIDByFamily().value(two[0]), QStringLiteral("serif"));
    browser().browserStyleChosen(two, std::nullopt);
    EXPECT_FALSE(model().styleIDByFamily().contains(two[0]));
    const QString id = collection("Mine");
    browser().browserCollectionToggled(two, id);
    EXPECT_TRUE(model().isMember(two[0], id));
    browser().browserCollectionToggled(two, id);
    EXPECT_FALSE(model().isMember(two[0], id));
}

TEST_F(RootJourney, EveryEmptySourceSaysWhatItIsFor)
{
    const QString mine = collection("Mine");
    const QString away = collection("Away");
    ASSERT_TRUE(model().addFamilies(away, {QStringLiteral("Gone")}));
    const struct
    {
        BrowserSource source;
        const char *title;
        bool offersFolder;
    } rows[]{
        {BrowserSource::inactive(), "No Inactive Fonts", true},
        {BrowserSource::style(QStringLiteral("script")), "No Fonts of This Style", false},
        {BrowserSource::collection(mine), "An Empty Collection", false},
        {BrowserSource::collection(away), "No Fonts Here", false},
    };
    for (const auto &row : rows) {
        model().select(row.source);
        const auto empty = root->browserState().emptyState;
        ASSERT_TRUE(empty) << row.title;
        const auto *said = std::get_if<BrowserEmptyState::SourceEmpty>(&empty->reason);
        ASSERT_TRUE(said) << row.title;
        EXPECT_EQ(said->title, QString::fromLatin1(row.title));
        EXPECT_EQ(said->showsWatchFolder, row.offersFolder) << row.title;
        EXPECT_FALSE(said->subtitle.isEmpty());
    }
    model().setSearchQuery(QStringLiteral(" zz "));
    EXPECT_EQ(root->browserState().emptyState,
              (BrowserEmptyState{BrowserEmptyState::NoSearchResults{QStringLiteral("zz")}}));
}

TEST_F(RootJourney, TextStaysReadableOverAnImageUnlessItsColourIsTheUsers)
{
    const struct
    {
        const char *image;
        const char *before;
        const char *after;
    } rows[]{
        {"paper", "#FFFFFF", "#000000"},
        {"ink", "#000000", "#FFFFFF"},
        {"paper", "#FFEE00", "#FFEE00"},
    };
    for (const auto &row : rows) {
        model().setImageForegroundColorHex(QString::fromLatin1(row.before));
        browser().displayBackgroundImageChosen(QString::fromLatin1(row.image));
        EXPECT_EQ(model().imageForegroundColorHex(), QString::fromLatin1(row.after)) << row.image;
        EXPECT_EQ(model().colorMode(), ColorMode::image);
    }
}

TEST_F(RootJourney, AnImageOfTheUsersIsCopiedShownAndRemoved)
{
    const FilePath file = writePicture(folder, "white.png", Qt::white);
    ImageIntake::setNextChosenFile(file);
    root->browser().topBar().openPanel(BrowserTopBar::Panel::backgroundImage);
    ASSERT_TRUE(waitUntil([this] { return shownButton("background:add") != nullptr; }));
    QTest::mouseClick(shownButton("background:add"), Qt::LeftButton);
    ASSERT_TRUE(waitUntil([this] { return model().backgroundImageUserFilename().has_value(); }));
    EXPECT_TRUE(QFile::remove(file.displayText())) << "the original may go";
    const QString name = *model().backgroundImageUserFilename();
    EXPECT_EQ(images->fileNames(), QStringList(name));
    EXPECT_TRUE(waitUntil([this] {
        root->render();
        return root->isSettled() && !root->backgroundView().userThumbnail().isNull()
            && model().imageForegroundColorHex() == QStringLiteral("#000000");
    }));
    browser().displayUserImageRemoved(name);
    EXPECT_THAT(images->fileNames(), IsEmpty());
    EXPECT_EQ(model().backgroundImageUserFilename(), std::nullopt);
    EXPECT_EQ(model().colorMode(), ColorMode::white);
}

TEST_F(RootJourney, ALogoIsShownWhenItIsReadAndAProblemIsSaid)
{
    QString problem = QStringLiteral("unanswered");
    const auto answered = [&](const QString &said) { problem = said; };
    browser().displayLogoChosen("no image", answered);
    ASSERT_TRUE(waitUntil([&] { return problem != QStringLiteral("unanswered"); }));
    EXPECT_FALSE(problem.isEmpty());
    EXPECT_TRUE(model().display().logoImageData.isEmpty());

    const QByteArray svg = R"(<svg xmlns="http://www.w3.org/2000/svg" width="30" height="10">
        <rect width="30" height="10"/></svg>)";
    browser().displayLogoChosen(svg, answered);
    ASSERT_TRUE(waitUntil([&] {
        root->render();
        return problem.isEmpty() && root->browser().state().logoImage.has_value();
    }));
    EXPECT_EQ(model().display().logoImageData, svg);
    browser().displayLogoVisibilityChanged(false);
    root->render();
    EXPECT_FALSE(root->browser().state().logoImage);
    EXPECT_TRUE(root->browser().state().display.logoImage) << "the panel still shows it";

    browser().displayReset();
    EXPECT_EQ(model().display(), DisplayValues());
    browser().displayLogoChosen(svg, answered);
    root.reset();
}

TEST_F(RootJourney, DiscoverTakesTheCardsPlaceAndGivesItBack)
{
    sidebar().sidebarSelected(BrowserSource::discover());
    root->render();
    ASSERT_TRUE(root->discover());
    EXPECT_TRUE(root->discover()->isVisible());
    EXPECT_EQ(root->discover()->geometry(), root->browser().geometry());
    EXPECT_FALSE(root->browser().isVisible());
    EXPECT_EQ(root->title(), QStringLiteral("Discover"));
    EXPECT_TRUE(waitUntil([this] { return root->isSettled(); }));
    browser().browserOpenDetail(QStringLiteral("Face 001"));
    root->render();
    EXPECT_TRUE(root->isDetailOpen()) << "a family that is asked for comes first";
    EXPECT_FALSE(root->discover()->isVisible());

    sidebar().sidebarSelected(BrowserSource::allFonts());
    root->render();
    EXPECT_TRUE(root->browser().isVisible());
    EXPECT_EQ(shown().size(), 6);
}

TEST_F(RootJourney, TheQuizCoversEverythingFromWhereverItIsOpened)
{
    browser().browserOpenDetail(QStringLiteral("Face 001"));
    root->render();
    ASSERT_TRUE(root->isDetailOpen());
    sidebar().sidebarOrganizeChosen();
    ASSERT_TRUE(root->isQuizOpen());
    const void *const first = root->quiz();
    NotificationCentre::shared().post(QByteArrayLiteral("vantrel.merid.lorvaOpenFontQuiz"));
    EXPECT_EQ(root->quiz(), first) << "one at a time";
    root->resize(1400, 950);
    model().setSearchQuery(QStringLiteral("zz"));
    root->render();
    for (const QWidget *pane : std::initializer_list<const QWidget *>{
             root->detail(), root->inspector(), &root->browser(), &root->sidebar()})
        EXPECT_FALSE(pane->isVisible()) << pane->objectName().toStdString();

    root->closeQuiz();
    EXPECT_FALSE(root->isQuizOpen());
    EXPECT_TRUE(root->detail()->isVisible());
    EXPECT_TRUE(root->inspector()->isVisible());
    EXPECT_TRUE(root->sidebar().isVisible());
    NotificationCentre::shared().post(LorvaRootSplitViewController::openFontQuizNotification());
    EXPECT_TRUE(root->isQuizOpen());
    root.reset();
}

} // namespace
} // namespace lorva
