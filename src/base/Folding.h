// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QLocale>
#include <QString>

#include <memory>

namespace lorva {

/// `text` without what a search overlooks: case, diacritics and width. Both sides of a comparison
/// are folded; the result is for comparing, not for showing. The same in every locale.
///
///     "ÉCOLE" → "ecole"    "Straße" → "strasse"    "ＡＢＣ" → "abc"    "ﾊﾟ" → "ハ"    "İ" → "i"
///
/// Hangul comes out as its letters, so that a syllable still being typed finds the whole one.
/// Thread: any.
QString foldedForSearch(QStringView text);

/// `text` with Hiragana turned into Katakana, so that either spelling finds the other. Thread: any.
QString withKatakana(const QString &text);

/// Orders names as a reader of `locale` expects, whatever their case: "abc" and "ABC" are equal,
/// "é" comes right after "e". Equal names need a tie-break of the caller's.
///
/// Cheap to copy. Thread: any, also at the same time.
class NameCollator
{
public:
    explicit NameCollator(const QLocale &locale = QLocale());

    /// Negative, zero or positive.
    int compare(QStringView left, QStringView right) const;
    bool operator()(QStringView left, QStringView right) const { return compare(left, right) < 0; }
    /// Bytes whose order is that of the names: for sorting many, each name is looked at once.
    QByteArray sortKey(QStringView text) const;

private:
    struct Impl;
    std::shared_ptr<const Impl> m_impl;
};

/// Whether a character only says how others look (joiners, variation selectors), so that a font
/// need not have a glyph for it: Unicode Default_Ignorable_Code_Point. Thread: any.
bool isDefaultIgnorable(char32_t scalar);

} // namespace lorva
