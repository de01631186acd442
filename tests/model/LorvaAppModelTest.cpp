// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "model/LorvaAppModel.h"

#include "base/NotificationCentre.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace lorva {
namespace {

using test::LibraryFixture;
using ::testing::ElementsAre;

TEST(LorvaAppModel, ShowsALoadedCatalogSortedAsPeopleSort)
{
    LibraryFixture library;
    for (const char *name : {"beta", "Ärmel", "Zeta", "Alpha", "arme", "Émile"})
        library.addFamily(QString::fromUtf8(name));
    int changes = 0;
    library.model->onChange = [&] { ++changes; };
    int notices = 0;
    QObject guard;
    NotificationCentre::shared().observe(LorvaAppModel::changeNotification(), &guard,
                                         [&](const void *object) {
                                             EXPECT_EQ(object, library.model.get());
                                             ++notices;
                                         });

    ASSERT_TRUE(library.load());

    EXPECT_THAT(library.visibleNames(),
                ElementsAre(QStringLiteral("Alpha"), QStringLiteral("arme"),
                            QString::fromUtf8("Ärmel"), QStringLiteral("beta"),
                            QString::fromUtf8("Émile"), QStringLiteral("Zeta")));
    EXPECT_GE(changes, 2) << "one for the start of the load, one for its result";
    EXPECT_EQ(notices, changes);
}

TEST(LorvaAppModel, KeepsASelectionOnlyWhileItsFamilyIsShown)
{
    LibraryFixture library;
    library.addFamilies(QStringLiteral("Kept"), 2);
    const FilePath gone = library.addFamily(QStringLiteral("Gone"));
    ASSERT_TRUE(library.load());

    library.model->selectFamily(QStringLiteral("Kept 001"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(library.model->selectedFamilyName(), QStringLiteral("Kept 001"));

    library.model->selectFamily(QStringLiteral("Gone"));
    std::erase(library.fonts->files, gone);
    ASSERT_TRUE(library.load());
    EXPECT_EQ(library.model->selectedFamilyName(), std::nullopt);
}

TEST(LorvaAppModel, TheLastOfTwoLoadsWins)
{
    LibraryFixture library;
    library.addFamily(QStringLiteral("First"));
    library.model->loadCatalog();
    library.addFamily(QStringLiteral("Second"));
    ASSERT_TRUE(library.load());
    EXPECT_EQ(library.visibleNames().size(), 2);
}

TEST(LorvaAppModel, GoesAwayWhileLoading)
{
    LibraryFixture library;
    library.addFamilies(QStringLiteral("Many"), 40);
    library.model->loadCatalog();
    library.model.reset();
    QObject marker;
    bool cameBack = false;
    QMetaObject::invokeMethod(
        &marker, [&] { cameBack = true; }, Qt::QueuedConnection);
    EXPECT_TRUE(test::waitUntil([&] { return cameBack; }));
}

TEST(LorvaAppModel, SourcesFollowActivation)
{
    LibraryFixture library;
    library.addFamily(QStringLiteral("System"));
    const FilePath folder = test::TestHome::instance().makeFolder("watched");
    test::writeFile(folder, "w.ttf", test::FontBuilder(QStringLiteral("Watched")).build());
    *library.watchedFolders = {folder};
    ASSERT_TRUE(library.load());

    EXPECT_EQ(library.visibleNames().size(), 2);
    library.model->select(BrowserSource::active());
    EXPECT_THAT(library.visibleNames(), ElementsAre(QStringLiteral("System")));
    library.model->selectFamily(QStringLiteral("System"));
    library.model->select(BrowserSource::inactive());
    EXPECT_THAT(library.visibleNames(), ElementsAre(QStringLiteral("Watched")));
    EXPECT_EQ(library.model->selectedFamilyName(), std::nullopt);
    library.model->select(BrowserSource::discover());
    EXPECT_TRUE(library.visibleNames().isEmpty());
}

TEST(LorvaAppModel, PointSizesStayWithinReason)
{
    LibraryFixture library;
    const struct
    {
        double wanted;
        double kept;
    } rows[]{
        {48, 48},
        {1, LorvaAppModel::kMinimumPointSize},
        {1e9, LorvaAppModel::kMaximumPointSize},
        {std::numeric_limits<double>::quiet_NaN(), LorvaAppModel::kMaximumPointSize},
        {-std::numeric_limits<double>::infinity(), LorvaAppModel::kMaximumPointSize},
    };
    for (const auto &row : rows) {
        library.model->setPointSize(row.wanted);
        EXPECT_EQ(library.model->browserPointSize(), row.kept) << row.wanted;
    }
}

} // namespace
} // namespace lorva
