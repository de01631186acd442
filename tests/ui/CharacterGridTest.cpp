// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/QtPrinters.h"
#include "support/Waiting.h"
#include "ui/detail/CharacterCellsView.h"
#include "ui/detail/CharacterGridView.h"
#include "ui/detail/CharacterPopoverViewController.h"
#include "ui/detail/CharacterTrayView.h"
#include "ui/PreviewFonts.h"
#include "ui/style/Popover.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>

#include <gtest/gtest.h>

namespace lorva {
namespace {

using test::FontBuilder;

CharacterListing listingOf(const QString &character)
{
    return {{{Block::latin, {character}}}, {}, nullptr};
}

TEST(CharacterGridModelTest, showsOnlyWhatWasAskedForLast)
{
    std::vector<std::pair<CharacterGridModel::Work, CharacterGridModel::Done>> runs;
    auto model = std::make_unique<CharacterGridModel>(
        [&](CharacterGridModel::Work work, CharacterGridModel::Done done) {
            runs.emplace_back(std::move(work), std::move(done));
        },
        nullptr);
    model->request("a", {});
    model->request("a", {});
    EXPECT_EQ(runs.size(), 1U) << "it is on the way";
    EXPECT_TRUE(model->isEnumeratingCharacters());
    model->request("b", {});
    EXPECT_EQ(model->pendingCharacterGridKey(), "b");
    EXPECT_EQ(model->characterGridGeneration(), 2);
    runs[0].second(listingOf("A"));
    EXPECT_TRUE(model->characterSections().empty()) << "superseded";
    runs[1].second(listingOf("B"));
    EXPECT_EQ(model->characterSections(), listingOf("B").sections);
    EXPECT_EQ(model->cachedCharacterGridKey(), "b");
    EXPECT_FALSE(model->isEnumeratingCharacters());
    EXPECT_EQ(model->pendingCharacterGridKey(), std::nullopt);
    model->request("b", {});
    EXPECT_EQ(runs.size(), 2U) << "it is shown";
    // Back to what was shown before the one under way: its sections are gone by now.
    model->request("c", {});
    EXPECT_TRUE(model->characterSections().empty());
    model->request("b", {});
    ASSERT_EQ(runs.size(), 4U);
    runs[3].second(listingOf("B"));
    runs[2].second(listingOf("C"));
    EXPECT_EQ(model->cachedCharacterGridKey(), "b");
    EXPECT_EQ(model->characterSections(), listingOf("B").sections);
    model->request({}, {});
    EXPECT_TRUE(model->characterSections().empty());
    EXPECT_EQ(model->cachedCharacterGridKey(), std::nullopt);
    model->request("d", {});
    model.reset();
    runs.back().second(listingOf("D"));
}

/// The grid in a window that shows 700 points of it.
class CharacterGridTest : public ::testing::Test
{
protected:
    CharacterGridTest()
        : grid(new CharacterGridView(&window))
        , cells(grid->findChild<CharacterCellsView *>())
    {
        window.resize(400, 700);
        QObject::connect(grid, &DetailSection::heightChanged, &window, [this] { layOut(); });
        QObject::connect(grid, &DetailSection::revealWanted, &window,
                         [this](const QRect &rect) { revealed = rect; });
        window.show();
    }

    void layOut(int top = 0)
    {
        grid->setGeometry(0, -top, 400, grid->heightFor(400));
        grid->setVisibleBand(top, top + 700);
    }

    void showFont(const Font &font, const QString &key = "key")
    {
        grid->setPreviewFace(font);
        grid->requestCharacterGrid(key, font);
        settle();
    }

    void settle()
    {
        ASSERT_TRUE(test::waitUntil([this] { return grid->isSettled(); }));
    }

    void showGlyphs()
    {
        auto *kind = grid->findChild<QWidget *>("CharacterKind");
        QTest::mouseClick(kind->findChildren<QAbstractButton *>().at(1), Qt::LeftButton);
        settle();
    }

    QString count() const { return grid->findChild<QLabel *>("CharacterCount")->text(); }

    QPoint pointOf(CellIndex cell) const
    {
        return cells->mapTo(&window, cells->arrangement().cellRect(cell).center());
    }
    void click(CellIndex cell)
    {
        const QPoint point = pointOf(cell);
        QWidget *slice = window.childAt(point);
        QTest::mouseClick(slice, Qt::LeftButton, {}, slice->mapFrom(&window, point));
    }
    /// Whether anything but hairlines is drawn in the cell.
    bool hasInk(CellIndex cell)
    {
        const QImage image =
            window.grab(QRect(pointOf(cell) - QPoint(20, 20), QSize(40, 40))).toImage();
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (image.pixelColor(x, y) == QColor(Qt::red))
                    return true;
            }
        }
        return false;
    }
    CharacterPopoverViewController *popover() const
    {
        return window.findChild<CharacterPopoverViewController *>();
    }
    static QString clipboard() { return QGuiApplication::clipboard()->text(); }

    QWidget window;
    CharacterGridView *grid;
    CharacterCellsView *cells;
    QRect revealed;
};

TEST_F(CharacterGridTest, onlyRowsInSightExist)
{
    std::u32string characters;
    for (char32_t c = 0x4E00; c < 0x4E00 + 3000; ++c)
        characters += c;
    grid->setColors(Qt::red, Qt::white);
    showFont(test::fontWith(characters));
    EXPECT_EQ(count(), "3,000 characters");
    EXPECT_EQ(cells->charGridColumns(), 6);
    EXPECT_TRUE(hasInk({0, 7}));
    const auto slices = [this] { return cells->findChildren<CharacterGridSliceView *>().size(); };
    EXPECT_LE(slices(), 12);
    for (int top = 0; top < 20000; top += 700)
        layOut(top);
    settle();
    EXPECT_LE(slices(), 12);
    const std::optional<CellIndex> seen =
        cells->arrangement().cellAt(cells->mapFrom(&window, QPoint(100, 100)));
    ASSERT_TRUE(seen);
    EXPECT_TRUE(hasInk(*seen));
    grid->setColors(Qt::blue, Qt::white);
    EXPECT_FALSE(hasInk(*seen)) << "recoloured at once";
    EXPECT_TRUE(grid->isSettled());
}

TEST_F(CharacterGridTest, onlyAnotherNumberOfColumnsMovesCells)
{
    showFont(test::fontWith(U"ABCDEFGH"));
    const auto rowOfLast = [this] { return cells->arrangement().cellRect({0, 7}).top(); };
    const int before = rowOfLast();
    grid->resize(440, grid->height());
    EXPECT_EQ(rowOfLast(), before);
    grid->resize(63, grid->height());
    EXPECT_EQ(cells->charGridColumns(), 6) << "too narrow to tell";
    grid->resize(64, grid->height());
    EXPECT_EQ(cells->charGridColumns(), 1);
    EXPECT_GT(rowOfLast(), before);
}

TEST_F(CharacterGridTest, aClickTellsOfTheCharacter)
{
    grid->setColors(Qt::white, Qt::transparent);
    const Font font = test::fontWith(U"ABC");
    showFont(font);
    click({0, 1});
    ASSERT_TRUE(popover());
    EXPECT_EQ(popover()->codePoint(), "U+0042");
    EXPECT_EQ(popover()->unicodeName(), "LATIN CAPITAL LETTER B");
    EXPECT_EQ(popover()->glyphIndex(), 2U);
    EXPECT_EQ(popover()->foregroundColor(), QColor(Qt::white));
    EXPECT_EQ(popover()->backgroundColor(), QColor("#1C1C1E")) << "over an image";
    click({0, 2});
    ASSERT_TRUE(grid->characterPopover());
    auto *latest =
        qobject_cast<CharacterPopoverViewController *>(grid->characterPopover()->content());
    EXPECT_EQ(latest->character(), "C");
    QTest::mouseClick(latest->findChild<QAbstractButton *>("PopoverCopy"), Qt::LeftButton);
    EXPECT_EQ(clipboard(), "C");
    EXPECT_FALSE(grid->characterPopover());
    // In another face than the one that was listed.
    grid->setPreviewFace(test::fontWith(U"Z"));
    click({0, 0});
    EXPECT_EQ(qobject_cast<CharacterPopoverViewController *>(grid->characterPopover()->content())
                  ->glyphIndex(),
              0U);
    const QPoint before = grid->characterPopover()->pos();
    layOut(20);
    EXPECT_TRUE(test::waitUntil([&] {
        return grid->characterPopover()->pos() == before - QPoint(0, 20);
    })) << "it goes with its cell";
    layOut(900);
    EXPECT_TRUE(test::waitUntil([this] { return !grid->characterPopover(); })) << "out of sight";
}

TEST_F(CharacterGridTest, theKeyboardReachesEveryCell)
{
    showFont(test::fontWith(U"ABCDEFGHIJKLMNOPQRSTUVWXYZ0123"));
    grid->focusCells();
    EXPECT_EQ(cells->current(), (CellIndex{0, 0}));
    QTest::keyClick(cells, Qt::Key_Down);
    QTest::keyClick(cells, Qt::Key_Right);
    QTest::keyClick(cells, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard(), "H");
    QKeyEvent claim(QEvent::ShortcutOverride, Qt::Key_C, Qt::ControlModifier);
    claim.ignore();
    QCoreApplication::sendEvent(cells, &claim);
    EXPECT_TRUE(claim.isAccepted()) << "the window's menu would copy something else";
    QTest::keyClick(cells, Qt::Key_End, Qt::ControlModifier);
    EXPECT_EQ(cells->current(), (CellIndex{1, 3}));
    EXPECT_TRUE(
        revealed.contains(cells->arrangement().cellRect({1, 3}).translated(cells->pos()).center()));
    EXPECT_TRUE(
        revealed.contains(cells->arrangement().headerRect(1).translated(cells->pos()).center()));
    QTest::keyClick(cells, Qt::Key_Home);
    QTest::keyClick(cells, Qt::Key_Return);
    ASSERT_TRUE(popover());
    EXPECT_EQ(popover()->character(), "0");
    QTest::keyClick(window.focusWidget(), Qt::Key_Return);
    EXPECT_EQ(clipboard(), "0") << "Copy has the keyboard";
    if (!popover())
        QTest::keyClick(cells, Qt::Key_Return);
    QTest::keyClick(window.focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(grid->characterPopover());
    EXPECT_TRUE(cells->hasFocus());
    QTest::keyClick(cells, Qt::Key_Q);
    EXPECT_EQ(cells->current(), (CellIndex{1, 0})) << "letters are for others";
    window.setLayoutDirection(Qt::RightToLeft);
    QTest::keyClick(cells, Qt::Key_Left);
    EXPECT_EQ(cells->current(), (CellIndex{1, 1}));
}

TEST_F(CharacterGridTest, copiesAndCollects)
{
    showFont(test::fontWith(U"AB\U0001F600"));
    const QPoint point = pointOf({0, 1});
    QWidget *slice = window.childAt(point);
    QTest::mouseDClick(slice, Qt::LeftButton, {}, slice->mapFrom(&window, point));
    EXPECT_EQ(clipboard(), "B");
    EXPECT_EQ(count(), "Copied B");
    grid->focusCells();
    QTest::keyClick(cells, Qt::Key_End, Qt::ControlModifier);
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(cells, &event);
    auto *menu = grid->findChild<QMenu *>("CharacterMenu");
    ASSERT_TRUE(menu);
    QMap<QString, QAction *> actions;
    for (QAction *action : menu->actions())
        actions[action->text()] = action;
    actions.value("Copy Code Point")->trigger();
    EXPECT_EQ(clipboard(), "U+1F600");
    actions.value("Copy Name")->trigger();
    EXPECT_EQ(clipboard(), "GRINNING FACE");
    const int before = grid->heightFor(400);
    actions.value("Add to Tray")->trigger();
    actions.value("Add to Tray")->trigger();
    menu->close();
    auto *tray = grid->findChild<CharacterTrayView *>();
    EXPECT_TRUE(tray->isVisible());
    EXPECT_GT(grid->heightFor(400), before) << "it covers no cell";
    QTest::keyClick(cells, Qt::Key_Backspace);
    QTest::mouseClick(grid->findChild<QAbstractButton *>("TrayCopy"), Qt::LeftButton);
    EXPECT_EQ(clipboard(), QString::fromUtf8("😀"));
    tray->setFocus();
    QTest::keyClick(tray, Qt::Key_Backspace);
    EXPECT_FALSE(tray->isVisible());
    EXPECT_TRUE(cells->hasFocus());
}

TEST_F(CharacterGridTest, searchNarrowsAndSaysWhenNothingIsFound)
{
    showFont(test::fontWith(U"ABab12"));
    grid->setSearch("capital");
    settle();
    EXPECT_EQ(count(), "2 found");
    EXPECT_EQ(cells->cells().characterAt({0, 1}), "B");
    grid->setSearch("capital b");
    grid->setSearch("nothing like it");
    settle();
    EXPECT_EQ(cells->cells().count(), 0);
    EXPECT_GT(grid->heightFor(400), 100) << "the words need room";
    grid->setSearch({});
    settle();
    EXPECT_EQ(count(), "6 characters");
}

TEST_F(CharacterGridTest, rowsThatComeBackShowWhatIsThereNow)
{
    showFont(test::fontWith(U"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
    grid->setSearch("small");
    settle();
    // One row is in sight while the others lose what they showed.
    grid->setVisibleBand(0, 120);
    grid->setSearch({});
    settle();
    layOut();
    settle();
    int seen = 0;
    for (const auto *row : cells->findChildren<CharacterGridSliceView *>()) {
        const CharacterSlice &slice = row->slice();
        for (int i = 0; row->isVisible() && i < slice.characters.size(); ++i, ++seen)
            EXPECT_EQ(slice.characters[i],
                      cells->cells().characterAt({slice.sectionIndex, slice.startIndex + i}));
    }
    EXPECT_EQ(seen, 52);
}

TEST_F(CharacterGridTest, survivesPoorFonts)
{
    grid->setColors(Qt::red, Qt::white);
    FontBuilder none;
    showFont(test::fontOf(none.withoutCmap()), "none");
    EXPECT_EQ(count(), "0 characters");
    EXPECT_GT(grid->heightFor(400), 100);

    FontBuilder many;
    QByteArray maxp(32, '\0');
    maxp.replace(0, 6, QByteArray::fromHex("00010000FFFF"));
    QByteArray post(32, '\0');
    post.replace(0, 4, QByteArray::fromHex("00030000"));
    many.table("maxp", maxp).table("post", post).table("loca", QByteArray(4 * 65536, '\0'));
    showFont(test::fontOf(many), "many");
    showGlyphs();
    EXPECT_EQ(count(), "65,535 glyphs");
    EXPECT_EQ(cells->nameOf({0, 65534}), "gid65534");
    EXPECT_TRUE(cells->cells().characterAt({0, 65534}).isEmpty());
    grid->setSearch("65534");
    settle();
    EXPECT_EQ(cells->cells().glyphs, std::vector<quint32>{65534});
    click({0, 0});
    ASSERT_TRUE(popover());
    EXPECT_TRUE(popover()->codePoint().isEmpty());
    EXPECT_FALSE(popover()->findChild<QAbstractButton *>("PopoverCopy"));
    grid->setSearch({});
    grid->requestCharacterGrid({}, {});
    EXPECT_EQ(grid->heightFor(400), 0);
}

TEST_F(CharacterGridTest, survivesAFileThatGoesAway)
{
    const FilePath folder = test::TestHome::instance().makeFolder("leaving");
    const FilePath file = test::writeFile(
        folder, "gone.otf",
        test::readFile(test::realFont("opentype/ebgaramond/EBGaramond12-Regular.otf")));
    showFont(test::fontFromFile(file));
    const QString before = count();
    ASSERT_TRUE(QFile::remove(file.displayText()));
    layOut(3000);
    settle();
    showGlyphs();
    grid->setSearch("ogonek");
    settle();
    EXPECT_GT(cells->cells().count(), 0);
    grid->requestCharacterGrid(
        "again", test::fontFromFile(test::realFont("truetype/dejavu/DejaVuSans.ttf")));
    grid->setSearch({});
    settle();
    EXPECT_NE(count(), before);
}

TEST_F(CharacterGridTest, isAListToAssistiveTechnology)
{
    showFont(test::fontWith(U"AB12"));
    QAccessibleInterface *list = QAccessible::queryAccessibleInterface(cells);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), 4);
    EXPECT_EQ(list->child(2)->text(QAccessible::Name), "1, DIGIT ONE");
    EXPECT_EQ(list->child(2)->text(QAccessible::Description), "U+0031");
    grid->focusCells();
    EXPECT_EQ(list->focusChild(), list->child(0));
    list->child(3)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    ASSERT_TRUE(popover());
    EXPECT_EQ(popover()->character(), "2");
    const QAccessible::Id old = QAccessible::uniqueId(list->child(3));
    grid->setSearch("A");
    settle();
    EXPECT_EQ(list->childCount(), 1);
    EXPECT_FALSE(QAccessible::accessibleInterface(old));
}

} // namespace
} // namespace lorva
