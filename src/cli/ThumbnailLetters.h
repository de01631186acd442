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
/// it. `script` is that of its family, if it is known.
///
///     a Latin face                                → "Aa"
///     Japanese, Korean, simplified or traditional → "永あ", "한글", "永汉", "永漢"
///     more letters of another script than Latin   → letters of that script, such as "Αα" or "कख"
///     emoji, other symbols                        → four of them
std::vector<ThumbnailLetters> thumbnailLetters(const FontFace &face,
                                               std::optional<WritingScript> script);

} // namespace lorva::cli
