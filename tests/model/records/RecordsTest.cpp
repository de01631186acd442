// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/Activation.h"
#include "model/records/BrowserSource.h"
#include "model/records/FontRecords.h"
#include "model/records/InspectorRecords.h"

#include <QHash>
#include <QSet>

#include <gtest/gtest.h>

#include <unordered_set>

namespace lorva {

namespace {

TEST(Records, StylesThatDifferOnlyInTheirFileDiffer)
{
    FontStyleRecord here;
    here.id = QStringLiteral("Inter-Bold");
    FontStyleRecord there = here;
    EXPECT_EQ(here, there);
    there.fileURL = FilePath("/a.ttf");
    EXPECT_NE(here, there);
    here.fileURL = FilePath("/b.ttf");
    EXPECT_NE(here, there);
}

TEST(Records, SourcesAreKeysByKindAndId)
{
    const QString id = QStringLiteral("serif");
    const BrowserSource sources[]{BrowserSource::allFonts(),
                                  BrowserSource::active(),
                                  BrowserSource::inactive(),
                                  BrowserSource::style(id),
                                  BrowserSource::collection(id),
                                  BrowserSource::foundry(id),
                                  BrowserSource::style(QStringLiteral("sans")),
                                  BrowserSource::discover()};
    QHash<BrowserSource, int> positions;
    std::unordered_set<BrowserSource> set;
    int position = 0;
    for (const BrowserSource &source : sources) {
        positions.insert(source, position++);
        set.insert(source);
    }
    EXPECT_EQ(positions.size(), 8);
    EXPECT_EQ(set.size(), 8U);
    EXPECT_EQ(positions.value(BrowserSource::collection(QStringLiteral("serif")), -1), 4);
    EXPECT_EQ(positions.value(BrowserSource::collection(QStringLiteral("Serif")), -1), -1);
}

TEST(Records, OnlyGroupingsKeepAnId)
{
    EXPECT_EQ(BrowserSource::make(BrowserSource::Kind::active, QStringLiteral("x")),
              BrowserSource::active());
    EXPECT_EQ(BrowserSource::make(BrowserSource::Kind::foundry, QStringLiteral("x")),
              BrowserSource::foundry(QStringLiteral("x")));
}

TEST(Records, ActivationsCompareByCaseAndPayload)
{
    const FontFamilyActivation all[]{
        FontFamilyActivation::inactive(),
        FontFamilyActivation::active(std::nullopt, false),
        FontFamilyActivation::active(std::nullopt, true),
        FontFamilyActivation::active(InstallMethod::copy, false),
        FontFamilyActivation::active(InstallMethod::copy, true),
        FontFamilyActivation::active(InstallMethod::registerInPlace, false),
    };
    for (const FontFamilyActivation &left : all) {
        for (const FontFamilyActivation &right : all)
            EXPECT_EQ(left == right, &left == &right);
    }
}

TEST(Records, FeaturesAndAxesHashWithAllTheirFields)
{
    OpenTypeFeatureRecord feature{
        QStringLiteral("1-2"), QStringLiteral("Ligatures"), QStringLiteral("Common"), 1, 2, true};
    std::unordered_set<OpenTypeFeatureRecord> features{feature};
    EXPECT_TRUE(features.contains(feature));
    feature.isEnabled = false;
    EXPECT_FALSE(features.contains(feature));

    FontVariationAxisRecord axis{
        QStringLiteral("wght"), QStringLiteral("Weight"), 0x77676874, 100, 900, 400, 400};
    QSet<FontVariationAxisRecord> axes{axis};
    EXPECT_TRUE(axes.contains(axis));
    axis.currentValue = 401;
    EXPECT_FALSE(axes.contains(axis));
}

} // namespace

} // namespace lorva
