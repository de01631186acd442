// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/WeightChoice.h"

#include <gtest/gtest.h>

namespace lorva {
namespace {

FontStyleRecord style(const char *label, int weight, bool isItalic = false)
{
    FontStyleRecord record;
    record.label = QString::fromLatin1(label);
    record.weight = weight;
    record.isItalic = isItalic;
    return record;
}

TEST(WeightChoice, TakesTheNearestUprightStyle)
{
    const std::vector<FontStyleRecord> full{
        style("Condensed Bold", 700), style("Light", 300), style("Regular", 400),
        style("Italic", 400, true),   style("Bold", 700),  style("Semibold Italic", 600, true),
        style("Black", 900)};
    const std::vector<FontStyleRecord> ends{style("Thin", 100), style("Black", 900)};
    const std::vector<FontStyleRecord> gap{style("Heavy", 700), style("Book", 400)};
    const std::vector<FontStyleRecord> italics{style("Light Italic", 300, true),
                                               style("Bold Italic", 700, true)};
    const struct
    {
        const std::vector<FontStyleRecord> &styles;
        int weight;
        const char *label;
    } rows[]{
        {full, 400, nullptr},          {full, 100, "Light"},
        {full, 340, "Light"},          {full, 360, "Regular"},
        {full, 590, "Bold"},           {full, 620, "Bold"},
        {full, 700, "Bold"},           {full, 800, "Black"},
        {full, 790, "Bold"},           {full, 900, "Black"},
        {ends, 500, "Thin"},           {ends, 510, "Black"},
        {gap, 550, "Heavy"},           {gap, 540, "Book"},
        {italics, 600, "Bold Italic"}, {italics, 500, "Light Italic"},
    };
    for (const auto &row : rows) {
        FontFamilyRecord family;
        family.styles = row.styles;
        const auto found = styleForWeight(family, row.weight);
        EXPECT_EQ(found ? found->label : QString(), QString::fromLatin1(row.label ? row.label : ""))
            << row.styles.front().label.toStdString() << " at " << row.weight;
    }
    EXPECT_EQ(styleForWeight({}, 700), std::nullopt) << "a family without styles";
}

} // namespace
} // namespace lorva
