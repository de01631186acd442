// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"

#include <QByteArray>

#include <mutex>
#include <span>

namespace lorva {

class FallbackFontLocator;

/// Fonts of the system for what a face lacks.
///
/// Shared between threads; remembers what it found, within a bound. Thread: any; files are read
/// outside its lock.
class FontFallback
{
public:
    explicit FontFallback(std::shared_ptr<const FallbackFontLocator> locator);
    ~FontFallback();

    /// A font at the size of `like`, of its weight and slant as far as there is one, that has
    /// glyphs for all of `characters`, or else for the first; a null font when there is none.
    /// `language` is BCP 47 and may be empty.
    Font fontFor(std::span<const char32_t> characters, const QByteArray &language,
                 const Font &like) const;

private:
    struct Memory;
    const std::shared_ptr<const FallbackFontLocator> m_locator;
    const std::unique_ptr<Memory> m_memory;
};

} // namespace lorva
