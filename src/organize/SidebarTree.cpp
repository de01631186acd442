// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "organize/SidebarTree.h"

#include <QCoreApplication>

#include <algorithm>

namespace lorva {

namespace {

using Kind = SidebarItem::Kind;

QString translated(const char *text)
{
    return QCoreApplication::translate("SidebarTree", text);
}

QString groupLabel(SidebarGroup group)
{
    switch (group) {
    case SidebarGroup::library:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Library"));
    case SidebarGroup::styles:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Styles"));
    case SidebarGroup::foundries:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Foundries"));
    case SidebarGroup::collections:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Collections"));
    }
    return {};
}

template <class Record>
QString nameOf(const std::vector<Record> &records, const QString &id, const char *otherwise)
{
    const auto found = std::ranges::find(records, id, &Record::id);
    return found == records.end() ? translated(otherwise) : found->name;
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
        rows.push_back({item, record.name, sidebarSymbol(item), countIn(counts, record.id)});
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
        return nameOf(content.styleCategories, item.id(),
                      QT_TRANSLATE_NOOP("SidebarTree", "Style"));
    case Kind::foundry:
        return nameOf(content.foundryCollections, item.id(),
                      QT_TRANSLATE_NOOP("SidebarTree", "Foundry"));
    case Kind::collection:
        return nameOf(content.collections, item.id(),
                      QT_TRANSLATE_NOOP("SidebarTree", "Collection"));
    case Kind::allFonts:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "All"));
    case Kind::activeFonts:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Active"));
    case Kind::inactiveFonts:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Inactive"));
    case Kind::discover:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Discover"));
    case Kind::catalogue:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Catalogue"));
    case Kind::organize:
        return translated(QT_TRANSLATE_NOOP("SidebarTree", "Organize"));
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
