// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/RepresentativeStyle.h"

#include <algorithm>

namespace lorva {

namespace {

using namespace Qt::Literals::StringLiterals;

QString withoutDiacritics(const QString &text)
{
    QString bare = text.normalized(QString::NormalizationForm_D);
    bare.removeIf([](QChar c) { return c.isMark(); });
    return bare;
}

bool isRegularLabel(const QString &label)
{
    if (label.compare("Regular"_L1, Qt::CaseInsensitive) == 0)
        return true;
    const auto isPlain = [](QChar c) { return c.unicode() < 0x80; };
    return !std::all_of(label.begin(), label.end(), isPlain)
        && withoutDiacritics(label).compare("Regular"_L1, Qt::CaseInsensitive) == 0;
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
