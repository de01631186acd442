// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/BrowserSource.h"
#include "model/records/GroupingRecords.h"

#include <QHash>
#include <QString>

#include <optional>
#include <vector>

namespace lorva {

// The sidebar as a value: which rows there are, in which order, with which label and symbol.
// Nothing is drawn here. Thread: any.

/// The numbers are stored nowhere, but their order is fixed.
enum class SidebarGroup { library = 0, styles = 1, foundries = 2, collections = 3 };
/// The groups as they stand, from top to bottom.
inline constexpr SidebarGroup kSidebarGroups[]{SidebarGroup::library, SidebarGroup::styles,
                                               SidebarGroup::collections, SidebarGroup::foundries};

/// The key under which a group's collapsing is kept: "library", "styles", "foundries",
/// "collections".
QString sidebarGroupIdentifier(SidebarGroup group);

/// One row, header rows included. A value that serves as a key.
class SidebarItem
{
public:
    enum class Kind {
        group,
        style,
        foundry,
        collection,
        allFonts,
        activeFonts,
        inactiveFonts,
        discover,
        catalogue,
        organize
    };

    static SidebarItem header(SidebarGroup group) { return {Kind::group, group, {}}; }
    static SidebarItem style(QString id)
    {
        return {Kind::style, SidebarGroup::styles, std::move(id)};
    }
    static SidebarItem foundry(QString id)
    {
        return {Kind::foundry, SidebarGroup::foundries, std::move(id)};
    }
    static SidebarItem collection(QString id)
    {
        return {Kind::collection, SidebarGroup::collections, std::move(id)};
    }
    /// A row of the kinds that need no id.
    static SidebarItem fixed(Kind kind)
    {
        return {kind, kind == Kind::organize ? SidebarGroup::styles : SidebarGroup::library, {}};
    }

    Kind kind() const { return m_kind; }
    /// The group it heads or stands in.
    SidebarGroup group() const { return m_group; }
    /// Of a style category, foundry or collection; empty for the rest.
    const QString &id() const { return m_id; }

    bool operator==(const SidebarItem &) const = default;

private:
    SidebarItem(Kind kind, SidebarGroup group, QString id)
        : m_kind(kind)
        , m_group(group)
        , m_id(std::move(id))
    {
    }
    Kind m_kind;
    SidebarGroup m_group;
    QString m_id;
};

/// How many families of this computer each row stands for. Absent: not known yet, nothing is shown.
struct SidebarCounts
{
    std::optional<int> all;
    std::optional<int> active;
    std::optional<int> inactive;
    /// By id.
    QHash<QString, int> styles;
    QHash<QString, int> collections;
    QHash<QString, int> foundries;

    bool operator==(const SidebarCounts &) const = default;
};

/// What the tree is computed from.
struct SidebarContent
{
    std::vector<FontCollectionRecord> collections;
    std::vector<FontStyleCategoryRecord> styleCategories;
    std::vector<FoundryCollectionRecord> foundryCollections;
    /// Families without a style category.
    int unsortedFontCount = 0;
    bool hideOrganizePromo = false;
    /// The parts of the program that rows lead to; a row that leads nowhere is left out.
    bool hasDiscover = true;
    bool hasQuiz = true;
    SidebarCounts counts;

    bool operator==(const SidebarContent &) const = default;
};

struct SidebarRow
{
    SidebarItem item;
    QString label;
    /// Name of a symbol image; empty for none.
    QString symbol;
    std::optional<int> count;

    bool operator==(const SidebarRow &) const = default;
};

struct SidebarSection
{
    SidebarGroup group;
    QString label;
    std::vector<SidebarRow> rows;

    bool operator==(const SidebarSection &) const = default;
};

/// The four groups with their rows, all of them, collapsed or not.
std::vector<SidebarSection> sidebarTree(const SidebarContent &content);

/// The label of one row, looked up by id; "Style", "Foundry", "Collection" for an unknown id.
QString sidebarLabel(const SidebarItem &item, const SidebarContent &content);
/// The name of the row's symbol image; empty for headers.
QString sidebarSymbol(const SidebarItem &item);

/// What choosing the row shows; nothing for headers, `catalogue` and `organize`.
std::optional<BrowserSource> sourceOf(const SidebarItem &item);
/// The row that stands for a source.
SidebarItem itemOf(const BrowserSource &source);

} // namespace lorva
