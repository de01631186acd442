// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilyList.h"

#include <QStringList>

#include <mutex>
#include <optional>
#include <set>
#include <tuple>
#include <vector>

namespace lorva {

/// The font manager's weight (2 … 11) of a weight on the 100–900 scale: 400 → 5, 700 → 8, 900 → 11.
int fontManagerWeight(qint64 weight);

/// Finds the faces of one catalog by family, by PostScript name and by file.
///
/// Shares the families it was made of. Each table behind the look-ups is made when first needed, or
/// by prepare…(). Thread: any.
class FaceIndex
{
public:
    explicit FaceIndex(FontFamilyList families);

    /// Makes the table of the families now, so that no later look-up has to: a millisecond for
    /// 10,000.
    void prepareFamilies() const;
    /// The same for the other tables: some thirty milliseconds for 100,000 faces.
    void prepareLookUps() const;
    bool isEmpty() const { return m_families->empty(); }

    /// Null for a name that the catalog does not have.
    const FontFamilyRecord *family(const QString &familyName) const;
    /// Every style of that PostScript name, in catalog order: names are shared more often than they
    /// should be.
    std::vector<const FontStyleRecord *> stylesNamed(const QString &postScriptName) const;
    /// The family's first style of these traits and this font-manager weight; null for none.
    const FontStyleRecord *style(const QString &familyName, bool isItalic, int managerWeight) const;
    /// The names of the other families with a face in any font file of `familyNames`, in catalog
    /// order.
    QStringList familiesSharingFiles(const QStringList &familyNames) const;

private:
    /// Sorted by hash and, within one, by place in the catalog: a tenth of the memory of a hash
    /// table of strings, and for 100,000 faces made in some ten milliseconds.
    struct Place
    {
        quint32 hash = 0;
        quint32 family = 0;
        quint32 style = 0;
    };
    /// A family that has a face in the file of that hash, once however many faces it has there.
    struct FilePlace
    {
        quint32 hash = 0;
        quint32 family = 0;
        bool operator==(const FilePlace &) const = default;
        bool operator<(const FilePlace &other) const
        {
            return std::tie(hash, family) < std::tie(other.hash, other.family);
        }
    };
    void buildFamilies() const;
    void buildNames() const;
    void buildFiles() const;
    static void sort(std::vector<Place> &places);
    std::optional<quint32> familyPlace(const QString &familyName) const;
    /// Adds the families that have a face in `path`.
    void addFamiliesOfFile(const FilePath &path, std::set<quint32> &families) const;
    static std::pair<std::vector<Place>::const_iterator, std::vector<Place>::const_iterator>
    placesOf(const std::vector<Place> &places, const QString &name);

    const FontFamilyList m_families;
    mutable std::once_flag m_familiesBuilt;
    mutable std::vector<Place> m_familyPlaces;
    mutable std::once_flag m_namesBuilt;
    mutable std::vector<Place> m_stylePlaces;
    mutable std::once_flag m_filesBuilt;
    mutable std::vector<FilePlace> m_filePlaces;
};

} // namespace lorva
