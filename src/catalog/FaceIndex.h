// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

#include <mutex>
#include <vector>

namespace lorva {

/// The font manager's weight (2 … 11) of a weight on the 100–900 scale: 400 → 5, 700 → 8, 900 → 11.
int fontManagerWeight(qint64 weight);

/// Finds the faces of one catalog by family and by PostScript name.
///
/// Owns: the families it was made of. The tables behind the look-ups are made at the first one, or
/// by prepare(). Thread: any.
class FaceIndex
{
public:
    explicit FaceIndex(std::vector<FontFamilyRecord> families);

    /// Makes the tables now, so that no later look-up has to.
    void prepare() const;

    /// Null for a name that the catalog does not have.
    const FontFamilyRecord *family(const QString &familyName) const;
    /// Every style of that PostScript name, in catalog order: names are shared more often than they
    /// should be.
    std::vector<const FontStyleRecord *> stylesNamed(const QString &postScriptName) const;
    /// The family's first style of these traits and this font-manager weight; null for none.
    const FontStyleRecord *style(const QString &familyName, bool isItalic, int managerWeight) const;

private:
    /// Sorted by hash and, within one, by place in the catalog: a tenth of the memory of a hash
    /// table of strings, and for 100,000 faces made in some ten milliseconds.
    struct Place
    {
        quint32 hash = 0;
        quint32 family = 0;
        quint32 style = 0;
    };
    void build() const;
    static std::pair<std::vector<Place>::const_iterator, std::vector<Place>::const_iterator>
    placesOf(const std::vector<Place> &places, const QString &name);

    const std::vector<FontFamilyRecord> m_families;
    mutable std::once_flag m_built;
    mutable std::vector<Place> m_familyPlaces;
    mutable std::vector<Place> m_stylePlaces;
};

} // namespace lorva
