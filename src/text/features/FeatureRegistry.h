// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFeatures.h"

namespace lorva {

/// For sets and maps of pairs.
struct FeaturePairLess
{
    bool operator()(FeaturePair a, FeaturePair b) const
    {
        return a.type != b.type ? a.type < b.type : a.selector < b.selector;
    }
};

/// How an OpenType feature answers a registered pair.
struct FeatureAnswer
{
    FontTag tag = 0;
    /// 0 for a selector that switches the feature off.
    quint32 value = 1;
};
/// Nothing for a pair that no OpenType feature answers.
std::optional<FeatureAnswer> answerTo(FeaturePair pair);

/// "Number Case"; empty for a type that is not registered.
QString registeredTypeName(int type);
/// "Lower Case Numbers"; empty for a selector that is not registered.
QString registeredSelectorName(FeaturePair pair);
/// Whether one selector of the type at a time can be on.
bool isExclusiveType(int type);

/// Whether shapers apply the feature to horizontal text without being asked.
bool isOnByItself(FontTag tag);
/// False for features that are no switch for people: those that scripts need to be spelled right,
/// and those that only tell programs something (`size`, `aalt`).
bool isForPeople(FontTag tag);
/// Whether the feature is meant for vertical text only.
bool isForVerticalText(FontTag tag);
/// `ss01` … `ss20` and `cv01` … `cv99`, the features that a font may name.
bool isNamedByFonts(FontTag tag);

} // namespace lorva
