// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "organize/SidebarTree.h"

#include "support/OtherLanguage.h"

#include <gmock/gmock.h>

namespace lorva {
namespace {

using Kind = SidebarItem::Kind;

SidebarContent someContent()
{
    SidebarContent content;
    content.collections = {{QStringLiteral("c2"), QStringLiteral("Annual report"), {}},
                           {QStringLiteral("c1"), QStringLiteral("Wayfinding"), {}}};
    content.styleCategories = {{QStringLiteral("serif"), QStringLiteral("Serif"), {}},
                               {QStringLiteral("own"), QStringLiteral("Labels"), {}}};
    content.foundryCollections = {{QStringLiteral("f1"), QStringLiteral("Adobe"), {}}};
    content.unsortedFontCount = 3;
    content.counts.all = 666;
    content.counts.active = 214;
    content.counts.styles = {{QStringLiteral("serif"), 121}};
    content.counts.collections = {{QStringLiteral("c1"), 0}, {QStringLiteral("f1"), 99}};
    content.counts.foundries = {{QStringLiteral("f1"), 11}};
    return content;
}

/// Each row as "label|symbol|count", each header as "# label".
QStringList written(const SidebarContent &content)
{
    QStringList lines;
    for (const SidebarSection &section : sidebarTree(content)) {
        lines.append(QStringLiteral("# %1").arg(section.label));
        for (const SidebarRow &row : section.rows)
            lines.append(QStringLiteral("%1|%2|%3")
                             .arg(row.label, row.symbol,
                                  row.count ? QString::number(*row.count) : QString()));
    }
    return lines;
}

TEST(SidebarTree, RowsStandInTheirGroupsInOrderWithTheirCounts)
{
    EXPECT_EQ(
        written(someContent()),
        QStringList({QStringLiteral("# Library"), QStringLiteral("All|square.grid.2x2|666"),
                     QStringLiteral("Active|checkmark.circle|214"),
                     QStringLiteral("Inactive|circle.dashed|"), QStringLiteral("Discover|safari|"),
                     QStringLiteral("# Styles"), QStringLiteral("Organize|sparkles|3"),
                     QStringLiteral("Serif|book|121"), QStringLiteral("Labels|textformat|"),
                     QStringLiteral("# Collections"), QStringLiteral("Annual report|folder|"),
                     QStringLiteral("Wayfinding|folder|0"), QStringLiteral("# Foundries"),
                     QStringLiteral("Adobe|building.2|11")}));
}

TEST(SidebarTree, AnEmptyLibraryStillHasEveryHeaderAndItsOwnRows)
{
    SidebarContent content;
    content.hasDiscover = false;
    EXPECT_EQ(written(content),
              QStringList({QStringLiteral("# Library"), QStringLiteral("All|square.grid.2x2|"),
                           QStringLiteral("Active|checkmark.circle|"),
                           QStringLiteral("Inactive|circle.dashed|"), QStringLiteral("# Styles"),
                           QStringLiteral("# Collections"), QStringLiteral("# Foundries")}));
}

TEST(SidebarTree, ThePromotionStandsFirstOnlyWhileThereIsSomethingToSort)
{
    const struct
    {
        int unsorted;
        bool isHidden;
        bool hasQuiz;
        Kind first;
    } rows[]{
        {1, false, true, Kind::organize}, {0, false, true, Kind::style},
        {-4, false, true, Kind::style},   {9, true, true, Kind::style},
        {9, false, false, Kind::style},
    };
    for (const auto &row : rows) {
        SidebarContent content = someContent();
        content.unsortedFontCount = row.unsorted;
        content.hideOrganizePromo = row.isHidden;
        content.hasQuiz = row.hasQuiz;
        EXPECT_EQ(sidebarTree(content)[1].rows.front().item.kind(), row.first)
            << row.unsorted << row.isHidden << row.hasQuiz;
    }
}

TEST(SidebarTree, EveryItemHasALabelASymbolAndWhatItShows)
{
    const SidebarContent content = someContent();
    const struct
    {
        SidebarItem item;
        const char *label;
        const char *symbol;
        std::optional<BrowserSource> source;
    } rows[]{
        {SidebarItem::header(SidebarGroup::foundries), "Foundries", "", std::nullopt},
        {SidebarItem::fixed(Kind::allFonts), "All", "square.grid.2x2", BrowserSource::allFonts()},
        {SidebarItem::fixed(Kind::activeFonts), "Active", "checkmark.circle",
         BrowserSource::active()},
        {SidebarItem::fixed(Kind::inactiveFonts), "Inactive", "circle.dashed",
         BrowserSource::inactive()},
        {SidebarItem::fixed(Kind::discover), "Discover", "safari", BrowserSource::discover()},
        {SidebarItem::fixed(Kind::catalogue), "Catalogue", "book.closed", std::nullopt},
        {SidebarItem::fixed(Kind::organize), "Organize", "sparkles", std::nullopt},
        {SidebarItem::style(QStringLiteral("own")), "Labels", "textformat",
         BrowserSource::style(QStringLiteral("own"))},
        {SidebarItem::collection(QStringLiteral("c1")), "Wayfinding", "folder",
         BrowserSource::collection(QStringLiteral("c1"))},
        {SidebarItem::foundry(QStringLiteral("f1")), "Adobe", "building.2",
         BrowserSource::foundry(QStringLiteral("f1"))},
        // Not found, also where another group knows the id.
        {SidebarItem::style(QStringLiteral("c1")), "Style", "textformat",
         BrowserSource::style(QStringLiteral("c1"))},
        {SidebarItem::collection(QStringLiteral("serif")), "Collection", "folder",
         BrowserSource::collection(QStringLiteral("serif"))},
        {SidebarItem::foundry(QString()), "Foundry", "building.2",
         BrowserSource::foundry(QString())},
    };
    for (const auto &row : rows) {
        EXPECT_EQ(sidebarLabel(row.item, content), QString::fromLatin1(row.label));
        EXPECT_EQ(sidebarSymbol(row.item), QString::fromLatin1(row.symbol)) << row.label;
        EXPECT_EQ(sourceOf(row.item), row.source) << row.label;
        EXPECT_TRUE(!row.source || itemOf(*row.source) == row.item) << row.label;
    }
}

TEST(SidebarTree, StyleCategoriesAreToldApartByTheirSymbols)
{
    const struct
    {
        const char *id;
        const char *symbol;
    } rows[]{
        {"sans", "textformat.alt"},
        {"serif", "book"},
        {"display", "character.text.justify"},
        {"mono", "space"},
        {"script", "scribble.variable"},
        {"decorative", "paintbrush.pointed"},
        {"Serif", "textformat"},
        {"", "textformat"},
    };
    for (const auto &row : rows)
        EXPECT_EQ(sidebarSymbol(SidebarItem::style(QString::fromLatin1(row.id))),
                  QString::fromLatin1(row.symbol));
}

TEST(SidebarTree, ShowsWhatItIsCalledInTheUsersLanguage)
{
    const test::OtherLanguage other;
    SidebarContent content = someContent();
    content.styleCategories = {{"serif", "Serif", {}}, {"sans", "Mine", {}}, {"own", "Serif", {}}};
    const QString lines = written(content).join(u'\n');
    EXPECT_THAT(lines.toStdString(), ::testing::HasSubstr("「All」|square.grid.2x2|666"));
    EXPECT_THAT(lines.toStdString(), ::testing::HasSubstr("「Serif」|book|121"));
    EXPECT_THAT(lines.toStdString(), ::testing::HasSubstr("\nMine|textformat.alt|"))
        << "another program renamed it";
    EXPECT_THAT(lines.toStdString(), ::testing::HasSubstr("\nSerif|textformat|"))
        << "the user's own, and called so by the user";
    EXPECT_EQ(sidebarLabel(SidebarItem::style("serif"), content), "「Serif」");
    EXPECT_EQ(sidebarLabel(SidebarItem::collection("c1"), content), "Wayfinding");
}

TEST(SidebarTree, GroupsAreStoredUnderLastingNames)
{
    QStringList names;
    for (const SidebarGroup group : kSidebarGroups)
        names.append(sidebarGroupIdentifier(group));
    EXPECT_EQ(names.join(u' '), QStringLiteral("library styles collections foundries"));
}

} // namespace
} // namespace lorva
