// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontLibraryService.h"

#include "CatalogSupport.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <future>
#include <mutex>
#include <semaphore>

#include <pthread.h>
#include <sys/resource.h>
#include <unistd.h>

namespace lorva {
namespace {

using testing::ElementsAre;

class ServiceTest : public testing::Test
{
protected:
    ServiceTest()
    {
        static int cases = 0;
        m_folder = test::TestHome::instance().makeFolder("watched" + QByteArray::number(++cases));
        const FilePath system =
            test::writeFile(test::TestHome::instance().makeFolder("ui"), "ui.ttf",
                            test::face("System", "Regular", "System").build());
        service = std::make_unique<FontLibraryService>(FontLibraryService::Dependencies{
            m_fonts, std::make_shared<test::ListedSystemFont>(system)});
    }

    FilePath add(const QByteArray &name, const QByteArray &bytes)
    {
        return test::writeFile(m_folder, name, bytes);
    }

    std::optional<FontCatalogResult> load()
    {
        std::optional<FontCatalogResult> loaded;
        service->loadCatalog({m_folder}, nullptr,
                             [&](const FontCatalogResult &result) { loaded = result; });
        test::waitUntil([&] { return loaded.has_value(); });
        if (loaded)
            service->setFamilies(service->prepareFamilies(makeFamilyList(loaded->families)));
        return loaded;
    }

    /// One file for each family, loaded.
    void loadFamilies(std::initializer_list<const char *> names)
    {
        for (const char *name : names)
            add(QByteArray(name) + ".ttf", test::face(name, "Regular", name).build());
        ASSERT_TRUE(load());
    }

    bool isCached(const QString &family, double pointSize)
    {
        return service->cachedFont(family, std::nullopt, pointSize).has_value();
    }

    FilePath m_folder;
    const std::shared_ptr<test::ListedFonts> m_fonts = std::make_shared<test::ListedFonts>();
    std::unique_ptr<FontLibraryService> service;
};

/// Holds workers back until the case lets them go, and notes the order in which they came.
struct Gate
{
    std::counting_semaphore<> arrived{0};
    std::counting_semaphore<> open{0};
    std::atomic<int> inside = 0;
    std::atomic<int> mostInside = 0;
    std::mutex lock;
    std::vector<std::string> order;

    void enter(const std::string &name)
    {
        const int now = ++inside;
        int most = mostInside;
        while (now > most && !mostInside.compare_exchange_weak(most, now)) { }
        {
            const std::lock_guard guard(lock);
            order.push_back(name);
        }
    }
    void leave() { --inside; }
    void pass(const std::string &name)
    {
        enter(name);
        arrived.release();
        open.acquire();
        leave();
    }
};

PendingResolve request(const QString &family, std::function<QImage(const Font &)> prepare)
{
    PendingResolve pending;
    pending.familyName = family;
    pending.pointSize = 12;
    pending.prepare = std::move(prepare);
    return pending;
}

TEST_F(ServiceTest, LoadsWatchedFoldersAndResolvesWhatTheyHold)
{
    const FilePath file = add("foo.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    std::vector<FontScanPhase::Kind> kinds;
    std::optional<FontCatalogResult> loaded;
    service->loadCatalog(
        {m_folder},
        [&](const FontScanPhase &phase) {
            EXPECT_EQ(QThread::currentThread(), service->thread());
            kinds.push_back(phase.kind);
        },
        [&](const FontCatalogResult &result) { loaded = result; });
    ASSERT_TRUE(test::waitUntil([&] { return loaded.has_value(); }));
    using Kind = FontScanPhase::Kind;
    EXPECT_THAT(kinds,
                ElementsAre(Kind::enumerating, Kind::scanning, Kind::identifying, Kind::preparing));
    EXPECT_EQ(loaded->watchedFontURLs, QSet<FilePath>{file});
    EXPECT_TRUE(service->resolve("Foo", std::nullopt, 12).isStandIn()) << "not told yet";
    service->setFamilies(service->prepareFamilies(makeFamilyList(loaded->families)));
    EXPECT_EQ(service->resolve("Foo", std::nullopt, 12).face()->path(), file);
    const std::optional<Font> known = service->cachedFont("Foo", std::nullopt, 12);
    service->setFamilies(PreparedFamilies());
    EXPECT_EQ(service->cachedFont("Foo", std::nullopt, 12), known) << "nothing to install";
}

TEST_F(ServiceTest, KeepsWhatItFoundOutWhereItIsTold)
{
    const FilePath cache = m_folder.child("cache.json");
    for (const bool saves : {false, true}) {
        FontLibraryService::Dependencies dependencies{m_fonts, nullptr, cache, saves};
        service = std::make_unique<FontLibraryService>(dependencies);
        loadFamilies({"Foo"});
        // Waits for a save that is under way.
        service.reset();
        EXPECT_EQ(::access(cache.c_str(), F_OK) == 0, saves);
    }
}

TEST_F(ServiceTest, RunsLoadsOneAfterTheOtherAndDropsACancelledOne)
{
    add("foo.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    std::vector<std::string> delivered;
    const auto note = [&](const char *name) {
        return [&delivered, name](const FontCatalogResult &) { delivered.emplace_back(name); };
    };
    service->loadCatalog({m_folder}, nullptr, note("cancelled"));
    service->loadCatalog({m_folder}, nullptr, note("second"));
    service->loadCatalog({}, nullptr, note("third"));
    service->cancelLoad();
    ASSERT_TRUE(test::waitUntil([&] { return delivered.size() == 2; }));
    EXPECT_THAT(delivered, ElementsAre("second", "third"));
}

TEST_F(ServiceTest, ServesTheNewestFirstOnAtMostThreeWorkers)
{
    Gate gate;
    int completed = 0;
    const auto hold = [&](const Font &) {
        gate.pass("held");
        return QImage();
    };
    for (int i = 0; i < 3; ++i) {
        PendingResolve held = request("held", hold);
        held.completion = [&](const ResolvedFace &) { ++completed; };
        service->resolveAsync(std::move(held));
    }
    for (int i = 0; i < 3; ++i)
        gate.arrived.acquire();

    for (const char *name : {"oldest", "older", "newer", "newest"}) {
        PendingResolve waiting = request("waiting", [&gate, name](const Font &) {
            gate.enter(name);
            gate.leave();
            return QImage();
        });
        waiting.completion = [&](const ResolvedFace &) { ++completed; };
        service->resolveAsync(std::move(waiting));
    }
    gate.open.release();
    ASSERT_TRUE(test::waitUntil([&] { return completed == 5; })) << "one worker serves all four";
    gate.open.release(2);
    ASSERT_TRUE(test::waitUntil([&] { return completed == 7; }));
    EXPECT_THAT(gate.order,
                ElementsAre("held", "held", "held", "newest", "newer", "older", "oldest"));
    EXPECT_EQ(gate.mostInside, 3);
}

TEST_F(ServiceTest, HandsOverFontAndPictureOnTheMainThread)
{
    add("foo.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    ASSERT_TRUE(load());
    std::optional<ResolvedFace> face;
    PendingResolve pending = request("Foo", [this](const Font &font) {
        EXPECT_NE(QThread::currentThread(), service->thread());
        EXPECT_EQ(font.pointSize(), 12);
        QImage image(3, 2, QImage::Format_RGB32);
        image.fill(Qt::red);
        return image;
    });
    pending.completion = [&](const ResolvedFace &resolved) {
        EXPECT_EQ(QThread::currentThread(), service->thread());
        face = resolved;
    };
    service->resolveAsync(std::move(pending));
    ASSERT_TRUE(test::waitUntil([&] { return face.has_value(); }));
    EXPECT_FALSE(face->font.isStandIn());
    EXPECT_EQ(face->prepared.size(), QSize(3, 2));
    EXPECT_EQ(service->cachedFont("Foo", std::nullopt, 12), face->font);
}

TEST_F(ServiceTest, DropsARequestThatNobodyWantsAnyMore)
{
    bool isWorked = false;
    bool isAnswered = false;
    PendingResolve unwanted = request("Foo", [&](const Font &) {
        isWorked = true;
        return QImage();
    });
    unwanted.isWanted = [] { return false; };
    unwanted.completion = [&](const ResolvedFace &) { isAnswered = true; };
    Gate gate;
    bool isDone = false;
    for (int i = 0; i < 3; ++i)
        service->resolveAsync(request("held", [&](const Font &) {
            gate.pass("held");
            return QImage();
        }));
    for (int i = 0; i < 3; ++i)
        gate.arrived.acquire();
    PendingResolve last = request("Foo", {});
    last.completion = [&](const ResolvedFace &) { isDone = true; };
    service->resolveAsync(std::move(last));
    service->resolveAsync(std::move(unwanted));
    // The one worker that goes on meets the unwanted request before the last one.
    gate.open.release();
    EXPECT_TRUE(test::waitUntil([&] { return isDone; }));
    gate.open.release(2);
    // Waits for the workers, which still look at the gate.
    service.reset();
    EXPECT_FALSE(isWorked);
    EXPECT_FALSE(isAnswered);
}

TEST_F(ServiceTest, TakesACatalogFromElsewhere)
{
    const FilePath file = add("foo.ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    FontFamilyRecord family;
    family.familyName = "Foo";
    family.styles.push_back({"Foo-Bold", "Bold", "Foo-Bold", 700, false, file});
    EXPECT_TRUE(service->resolve("Foo", std::nullopt, 12).isStandIn());
    service->setFamilies(makeFamilyList({family}));
    EXPECT_FALSE(service->resolve("Foo", std::nullopt, 12).isStandIn())
        << "a new catalog is searched at once, rest or not";
}

TEST_F(ServiceTest, PrewarmsEachFamilyOnceWithoutTheMainThread)
{
    loadFamilies({"A", "B", "C"});
    std::mutex lock;
    std::vector<std::string> prepared;
    const auto face = [&](const QString &family) {
        return PrewarmFace{family, std::nullopt, [&, family](const Font &font) {
                               EXPECT_NE(QThread::currentThread(), service->thread());
                               EXPECT_EQ(font.pointSize(), 20);
                               const std::lock_guard guard(lock);
                               prepared.push_back(family.toStdString());
                           }};
    };
    const PrewarmFace unprepared{"C"};
    service->prewarm({face("B"), face("A"), face("B"), face("Lost"), unprepared}, 20);
    ASSERT_TRUE(test::waitUntil([&] { return isCached("C", 20); }));
    const std::lock_guard guard(lock);
    EXPECT_THAT(prepared, ElementsAre("B", "A")) << "a stand-in is not worth preparing";
    EXPECT_TRUE(isCached("A", 20));
    EXPECT_TRUE(isCached("B", 20));
    EXPECT_FALSE(isCached("A", 12));
    EXPECT_FALSE(isCached("Lost", 20));
}

TEST_F(ServiceTest, AnotherPrewarmOrCatalogEndsTheRunningOne)
{
    loadFamilies({"A", "B", "C", "D"});
    Gate gate;
    const PrewarmFace held{"A", std::nullopt, [&](const Font &) { gate.pass("held"); }};
    service->prewarm({held, {"B"}}, 20);
    gate.arrived.acquire();
    service->prewarm({{"C"}}, 20);
    service->prewarm({{"D"}}, 20);
    gate.open.release();
    ASSERT_TRUE(test::waitUntil([&] { return isCached("D", 20); }));
    service->prewarm({held}, 20);
    gate.arrived.acquire();
    EXPECT_FALSE(isCached("B", 20)) << "of the first pre-warm";
    EXPECT_FALSE(isCached("C", 20)) << "replaced before it began";

    FontFamilyRecord family;
    family.familyName = "A";
    service->setFamilies(makeFamilyList({family}));
    gate.open.release();
    EXPECT_FALSE(isCached("A", 20)) << "the new catalog's caches are its own";
    // Waits for the worker, which still looks at the gate.
    service.reset();
}

TEST_F(ServiceTest, MayBeDestroyedWhilePrewarming)
{
    loadFamilies({"A", "B"});
    Gate gate;
    const auto face = [&](const QString &family) {
        return PrewarmFace{family, std::nullopt, [&](const Font &) {
                               gate.enter("busy");
                               gate.arrived.release();
                               gate.leave();
                           }};
    };
    for (int i = 0; i < 50; ++i)
        service->prewarm({face("A"), face("B")}, 20 + i);
    gate.arrived.acquire();
    service.reset();
    EXPECT_EQ(gate.inside, 0);
}

TEST_F(ServiceTest, KnowsItsThreadsByNameAndHurriesOnlyWhatSomebodyWaitsFor)
{
    struct Thread
    {
        std::string name;
        int niceness = 0;
    };
    const auto current = [] {
        std::array<char, 16> name{};
        ::pthread_getname_np(::pthread_self(), name.data(), name.size());
        return Thread{name.data(), ::getpriority(PRIO_PROCESS, id_t(::gettid()))};
    };
    loadFamilies({"A"});
    std::promise<Thread> resolving;
    std::promise<Thread> prewarming;
    service->resolveAsync(request("A", [&](const Font &) {
        resolving.set_value(current());
        return QImage();
    }));
    service->prewarm({{"A", std::nullopt, [&](const Font &) { prewarming.set_value(current()); }}},
                     20);
    const Thread resolver = resolving.get_future().get();
    const Thread prewarmer = prewarming.get_future().get();
    EXPECT_EQ(resolver.name, "font-resolve");
    EXPECT_EQ(resolver.niceness, current().niceness);
    EXPECT_EQ(prewarmer.name, "prewarm");
    EXPECT_TRUE(prewarmer.niceness > current().niceness || current().niceness >= 10);
}

TEST_F(ServiceTest, MayBeDestroyedWhileBusy)
{
    for (int i = 0; i < 300; ++i)
        add(QByteArray::number(i) + ".ttf", test::face("Foo", "Bold", "Foo-Bold").build());
    bool isCalled = false;
    Gate gate;
    service->loadCatalog(
        {m_folder}, [&](const FontScanPhase &) { isCalled = true; },
        [&](const FontCatalogResult &) { isCalled = true; });
    service->loadCatalog({m_folder}, nullptr, [&](const FontCatalogResult &) { isCalled = true; });
    for (int i = 0; i < 50; ++i) {
        PendingResolve pending = request("Foo", [&](const Font &) {
            gate.enter("busy");
            gate.arrived.release();
            gate.leave();
            return QImage();
        });
        pending.completion = [&](const ResolvedFace &) { isCalled = true; };
        service->resolveAsync(std::move(pending));
    }
    gate.arrived.acquire();
    service.reset();
    QCoreApplication::processEvents();
    EXPECT_FALSE(isCalled);
    EXPECT_EQ(gate.inside, 0);
}

TEST_F(ServiceTest, MayBeDestroyedByACompletion)
{
    bool isCalled = false;
    for (int i = 0; i < 4; ++i) {
        PendingResolve pending = request("Foo", {});
        pending.completion = [&](const ResolvedFace &) {
            EXPECT_FALSE(isCalled) << "called after the service went";
            isCalled = true;
            service.reset();
        };
        service->resolveAsync(std::move(pending));
    }
    ASSERT_TRUE(test::waitUntil([&] { return isCalled; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(service, nullptr);
}

} // namespace
} // namespace lorva
