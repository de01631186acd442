// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "organize/FoundryNames.h"

#include <QCryptographicHash>
#include <QHash>
#include <QStringView>

#include <algorithm>
#include <optional>
#include <span>

namespace lorva {

namespace {

struct FamilyPrefix
{
    QStringView prefix;
    QStringView foundry;
};
// These makers begin the name of all their families with their initials.
constexpr FamilyPrefix kFamilyPrefixes[]{
    {u"PP ", u"Pangram Pangram"},
    {u"FK ", u"Florian Karsten"},
};

// The first that fits is taken, so a longer one stands before the shorter one that it ends with.
constexpr QStringView kLatinSuffixes[]{
    u"Typefaces GmbH",
    u"Type Foundry",
    u"Type foundry",
    u"Font Foundry",
    u"Foundry",
    u"Corporation",
    u"Corp.",
    u"GmbH",
    u"LLC",
    u"Ltd.",
    u"Ltd",
    u"Inc.",
    u"Inc",
    u"Co.",
    u"Sdn. Bhd. Malaysia",
    u"Sdn. Bhd.",
    u"Typefaces",
    u"Fonts",
    u"Font",
};

constexpr QStringView kEastAsianForms[]{
    u"株式会社", u"有限会社", u"合同会社", u"股份有限公司", u"有限公司",
    u"字库",     u"字庫",     u"주식회사", u"(주)",         u"㈱",
};

struct Alias
{
    QStringView name;
    QStringView foundry;
};
constexpr Alias kAliases[]{
    {u"Off", u"Off Type"},
    {u"OffType", u"Off Type"},
    {u"モリサワ", u"Morisawa"},
    {u"フォントワークス", u"Fontworks"},
    {u"方正", u"FounderType"},
    {u"北京方正电子", u"FounderType"},
    {u"汉仪", u"Hanyi"},
    {u"北京汉仪科印信息技术", u"Hanyi"},
    {u"산돌", u"Sandoll"},
    {u"산돌커뮤니케이션", u"Sandoll"},
    {u"Sandoll Communications", u"Sandoll"},
};

bool isMarkSign(QChar unit)
{
    return unit == u'©' || unit == u'®' || unit == u'™';
}

QString withSingleSpaces(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (const QChar unit : text) {
        if (unit != u' ' || !out.endsWith(u' '))
            out.append(unit);
    }
    return out;
}

bool endsWithSuffix(QStringView text, QStringView suffix)
{
    return text.endsWith(suffix) && text.chopped(suffix.size()).endsWith(u' ');
}

QStringView withoutPunctuation(QStringView text)
{
    if (text.endsWith(u',') || text.endsWith(u'.'))
        return text.chopped(1).trimmed();
    return text;
}

QStringView withoutLatinSuffixes(QStringView text)
{
    for (;;) {
        text = text.trimmed();
        const auto suffix = std::ranges::find_if(
            kLatinSuffixes, [text](QStringView each) { return endsWithSuffix(text, each); });
        if (suffix == std::ranges::end(kLatinSuffixes))
            return text;
        text = withoutPunctuation(text.chopped(suffix->size() + 1).trimmed());
    }
}

/// `text` without `form` at its beginning, or else its end; nothing if it has it at neither, or
/// is nothing else.
std::optional<QStringView> withoutForm(QStringView text, QStringView form)
{
    if (text.size() <= form.size())
        return std::nullopt;
    if (text.startsWith(form))
        return text.sliced(form.size());
    if (text.endsWith(form))
        return text.chopped(form.size());
    return std::nullopt;
}

std::optional<QStringView> withoutAnyForm(QStringView text)
{
    for (const QStringView form : kEastAsianForms) {
        if (const std::optional<QStringView> rest = withoutForm(text, form))
            return rest;
    }
    return std::nullopt;
}

QStringView withoutEastAsianForms(QStringView text)
{
    while (const std::optional<QStringView> rest = withoutAnyForm(text))
        text = rest->trimmed();
    return text;
}

const QHash<QStringView, QStringView> &aliases()
{
    static const QHash<QStringView, QStringView> byName = [] {
        QHash<QStringView, QStringView> made;
        for (const Alias &alias : kAliases)
            made.insert(alias.name, alias.foundry);
        return made;
    }();
    return byName;
}

QString statedFoundryName(const QString &familyName, const QString &manufacturer)
{
    for (const FamilyPrefix &each : kFamilyPrefixes) {
        if (familyName.startsWith(each.prefix))
            return each.foundry.toString();
    }
    return cleanFoundryName(manufacturer);
}

/// Marks count: without its vowel signs one Devanagari name would be as another.
bool isPartOfWord(char32_t point)
{
    return QChar::isLetter(point) || QChar::isMark(point) || QChar::isDigit(point);
}

QString hashOf(const QString &name)
{
    constexpr int kBytes = 8;
    const QByteArray hash = QCryptographicHash::hash(name.toUtf8(), QCryptographicHash::Sha1);
    return QString::fromLatin1(hash.first(kBytes).toHex());
}

} // namespace

QString cleanFoundryName(const QString &manufacturer)
{
    QString text = manufacturer.trimmed();
    text.removeIf(isMarkSign);
    text = withSingleSpaces(text);
    return withoutEastAsianForms(withoutLatinSuffixes(text)).toString();
}

QString foundryNameOf(const QString &familyName, const QString &manufacturer)
{
    const QString name = statedFoundryName(familyName, manufacturer);
    const auto alias = aliases().constFind(name);
    return alias != aliases().constEnd() ? alias->toString() : name;
}

QString foundryID(const QString &name)
{
    const QString composed = name.normalized(QString::NormalizationForm_C);
    const QList<uint> points = composed.toCaseFolded().toUcs4();
    QString id;
    bool isGap = false;
    for (const char32_t point : points) {
        if (!isPartOfWord(point)) {
            isGap = true;
            continue;
        }
        if (isGap && !id.isEmpty())
            id.append(u'-');
        isGap = false;
        id.append(QChar::fromUcs4(point));
    }
    return id.isEmpty() ? hashOf(composed) : id;
}

} // namespace lorva
