// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/FeedUpdaterController.h"

namespace lorva {

ReleaseFeedSettings builtInReleaseFeed()
{
    return {};
}

FeedUpdaterController::FeedUpdaterController(ReleaseFeedSettings settings, QString runningVersion)
    : m_settings(std::move(settings))
    , m_runningVersion(std::move(runningVersion))
{
}

FeedUpdaterController::~FeedUpdaterController() = default;

Result<void> FeedUpdaterController::start()
{
    m_isStarted = true;
    return {};
}

bool FeedUpdaterController::canCheckForUpdates() const
{
    return m_isStarted;
}

void FeedUpdaterController::checkForUpdates() { }

} // namespace lorva
