// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"
#include "catalog/FamilyIdentification.h"

#include <optional>
#include <vector>

namespace lorva {

/// Why a file shows no font.
enum class FontFileProblem {
    gone,
    notAllowed,
    /// A folder, a device.
    noFile,
    tooLarge,
    /// No format that can be read, or none of fonts at all.
    noFont,
    damaged,
    unreadable,
    /// Its faces have no family name, without which no program can offer them.
    nameless,
    /// Not on this computer, as far as the system knows.
    notHere,
    /// More were given at once than are shown.
    tooMany
};

/// A sentence for people.
QString fontFileProblemText(FontFileProblem problem);

/// What reading one of the files came to that were opened.
struct ReadFontFile
{
    /// As given, but for links among its folders.
    FilePath path;
    /// What tells it from other files, whatever they are called; 0 when it could not be looked at.
    quint64 device = 0;
    quint64 inode = 0;
    /// In the file's order; none where there is a problem.
    std::vector<ParsedEntry> faces;
    std::vector<FamilyIdentification> identifications;
    std::optional<FontFileProblem> problem;

    bool operator==(const ReadFontFile &) const = default;
};

/// Reads names and traits of all faces. Thread: any; reads the disk.
ReadFontFile readFontFile(const FilePath &file);

} // namespace lorva
