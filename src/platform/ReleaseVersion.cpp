// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/ReleaseVersion.h"

#include <QList>
#include <QRegularExpression>

#include <algorithm>

namespace lorva {

namespace {

constexpr qsizetype kLongestVersion = 64;

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

/// By their digits, so that no number is too large.
std::weak_ordering compareNumbers(QStringView left, QStringView right)
{
    const auto significant = [](QStringView digits) {
        while (digits.startsWith(u'0'))
            digits = digits.mid(1);
        return digits;
    };
    left = significant(left);
    right = significant(right);
    if (left.size() != right.size())
        return left.size() <=> right.size();
    return left.compare(right) <=> 0;
}

std::weak_ordering compareNumberLists(const QList<QStringView> &left,
                                      const QList<QStringView> &right)
{
    for (qsizetype i = 0; i < std::max(left.size(), right.size()); ++i) {
        const auto order =
            compareNumbers(left.value(i, QStringView(u"0")), right.value(i, QStringView(u"0")));
        if (std::is_neq(order))
            return order;
    }
    return std::weak_ordering::equivalent;
}

/// "beta.2a" as "beta", "2", "a".
QList<QStringView> runsOf(QStringView mark)
{
    QList<QStringView> runs;
    for (qsizetype start = 0, end = 0; start < mark.size(); start = end) {
        const bool isNumber = isDigit(mark[start]);
        while (end < mark.size() && mark[end] != u'.' && isDigit(mark[end]) == isNumber)
            ++end;
        if (end > start)
            runs.append(mark.mid(start, end - start));
        else
            ++end;
    }
    return runs;
}

std::weak_ordering compareRuns(QStringView left, QStringView right)
{
    const bool isLeftNumber = isDigit(left.front());
    const bool isRightNumber = isDigit(right.front());
    if (isLeftNumber && isRightNumber)
        return compareNumbers(left, right);
    if (isLeftNumber != isRightNumber)
        return isLeftNumber ? std::weak_ordering::less : std::weak_ordering::greater;
    return left.compare(right, Qt::CaseInsensitive) <=> 0;
}

std::weak_ordering compareMarks(QStringView left, QStringView right)
{
    // What has no mark is the release itself.
    if (left.isEmpty() || right.isEmpty())
        return left.isEmpty() <=> right.isEmpty();
    const QList<QStringView> leftRuns = runsOf(left);
    const QList<QStringView> rightRuns = runsOf(right);
    for (qsizetype i = 0; i < std::min(leftRuns.size(), rightRuns.size()); ++i) {
        if (const auto order = compareRuns(leftRuns[i], rightRuns[i]); std::is_neq(order))
            return order;
    }
    return leftRuns.size() <=> rightRuns.size();
}

struct Parts
{
    QList<QStringView> numbers;
    QStringView mark;
};

Parts partsOf(QStringView version)
{
    const qsizetype hyphen = version.indexOf(u'-');
    if (hyphen < 0)
        return {version.split(u'.'), {}};
    return {version.left(hyphen).split(u'.'), version.mid(hyphen + 1)};
}

} // namespace

bool isReleaseVersion(QStringView text)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(
        QStringLiteral("[0-9]+(\\.[0-9]+)*(-[0-9A-Za-z]+(\\.[0-9A-Za-z]+)*)?")));
    return text.size() <= kLongestVersion && pattern.match(text.toString()).hasMatch();
}

std::optional<std::weak_ordering> compareVersions(QStringView left, QStringView right)
{
    if (!isReleaseVersion(left) || !isReleaseVersion(right))
        return std::nullopt;
    const Parts leftParts = partsOf(left);
    const Parts rightParts = partsOf(right);
    const auto order = compareNumberLists(leftParts.numbers, rightParts.numbers);
    return std::is_neq(order) ? order : compareMarks(leftParts.mark, rightParts.mark);
}

} // namespace lorva
