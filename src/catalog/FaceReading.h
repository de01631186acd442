// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "catalog/FamilyIdentification.h"
#include "text/FontFile.h"

#include <functional>
#include <span>

namespace lorva {

/// What reading one font file gave.
struct FaceReading
{
    /// In descriptor order; empty for a file without faces.
    std::vector<ParsedEntry> entries;
    /// Manufacturer of the first face of each family that names one, by family name.
    std::vector<std::pair<QString, QString>> manufacturers;
    /// Of the families that were asked about.
    std::vector<FamilyIdentification> identifications;
    /// False when the file may read differently although its fingerprint stays: it was not allowed
    /// to be opened, or the disk failed.
    bool isLasting = true;
};

/// The entry of one face; nothing for a face without a family name.
std::optional<ParsedEntry> parsedEntry(const FaceDescriptor &descriptor, const FilePath &file);

/// The id of a style: its PostScript name, else "Family::Label".
QString styleId(const QString &familyName, const QString &label, const QString &postScriptName);

/// The label of a style name: trimmed, "Regular" when nothing is left.
QString styleLabel(const QString &styleName);

/// Reads the faces of one file and identifies those of its families that `isNewFamily` picks,
/// opening the file once. Thread: any. A file that cannot be read has no faces.
FaceReading readFaces(const FilePath &file,
                      const std::function<bool(const QString &familyName)> &isNewFamily);

} // namespace lorva
