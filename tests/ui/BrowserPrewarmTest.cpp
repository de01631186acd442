// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/LibraryFixture.h"
#include "ui/browser/BrowserCollectionView.h"
#include "ui/browser/BrowserTopBar.h"
#include "ui/browser/FontBrowserViewController.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/style/ReducedMotion.h"

#include <QTimer>

#include <gmock/gmock.h>

namespace lorva {
namespace {

using test::waitUntil;
using testing::ElementsAre;

/// Notes what it is asked to make ready; finds no face, and answers requests when the case says so.
class RecordingResolver final : public FontResolver
{
public:
    struct Prewarm
    {
        std::vector<int> families;
        double pointSize = 0;
    };
    std::vector<Prewarm> prewarms;
    std::vector<PendingResolve> pending;
    bool holdsAnswers = false;

    std::optional<Font> cachedFont(const QString &, const std::optional<FontStyleRecord> &,
                                   double) const override
    {
        return holdsAnswers ? std::nullopt : std::optional(Font());
    }
    Font resolve(const QString &, const std::optional<FontStyleRecord> &, double) const override
    {
        return {};
    }
    void resolveAsync(PendingResolve request) override { pending.push_back(std::move(request)); }
    void prewarm(std::vector<PrewarmFace> faces, double pointSize) override
    {
        Prewarm noted{{}, pointSize};
        for (const PrewarmFace &face : faces)
            noted.families.push_back(face.familyName.toInt());
        prewarms.push_back(noted);
    }
    void answerAll()
    {
        for (const PendingResolve &request : std::exchange(pending, {}))
            request.completion({});
    }
};

/// A browser of two columns and two rows a screen, whose families are called by their numbers.
class BrowserPrewarm : public ::testing::Test
{
protected:
    BrowserPrewarm()
    {
        std::vector<FontFamilyRecord> families(40);
        for (size_t i = 0; i < families.size(); ++i)
            families[i].familyName = QString::number(i);
        state.families = makeFamilyList(std::move(families));
        state.pointSize = 40;
        browser.resize(800, 440 + BrowserTopBar::kHeight);
        browser.show();
    }
    BrowserCollectionView &view() { return browser.collectionView(); }
    bool waitForPrewarms(size_t count)
    {
        return waitUntil([&] { return resolver->prewarms.size() >= count; });
    }

    const std::shared_ptr<RecordingResolver> resolver = std::make_shared<RecordingResolver>();
    FontBrowserViewController browser{resolver};
    FontBrowserState state;
};

TEST_F(BrowserPrewarm, MakesTheFacesAroundTheScreenReadyOnceItRests)
{
    browser.apply(state);
    ASSERT_TRUE(waitForPrewarms(1));
    EXPECT_THAT(resolver->prewarms.back().families, ElementsAre(4, 5, 6, 7));
    EXPECT_EQ(resolver->prewarms.back().pointSize, 40);

    for (const int offset : {4000, 1000, 880})
        view().setScrollOffset(offset);
    ASSERT_TRUE(waitForPrewarms(2));
    EXPECT_THAT(resolver->prewarms.back().families, ElementsAre(12, 13, 14, 15, 7, 6, 5, 4));

    state.selectedFamilyName = QStringLiteral("9");
    browser.apply(state);
    state.viewMode = ViewMode::list;
    browser.apply(state);
    ASSERT_TRUE(waitForPrewarms(3));
    EXPECT_DOUBLE_EQ(resolver->prewarms.back().pointSize, 40 * 0.72);

    state.catalogGeneration = 1;
    browser.apply(state);
    ASSERT_TRUE(waitForPrewarms(4)) << "a new catalog starts with empty caches";
    EXPECT_EQ(resolver->prewarms.size(), 4U) << "what rested in between, and nothing else";
}

TEST_F(BrowserPrewarm, LeavesTheWorkersToTheCardsOnScreenFirst)
{
    resolver->holdsAnswers = true;
    int fired = 0;
    auto *timer = browser.findChild<QTimer *>(QStringLiteral("prewarmTimer"));
    ASSERT_NE(timer, nullptr);
    QObject::connect(timer, &QTimer::timeout, [&] { ++fired; });
    browser.apply(state);
    ASSERT_TRUE(waitUntil([&] { return fired >= 2; }));
    EXPECT_TRUE(resolver->prewarms.empty());
    resolver->answerAll();
    EXPECT_TRUE(waitForPrewarms(1));

    fired = 0;
    resolver->holdsAnswers = false;
    view().setScrollOffset(1);
    view().setScrollOffset(0);
    ASSERT_TRUE(waitUntil([&] { return fired >= 1; }));
    EXPECT_EQ(resolver->prewarms.size(), 1U) << "nothing new around the screen";
}

TEST(BrowserPrewarming, FindsTheNextScreenInTheCache)
{
    setReducedMotionOverride(true);
    test::LibraryFixture library;
    library.addFamilies(QStringLiteral("Face"), 60);
    LorvaRootSplitViewController root(*library.model);
    root.resize(1300, 900);
    root.show();
    ASSERT_TRUE(library.load());
    ASSERT_TRUE(waitUntil([&] { return root.browser().isSettled(); }));
    const BrowserCollectionView &view = root.browser().collectionView();
    const QString next = view.items().at(view.visibleItems().rbegin()->first + 1);
    const auto cached = [&](const QString &name) {
        return library.model->fontLibraryService().cachedFont(name, std::nullopt,
                                                              library.model->browserPointSize());
    };
    ASSERT_TRUE(waitUntil([&] { return cached(next).has_value(); }));
    EXPECT_EQ(cached(next)->face()->names().family, next);
    EXPECT_FALSE(cached(view.items().last())) << "out of reach";
    setReducedMotionOverride(std::nullopt);
}

} // namespace
} // namespace lorva
