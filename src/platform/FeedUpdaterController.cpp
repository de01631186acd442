// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/FeedUpdaterController.h"

#include "base/MainThread.h"
#include "platform/FeedDownload.h"
#include "platform/ReleaseFeed.h"
#include "platform/ReleaseVersion.h"

#include <QCoreApplication>

#include <utility>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FeedUpdaterController)
};

} // namespace

FeedUpdaterController::FeedUpdaterController(ReleaseFeedSettings settings, QString runningVersion)
    : m_settings(std::move(settings))
    , m_runningVersion(std::move(runningVersion))
{
}

FeedUpdaterController::~FeedUpdaterController() = default;

Result<void> FeedUpdaterController::checkSettings() const
{
    // What was given but cannot be read is no missing address.
    const bool isAbsent =
        m_settings.address.isEmpty() && m_settings.address.errorString().isEmpty();
    if (isAbsent)
        return failure(ErrorKind::unsupported,
                       Texts::tr("this build has no address of a release feed"));
    if (!isReleaseVersion(m_runningVersion))
        return failure(ErrorKind::invalidValue, Texts::tr("the running version is no number"));
    return checkDownloadAddress(m_settings.address);
}

Result<void> FeedUpdaterController::start()
{
    LORVA_ASSERT_MAIN_THREAD();
    if (Result<void> checked = checkSettings(); !checked)
        return checked;
    Result<QByteArray> key = readReleaseFeedKey(m_settings.publicKey);
    if (!key)
        return tl::unexpected(key.error());
    m_publicKey = *std::move(key);
    m_isStarted = true;
    return {};
}

bool FeedUpdaterController::canCheckForUpdates() const
{
    return m_isStarted && !m_download;
}

void FeedUpdaterController::checkForUpdates()
{
    LORVA_ASSERT_MAIN_THREAD();
    if (!canCheckForUpdates())
        return;
    m_download = std::make_unique<FeedDownload>(
        FeedDownload::Wanted{m_settings.address, "Lorva/" + m_runningVersion.toLatin1(),
                             kLargestReleaseFeed, m_settings.patience},
        [this](const Result<QByteArray> &feed) { conclude(judge(feed)); });
}

void FeedUpdaterController::cancelCheck()
{
    m_download.reset();
}

UpdateOutcome FeedUpdaterController::judge(const Result<QByteArray> &feed) const
{
    using Kind = UpdateOutcome::Kind;
    const Result<Release> release =
        feed ? readReleaseFeed(*feed, m_publicKey) : tl::unexpected(feed.error());
    if (!release)
        return {Kind::failed, std::nullopt, release.error()};
    const bool isNewer = compareVersions(release->version, m_runningVersion)
        == std::optional(std::weak_ordering::greater);
    return {isNewer ? Kind::newer : Kind::upToDate, *release};
}

void FeedUpdaterController::conclude(const UpdateOutcome &outcome)
{
    m_download.reset();
    // Whoever is told may ask again, or destroy this.
    if (const auto told = onOutcome)
        told(outcome);
}

} // namespace lorva
