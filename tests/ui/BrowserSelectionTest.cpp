// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserSelection.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

using Band = BrowserSelection::Band;
using Others = BrowserSelection::Others;

BrowserSelection fresh(const char *items = "ABCDEFGH")
{
    BrowserSelection selection;
    selection.setItems(QString::fromLatin1(items).split(QString(), Qt::SkipEmptyParts));
    return selection;
}

/// "selected|current".
std::string told(const BrowserSelection &selection)
{
    const QString selected = selection.selectedIDs().join(QString());
    return QString(selected + u'|' + selection.currentID()).toStdString();
}

TEST(BrowserSelection, FollowsClicksAndRanges)
{
    const struct
    {
        const char *what;
        std::function<void(BrowserSelection &)> act;
        const char *expected;
    } rows[]{
        {"a click takes one", [](auto &s) { s.choose(2); }, "C|C"},
        {"a toggle adds", [](auto &s) { s.toggle(5); }, "CF|F"},
        {"and again", [](auto &s) { s.toggle(0); }, "ACF|A"},
        {"a toggle of the current one leaves the nearest", [](auto &s) { s.toggle(0); }, "CF|C"},
        {"a range starts where the last toggle was", [](auto &s) { s.extendTo(3); }, "ABCD|D"},
        {"a shorter range", [](auto &s) { s.extendTo(1); }, "AB|B"},
        {"a range that keeps the others",
         [](auto &s) {
             s.toggle(5);
             s.extendTo(6, Others::keep);
         },
         "ABFG|G"},
        {"backwards",
         [](auto &s) {
             s.choose(4);
             s.extendTo(2);
         },
         "CDE|C"},
        {"a menu on a selected card keeps all", [](auto &s) { s.chooseForMenu(4); }, "CDE|E"},
        {"on another takes it alone", [](auto &s) { s.chooseForMenu(7); }, "H|H"},
        {"all keep the current one", [](auto &s) { s.selectAll(); }, "ABCDEFGH|H"},
        {"the ground takes none", [](auto &s) { s.choose(-1); }, "|"},
        {"a toggle of the ground does nothing", [](auto &s) { s.toggle(-1); }, "|"},
        {"a range from nowhere is one card", [](auto &s) { s.extendTo(3); }, "D|D"},
        {"a band replaces",
         [](auto &s) {
             s.applyBand({1, 2}, Band::replace);
         },
         "BC|B"},
        {"adds",
         [](auto &s) {
             s.applyBand({2, 5}, Band::add);
         },
         "BCF|B"},
        {"turns over",
         [](auto &s) {
             s.applyBand({1, 2, 6}, Band::toggle);
         },
         "FG|F"},
        {"an empty one clears", [](auto &s) { s.applyBand({}, Band::replace); }, "|"},
    };
    BrowserSelection selection = fresh();
    for (const auto &row : rows) {
        row.act(selection);
        EXPECT_EQ(told(selection), row.expected) << row.what;
    }
}

TEST(BrowserSelection, WhatVanishesLeavesIt)
{
    const struct
    {
        const char *items;
        const char *expected;
    } rows[]{
        {"HGFEDCBA", "GEB|E"}, {"AB", "B|B"}, {"BGXY", "BG|G"}, {"XYZ", "|"}, {"", "|"},
    };
    for (const auto &row : rows) {
        BrowserSelection selection = fresh();
        selection.choose(1);
        selection.toggle(6);
        selection.toggle(4);
        selection.setItems(fresh(row.items).items());
        EXPECT_EQ(told(selection), row.expected) << row.items;
        selection.extendTo(selection.items().isEmpty() ? -1 : 0);
        EXPECT_EQ(selection.isSelected(0), !selection.items().isEmpty())
            << "a range from an anchor that is gone";
    }
}

TEST(BrowserSelection, MirrorsWhatTheWindowShows)
{
    const struct
    {
        const char *id;
        const char *expected;
    } rows[]{{"D", "BD|D"}, {"B", "BD|B"}, {"H", "H|H"}, {"", "|"}, {"Elsewhere", "|"}};
    for (const auto &row : rows) {
        BrowserSelection selection = fresh();
        selection.choose(1);
        selection.toggle(3);
        selection.mirror(QString::fromLatin1(row.id));
        EXPECT_EQ(told(selection), row.expected) << row.id;
    }
}

} // namespace
} // namespace lorva
