// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/files/FontFileReading.h"

#include <QStringList>

#include <optional>
#include <span>
#include <vector>

namespace lorva {

/// The fonts of the files that were opened, by families, and what could not be shown of them.
///
/// A value. Style ids are unique within a family: two files may hold the same face, and both are
/// shown.
struct FontFilesState
{
    struct Problem
    {
        FilePath path;
        /// What to call it, where it has no path.
        QString name;
        FontFileProblem problem = FontFileProblem::gone;
        bool operator==(const Problem &) const = default;
    };

    /// By name, as the user's language sorts; styles in the order for people.
    std::vector<FontFamilyRecord> families;
    /// In the order given.
    std::vector<Problem> problems;

    const FontFamilyRecord *family(const QString &name) const;
    int faceCount() const;
    bool isEmpty() const { return families.empty() && problems.empty(); }
    bool operator==(const FontFilesState &) const = default;
};

/// A file that was given twice, by whatever path, counts once.
FontFilesState fontFilesState(std::span<const ReadFontFile> files);

/// What is listed beside the page, from top to bottom.
struct FontFilesRow
{
    enum class Kind {
        /// Over the faces of a family, or over the problems; cannot be chosen.
        heading,
        face,
        problem
    };

    Kind kind = Kind::face;
    QString text;
    /// Tells apart what is called alike; empty for most.
    QString detail = {};
    /// Positions in FontFilesState::families and its styles, or in problems.
    size_t index = 0;
    size_t style = 0;

    bool operator==(const FontFilesRow &) const = default;
};

std::vector<FontFilesRow> fontFilesRows(const FontFilesState &state);
/// What is shown first: of the first family the face that its card would show, else the first
/// problem; nothing without any.
std::optional<size_t> firstRow(const FontFilesState &state, std::span<const FontFilesRow> rows);
/// What the window is called: the family, or how many there are.
QString fontFilesTitle(const FontFilesState &state);

} // namespace lorva
