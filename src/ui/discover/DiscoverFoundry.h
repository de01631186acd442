// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QUrl>

#include <vector>

namespace lorva {

/// An independent type foundry on the Discover page. A value.
struct DiscoverFoundry
{
    /// Stable.
    QString id;
    /// Its name as shown; never translated.
    QString title;
    /// A sentence about it.
    QString subtitle;
    QUrl url;
    /// Of the artwork: ":/discover/<imageName>.svg".
    QString imageName;

    bool operator==(const DiscoverFoundry &) const = default;
};

/// The catalogue, in the order shown and in the user's language. Thread: main.
std::vector<DiscoverFoundry> discoverFoundries();

} // namespace lorva
