// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

namespace lorva::cli {

/// What there is to say of one kind of grouping: whole sentences, since the kind's gender and case
/// change the words around it. For Texts::tr().
struct GroupingTexts
{
    /// %1: what was typed.
    const char *unknown;
    /// %1: what was typed; %2: ids.
    const char *ambiguous;
    /// %1: the name that is taken.
    const char *taken;
    /// %1: a family; %2: the grouping's name.
    const char *lacksFamily;
};

inline constexpr GroupingTexts kCollectionTexts{
    QT_TRANSLATE_NOOP("lorvactl", "there is no collection %1"),
    QT_TRANSLATE_NOOP("lorvactl", "there is more than one collection %1; their ids: %2"),
    QT_TRANSLATE_NOOP("lorvactl", "there is a collection %1 already"),
    QT_TRANSLATE_NOOP("lorvactl", "%1 is not in collection %2"),
};

inline constexpr GroupingTexts kStyleTexts{
    QT_TRANSLATE_NOOP("lorvactl", "there is no style %1"),
    QT_TRANSLATE_NOOP("lorvactl", "there is more than one style %1; their ids: %2"),
    QT_TRANSLATE_NOOP("lorvactl", "there is a style %1 already"),
    QT_TRANSLATE_NOOP("lorvactl", "%1 is not in style %2"),
};

inline constexpr GroupingTexts kFoundryTexts{
    QT_TRANSLATE_NOOP("lorvactl", "there is no foundry %1"),
    QT_TRANSLATE_NOOP("lorvactl", "there is more than one foundry %1; their ids: %2"),
    QT_TRANSLATE_NOOP("lorvactl", "there is a foundry %1 already"),
    QT_TRANSLATE_NOOP("lorvactl", "%1 is not in foundry %2"),
};

} // namespace lorva::cli
