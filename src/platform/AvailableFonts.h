// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <functional>
#include <stop_token>
#include <vector>

namespace lorva {

/// The fonts that the system offers to every program of the user.
///
/// Thread: any; calls do not share state.
class AvailableFonts
{
public:
    virtual ~AvailableFonts() = default;

    /// The distinct font files, sorted bytewise by path, so that "the first met wins" is the same
    /// at every scan. `found`, if any, is told the running count now and then. A system without
    /// fonts gives an empty list. Ends early with what it has when `stop` is requested.
    virtual std::vector<FilePath> fontFiles(const std::function<void(int)> &found,
                                            std::stop_token stop) const = 0;
};

/// No fonts at all; for tests and for calls that look at folders only.
class NoAvailableFonts final : public AvailableFonts
{
public:
    std::vector<FilePath> fontFiles(const std::function<void(int)> &,
                                    std::stop_token) const override
    {
        return {};
    }
};

/// Where the desktop's own interface font lies.
class SystemFontLocator
{
public:
    struct Location
    {
        FilePath path;
        int faceIndex = 0;
    };

    virtual ~SystemFontLocator() = default;
    /// The file of the interface font; an empty path on a system without fonts. Thread: any.
    virtual Location systemFont() const = 0;
};

} // namespace lorva
