// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/RepresentativeStyle.h"

#include "base/Folding.h"

#include <algorithm>

namespace lorva {

namespace {

using namespace Qt::Literals::StringLiterals;

bool isRegularLabel(const QString &label)
{
    // Folding costs a hundred times as much, and hardly a label needs it.
    return label.compare("Regular"_L1, Qt::CaseInsensitive) == 0
        || foldedForSearch(label) == "regular"_L1;
}

} // namespace

const FontStyleRecord *representativeStyle(std::span<const FontStyleRecord> styles)
{
    const auto first = [&](auto &&matches) -> const FontStyleRecord * {
        const auto found = std::find_if(styles.begin(), styles.end(), matches);
        return found == styles.end() ? nullptr : &*found;
    };
    using Style = FontStyleRecord;
    if (const Style *style = first([](const Style &s) { return isRegularLabel(s.label); }))
        return style;
    if (const Style *style = first([](const Style &s) { return !s.isItalic && s.weight == 400; }))
        return style;
    if (const Style *style = first([](const Style &s) { return !s.isItalic; }))
        return style;
    return styles.empty() ? nullptr : &styles.front();
}

} // namespace lorva
