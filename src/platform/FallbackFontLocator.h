// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QByteArray>

#include <span>
#include <vector>

namespace lorva {

/// Which of the system's fonts can show characters.
///
/// Thread: any.
class FallbackFontLocator
{
public:
    struct Wish
    {
        std::span<const char32_t> characters;
        /// BCP 47; may be empty.
        QByteArray language;
        /// 100 … 900.
        int weight = 400;
        bool isItalic = false;
    };
    struct Location
    {
        FilePath path;
        int faceIndex = 0;
        /// −1 for the default instance.
        int namedInstance = -1;
        bool operator==(const Location &) const = default;
    };

    virtual ~FallbackFontLocator() = default;
    /// Fonts that have at least the first character, the best first, at most eight; empty when the
    /// system has none.
    virtual std::vector<Location> fontsFor(const Wish &wish) const = 0;
};

} // namespace lorva
