// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontLibraryService.h"

#include "CatalogSupport.h"
#include "support/Waiting.h"

#include <QCoreApplication>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <mutex>
#include <semaphore>

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
        return loaded;
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
    EXPECT_THAT(kinds, ElementsAre(Kind::enumerating, Kind::scanning, Kind::preparing));
    EXPECT_EQ(loaded->watchedFontURLs, QSet<FilePath>{file});
    EXPECT_EQ(service->resolve("Foo", std::nullopt, 12).face()->path(), file);
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
    EXPECT_TRUE(service->resolve("Foo", std::nullopt, 12).isStandIn()) << "not in the last catalog";
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
    service->setFamilies({family});
    EXPECT_FALSE(service->resolve("Foo", std::nullopt, 12).isStandIn())
        << "a new catalog is searched at once, rest or not";
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
