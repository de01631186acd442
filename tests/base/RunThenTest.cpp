// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/RunThen.h"

#include "base/MainThread.h"

#include <QEventLoop>
#include <QSemaphore>

#include <gtest/gtest.h>

#include <atomic>

namespace lorva {

namespace {

/// A pool of one worker that a case can hold in the middle of its work.
class RunThen : public ::testing::Test
{
protected:
    RunThen() { pool.setMaxThreadCount(1); }
    ~RunThen() override
    {
        mayGoOn.release(100);
        pool.waitForDone();
    }

    /// Work that says that it has begun and ends when it may, with whether it was asked to stop.
    auto heldWork()
    {
        return [this](std::stop_token token) {
            hasBegun.release();
            mayGoOn.acquire();
            sawStop = token.stop_requested();
            return 7;
        };
    }

    /// Ends the work and runs what it posted.
    void finish()
    {
        mayGoOn.release();
        pool.waitForDone();
        deliver();
    }

    static void deliver()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }

    QSemaphore hasBegun;
    QSemaphore mayGoOn;
    std::atomic<bool> sawStop = false;
    std::unique_ptr<QObject> guard = std::make_unique<QObject>();
    QThreadPool pool;
    int delivered = 0;
};

TEST_F(RunThen, DeliversOnTheGuardsThread)
{
    bool workWasMain = true;
    bool doneWasMain = false;
    runThen(
        pool, guard.get(),
        [&](std::stop_token) {
            workWasMain = isMainThread();
            return std::make_unique<int>(7); // results may be movable only
        },
        [&](std::unique_ptr<int> result) {
            doneWasMain = isMainThread();
            delivered = *result;
        });
    pool.waitForDone();
    EXPECT_EQ(delivered, 0) << "delivered before the event loop ran";
    deliver();
    EXPECT_EQ(delivered, 7);
    EXPECT_FALSE(workWasMain);
    EXPECT_TRUE(doneWasMain);
    EXPECT_TRUE(guard->children().isEmpty());
}

TEST_F(RunThen, AGuardThatDiesWhileTheWorkRunsStopsIt)
{
    runThen(pool, guard.get(), heldWork(), [this](int result) { delivered = result; });
    hasBegun.acquire();
    guard.reset();
    finish();
    EXPECT_TRUE(sawStop);
    EXPECT_EQ(delivered, 0);
}

TEST_F(RunThen, AGuardThatDiesBeforeTheDeliveryGetsNone)
{
    runThen(pool, guard.get(), heldWork(), [this](int result) { delivered = result; });
    mayGoOn.release();
    pool.waitForDone();
    guard.reset();
    deliver();
    EXPECT_FALSE(sawStop);
    EXPECT_EQ(delivered, 0);
}

TEST_F(RunThen, APoolThatIsClearedFreesTheWorkThatWaited)
{
    pool.setMaxThreadCount(1);
    runThen(pool, guard.get(), heldWork(), [](int) {});
    hasBegun.acquire();
    auto input = std::make_shared<int>(1);
    const std::weak_ptr<int> watched = input;
    runThen(
        pool, guard.get(), [input = std::move(input)](std::stop_token) { return *input; },
        [this](int result) { delivered = result; });
    pool.clear();
    EXPECT_TRUE(watched.expired());
    finish();
    EXPECT_EQ(delivered, 0);
}

TEST_F(RunThen, CancellingStopsTheWorkAndTheDelivery)
{
    RunHandle handle =
        runThen(pool, guard.get(), heldWork(), [this](int result) { delivered = result; });
    hasBegun.acquire();
    handle.cancel();
    finish();
    EXPECT_TRUE(handle.isCancelled());
    EXPECT_TRUE(sawStop);
    EXPECT_EQ(delivered, 0);
    EXPECT_TRUE(guard->children().isEmpty());
}

TEST_F(RunThen, CancellingAfterTheWorkStillHoldsTheDeliveryBack)
{
    RunHandle handle =
        runThen(pool, guard.get(), heldWork(), [this](int result) { delivered = result; });
    mayGoOn.release();
    pool.waitForDone();
    handle.cancel();
    deliver();
    EXPECT_EQ(delivered, 0);
}

TEST_F(RunThen, WorkCancelledInTheQueueNeverBegins)
{
    runThen(pool, guard.get(), heldWork(), [this](int result) { delivered = result; });
    hasBegun.acquire();
    std::atomic<bool> hasRun = false;
    RunHandle second = runThen(
        pool, guard.get(), [&](std::stop_token) { return hasRun = true; },
        [this](bool) { delivered = 100; });
    second.cancel();
    finish();
    EXPECT_FALSE(hasRun);
    EXPECT_EQ(delivered, 7);
    EXPECT_TRUE(guard->children().isEmpty());
}

TEST_F(RunThen, DoneMayDestroyTheGuard)
{
    runThen(pool, guard.get(), heldWork(), [this](int result) {
        guard.reset();
        delivered = result;
    });
    finish();
    EXPECT_EQ(delivered, 7);
}

TEST_F(RunThen, WhatDoneHoldsDiesOnTheGuardsThread)
{
    struct Witness
    {
        std::atomic<int> *diedOnMain;
        explicit Witness(std::atomic<int> *where)
            : diedOnMain(where)
        {
        }
        ~Witness() { *diedOnMain = isMainThread() ? 1 : 2; }
    };
    std::atomic<int> diedOnMain = 0;
    runThen(pool, guard.get(), heldWork(),
            [witness = std::make_shared<Witness>(&diedOnMain)](int) {});
    hasBegun.acquire();
    guard.reset();
    EXPECT_EQ(diedOnMain, 1);
    finish();
}

/// Guards die at every point of their work's life; a sanitizer run finds what is touched too late.
TEST_F(RunThen, GuardsThatDieAnyTimeHarmNothing)
{
    pool.setMaxThreadCount(4);
    for (int round = 0; round < 2000; ++round) {
        auto shortLived = std::make_unique<QObject>();
        runThen(
            pool, shortLived.get(), [round](std::stop_token) { return QByteArray::number(round); },
            [this](const QByteArray &) { ++delivered; });
        if (round % 3 == 0)
            QThread::yieldCurrentThread();
        if (round % 7 == 0)
            deliver();
    }
    pool.waitForDone();
    const int before = delivered;
    deliver();
    EXPECT_EQ(delivered, before);
}

} // namespace

} // namespace lorva
