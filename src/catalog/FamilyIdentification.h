// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "catalog/CatalogTypes.h"

#include <functional>
#include <span>

namespace lorva {

/// What one font file tells about one of its families.
struct FamilyIdentification
{
    QString familyName;
    FamilyScriptIdentity identity;
    /// Empty when the face names none.
    QString manufacturer;
    bool operator==(const FamilyIdentification &) const = default;
};

/// How many characters of each sample set a face has a glyph for.
struct SampleCoverage
{
    int latin = 0;
    int kana = 0;
    int hangul = 0;
    int han = 0;
    int simplifiedHan = 0;
    int traditionalHan = 0;
    bool operator==(const SampleCoverage &) const = default;
};

/// The scripts that a family of this name and coverage serves, and the one to preview it in.
/// Thread: any.
FamilyScriptIdentity scriptIdentity(const QString &familyName, const SampleCoverage &coverage);

/// Which of the candidates a family's name speaks for; `japanese` for an empty set. Thread: any.
WritingScript scriptByName(const QString &familyName, const std::set<WritingScript> &candidates);

/// The other names of a family: trimmed, in the order given, without duplicates, empty ones and
/// the family's own name; nothing when none is left.
std::optional<QStringList> alternateNames(const QString &familyName,
                                          const std::vector<QString> &namesInTheFont);

/// One entry for each distinct family among the descriptors that `isWanted` picks, judged by its
/// first face. Reads through the file's present opening, if it is kept. A face that cannot be read
/// tells nothing. Thread: any.
std::vector<FamilyIdentification> identifyFamilies(
    const FontFile &file, std::span<const FaceDescriptor> descriptors,
    const std::function<bool(const QString &familyName)> &isWanted);

/// The same for all families of a file, opened once; empty for a file that cannot be read.
std::vector<FamilyIdentification> identifyFile(const FilePath &file);

} // namespace lorva
