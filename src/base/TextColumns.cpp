// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/TextColumns.h"

#include <QTextBoundaryFinder>

#include <unicode/uchar.h>

#include <algorithm>

namespace lorva {

namespace {

bool isWide(char32_t character)
{
    const int width = u_getIntPropertyValue(UChar32(character), UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH;
}

/// Vowels and finals that stand in the syllable of the consonant before them.
bool isInsideSyllable(char32_t character)
{
    const int type = u_getIntPropertyValue(UChar32(character), UCHAR_HANGUL_SYLLABLE_TYPE);
    return type == U_HST_VOWEL_JAMO || type == U_HST_TRAILING_JAMO;
}

bool hasNoWidth(char32_t character)
{
    constexpr uint32_t kNoWidth = U_GC_MN_MASK | U_GC_ME_MASK | U_GC_CF_MASK | U_GC_CC_MASK;
    // Terminals show it as a hyphen wherever it stands.
    constexpr char32_t kSoftHyphen = 0xAD;
    if (character == kSoftHyphen)
        return false;
    return isInsideSyllable(character) || (U_GET_GC_MASK(UChar32(character)) & kNoWidth) != 0;
}

int widthOf(char32_t character)
{
    if (hasNoWidth(character))
        return 0;
    return isWide(character) ? 2 : 1;
}

/// Korean is written with spaces, and reads better when lines only end there.
bool endsLinesAnywhere(QChar unit)
{
    const bool isKorean = unit.script() == QChar::Script_Hangul;
    return !isKorean && (unit.isSurrogate() || isWide(unit.unicode()));
}

/// The pieces of a text that a line may end after, each with its space if it has one. Options, file
/// names and numbers stay whole, which the rules alone would break at their hyphens and slashes.
QStringList pieces(const QString &text)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Line, text);
    QStringList found;
    qsizetype begin = 0;
    for (qsizetype at = finder.toNextBoundary(); at > 0 && at < text.size();
         at = finder.toNextBoundary()) {
        const QChar before = text[at - 1];
        if (before != u' ' && !endsLinesAnywhere(before) && !endsLinesAnywhere(text[at]))
            continue;
        found.push_back(text.sliced(begin, at - begin));
        begin = at;
    }
    found.push_back(text.sliced(begin));
    return found;
}

int widthWithoutSpace(const QString &piece)
{
    return displayWidth(piece) - (piece.endsWith(u' ') ? 1 : 0);
}

/// Where the second column begins.
int secondColumn(const QStringList &lines, int leastColumns)
{
    int columns = leastColumns;
    for (const QString &line : lines) {
        if (const qsizetype tab = line.indexOf(u'\t'); tab >= 0)
            columns = std::max(columns, displayWidth(line.first(tab)) + 1);
    }
    return columns;
}

} // namespace

int displayWidth(QStringView text)
{
    int width = 0;
    for (const uint character : text.toUcs4())
        width += widthOf(character);
    return width;
}

QString padded(const QString &text, int columns)
{
    return text + QString(std::max(0, columns - displayWidth(text)), u' ');
}

QStringList wrapped(const QString &text, int columns)
{
    QStringList lines{QString()};
    for (const QString &piece : pieces(text)) {
        QString &line = lines.back();
        if (!line.isEmpty() && displayWidth(line) + widthWithoutSpace(piece) > columns)
            lines.push_back(piece);
        else
            line += piece;
    }
    for (QString &line : lines) {
        if (line.endsWith(u' '))
            line.chop(1);
    }
    return lines;
}

QString alignedAtTabs(const QString &lines, int leastColumns)
{
    QStringList all = lines.split(u'\n');
    const int columns = secondColumn(all, leastColumns);
    for (QString &line : all) {
        if (const qsizetype tab = line.indexOf(u'\t'); tab >= 0)
            line = padded(line.first(tab), columns) + line.sliced(tab + 1);
    }
    return all.join(u'\n');
}

} // namespace lorva
