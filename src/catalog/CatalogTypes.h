// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "text/FontFile.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <variant>

namespace lorva {

/// How far a scan is.
struct FontScanPhase
{
    enum class Kind { enumerating, scanning, identifying, preparing };
    Kind kind = Kind::enumerating;
    /// enumerating: found so far; scanning, identifying: done so far.
    int done = 0;
    int total = 0;

    static FontScanPhase enumerating(int found) { return {Kind::enumerating, found, 0}; }
    static FontScanPhase scanning(int done, int total) { return {Kind::scanning, done, total}; }
    static FontScanPhase identifying(int done, int total)
    {
        return {Kind::identifying, done, total};
    }
    static FontScanPhase preparing() { return {Kind::preparing, 0, 0}; }

    /// For people, numbers with the region's digit grouping: "Scanning 12 of 1,340 fonts".
    QString text() const;
    bool operator==(const FontScanPhase &) const = default;
};

/// One face as read from a file.
struct ParsedEntry
{
    QString familyName;
    FontStyleRecord style;
    bool operator==(const ParsedEntry &) const = default;
};

/// Seconds since 2001-01-01 00:00 UTC, with the file system's own fraction.
using FileTime = double;

/// The faces of one font file and the fingerprint they were read under.
struct ParsedFontFile
{
    qint64 fileSize = 0;
    FileTime modified = 0;
    std::vector<ParsedEntry> entries;
    bool operator==(const ParsedFontFile &) const = default;
};

/// What identification found out about a family.
struct FamilyScriptIdentity
{
    std::set<WritingScript> scripts;
    std::optional<WritingScript> primary;
    std::optional<QStringList> alternates;
    bool operator==(const FamilyScriptIdentity &) const = default;
};

/// What a scan hands back.
struct FontCatalogResult
{
    /// In the order of first appearance.
    std::vector<FontFamilyRecord> families;
    /// Manufacturer name by family name.
    QHash<QString, QString> manufacturers;
    /// The font files that came from watched folders.
    QSet<FilePath> watchedFontURLs;
};

} // namespace lorva
