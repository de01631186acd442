// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/UpdaterController.h"

#include <QByteArray>
#include <QObject>

#include <chrono>
#include <memory>

namespace lorva {

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

/// Reads the signed release feed when the user asks.
///
/// Thread: main. Failures: start() fails with unsupported without an address, and with invalidValue
/// for an address or key that cannot be used; see ReleaseFeed.h for what a look may end with.
class FeedUpdaterController final : public UpdaterController
{
public:
    FeedUpdaterController(ReleaseFeedSettings settings, QString runningVersion);
    ~FeedUpdaterController() override;

    Result<void> start() override;
    bool canCheckForUpdates() const override;
    void checkForUpdates() override;

private:
    const ReleaseFeedSettings m_settings;
    const QString m_runningVersion;
    bool m_isStarted = false;
};

} // namespace lorva
