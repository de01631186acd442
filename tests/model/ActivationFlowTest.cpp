// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// How the model follows a service that switches fonts on and off and takes its time, with its
// answers delivered in every order.

#include "base/NotificationCentre.h"
#include "model/LorvaAppModel.h"
#include "support/LibraryFixture.h"

#include <gmock/gmock.h>

#include <QCoreApplication>

namespace lorva {
namespace {

using test::LibraryFixture;

/// What the case says is on; a look at what is there ends when the case says so.
class ScriptedActivation final : public ActivationProvider
{
public:
    struct State final : ActivationState
    {
        QSet<QString> on;
        std::optional<FontFamilyActivation> activation(
            const FontFamilyRecord &family) const override
        {
            return on.contains(family.familyName) ? FontFamilyActivation::active({}, false)
                                                  : FontFamilyActivation::inactive();
        }
    };

    void switchOn(const QSet<QString> &names)
    {
        auto state = std::make_shared<State>();
        state->on = names;
        m_state = state;
    }
    void finishReconciling()
    {
        for (const auto &done : std::exchange(m_reconciling, {}))
            done();
    }
    bool isReconciling() const { return !m_reconciling.empty(); }
    bool waits = false;

    std::shared_ptr<const ActivationState> state() const override { return m_state; }
    void setWatchedFolders(std::vector<FilePath>) override { }
    void setWatchedFontURLs(QSet<FilePath>) override { }
    void reconcile(const FontFamilyList &, std::function<void()> done) override
    {
        m_reconciling.push_back(std::move(done));
        if (!waits)
            finishReconciling();
    }

private:
    std::shared_ptr<const State> m_state = std::make_shared<State>();
    std::vector<std::function<void()>> m_reconciling;
};

class ActivationFlow : public testing::Test
{
protected:
    ActivationFlow()
    {
        library.addFamilies(QStringLiteral("F"), 3);
        library.makeActivation = [this] {
            auto made = std::make_unique<ScriptedActivation>();
            service = made.get();
            return made;
        };
        library.restart(test::TestHome::instance().makeFolder("activation"));
    }

    QStringList active()
    {
        library.model->select(BrowserSource::active());
        return library.visibleNames();
    }
    bool becomesActive(const QStringList &names)
    {
        return test::waitUntil([&] { return active() == names; });
    }
    void announce() { NotificationCentre::shared().post(ActivationProvider::changeNotification()); }

    LibraryFixture library;
    ScriptedActivation *service = nullptr;
};

TEST_F(ActivationFlow, ALoadEndsWithWhatItsReconcileFound)
{
    service->waits = true;
    library.model->loadCatalog();
    ASSERT_TRUE(test::waitUntil([&] { return service->isReconciling(); }));
    library.model->select(BrowserSource::active());
    library.model->selectFamily(QStringLiteral("F 001"));
    service->switchOn({"F 001"});
    QStringList shownAtTheEnd;
    library.model->onChange = [&] {
        if (!library.model->isLoading() && shownAtTheEnd.isEmpty())
            shownAtTheEnd = library.visibleNames();
    };
    service->finishReconciling();
    ASSERT_TRUE(test::waitUntil([&] { return !library.model->isLoading(); }));
    EXPECT_EQ(shownAtTheEnd, QStringList{"F 001"});
    EXPECT_EQ(library.model->selectedFamilyName(), QStringLiteral("F 001"));
}

TEST_F(ActivationFlow, AReconcileOfAnEarlierLoadEndsNothing)
{
    service->waits = true;
    library.model->loadCatalog();
    ASSERT_TRUE(test::waitUntil([&] { return service->isReconciling(); }));
    library.fonts->hold();
    library.model->loadCatalog();
    service->switchOn({"F 000"});
    service->finishReconciling();
    QCoreApplication::processEvents();
    EXPECT_TRUE(library.model->isLoading());
    library.fonts->letGo();
    service->waits = false;
    ASSERT_TRUE(test::waitUntil([&] { return !library.model->isLoading(); }));
    EXPECT_TRUE(becomesActive({"F 000"}));
}

TEST_F(ActivationFlow, ChangesAreShownWhenTheyAreAnnouncedAndLookedFor)
{
    ASSERT_TRUE(library.load());
    EXPECT_TRUE(active().isEmpty());
    const qint64 generation = library.model->activationGeneration();
    service->switchOn({"F 002"});
    announce();
    EXPECT_GT(library.model->activationGeneration(), generation) << "cards show it at once";
    EXPECT_TRUE(becomesActive({"F 002"}));
    service->switchOn({"F 000", "F 002"});
    library.model->reconcileActivation();
    EXPECT_TRUE(becomesActive({"F 000", "F 002"}));
    // Of several in a row the last one holds.
    for (const char *name : {"F 000", "F 001", "F 002"}) {
        service->switchOn({QString::fromLatin1(name)});
        library.model->reconcileActivation();
    }
    EXPECT_TRUE(becomesActive({"F 002"}));
}

TEST_F(ActivationFlow, AnAnswerForAnEarlierCatalogIsDropped)
{
    ASSERT_TRUE(library.load());
    service->switchOn({"F 000", "G"});
    library.addFamily(QStringLiteral("E"));
    library.addFamily(QStringLiteral("G"));
    library.model->loadCatalog();
    ASSERT_TRUE(test::waitUntil([&] { return library.model->family(QStringLiteral("G")); }));
    announce();
    library.addFamily(QStringLiteral("A"));
    ASSERT_TRUE(library.load());
    EXPECT_TRUE(becomesActive({"F 000", "G"}));
}

TEST_F(ActivationFlow, AnAnnouncedChangeAsksForAScan)
{
    ASSERT_TRUE(library.load());
    library.addFamily(QStringLiteral("New"));
    announce();
    EXPECT_TRUE(test::waitUntil([&] { return library.model->family(QStringLiteral("New")); }));
}

} // namespace
} // namespace lorva
