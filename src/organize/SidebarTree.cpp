// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "organize/SidebarTree.h"

#include "model/records/DisplayedNames.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

using Kind = SidebarItem::Kind;

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(SidebarTree)
};

QString groupLabel(SidebarGroup group)
{
    switch (group) {
    case SidebarGroup::library:
        return Texts::tr("Library");
    case SidebarGroup::styles:
        //: The style categories of fonts: Serif, Script and so on.
        return Texts::tr("Styles");
    case SidebarGroup::foundries:
        return Texts::tr("Foundries");
    case SidebarGroup::collections:
        return Texts::tr("Collections");
    }
    return {};
}

template <class Record>
QString nameOf(const std::vector<Record> &records, const QString &id, const QString &otherwise)
{
    const auto found = std::ranges::find(records, id, &Record::id);
    return found == records.end() ? otherwise : displayedName(*found);
}

std::optional<int> countIn(const QHash<QString, int> &counts, const QString &id)
{
    const auto found = counts.constFind(id);
    return found == counts.cend() ? std::nullopt : std::optional(*found);
}

QString styleSymbol(const QString &id)
{
    static const QHash<QString, QString> symbols{
        {QStringLiteral("sans"), QStringLiteral("textformat.alt")},
        {QStringLiteral("serif"), QStringLiteral("book")},
        {QStringLiteral("display"), QStringLiteral("character.text.justify")},
        {QStringLiteral("mono"), QStringLiteral("space")},
        {QStringLiteral("script"), QStringLiteral("scribble.variable")},
        {QStringLiteral("decorative"), QStringLiteral("paintbrush.pointed")}};
    return symbols.value(id, QStringLiteral("textformat"));
}

SidebarRow fixedRow(Kind kind, const SidebarContent &content, std::optional<int> count)
{
    const SidebarItem item = SidebarItem::fixed(kind);
    return {item, sidebarLabel(item, content), sidebarSymbol(item), count};
}

std::vector<SidebarRow> libraryRows(const SidebarContent &content)
{
    std::vector<SidebarRow> rows{fixedRow(Kind::allFonts, content, content.counts.all),
                                 fixedRow(Kind::activeFonts, content, content.counts.active),
                                 fixedRow(Kind::inactiveFonts, content, content.counts.inactive)};
    if (content.hasDiscover)
        rows.push_back(fixedRow(Kind::discover, content, std::nullopt));
    return rows;
}

/// One row for each record, in their order. The record's own name is the label, which spares a
/// search through thousands of foundries for each of them.
template <class Record>
void appendRows(std::vector<SidebarRow> &rows, const std::vector<Record> &records,
                SidebarItem (*itemOfID)(QString), const QHash<QString, int> &counts)
{
    rows.reserve(rows.size() + records.size());
    for (const Record &record : records) {
        const SidebarItem item = itemOfID(record.id);
        rows.push_back(
            {item, displayedName(record), sidebarSymbol(item), countIn(counts, record.id)});
    }
}

bool showsPromotion(const SidebarContent &content)
{
    return content.hasQuiz && content.unsortedFontCount >= 1 && !content.hideOrganizePromo;
}

std::vector<SidebarRow> rowsOf(SidebarGroup group, const SidebarContent &content)
{
    std::vector<SidebarRow> rows;
    switch (group) {
    case SidebarGroup::library:
        return libraryRows(content);
    case SidebarGroup::styles:
        if (showsPromotion(content))
            rows.push_back(fixedRow(Kind::organize, content, content.unsortedFontCount));
        appendRows(rows, content.styleCategories, &SidebarItem::style, content.counts.styles);
        break;
    case SidebarGroup::collections:
        appendRows(rows, content.collections, &SidebarItem::collection, content.counts.collections);
        break;
    case SidebarGroup::foundries:
        appendRows(rows, content.foundryCollections, &SidebarItem::foundry,
                   content.counts.foundries);
        break;
    }
    return rows;
}

} // namespace

QString sidebarGroupIdentifier(SidebarGroup group)
{
    switch (group) {
    case SidebarGroup::library:
        return QStringLiteral("library");
    case SidebarGroup::styles:
        return QStringLiteral("styles");
    case SidebarGroup::foundries:
        return QStringLiteral("foundries");
    case SidebarGroup::collections:
        return QStringLiteral("collections");
    }
    return {};
}

std::vector<SidebarSection> sidebarTree(const SidebarContent &content)
{
    std::vector<SidebarSection> sections;
    for (const SidebarGroup group : kSidebarGroups)
        sections.push_back({group, groupLabel(group), rowsOf(group, content)});
    return sections;
}

QString sidebarLabel(const SidebarItem &item, const SidebarContent &content)
{
    switch (item.kind()) {
    case Kind::group:
        return groupLabel(item.group());
    case Kind::style:
        return nameOf(content.styleCategories, item.id(), Texts::tr("Style"));
    case Kind::foundry:
        return nameOf(content.foundryCollections, item.id(), Texts::tr("Foundry"));
    case Kind::collection:
        return nameOf(content.collections, item.id(), Texts::tr("Collection"));
    case Kind::allFonts:
        //: Every font there is, in the sidebar.
        return Texts::tr("All");
    case Kind::activeFonts:
        //: Fonts that are switched on for every program, in the sidebar.
        return Texts::tr("Active");
    case Kind::inactiveFonts:
        //: Fonts that are not switched on, in the sidebar.
        return Texts::tr("Inactive");
    case Kind::discover:
        //: A page that introduces type foundries, in the sidebar.
        return Texts::tr("Discover");
    case Kind::catalogue:
        return Texts::tr("Catalogue");
    case Kind::organize:
        //: Opens the quiz in which fonts are put into styles, in the sidebar.
        return Texts::tr("Organize");
    }
    return {};
}

QString sidebarSymbol(const SidebarItem &item)
{
    switch (item.kind()) {
    case Kind::group:
        return {};
    case Kind::style:
        return styleSymbol(item.id());
    case Kind::foundry:
        return QStringLiteral("building.2");
    case Kind::collection:
        return QStringLiteral("folder");
    case Kind::allFonts:
        return QStringLiteral("square.grid.2x2");
    case Kind::activeFonts:
        return QStringLiteral("checkmark.circle");
    case Kind::inactiveFonts:
        return QStringLiteral("circle.dashed");
    case Kind::discover:
        return QStringLiteral("safari");
    case Kind::catalogue:
        return QStringLiteral("book.closed");
    case Kind::organize:
        return QStringLiteral("sparkles");
    }
    return {};
}

std::optional<BrowserSource> sourceOf(const SidebarItem &item)
{
    switch (item.kind()) {
    case Kind::allFonts:
        return BrowserSource::allFonts();
    case Kind::activeFonts:
        return BrowserSource::active();
    case Kind::inactiveFonts:
        return BrowserSource::inactive();
    case Kind::discover:
        return BrowserSource::discover();
    case Kind::style:
        return BrowserSource::style(item.id());
    case Kind::collection:
        return BrowserSource::collection(item.id());
    case Kind::foundry:
        return BrowserSource::foundry(item.id());
    case Kind::group:
    case Kind::catalogue:
    case Kind::organize:
        break;
    }
    return std::nullopt;
}

SidebarItem itemOf(const BrowserSource &source)
{
    switch (source.kind()) {
    case BrowserSource::Kind::allFonts:
        break;
    case BrowserSource::Kind::active:
        return SidebarItem::fixed(Kind::activeFonts);
    case BrowserSource::Kind::inactive:
        return SidebarItem::fixed(Kind::inactiveFonts);
    case BrowserSource::Kind::style:
        return SidebarItem::style(source.id());
    case BrowserSource::Kind::collection:
        return SidebarItem::collection(source.id());
    case BrowserSource::Kind::foundry:
        return SidebarItem::foundry(source.id());
    case BrowserSource::Kind::discover:
        return SidebarItem::fixed(Kind::discover);
    }
    return SidebarItem::fixed(Kind::allFonts);
}

} // namespace lorva
