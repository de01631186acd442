// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Who waits for a load, and loads that are ended early.

#include "model/LorvaAppModel.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

namespace lorva {
namespace {

using test::FontBuilder;
using test::LibraryFixture;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Answers = std::vector<std::optional<int>>;

/// Knows of nothing that is switched on; tells the case where a load is, and can be kept from
/// answering.
class ScriptedActivation final : public ActivationProvider
{
public:
    class Nothing final : public ActivationState
    {
    public:
        std::optional<FontFamilyActivation> activation(const FontFamilyRecord &) const override
        {
            return std::nullopt;
        }
    };

    std::shared_ptr<const ActivationState> state() const override { return m_state; }
    void setWatchedFolders(std::vector<FilePath>) override { }
    void setWatchedFontURLs(QSet<FilePath>) override { hasScanned = true; }
    void reconcile(const FontFamilyList &, std::function<void()> done) override
    {
        isAsked = true;
        if (isHeld)
            waiting = std::move(done);
        else
            done();
    }

    bool hasScanned = false;
    bool isAsked = false;
    bool isHeld = false;
    std::function<void()> waiting;

private:
    std::shared_ptr<const ActivationState> m_state = std::make_shared<Nothing>();
};

/// Its first scan ends only when it is told to stop.
class StuckOnce final : public AvailableFonts
{
public:
    std::vector<FilePath> fontFiles(const std::function<void(int)> &,
                                    std::stop_token stop) const override
    {
        std::unique_lock lock(m_mutex);
        if (m_calls++ == 0)
            m_never.wait(lock, std::move(stop), [] { return false; });
        return {};
    }
    bool isAsked() const
    {
        const std::lock_guard lock(m_mutex);
        return m_calls > 0;
    }

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable_any m_never;
    mutable int m_calls = 0;
};

class LibraryLoading : public testing::Test
{
protected:
    LibraryLoading()
    {
        library.makeActivation = [this] {
            auto made = std::make_unique<ScriptedActivation>();
            activation = made.get();
            return made;
        };
        library.restart(test::TestHome::instance().makeFolder("loading"));
    }

    LorvaAppModel &model() { return *library.model; }
    void wait()
    {
        model().whenLoaded([this](auto each) { answers.push_back(each); });
    }
    bool ends()
    {
        return test::waitUntil([this] { return !model().isLoading(); });
    }
    bool isScanning()
    {
        return test::waitUntil([this] { return library.fonts->isAsked(); });
    }

    LibraryFixture library;
    ScriptedActivation *activation = nullptr;
    Answers answers;
};

TEST_F(LibraryLoading, WhoeverWaitsHearsHowManyFamiliesAreNewToThem)
{
    library.addFamilies(QStringLiteral("Old"), 2);
    ASSERT_TRUE(library.load());
    wait();
    EXPECT_THAT(answers, IsEmpty()) << "nothing runs: it is the next load that counts";
    library.addFamilies(QStringLiteral("New"), 3);
    std::erase(library.fonts->files, library.fonts->files.front());
    ASSERT_TRUE(library.load());
    EXPECT_THAT(answers, ElementsAre(3)) << "a family that has gone counts for nothing";

    wait();
    ASSERT_TRUE(library.load());
    ASSERT_TRUE(library.load());
    EXPECT_THAT(answers, ElementsAre(3, 0)) << "once";
}

TEST_F(LibraryLoading, ALoadThatIsSupersededHandsOnWhoWaitsAndIsEnded)
{
    const auto stuck = std::make_shared<StuckOnce>();
    library.otherFonts = stuck;
    library.restart(test::TestHome::instance().makeFolder("stuck"));
    wait();
    model().loadCatalog();
    ASSERT_TRUE(test::waitUntil([&] { return stuck->isAsked(); }));
    model().loadCatalog();
    wait();
    model().loadCatalog();
    EXPECT_THAT(answers, IsEmpty());
    ASSERT_TRUE(ends());
    EXPECT_THAT(answers, ElementsAre(0, 0));
}

TEST_F(LibraryLoading, WhatTheLastProcessKnewIsNotNew)
{
    const FilePath folder = test::TestHome::instance().makeFolder("remembered");
    library.addFamilies(QStringLiteral("Old"), 2);
    library.restart(folder);
    ASSERT_TRUE(library.load());
    library.addFamily(QStringLiteral("New"));
    library.restart(folder);
    wait();
    ASSERT_TRUE(library.load());
    EXPECT_THAT(answers, ElementsAre(1));
}

TEST_F(LibraryLoading, TellsHowFarItIs)
{
    library.addFamilies(QStringLiteral("Some"), 2);
    std::vector<FontScanPhase> phases;
    QObject::connect(&model(), &LorvaAppModel::scanProgressed, &model(),
                     [&](const FontScanPhase &phase) { phases.push_back(phase); });
    ASSERT_TRUE(library.load());
    ASSERT_FALSE(phases.empty());
    EXPECT_EQ(phases.front(), FontScanPhase::enumerating(0));
    EXPECT_EQ(phases.back().kind, FontScanPhase::Kind::preparing);
}

TEST_F(LibraryLoading, CanBeCancelledAtEveryStage)
{
    library.addFamily(QStringLiteral("Old"));
    ASSERT_TRUE(library.load());
    const struct
    {
        const char *stage;
        std::function<bool()> isThere;
        /// The result is shown by then, but for what is switched on.
        bool isInstalled;
    } rows[]{
        {"asked for", [] { return true; }, false},
        {"scanning", [&] { return library.fonts->isAsked(); }, false},
        {"results are being made ready",
         [&] {
             library.fonts->letGo();
             return activation->hasScanned;
         },
         false},
        {"waiting for activations",
         [&] {
             library.fonts->letGo();
             return activation->isAsked;
         },
         true},
    };
    int count = 1;
    for (const auto &row : rows) {
        SCOPED_TRACE(row.stage);
        answers.clear();
        activation->hasScanned = activation->isAsked = false;
        activation->isHeld = true;
        library.addFamily(QStringLiteral("New %1").arg(count));
        library.fonts->hold();
        model().loadCatalog();
        wait();
        ASSERT_TRUE(test::waitUntil(row.isThere));

        model().cancelLoad();
        EXPECT_FALSE(model().isLoading());
        EXPECT_TRUE(model().loadingText().isEmpty());
        EXPECT_THAT(answers, ElementsAre(std::nullopt));
        EXPECT_EQ(model().allFamilies()->size(), size_t(count + row.isInstalled));
        model().cancelLoad();

        // What was on its way comes to nothing, and the next load to its end.
        activation->isHeld = false;
        if (activation->waiting)
            std::exchange(activation->waiting, {})();
        library.fonts->letGo();
        wait();
        ASSERT_TRUE(library.load());
        EXPECT_THAT(answers, ElementsAre(std::nullopt, row.isInstalled ? 0 : 1));
        EXPECT_EQ(model().allFamilies()->size(), size_t(++count));
    }
}

TEST_F(LibraryLoading, AnAnswerMayBeginTheNextLoadOrEndTheModel)
{
    library.addFamily(QStringLiteral("Only"));
    model().whenLoaded([this](std::optional<int>) {
        wait();
        model().loadCatalog();
    });
    model().loadCatalog();
    ASSERT_TRUE(test::waitUntil([this] { return !answers.empty(); }));
    EXPECT_THAT(answers, ElementsAre(0));

    model().whenLoaded([this](std::optional<int>) { library.model.reset(); });
    wait();
    model().loadCatalog();
    ASSERT_TRUE(test::waitUntil([this] { return !library.model; }));
    EXPECT_THAT(answers, ElementsAre(0)) << "the model has gone first";
}

TEST_F(LibraryLoading, LooksWhichFoldersAreThereAndHowManyFontFilesTheyHold)
{
    const FilePath home = test::TestHome::instance().makeFolder("look");
    const FilePath full = home.child("fonts");
    const FilePath namesake = home.child("fonts 2");
    const FilePath gone = home.child("gone");
    const auto write = [](const FilePath &folder, const char *name, const char *style) {
        test::writeFile(folder, QByteArray(name) + style + ".ttf",
                        FontBuilder(QLatin1String(name), QLatin1String(style)).build());
    };
    write(full, "Alpha", "Regular");
    write(full.child("inner"), "Alpha", "Bold");
    write(full, "Beta", "Regular");
    // A double of what is installed has no family of its own here, but is a file of the folder.
    test::writeFile(full, "Double.ttf", FontBuilder(QStringLiteral("Beta")).build());
    ::mkdir(namesake.c_str(), 0700);
    ::mkdir(gone.c_str(), 0700);
    std::optional<AddedFolders> added;
    model().addWatchedFolders({full, namesake, gone},
                              [&](AddedFolders each) { added = std::move(each); });
    ASSERT_TRUE(test::waitUntil([&] { return added && !model().isLoading(); }));
    ASSERT_EQ(::rmdir(gone.c_str()), 0);

    std::optional<QHash<QString, LorvaAppModel::FolderLook>> looks;
    model().lookAtFolders([&](const auto &each) { looks = each; });
    ASSERT_TRUE(test::waitUntil([&] { return looks.has_value(); }));
    using Look = LorvaAppModel::FolderLook;
    std::vector<Look> found;
    for (const WatchedFolder &folder : model().watchedFolders())
        found.push_back(looks->value(folder.id));
    EXPECT_THAT(found, ElementsAre(Look{true, 4}, Look{true, 0}, Look{false, 0}));
    EXPECT_EQ(looks->size(), 3);
}

} // namespace
} // namespace lorva
