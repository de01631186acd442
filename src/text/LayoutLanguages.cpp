// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/LayoutLanguages.h"

#include "text/FontLimits.h"

#include <set>

namespace lorva {

namespace {

constexpr FontTag kDefaultLanguage = fontTag('d', 'f', 'l', 't');

/// Collects each pair once, and looks at no more records than that many.
class Listing
{
public:
    bool isFull() const { return m_budget <= 0; }
    void add(FontTag script, FontTag language)
    {
        --m_budget;
        if (m_known.insert({script, language}).second)
            m_all.push_back({script, language});
    }
    void visit() { --m_budget; }
    std::vector<LayoutLanguage> take() { return std::move(m_all); }

private:
    std::set<std::pair<FontTag, FontTag>> m_known;
    std::vector<LayoutLanguage> m_all;
    int m_budget = kMaxLayoutLanguages;
};

/// OpenType "Script Table".
void addScript(FontTag tag, const TableView &script, Listing &listing)
{
    listing.visit();
    if (script.u16(0) != 0)
        listing.add(tag, kDefaultLanguage);
    const quint64 count = script.u16(2);
    for (quint64 i = 0; i < count && script.has(4 + 6 * i, 6) && !listing.isFull(); ++i)
        listing.add(tag, script.u32(4 + 6 * i));
}

void addScripts(const TableView &table, Listing &listing)
{
    const quint16 listAt = table.u16(4);
    const TableView scripts = listAt != 0 ? table.from(listAt) : TableView();
    const quint64 count = scripts.u16(0);
    for (quint64 i = 0; i < count && scripts.has(2 + 6 * i, 6) && !listing.isFull(); ++i)
        addScript(scripts.u32(2 + 6 * i), scripts.from(scripts.u16(6 + 6 * i)), listing);
}

} // namespace

std::vector<LayoutLanguage> listLayoutLanguages(const TableView &substitution,
                                                const TableView &positioning)
{
    Listing listing;
    addScripts(substitution, listing);
    addScripts(positioning, listing);
    return listing.take();
}

} // namespace lorva
