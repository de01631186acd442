// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "SidebarFixture.h"

#include <QAbstractButton>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::text;

class SidebarRename : public test::SidebarFixture
{
protected:
    QAbstractButton &addButton()
    {
        return *sidebar.findChild<QAbstractButton *>(QStringLiteral("SidebarAddButton"));
    }
    void addNewRow()
    {
        state.content.collections.insert(state.content.collections.begin(),
                                         {text("new"), text("New Collection"), {}});
        sidebar.apply(state);
    }
};

TEST_F(SidebarRename, TheAddButtonMakesACollectionAndAsksForItsName)
{
    EXPECT_EQ(addButton().toolTip(), text("Create an empty collection."));
    state.collapsedGroups = {text("collections")};
    sidebar.apply(state);
    QTest::mouseClick(&addButton(), Qt::LeftButton);
    EXPECT_EQ(delegate.taken(), text("toggled collections;wanted"))
        << "a new row is never born into a closed group";
    state.collapsedGroups.clear();
    EXPECT_EQ(editor(), nullptr) << "it has no row yet";
    addNewRow();
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->selectedText(), text("New Collection"));
    QTest::keyClicks(editor(), text("Poster"));
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(delegate.taken(), text("collection new=Poster"));
    EXPECT_TRUE(editorIsGone());
    EXPECT_TRUE(outline().hasFocus());
}

TEST_F(SidebarRename, ACollectionThatCouldNotBeMadeOpensNoEditorLater)
{
    delegate.newCollection = std::nullopt;
    sidebar.beginCreatingCollection();
    addNewRow();
    EXPECT_EQ(editor(), nullptr);

    delegate.newCollection = text("lost");
    sidebar.beginCreatingCollection();
    sidebar.apply(state);
    state.content.collections.push_back({text("lost"), text("Found"), {}});
    sidebar.apply(state);
    EXPECT_EQ(editor(), nullptr);
}

TEST_F(SidebarRename, EveryEndOfAnEditingHasItsOutcome)
{
    enum class End { enter, escape, tab, focusLoss };
    const struct
    {
        const char *typed;
        End end;
        const char *told;
    } rows[]{
        {"Book", End::enter, "collection c1=Book"},
        {"  Book ", End::enter, "collection c1=Book"},
        {"Book", End::tab, "collection c1=Book"},
        {"Book", End::focusLoss, "collection c1=Book"},
        {"Book", End::escape, ""},
        {"", End::enter, ""},
        {"   ", End::focusLoss, ""},
        {"Annual report", End::enter, ""},
        {" Annual report", End::tab, ""},
    };
    for (const auto &row : rows) {
        SCOPED_TRACE(std::string(row.typed) + "/" + std::to_string(int(row.end)));
        sidebar.beginRenaming(c("c1"));
        ASSERT_NE(editor(), nullptr);
        EXPECT_EQ(editor()->valueBeforeEditing(), text("Annual report"));
        QTest::keyClick(editor(), Qt::Key_Backspace);
        QTest::keyClicks(editor(), text(row.typed));
        if (row.end == End::focusLoss)
            addButton().setFocus(Qt::MouseFocusReason);
        else
            QTest::keyClick(editor(),
                            row.end == End::enter        ? Qt::Key_Return
                                : row.end == End::escape ? Qt::Key_Escape
                                                         : Qt::Key_Tab);
        EXPECT_TRUE(editorIsGone());
        EXPECT_EQ(delegate.taken(), text(row.told));
        EXPECT_EQ(outline().sidebarModel().labelAt(at(c("c1"))), text("Annual report"))
            << "the name is the model's to change";
    }
}

TEST_F(SidebarRename, StartsByKeyAndBySlowSecondClickWhereThereIsAName)
{
    click(f("f2"));
    press(Qt::Key_F2);
    ASSERT_NE(editor(), nullptr);
    QTest::keyClicks(editor(), text("SIL"));
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(delegate.taken(), text("5:f2;foundry f2=SIL"));
    ASSERT_TRUE(editorIsGone());

    click(s("serif"));
    press(Qt::Key_F2);
    sidebar.beginRenaming(s("serif"));
    sidebar.beginRenaming(c("gone"));
    EXPECT_EQ(editor(), nullptr) << "style categories have fixed names";

    click(c("c2"));
    click(c("c2"));
    EXPECT_TRUE(test::waitUntil([this] { return editor() != nullptr; }));
}

TEST_F(SidebarRename, AnOpenEditorOutlastsNewStates)
{
    sidebar.beginRenaming(c("c2"));
    QTest::keyClicks(editor(), text("Half a na"));
    state.content.collections[1].familyNames = {text("Inter")};
    state.content.counts.collections = {{text("c2"), 1}};
    sidebar.apply(state);
    std::swap(state.content.collections[0], state.content.collections[1]);
    state.content.collections.push_back({text("c3"), text("Zines"), {}});
    state.selectedSource = BrowserSource::active();
    sidebar.apply(state);
    ASSERT_NE(editor(), nullptr);
    EXPECT_EQ(editor()->text(), text("Half a na"));
    EXPECT_EQ(selected(), text("Active"));
    QTest::keyClick(editor(), Qt::Key_Return);
    EXPECT_EQ(delegate.taken(), text("collection c2=Half a na"));
    EXPECT_TRUE(editorIsGone());
}

TEST_F(SidebarRename, AnEditorGoesWithItsRowAndTellsNothing)
{
    sidebar.beginRenaming(c("c2"));
    QTest::keyClicks(editor(), text("Too late"));
    state.content.collections.pop_back();
    sidebar.apply(state);
    EXPECT_TRUE(editorIsGone());
    EXPECT_EQ(delegate.taken(), QString());
}

} // namespace
} // namespace lorva
