// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"
#include "text/OpenedFile.h"

namespace lorva {

/// Where a face starts in its file and what its table offsets count from.
struct FaceLocation
{
    quint64 directory = 0;
    quint64 tableBase = 0;
    bool operator==(const FaceLocation &) const = default;
};

/// One table, wholly inside the file.
struct TableEntry
{
    FontTag tag = 0;
    quint32 length = 0;
    /// From the start of the file.
    quint64 offset = 0;
};

/// OpenType "Table Directory" of one face.
struct SfntDirectory
{
    FontTag version = 0;
    std::vector<TableEntry> tables;

    const TableEntry *find(FontTag tag) const;
    bool has(FontTag tag) const { return find(tag) != nullptr; }
    /// See FontFace::formatNumber().
    int formatNumber() const;
};

/// The faces that a file's header claims, at most kMaxFacesPerFile: one for a plain font, several
/// for a collection (`ttcf`) or a resource-fork suitcase. Fails with truncated, unsupported or
/// tooLarge; the words lack the file's name.
Result<std::vector<FaceLocation>> readFaceLocations(const OpenedFile &file);

/// The tables of one face. Tables that reach beyond the end of the file are left out; fails with
/// truncated if one of them is needed to draw, else with unsupported or malformed.
Result<SfntDirectory> readDirectory(const OpenedFile &file, const FaceLocation &location);

/// The table's bytes, at most `limit` of them; a null array when there is no such table.
QByteArray readTable(const OpenedFile &file, const SfntDirectory &directory, FontTag tag,
                     qint64 limit);

} // namespace lorva
