// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "text/FontFace.h"

#include <QByteArray>
#include <QStringList>

#include <optional>
#include <vector>

namespace lorva::cli {

/// What a thumbnail shows.
struct ThumbnailLetters
{
    /// One word, or the four symbols of a square.
    QStringList words;
    /// BCP 47; for the forms of that language.
    QByteArray language;
    bool operator==(const ThumbnailLetters &) const = default;
};

/// What would show the face best, the best first; the face maps all of it, but may have no ink for
/// it. `script` is that of its family, if it is known; the code pages of an East Asian face
/// (OpenType `OS/2`) know better, where they name one.
///
///     Japanese, Korean, simplified or traditional → "永あ", "한글", "永汉", "永漢"
///     far more symbols than letters, emoji        → four of them
///     more letters of another script than Latin,
///     or its alphabet and few Latin ones          → letters of that script, such as "अक" or "אב"
///     "A" and "a"; Greek and Cyrillic beside them → "Aa"
///     Greek, Cyrillic without them                → "Αα", "Аа"
///     anything else                               → four characters, or the first one
std::vector<ThumbnailLetters> thumbnailLetters(const FontFace &face,
                                               std::optional<WritingScript> script);

} // namespace lorva::cli
