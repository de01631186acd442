// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/FeedUpdaterController.h"

namespace lorva {

ReleaseFeedSettings builtInReleaseFeed()
{
    return {QUrl(QStringLiteral(LORVA_RELEASE_FEED_URL), QUrl::StrictMode),
            QByteArrayLiteral(LORVA_RELEASE_FEED_KEY)};
}

} // namespace lorva
