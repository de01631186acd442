// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCategories.h"

#include "model/records/DisplayedNames.h"
#include "model/records/StyleCategories.h"

namespace lorva {

namespace {

/// Tiles are counted from 1, in the order of the default categories.
const FontStyleCategoryRecord &categoryOf(int tile)
{
    static const std::vector<FontStyleCategoryRecord> categories = defaultStyleCategories();
    return categories[size_t(tile - 1)];
}

} // namespace

QString fontQuizCategoryID(int tile)
{
    return categoryOf(tile).id;
}

QString fontQuizCategoryName(int tile)
{
    return displayedName(categoryOf(tile));
}

} // namespace lorva
