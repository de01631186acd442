// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <set>
#include <vector>

namespace lorva {

enum class WritingScript { latin, japanese, korean, simplifiedChinese, traditionalChinese };
inline constexpr WritingScript kAllWritingScripts[]{
    WritingScript::latin, WritingScript::japanese, WritingScript::korean,
    WritingScript::simplifiedChinese, WritingScript::traditionalChinese};

/// One face (style) of a family.
struct FontStyleRecord
{
    QString id;
    QString label;
    QString postScriptName;
    /// On the 100–900 scale: 100 thinnest, 400 regular, 700 bold.
    qint64 weight = 400;
    bool isItalic = false;
    /// Absent when the face is known only by name.
    std::optional<FilePath> fileURL;

    bool operator==(const FontStyleRecord &) const = default;
};

/// One family of the catalog. `familyName` is its identity everywhere.
struct FontFamilyRecord
{
    QString familyName;
    std::vector<FontStyleRecord> styles;
    /// Absent until identified.
    std::optional<std::set<WritingScript>> scripts;
    std::optional<WritingScript> primaryScript;
    std::optional<QStringList> alternateNames;

    bool operator==(const FontFamilyRecord &) const = default;
};

/// The styles of one width or optical size of a family; not persisted.
struct FontVariant
{
    QString label;
    QString familyName;
    std::vector<FontStyleRecord> styles;

    bool operator==(const FontVariant &) const = default;
};

} // namespace lorva
