// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "model/stores/OrganizationChanges.h"

#include "model/stores/OrganizationNames.h"

#include <QTextBoundaryFinder>
#include <QUuid>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

struct Range
{
    char32_t first;
    char32_t last;

    bool contains(char32_t point) const { return first <= point && point <= last; }
};

/// What shows nothing, and hides what a name is or turns the direction of the text around it.
constexpr std::array kDropped{Range{0x00AD, 0x00AD}, // soft hyphen
                              Range{0x061C, 0x061C}, Range{0x200E, 0x200F}, Range{0x202A, 0x202E},
                              Range{0x2066, 0x2069}, Range{0x200B, 0x200B}, // zero width space
                              Range{0x2060, 0x2064}, Range{0x206A, 0x206F}, Range{0xFEFF, 0xFEFF},
                              Range{0xFFF9, 0xFFFB}};

/// What shows nothing by itself, but matters beside other characters: joiners, selectors of a
/// variant, the letters of a flag, fillers.
constexpr std::array kInvisible{
    Range{0x0020, 0x0020}, Range{0x034F, 0x034F}, Range{0x115F, 0x1160},  Range{0x17B4, 0x17B5},
    Range{0x180B, 0x180F}, Range{0x200C, 0x200D}, Range{0x2800, 0x2800},  Range{0x3164, 0x3164},
    Range{0xFE00, 0xFE0F}, Range{0xFFA0, 0xFFA0}, Range{0xE0000, 0xE0FFF}};

template <size_t size>
bool isIn(const std::array<Range, size> &ranges, char32_t point)
{
    return std::any_of(ranges.begin(), ranges.end(),
                       [&](const Range &range) { return range.contains(point); });
}

bool isDropped(char32_t point)
{
    if (QChar::isSpace(point))
        return false;
    return QChar::category(point) == QChar::Other_Control || QChar::isSurrogate(point)
        || QChar::isNonCharacter(point) || isIn(kDropped, point);
}

/// The character at `at`, which moves behind it; a lone surrogate as itself.
char32_t takePoint(const QString &text, qsizetype &at)
{
    const QChar unit = text[at++];
    if (unit.isHighSurrogate() && at < text.size() && text[at].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text[at++]);
    return unit.unicode();
}

/// Line breaks become spaces in the end: they are white space.
QString withoutDropped(const QString &name)
{
    QString out;
    out.reserve(name.size());
    for (qsizetype at = 0; at < name.size();) {
        const char32_t point = takePoint(name, at);
        if (!isDropped(point))
            out.append(QChar::fromUcs4(point));
    }
    return out;
}

bool showsNothing(const QString &name)
{
    for (qsizetype at = 0; at < name.size();) {
        if (!isIn(kInvisible, takePoint(name, at)))
            return false;
    }
    return true;
}

} // namespace

QString cutBetweenCharacters(const QString &text, qsizetype longest)
{
    if (text.size() <= longest)
        return text;
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    finder.setPosition(longest);
    qsizetype end =
        finder.isAtBoundary() ? longest : std::max<qsizetype>(finder.toPreviousBoundary(), 0);
    // A letter under hundreds of marks is one character.
    if (end == 0)
        end = text[longest - 1].isHighSurrogate() ? longest - 1 : longest;
    return text.left(end).trimmed();
}

QString cleanedName(const QString &name)
{
    const QString out = cutBetweenCharacters(withoutDropped(name).simplified(), kLongestName);
    return showsNothing(out) ? QString() : out;
}

QString comparableName(const QString &name)
{
    return name.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QString newGroupingID()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace lorva
