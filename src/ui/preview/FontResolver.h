// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/FontLibraryService.h"

#include <memory>
#include <optional>
#include <vector>

namespace lorva {

/// Where a specimen gets its font from: what FontLibraryService offers, behind an
/// interface so that deliveries can be scripted in any order.
///
/// Thread: main.
class FontResolver
{
public:
    virtual ~FontResolver() = default;

    /// The font, if it is at hand without any work.
    virtual std::optional<Font> cachedFont(const QString &familyName,
                                           const std::optional<FontStyleRecord> &style,
                                           double pointSize) const = 0;
    /// A font at once, at worst the system's; a null one when the service is gone.
    virtual Font resolve(const QString &familyName, const std::optional<FontStyleRecord> &style,
                         double pointSize) const = 0;
    /// Queues a request; see PendingResolve. Never answered when the service is gone.
    virtual void resolveAsync(PendingResolve request) = 0;
    /// Has faces that may be shown next made ready, in place of those asked for before. Returns at
    /// once; nobody hears of the end.
    virtual void prewarm(std::vector<PrewarmFace> faces, double pointSize) = 0;
};

/// The service as a resolver. Does not own it, and survives it.
std::shared_ptr<FontResolver> makeFontResolver(FontLibraryService &service);

} // namespace lorva
