// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/records/DisplayedNames.h"

#include <QCoreApplication>

#include <algorithm>
#include <iterator>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(StyleCategories)
};

struct DefaultName
{
    const char *id;
    const char *name;
};

constexpr DefaultName kDefaultNames[] = {
    {"serif", QT_TRANSLATE_NOOP("StyleCategories", "Serif")},
    {"sans", QT_TRANSLATE_NOOP("StyleCategories", "Sans-Serif")},
    //: A style of fonts: those for large sizes.
    {"display", QT_TRANSLATE_NOOP("StyleCategories", "Display")},
    //: A style of fonts: those whose letters are all of one width.
    {"mono", QT_TRANSLATE_NOOP("StyleCategories", "Mono")},
    //: A style of fonts: those that look like handwriting.
    {"script", QT_TRANSLATE_NOOP("StyleCategories", "Script")},
    //: A style of fonts.
    {"decorative", QT_TRANSLATE_NOOP("StyleCategories", "Decorative")},
};

} // namespace

QString displayedName(const FontStyleCategoryRecord &category)
{
    const auto known = std::ranges::find_if(kDefaultNames, [&](const DefaultName &each) {
        return category.id == QLatin1String(each.id) && category.name == QLatin1String(each.name);
    });
    return known == std::end(kDefaultNames) ? category.name : Texts::tr(known->name);
}

QString displayedName(const FontCollectionRecord &collection)
{
    return collection.name;
}

QString displayedName(const FoundryCollectionRecord &foundry)
{
    return foundry.name;
}

} // namespace lorva
