// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/SearchText.h"

#include "base/Folding.h"

#include <algorithm>

namespace lorva {

namespace {

bool isLineBreak(QChar unit)
{
    return unit == u'\n' || unit == u'\r' || unit == QChar::LineSeparator
        || unit == QChar::ParagraphSeparator;
}

/// One line, the same for all spellings that should find each other. What is typed and what is
/// searched go through the same steps, so each kana finds the other.
QString searchLine(const QString &text)
{
    // First: folding takes some letters apart, and the transform might join them again.
    QString line = foldedForSearch(withKatakana(text));
    if (std::any_of(line.cbegin(), line.cend(), isLineBreak))
        std::replace_if(line.begin(), line.end(), isLineBreak, QChar(u' '));
    return line;
}

} // namespace

QString searchTextOf(const FontFamilyRecord &family, const QString &manufacturer)
{
    QString text = searchLine(family.familyName);
    const auto addLine = [&text](const QString &line) {
        if (!line.isEmpty())
            text += u'\n' + searchLine(line);
    };
    for (const QString &name : family.alternateNames.value_or(QStringList()))
        addLine(name);
    addLine(manufacturer);
    return text;
}

SearchQuery::SearchQuery(const QString &typed)
    : m_matcher(searchLine(typed.trimmed()))
{
}

} // namespace lorva
