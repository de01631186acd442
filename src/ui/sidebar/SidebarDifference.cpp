// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarDifference.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>
#include <unordered_set>

namespace lorva {

namespace {

struct ItemHash
{
    size_t operator()(const SidebarItem &item) const noexcept
    {
        return qHashMulti(0, int(item.kind()), int(item.group()), item.id());
    }
};

using ItemSet = std::unordered_set<SidebarItem, ItemHash>;
using ItemPlaces = std::unordered_map<SidebarItem, int, ItemHash>;

ItemPlaces placesOf(const std::vector<SidebarRow> &rows)
{
    ItemPlaces places;
    places.reserve(rows.size());
    for (size_t place = 0; place < rows.size(); ++place)
        places.emplace(rows[place].item, int(place));
    return places;
}

void dropDoubles(std::vector<SidebarRow> &rows)
{
    ItemSet seen;
    seen.reserve(rows.size());
    std::erase_if(rows, [&](const SidebarRow &row) { return !seen.insert(row.item).second; });
}

void removeMissing(SidebarDifferenceSink &sink, const ItemPlaces &wanted)
{
    std::vector<SidebarRow> &rows = sink.rows();
    const auto isMissing = [&](int place) { return !wanted.contains(rows[size_t(place)].item); };
    for (int last = int(rows.size()) - 1; last >= 0; --last) {
        if (!isMissing(last))
            continue;
        int first = last;
        while (first > 0 && isMissing(first - 1))
            --first;
        sink.aboutToRemove(first, last);
        rows.erase(rows.begin() + first, rows.begin() + last + 1);
        sink.removed();
        last = first;
    }
}

/// What is left, in the order in which it is wanted.
void reorder(SidebarDifferenceSink &sink, const ItemPlaces &wanted)
{
    std::vector<SidebarRow> &rows = sink.rows();
    std::vector<int> order(rows.size());
    for (size_t place = 0; place < order.size(); ++place)
        order[place] = int(place);
    const auto wantedPlace = [&](int place) { return wanted.at(rows[size_t(place)].item); };
    if (std::ranges::is_sorted(order, {}, wantedPlace))
        return;
    std::ranges::sort(order, {}, wantedPlace);
    sink.aboutToReorder();
    std::vector<SidebarRow> sorted;
    sorted.reserve(rows.size());
    std::vector<int> newPlaces(rows.size());
    for (const int oldPlace : order) {
        newPlaces[size_t(oldPlace)] = int(sorted.size());
        sorted.push_back(std::move(rows[size_t(oldPlace)]));
    }
    rows = std::move(sorted);
    sink.reordered(newPlaces);
}

void insertNew(SidebarDifferenceSink &sink, const std::vector<SidebarRow> &wanted)
{
    std::vector<SidebarRow> &rows = sink.rows();
    const ItemPlaces present = placesOf(rows);
    for (size_t place = 0; place < wanted.size(); ++place) {
        size_t end = place;
        while (end < wanted.size() && !present.contains(wanted[end].item))
            ++end;
        if (end == place)
            continue;
        sink.aboutToInsert(int(place), int(end) - 1);
        rows.insert(rows.begin() + std::ptrdiff_t(place), wanted.begin() + std::ptrdiff_t(place),
                    wanted.begin() + std::ptrdiff_t(end));
        sink.inserted();
        place = end - 1;
    }
}

void updateChanged(SidebarDifferenceSink &sink, std::vector<SidebarRow> wanted)
{
    std::vector<SidebarRow> &rows = sink.rows();
    int first = -1;
    int last = -1;
    for (size_t place = 0; place < rows.size(); ++place) {
        if (rows[place] == wanted[place])
            continue;
        first = first < 0 ? int(place) : first;
        last = int(place);
    }
    if (first < 0)
        return;
    rows = std::move(wanted);
    sink.changed(first, last);
}

} // namespace

void applySidebarRows(SidebarDifferenceSink &sink, std::vector<SidebarRow> wanted)
{
    dropDoubles(wanted);
    if (!std::ranges::equal(sink.rows(), wanted, {}, &SidebarRow::item, &SidebarRow::item)) {
        const ItemPlaces places = placesOf(wanted);
        removeMissing(sink, places);
        reorder(sink, places);
        insertNew(sink, wanted);
    }
    updateChanged(sink, std::move(wanted));
}

} // namespace lorva
