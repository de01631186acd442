// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/CatalogTypes.h"
#include "catalog/FaceIndex.h"
#include "catalog/RepresentativeStyle.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace lorva {
namespace {

TEST(FontScanPhase, WritesNumbersAsTheRegionGroupsThem)
{
    struct Case
    {
        FontScanPhase phase;
        const char *english;
        const char *german;
    };
    const Case cases[]{
        {FontScanPhase::enumerating(0), "Finding fonts…", "Finding fonts…"},
        {FontScanPhase::enumerating(1234), "Finding fonts… 1,234", "Finding fonts… 1.234"},
        {FontScanPhase::scanning(12, 340), "Scanning 12 of 340 fonts", "Scanning 12 of 340 fonts"},
        {FontScanPhase::scanning(1, 12340), "Scanning 1 of 12,340 fonts",
         "Scanning 1 of 12.340 fonts"},
        {FontScanPhase::identifying(1000, 2000), "Identifying fonts… 1,000 of 2,000",
         "Identifying fonts… 1.000 of 2.000"},
        {FontScanPhase::preparing(), "Preparing…", "Preparing…"},
    };
    for (const Case &each : cases) {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
        EXPECT_EQ(each.phase.text().toStdString(), each.english);
        QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
        EXPECT_EQ(each.phase.text().toStdString(), each.german);
        QLocale::setDefault(QLocale::c());
        EXPECT_EQ(each.phase.text().toStdString(), each.english);
    }
}

FontStyleRecord style(const char *label, qint64 weight, bool isItalic)
{
    FontStyleRecord record;
    record.label = QString::fromUtf8(label);
    record.weight = weight;
    record.isItalic = isItalic;
    return record;
}

TEST(RepresentativeStyle, PrefersTheLabelThenUprightRegularThenUpright)
{
    struct Case
    {
        std::vector<FontStyleRecord> styles;
        int expected;
    };
    const Case cases[]{
        {{style("Bold", 700, false), style("Book", 400, false), style("regular", 500, true)}, 2},
        {{style("Book", 400, false), style("Rêgular", 400, false)}, 1},
        {{style("Italic", 400, true), style("Bold", 700, false), style("Book", 400, false)}, 2},
        {{style("Italic", 400, true), style("Bold", 700, false), style("Light", 300, false)}, 1},
        {{style("Bold Italic", 700, true), style("Italic", 400, true)}, 0},
    };
    for (const Case &each : cases)
        EXPECT_EQ(representativeStyle(each.styles), &each.styles[size_t(each.expected)]);
    EXPECT_EQ(representativeStyle({}), nullptr);
}

TEST(FontManagerWeight, FollowsItsThresholds)
{
    struct Case
    {
        qint64 weight;
        int expected;
    };
    constexpr Case kCases[]{{-5, 2},  {100, 2}, {149, 2}, {150, 3},  {250, 4},  {300, 4},
                            {350, 5}, {400, 5}, {450, 6}, {550, 7},  {650, 8},  {700, 8},
                            {749, 8}, {750, 9}, {800, 9}, {850, 11}, {900, 11}, {1000, 11}};
    for (const Case &each : kCases)
        EXPECT_EQ(fontManagerWeight(each.weight), each.expected) << each.weight;
}

} // namespace
} // namespace lorva
