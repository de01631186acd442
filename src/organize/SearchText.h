// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"

#include <QStringMatcher>

namespace lorva {

/// What a family is found by, folded: its name, its names in other languages and its manufacturer,
/// each on a line of its own, so that no search spans two of them. Hiragana stands in it as
/// Katakana. Thread: any.
QString searchTextOf(const FontFamilyRecord &family, const QString &manufacturer);

/// What somebody typed, made ready to be looked for in many texts.
///
///     "ＥＬ" finds "Helvetica"    "ひら" finds "ヒラギノ", and "ヒラ" "ひらぎの"
///     "  " finds everything
///
/// Thread: any.
class SearchQuery
{
public:
    explicit SearchQuery(const QString &typed);

    /// Nothing but white space was typed.
    bool isEmpty() const { return m_matcher.pattern().isEmpty(); }
    /// `searchText` comes from searchTextOf().
    bool matches(const QString &searchText) const { return m_matcher.indexIn(searchText) >= 0; }

private:
    QStringMatcher m_matcher;
};

} // namespace lorva
