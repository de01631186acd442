// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FamilyIdentification.h"

#include <algorithm>
#include <array>

namespace lorva {

namespace {

using Scripts = std::set<WritingScript>;

struct RegionSuffix
{
    QLatin1String word;
    WritingScript script;
};

constexpr RegionSuffix kRegionSuffixes[] = {
    {QLatin1String("SC"), WritingScript::simplifiedChinese},
    {QLatin1String("CN"), WritingScript::simplifiedChinese},
    {QLatin1String("GB"), WritingScript::simplifiedChinese},
    {QLatin1String("TC"), WritingScript::traditionalChinese},
    {QLatin1String("TW"), WritingScript::traditionalChinese},
    {QLatin1String("HK"), WritingScript::traditionalChinese},
    {QLatin1String("HC"), WritingScript::traditionalChinese},
    {QLatin1String("MO"), WritingScript::traditionalChinese},
    {QLatin1String("JP"), WritingScript::japanese},
    {QLatin1String("J"), WritingScript::japanese},
    {QLatin1String("KR"), WritingScript::korean},
    {QLatin1String("KO"), WritingScript::korean},
    {QLatin1String("K"), WritingScript::korean},
};

constexpr QLatin1String kKoreanStyleWords[] = {QLatin1String("myungjo"), QLatin1String("myeongjo"),
                                               QLatin1String("batang"),  QLatin1String("dotum"),
                                               QLatin1String("gulim"),   QLatin1String("gungseo")};
constexpr QLatin1String kJapaneseStyleWords[] = {QLatin1String("mincho")};
constexpr QLatin1String kChineseStyleWords[] = {QLatin1String("heiti"), QLatin1String("songti"),
                                                QLatin1String("kaiti"), QLatin1String("fangsong"),
                                                QLatin1String("pingfang")};

/// What a name that says nothing is taken for.
constexpr WritingScript kPreference[] = {WritingScript::japanese, WritingScript::korean,
                                         WritingScript::simplifiedChinese,
                                         WritingScript::traditionalChinese};

/// A family has this many names at most that are worth searching: three records in some thirty
/// languages. Thousands of records in hundreds of faces would otherwise fill the memory.
constexpr qsizetype kMaxAlternateNames = 100;

/// The first of `wanted` that is a candidate.
std::optional<WritingScript> firstCandidate(std::span<const WritingScript> wanted,
                                            const Scripts &candidates)
{
    const auto found = std::find_if(wanted.begin(), wanted.end(), [&](WritingScript script) {
        return candidates.contains(script);
    });
    return found == wanted.end() ? std::nullopt : std::optional(*found);
}

std::optional<WritingScript> scriptOfRegion(QStringView word, const Scripts &candidates)
{
    const QString upper = word.toString().toUpper();
    for (const RegionSuffix &suffix : kRegionSuffixes)
        if (upper == suffix.word && candidates.contains(suffix.script))
            return suffix.script;
    return std::nullopt;
}

std::optional<WritingScript> scriptByRegion(const QString &familyName, const Scripts &candidates)
{
    const QList<QStringView> words = QStringView(familyName).split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = words.size() - 1; i >= 0; --i)
        if (const auto script = scriptOfRegion(words[i], candidates))
            return script;
    return std::nullopt;
}

std::optional<WritingScript> scriptByStyleWord(const QString &familyName, const Scripts &candidates)
{
    const QString lower = familyName.toLower();
    const auto containsAny = [&lower](std::span<const QLatin1String> words) {
        return std::any_of(words.begin(), words.end(),
                           [&lower](QLatin1String word) { return lower.contains(word); });
    };
    if (candidates.contains(WritingScript::korean) && containsAny(kKoreanStyleWords))
        return WritingScript::korean;
    if (candidates.contains(WritingScript::japanese) && containsAny(kJapaneseStyleWords))
        return WritingScript::japanese;
    if (!containsAny(kChineseStyleWords))
        return std::nullopt;
    constexpr std::array kChinese{WritingScript::simplifiedChinese,
                                  WritingScript::traditionalChinese};
    return firstCandidate(kChinese, candidates);
}

std::optional<WritingScript> scriptByLetters(const QString &familyName, const Scripts &candidates)
{
    const auto containsBetween = [&familyName](char16_t first, char16_t last) {
        return std::any_of(familyName.begin(), familyName.end(),
                           [=](QChar c) { return c >= first && c <= last; });
    };
    if (candidates.contains(WritingScript::japanese) && containsBetween(0x3040, 0x30FF))
        return WritingScript::japanese;
    if (candidates.contains(WritingScript::korean) && containsBetween(0xAC00, 0xD7AF))
        return WritingScript::korean;
    return std::nullopt;
}

Scripts coveredScripts(const SampleCoverage &coverage)
{
    Scripts scripts;
    if (coverage.latin >= 2)
        scripts.insert(WritingScript::latin);
    if (coverage.kana >= 2)
        scripts.insert(WritingScript::japanese);
    if (coverage.hangul >= 1)
        scripts.insert(WritingScript::korean);
    if (coverage.han < 2)
        return scripts;
    if (coverage.simplifiedHan >= 3)
        scripts.insert(WritingScript::simplifiedChinese);
    // Japanese fonts cover many traditional forms without being made for Chinese.
    if (coverage.traditionalHan >= 3 && (coverage.kana <= 1 || coverage.hangul >= 1))
        scripts.insert(WritingScript::traditionalChinese);
    return scripts;
}

/// The script of a font that looks Japanese and has the traditional forms as well.
WritingScript japaneseOrTraditional(const QString &familyName)
{
    return scriptByName(familyName, {WritingScript::traditionalChinese, WritingScript::japanese});
}

std::optional<WritingScript> primaryScript(const QString &familyName,
                                           const SampleCoverage &coverage, const Scripts &scripts)
{
    Scripts others = scripts;
    const bool hasLatin = others.erase(WritingScript::latin) > 0;
    if (others.empty())
        return hasLatin ? std::optional(WritingScript::latin) : std::nullopt;
    if (others == Scripts{WritingScript::japanese} && coverage.traditionalHan >= 3)
        return japaneseOrTraditional(familyName);
    if (others.size() == 1)
        return *others.begin();
    // Hangul beside a few foreign letters is a Korean font; beside Han, only the name can tell.
    if (coverage.hangul == 0 || coverage.han >= 2)
        return scriptByName(familyName, others);
    return WritingScript::korean;
}

} // namespace

FamilyScriptIdentity scriptIdentity(const QString &familyName, const SampleCoverage &coverage)
{
    FamilyScriptIdentity identity;
    identity.scripts = coveredScripts(coverage);
    identity.primary = primaryScript(familyName, coverage, identity.scripts);
    if (identity.primary)
        identity.scripts.insert(*identity.primary);
    return identity;
}

WritingScript scriptByName(const QString &familyName, const std::set<WritingScript> &candidates)
{
    for (const auto rule : {scriptByRegion, scriptByStyleWord, scriptByLetters})
        if (const auto script = rule(familyName, candidates))
            return *script;
    if (const auto preferred = firstCandidate(kPreference, candidates))
        return *preferred;
    return candidates.empty() ? WritingScript::japanese : *candidates.begin();
}

std::optional<QStringList> alternateNames(const QString &familyName,
                                          const std::vector<QString> &namesInTheFont)
{
    const QString ownName = familyName.trimmed();
    QStringList alternates;
    for (const QString &name : namesInTheFont) {
        QString trimmed = name.trimmed();
        if (trimmed.isEmpty() || trimmed == ownName || alternates.contains(trimmed))
            continue;
        alternates.append(std::move(trimmed));
        if (alternates.size() == kMaxAlternateNames)
            break;
    }
    return alternates.isEmpty() ? std::nullopt : std::optional(std::move(alternates));
}

} // namespace lorva
