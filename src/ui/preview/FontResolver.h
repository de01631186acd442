// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/FontLibraryService.h"

#include <memory>
#include <optional>

namespace lorva {

/// Where a specimen gets its font from: the three ways that FontLibraryService offers, behind an
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
};

/// The service as a resolver. Does not own it, and survives it.
std::shared_ptr<FontResolver> makeFontResolver(FontLibraryService &service);

} // namespace lorva
