// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UpdaterController.h"

#include <QByteArray>

#include <chrono>
#include <memory>

namespace lorva {

class FeedDownload;

/// Where releases are announced, and how that is known to be the makers' word.
struct ReleaseFeedSettings
{
    /// https, or http on this computer itself (loopback), for trials. Empty: nobody announces any.
    QUrl address;
    /// Ed25519, 32 bytes in Base64.
    QByteArray publicKey;
    /// From the first byte sent to the last received.
    std::chrono::milliseconds patience{15000};
};

/// Those that the program was built with.
ReleaseFeedSettings builtInReleaseFeed();

/// Reads the signed release feed when the user asks, and only then: until the first look it costs
/// nothing.
///
/// Thread: main. Destruction during a look is silent, and allowed in onOutcome. A look that is
/// asked for while canCheckForUpdates() is false does not take place. A feed that announces an
/// older release than the running one says that this is up to date.
///
/// Failures: start() fails with unsupported without an address, and with invalidValue for an
/// address, key or running version that cannot be used; see FeedDownload.h and ReleaseFeed.h for
/// what a look may end with.
class FeedUpdaterController final : public UpdaterController
{
public:
    FeedUpdaterController(ReleaseFeedSettings settings, QString runningVersion);
    ~FeedUpdaterController() override;

    Result<void> start() override;
    bool canCheckForUpdates() const override;
    void checkForUpdates() override;
    void cancelCheck() override;

private:
    Result<void> checkSettings() const;
    void conclude(const UpdateOutcome &outcome);
    UpdateOutcome judge(const Result<QByteArray> &feed) const;

    const ReleaseFeedSettings m_settings;
    const QString m_runningVersion;
    QByteArray m_publicKey;
    bool m_isStarted = false;
    std::unique_ptr<FeedDownload> m_download;
};

} // namespace lorva
