// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "support/LibraryFixture.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/BrowserEmptyStateView.h"
#include "ui/browser/BrowserLoadingView.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/browser/FontCardContentView.h"
#include "ui/browser/FontCollectionItem.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/sheets/FontIndexingSheetController.h"
#include "ui/style/ReducedMotion.h"

#include <QApplication>
#include <QPushButton>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QToolTip>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::LibraryFixture;
using test::waitUntil;

/// The real root view in a window of its own, over a library built for the case.
class BrowserJourney : public ::testing::Test
{
protected:
    void SetUp() override { setReducedMotionOverride(true); }
    void TearDown() override { setReducedMotionOverride(std::nullopt); }

    void open(QSize size = {1300, 900})
    {
        root = std::make_unique<LorvaRootSplitViewController>(*library.model);
        root->resize(size);
        root->show();
    }
    void start(int familyCount, QSize size = {1300, 900})
    {
        library.addFamilies(QStringLiteral("Face"), familyCount);
        open(size);
        ASSERT_TRUE(library.load());
        ASSERT_TRUE(waitUntil([this] { return root->browser().isSettled(); }));
        view().setFocus();
    }

    BrowserCollectionView &view() { return root->browser().collectionView(); }
    template <class Widget>
    Widget *find(const char *name)
    {
        return root->findChild<Widget *>(QString::fromLatin1(name));
    }
    const FontCardContentView &card(int index)
    {
        return view().visibleItems().at(index)->contentView();
    }
    QPoint centreOf(int index)
    {
        return view().arrangement().cardRect(index).center() - QPoint(0, view().scrollOffset());
    }
    void click(int index)
    {
        QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, centreOf(index));
    }
    void press(Qt::Key key) { QTest::keyClick(&view(), key); }
    void renderNow() { root->render(); }
    QString selected() { return library.model->selectedFamilyName().value_or(QString()); }

    LibraryFixture library;
    std::unique_ptr<LorvaRootSplitViewController> root;
};

TEST_F(BrowserJourney, EveryCardNamesItsFamilyAndSetsItInItsOwnFace)
{
    start(5);
    ASSERT_EQ(view().visibleItems().size(), 5U);
    for (const auto &[index, item] : view().visibleItems()) {
        const QString name = QStringLiteral("Face 00%1").arg(index);
        EXPECT_EQ(item->familyName(), name);
        EXPECT_EQ(card(index).titleText(), name);
        EXPECT_EQ(card(index).subtitleText(), QStringLiteral("1 styles"));
        EXPECT_TRUE(card(index).showsSystemTag());
        const auto &font = card(index).previewView().currentFont();
        ASSERT_TRUE(font.has_value());
        EXPECT_EQ(font->face()->names().family, name);
        EXPECT_FALSE(font->isStandIn());
        EXPECT_EQ(card(index).previewView().shownText(), QStringLiteral("Aa 123"));
    }
}

TEST_F(BrowserJourney, KeysAndClicksMoveTheSelection)
{
    start(10);
    const struct
    {
        Qt::Key key;
        const char *selected;
    } rows[]{
        {Qt::Key_Right, "Face 000"}, {Qt::Key_Right, "Face 001"}, {Qt::Key_Down, "Face 004"},
        {Qt::Key_Left, "Face 003"},  {Qt::Key_Up, "Face 000"},    {Qt::Key_Up, "Face 000"},
        {Qt::Key_End, "Face 009"},   {Qt::Key_Home, "Face 000"},
    };
    for (const auto &row : rows) {
        press(row.key);
        EXPECT_EQ(selected(), QString::fromLatin1(row.selected)) << int(row.key);
    }
    click(5);
    EXPECT_EQ(selected(), QStringLiteral("Face 005"));
    renderNow();
    EXPECT_TRUE(card(5).showsSelection());
    EXPECT_FALSE(card(0).showsSelection());

    QTest::mouseClick(view().viewport(), Qt::LeftButton, {}, centreOf(9) + QPoint(600, 0));
    EXPECT_EQ(selected(), QString()) << "a click beside the cards selects none";
}

TEST_F(BrowserJourney, ReturnEnterAndDoubleClickOpenTheFamily)
{
    start(4);
    press(Qt::Key_Return);
    EXPECT_EQ(library.model->detailFamilyName(), std::nullopt)
        << "nothing selected, nothing opened";
    click(1);
    press(Qt::Key_Return);
    EXPECT_EQ(library.model->detailFamilyName(), QStringLiteral("Face 001"));
    click(2);
    QTest::keyClick(&view(), Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(library.model->detailFamilyName(), QStringLiteral("Face 002"));
    QTest::mouseDClick(view().viewport(), Qt::LeftButton, {}, centreOf(3));
    EXPECT_EQ(library.model->detailFamilyName(), QStringLiteral("Face 003"));
}

TEST_F(BrowserJourney, ScrollingThroughALargeLibraryKeepsAHandfulOfCards)
{
    start(300);
    int most = 0;
    QScrollBar *bar = view().verticalScrollBar();
    for (int top = 0; top <= bar->maximum(); top += 500) {
        bar->setValue(top);
        for (const auto &[index, item] : view().visibleItems()) {
            EXPECT_EQ(item->familyName(), view().items().at(index));
            EXPECT_EQ(card(index).previewView().currentFont()->face()->names().family,
                      item->familyName());
        }
        most = std::max(most, view().cardCount());
    }
    bar->setValue(bar->maximum());
    EXPECT_EQ(std::prev(view().visibleItems().end())->first, 299);
    EXPECT_LE(most, 3 * 6 + 12) << "cards on screen and the spare ones";
}

TEST_F(BrowserJourney, SelectingByKeyBringsTheCardIntoView)
{
    start(60);
    press(Qt::Key_End);
    EXPECT_EQ(selected(), QStringLiteral("Face 059"));
    EXPECT_TRUE(view().visibleItems().contains(59));
    press(Qt::Key_Home);
    EXPECT_EQ(view().scrollOffset(), 0);
}

TEST_F(BrowserJourney, TheViewControlSwitchesBetweenGridAndList)
{
    start(20);
    view().setScrollOffset(440);
    const QString atTop = view().items().at(view().visibleItems().begin()->first);
    auto *control = find<QWidget>("viewModeControl");
    ASSERT_NE(control, nullptr);
    QWidget *segment = control->childAt(control->width() * 3 / 4, control->height() / 2);
    ASSERT_NE(segment, nullptr);
    QTest::mouseClick(segment, Qt::LeftButton);
    ASSERT_EQ(library.model->viewMode(), ViewMode::list);
    renderNow();
    EXPECT_EQ(view().arrangement().columns(), 1);
    const auto first = view().visibleItems().begin();
    EXPECT_EQ(view().items().at(first->first), atTop) << "what was at the top stays there";
    const auto &font = first->second->contentView().previewView().currentFont();
    EXPECT_DOUBLE_EQ(font->pointSize(), 36 * 0.72);
}

TEST_F(BrowserJourney, TheSizeSliderSetsTheSpecimensAnew)
{
    start(6);
    auto *slider = find<QSlider>("pointSizeSlider");
    ASSERT_NE(slider, nullptr);
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_End);
    EXPECT_EQ(library.model->browserPointSize(), LorvaAppModel::kMaximumPointSize);
    renderNow();
    EXPECT_EQ(view().arrangement().rowHeight(), int(160 * 1.9 + 55));
    EXPECT_DOUBLE_EQ(card(0).previewView().currentFont()->pointSize(), 160);
}

TEST_F(BrowserJourney, ColumnsFollowTheWindow)
{
    start(12, {960, 800});
    EXPECT_EQ(view().arrangement().columns(), 2);
    root->resize(1600 + root->width() - root->browser().width(), 800);
    EXPECT_EQ(view().arrangement().columns(), 4);
    for (const auto &[index, item] : view().visibleItems())
        EXPECT_EQ(item->width(), 400) << index;
}

TEST_F(BrowserJourney, WhereTheFirstCardVanishesTheNextOneHoldsThePlace)
{
    start(60);
    view().setScrollOffset(1100);
    const int first = view().visibleItems().begin()->first;
    const QString next = view().items().at(first + 1);
    const int y = view().visibleItems().at(first + 1)->y();
    // Two rows and the first card in sight.
    for (int index = first - 5; index <= first; ++index)
        std::erase(library.fonts->files,
                   *library.model->allFamilies()->at(size_t(index)).styles[0].fileURL);
    ASSERT_TRUE(library.load());
    renderNow();
    const int moved = int(view().items().indexOf(next));
    ASSERT_TRUE(view().visibleItems().contains(moved));
    EXPECT_EQ(view().visibleItems().at(moved)->y(), y);
}

TEST_F(BrowserJourney, EachSourceKeepsItsPlace)
{
    start(60);
    view().setScrollOffset(900);
    library.model->select(BrowserSource::active());
    renderNow();
    EXPECT_EQ(view().scrollOffset(), 0);
    library.model->select(BrowserSource::allFonts());
    renderNow();
    EXPECT_EQ(view().scrollOffset(), 900);
}

TEST_F(BrowserJourney, AnEmptyLibrarySaysSo)
{
    start(0);
    auto *empty = find<BrowserEmptyStateView>("BrowserEmptyStateView");
    EXPECT_TRUE(empty->isVisible());
    EXPECT_EQ(empty->title(), QStringLiteral("No Fonts"));
    EXPECT_FALSE(view().isVisible());
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    EXPECT_EQ(selected(), QString());

    library.addFamily(QStringLiteral("New"));
    ASSERT_TRUE(library.load());
    renderNow();
    EXPECT_FALSE(empty->isVisible());
    EXPECT_EQ(view().visibleItems().size(), 1U);
}

TEST_F(BrowserJourney, AListThatGetsShorterWhileScrolledToItsEndShowsItsOwnCards)
{
    start(90);
    press(Qt::Key_End);
    library.fonts->files.resize(12);
    ASSERT_TRUE(library.load());
    library.model->setPointSize(100);
    renderNow();
    EXPECT_EQ(library.model->selectedFamilyName(), std::nullopt);
    EXPECT_TRUE(view().visibleItems().contains(11));
    for (const auto &[index, item] : view().visibleItems()) {
        EXPECT_EQ(item->familyName(), view().items().at(index));
        EXPECT_FALSE(card(index).showsSelection());
    }
}

TEST_F(BrowserJourney, SaysWhoseFamiliesItShowsAndWhyThereAreNone)
{
    start(3);
    LorvaAppModel &model = *library.model;
    const QString logos = model.createCollection(QStringLiteral("Logos")).value();
    ASSERT_TRUE(model.addFamilies(logos, {"Face 001", "Elsewhere"}));
    const QString empty = model.createCollection(QStringLiteral("Empty")).value();
    const struct
    {
        BrowserSource source;
        const char *query;
        const char *title;
        int cards;
        const char *emptyTitle;
    } rows[]{
        {BrowserSource::collection(logos), "", "Logos", 1, ""},
        {BrowserSource::collection(logos), "face", "Logos", 1, ""},
        {BrowserSource::collection(logos), "000", "Logos", 0, "No Results"},
        {BrowserSource::collection(empty), "", "Empty", 0, "An Empty Collection"},
        {BrowserSource::style(QStringLiteral("sans")), "", "Sans-Serif", 0,
         "No Fonts of This Style"},
        {BrowserSource::inactive(), "", "Inactive", 0, "No Inactive Fonts"},
        {BrowserSource::allFonts(), "  ", "All Fonts", 3, ""},
    };
    const auto *reason = find<BrowserEmptyStateView>("BrowserEmptyStateView");
    for (const auto &row : rows) {
        model.select(row.source);
        model.setSearchQuery(QString::fromLatin1(row.query));
        renderNow();
        EXPECT_EQ(root->browserState().title, QString::fromLatin1(row.title));
        EXPECT_EQ(view().items().size(), row.cards) << row.title;
        EXPECT_EQ(reason->isVisible(), row.cards == 0);
        if (row.cards == 0) {
            EXPECT_EQ(reason->title(), QString::fromLatin1(row.emptyTitle));
        }
    }
}

TEST(BrowserEmptyState, OffersToWatchAFolderOnlyWhereThatHelps)
{
    BrowserEmptyStateView view(nullptr);
    view.resize(600, 400);
    int asked = 0;
    view.onWatchFolder = [&] { ++asked; };
    auto *button = view.findChild<QPushButton *>(QStringLiteral("watchFolderButton"));
    view.show({BrowserEmptyState::NoSearchResults{QStringLiteral("zz")}});
    EXPECT_EQ(view.title(), QStringLiteral("No Results"));
    EXPECT_EQ(view.subtitle(), QString::fromUtf8("No fonts match “zz”."));
    EXPECT_TRUE(button->isHidden());

    view.show(
        {BrowserEmptyState::SourceEmpty{QStringLiteral("No Fonts"), QStringLiteral("…"), true}});
    static_cast<QWidget &>(view).show();
    ASSERT_TRUE(button->isVisible());
    EXPECT_TRUE(view.rect().contains(button->geometry()));
    QTest::mouseClick(button, Qt::LeftButton);
    EXPECT_EQ(asked, 1);
}

TEST_F(BrowserJourney, TheKeysGoBackToTheCardsAfterAnEmptyView)
{
    start(3);
    root->activateWindow();
    ASSERT_TRUE(waitUntil([this] { return view().hasFocus(); }));
    const auto files = std::exchange(library.fonts->files, {});
    ASSERT_TRUE(library.load());
    renderNow();
    ASSERT_TRUE(view().isHidden());
    EXPECT_TRUE(qobject_cast<BrowserEmptyStateView *>(QApplication::focusWidget()))
        << "no control was asked for";
    library.fonts->files = files;
    ASSERT_TRUE(library.load());
    renderNow();
    EXPECT_TRUE(view().hasFocus());
}

TEST_F(BrowserJourney, TheFirstLoadShowsThatItRuns)
{
    library.addFamilies(QStringLiteral("Face"), 3);
    root = std::make_unique<LorvaRootSplitViewController>(*library.model);
    root->resize(1000, 800);
    root->show();
    library.model->loadCatalog();
    renderNow();
    auto *loading = find<BrowserLoadingView>("BrowserLoadingView");
    EXPECT_TRUE(loading->isVisible());
    EXPECT_FALSE(find<QWidget>("BrowserEmptyStateView")->isVisible());
    const auto picture = [&] { return loading->grab().toImage(); };
    const QImage alone = picture();
    const auto sheet = std::make_unique<FontIndexingSheetController>(*root->window());
    const QImage covered = picture();
    EXPECT_NE(covered, alone) << "the sheet says it";
    loading->setText(QStringLiteral("Other"));
    EXPECT_EQ(picture(), covered);
    sheet->dismiss();
    EXPECT_NE(picture(), covered);

    const auto *reason = find<BrowserEmptyStateView>("BrowserEmptyStateView");
    library.model->cancelLoad();
    renderNow();
    EXPECT_TRUE(reason->isVisible());
    EXPECT_EQ(reason->title(), QStringLiteral("Scan Cancelled")) << "nobody knows what there is";
    library.model->loadCatalog();
    renderNow();
    EXPECT_FALSE(reason->isVisible());
    ASSERT_TRUE(waitUntil([this] { return root->browser().isSettled(); }));
    EXPECT_FALSE(loading->isVisible());

    library.model->loadCatalog();
    renderNow();
    EXPECT_FALSE(loading->isVisible()) << "a later scan shows nothing but its result";
    ASSERT_TRUE(waitUntil([this] { return !library.model->isLoading(); }));
}

TEST_F(BrowserJourney, AVanishedFontShowsTheSystemFontAndSaysSo)
{
    library.addFamilies(QStringLiteral("Face"), 2);
    root = std::make_unique<LorvaRootSplitViewController>(*library.model);
    root->resize(1000, 800);
    ASSERT_TRUE(library.load());
    for (const FilePath &file : library.fonts->files)
        ASSERT_EQ(::unlink(file.c_str()), 0);
    root->show();
    ASSERT_TRUE(waitUntil([this] { return root->browser().isSettled(); }));
    const FontPreviewNSView &preview = card(0).previewView();
    EXPECT_TRUE(preview.currentFont()->isStandIn());
    EXPECT_FALSE(preview.toolTip().isEmpty());
    EXPECT_EQ(preview.accessibleDescription(), preview.toolTip());

    QHelpEvent rest(QEvent::ToolTip, centreOf(0), view().viewport()->mapToGlobal(centreOf(0)));
    QCoreApplication::sendEvent(view().viewport(), &rest);
    EXPECT_EQ(QToolTip::text(), preview.toolTip());

    library.addFamilies(QStringLiteral("Face"), 2);
    ASSERT_TRUE(library.load());
    renderNow();
    EXPECT_FALSE(preview.currentFont()->isStandIn()) << "a new catalog asks again";
}

TEST_F(BrowserJourney, AFontReplacedInPlaceShowsItsNewShapes)
{
    start(3);
    const auto capHeight = [this](int index) {
        return card(index).previewView().currentFont()->face()->metrics().capHeight;
    };
    const Font untouched = *card(0).previewView().currentFont();
    EXPECT_EQ(capHeight(1), 700);
    test::writeFile(test::TestHome::instance().root().child("library"), "Face 001.ttf",
                    test::FontBuilder(QStringLiteral("Face 001"))
                        .postScriptName(QStringLiteral("Face001"))
                        .codePoints(U"Aa 123")
                        .capHeight(640)
                        .build());
    ASSERT_TRUE(library.load());
    ASSERT_TRUE(waitUntil([this] { return root->browser().isSettled(); }));
    renderNow();
    EXPECT_EQ(capHeight(1), 640);
    EXPECT_EQ(*card(0).previewView().currentFont(), untouched) << "the others stay as they are";
}

/// A window over what the last process saw, whose own scan then finds more.
TEST_F(BrowserJourney, TheScanTakesOverFromTheSnapshotWithoutAMove)
{
    const FilePath home = test::TestHome::instance().makeFolder("snapshot");
    library.restart(home);
    library.addFamilies(QStringLiteral("Face"), 60);
    ASSERT_TRUE(library.load());
    library.restart(home);
    library.fonts->hold();
    open();
    library.model->loadCatalog();
    ASSERT_TRUE(waitUntil(
        [this] { return !view().visibleItems().empty() && root->browser().isSettled(); }));
    EXPECT_TRUE(library.model->isLoading());

    view().setScrollOffset(900);
    const int shown = view().visibleItems().begin()->first + 4;
    click(shown);
    ASSERT_TRUE(waitUntil([this] { return root->browser().isSettled(); }));
    renderNow();
    const QString family = selected();
    const QPoint place = centreOf(shown);
    FontCollectionItem *item = view().visibleItems().at(shown);
    const QImage before = item->grab().toImage();

    library.addFamilies(QStringLiteral("Earlier"), 9);
    library.fonts->letGo();
    ASSERT_TRUE(waitUntil([this] { return !library.model->isLoading(); }));
    renderNow();
    EXPECT_EQ(library.model->allFamilies()->size(), 69U);
    EXPECT_EQ(selected(), family);
    ASSERT_TRUE(view().visibleItems().contains(shown + 9)) << "the same card, three rows on";
    EXPECT_EQ(view().visibleItems().at(shown + 9), item);
    EXPECT_EQ(centreOf(shown + 9).y(), place.y());
    EXPECT_FALSE(card(shown + 9).previewView().isWaiting());
    EXPECT_EQ(card(shown + 9).titleText(), family);
    EXPECT_EQ(item->grab().toImage(), before) << "not even for a moment blank";
}

} // namespace
} // namespace lorva
