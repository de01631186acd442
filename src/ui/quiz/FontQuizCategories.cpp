// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCategories.h"

#include <QCoreApplication>

#include <array>

namespace lorva {

namespace {

struct Category
{
    const char *id;
    const char *name;
};

constexpr std::array<Category, kFontQuizTiles> kCategories{{
    {"serif", QT_TRANSLATE_NOOP("lorva::FontQuizCategoryView", "Serif")},
    {"sans", QT_TRANSLATE_NOOP("lorva::FontQuizCategoryView", "Sans-Serif")},
    {"display", QT_TRANSLATE_NOOP("lorva::FontQuizCategoryView", "Display")},
    {"mono", QT_TRANSLATE_NOOP("lorva::FontQuizCategoryView", "Mono")},
    {"script", QT_TRANSLATE_NOOP("lorva::FontQuizCategoryView", "Script")},
    {"decorative", QT_TRANSLATE_NOOP("lorva::FontQuizCategoryView", "Decorative")},
}};

} // namespace

QString fontQuizCategoryID(int tile)
{
    return QString::fromLatin1(kCategories[size_t(tile - 1)].id);
}

QString fontQuizCategoryName(int tile)
{
    return QCoreApplication::translate("lorva::FontQuizCategoryView",
                                       kCategories[size_t(tile - 1)].name);
}

} // namespace lorva
