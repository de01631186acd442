// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/NotificationCentre.h"

#include <QObject>

#include <gmock/gmock.h>

namespace lorva {

namespace {

using ::testing::ElementsAre;

TEST(NotificationCentre, TellsTheObserversOfThatNameInOrder)
{
    NotificationCentre centre;
    QObject guard;
    const int sender = 0;
    std::vector<std::string> heard;
    centre.observe("changed", &guard, [&](const void *from) {
        heard.push_back(from == &sender ? "first, sender" : "first, other");
    });
    centre.observe("changed", &guard, [&](const void *) { heard.push_back("second"); });
    centre.observe("opened", &guard, [&](const void *) { heard.push_back("opened"); });
    centre.post("changed", &sender);
    centre.post("nobody listens");
    EXPECT_THAT(heard, ElementsAre("first, sender", "second"));
}

TEST(NotificationCentre, ForgetsObserversWhoseGuardIsGone)
{
    NotificationCentre centre;
    auto guard = std::make_unique<QObject>();
    int heard = 0;
    centre.observe("changed", guard.get(), [&](const void *) { ++heard; });
    guard.reset();
    centre.post("changed");
    EXPECT_EQ(heard, 0);
}

TEST(NotificationCentre, ObserversMayComeAndGoDuringAPost)
{
    NotificationCentre centre;
    QObject guard;
    auto victim = std::make_unique<QObject>();
    std::vector<std::string> heard;
    centre.observe("changed", &guard, [&](const void *) {
        heard.push_back("first");
        victim.reset();
        centre.stopObserving("changed", &guard);
        centre.observe("changed", &guard, [&](const void *) { heard.push_back("late"); });
    });
    centre.observe("changed", victim.get(), [&](const void *) { heard.push_back("victim"); });
    centre.observe("changed", &guard, [&](const void *) { heard.push_back("stopped"); });
    centre.post("changed");
    EXPECT_THAT(heard, ElementsAre("first"));
    centre.post("changed");
    EXPECT_THAT(heard, ElementsAre("first", "late"));
}

} // namespace

} // namespace lorva
