// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FamilyIdentification.h"

#include <QLoggingCategory>

#include <algorithm>
#include <array>

namespace lorva {

namespace {

Q_LOGGING_CATEGORY(logIdentify, "lorva.catalog.identify", QtWarningMsg)

struct SampleCharacter
{
    char32_t character;
    int SampleCoverage::*set;
};

/// The last two sets are the same five words in their two forms: gate, Han, see, horse, Zhang.
constexpr SampleCharacter kSamples[] = {
    {U'\u0041', &SampleCoverage::latin},
    {U'\u0061', &SampleCoverage::latin},
    {U'\u007A', &SampleCoverage::latin},
    {U'\u3042', &SampleCoverage::kana},
    {U'\u306E', &SampleCoverage::kana},
    {U'\u30A2', &SampleCoverage::kana},
    {U'\uAC00', &SampleCoverage::hangul},
    {U'\uD55C', &SampleCoverage::hangul},
    {U'\uB098', &SampleCoverage::hangul},
    {U'\u6C38', &SampleCoverage::han},
    {U'\u4E00', &SampleCoverage::han},
    {U'\u5929', &SampleCoverage::han},
    {U'\u95E8', &SampleCoverage::simplifiedHan},
    {U'\u6C49', &SampleCoverage::simplifiedHan},
    {U'\u89C1', &SampleCoverage::simplifiedHan},
    {U'\u9A6C', &SampleCoverage::simplifiedHan},
    {U'\u5F20', &SampleCoverage::simplifiedHan},
    {U'\u9580', &SampleCoverage::traditionalHan},
    {U'\u6F22', &SampleCoverage::traditionalHan},
    {U'\u898B', &SampleCoverage::traditionalHan},
    {U'\u99AC', &SampleCoverage::traditionalHan},
    {U'\u5F35', &SampleCoverage::traditionalHan},
};

constexpr auto kSampleCharacters = [] {
    std::array<char32_t, std::size(kSamples)> characters{};
    for (size_t i = 0; i < characters.size(); ++i)
        characters[i] = kSamples[i].character;
    return characters;
}();

SampleCoverage coverageOf(const std::vector<bool> &isMapped)
{
    SampleCoverage coverage;
    for (size_t i = 0; i < isMapped.size(); ++i)
        coverage.*kSamples[i].set += isMapped[i] ? 1 : 0;
    return coverage;
}

std::optional<FamilyIdentification> identifyFace(const FontFile &file,
                                                 const FaceDescriptor &descriptor)
{
    const QString &name = descriptor.familyName;
    const auto reach = file.reach(descriptor.key, kSampleCharacters);
    if (!reach) {
        qCInfo(logIdentify).noquote() << reach.error().detail;
        return std::nullopt;
    }
    FamilyIdentification found{name, scriptIdentity(name, coverageOf(reach->isMapped)),
                               descriptor.manufacturer};
    found.identity.alternates = alternateNames(name, reach->familyNames);
    return found;
}

} // namespace

std::vector<FamilyIdentification> identifyFamilies(
    const FontFile &file, std::span<const FaceDescriptor> descriptors,
    const std::function<bool(const QString &familyName)> &isWanted)
{
    std::vector<FamilyIdentification> all;
    QSet<QString> met;
    for (const FaceDescriptor &descriptor : descriptors) {
        const QString &name = descriptor.familyName;
        if (name.isEmpty() || met.contains(name))
            continue;
        met.insert(name);
        if (!isWanted(name))
            continue;
        if (auto found = identifyFace(file, descriptor))
            all.push_back(*std::move(found));
    }
    return all;
}

std::vector<FamilyIdentification> identifyFile(const FilePath &file)
{
    const auto opened = FontFile::openForReading(file);
    if (!opened)
        return {};
    const auto descriptors = opened->file->descriptors();
    if (!descriptors)
        return {};
    return identifyFamilies(*opened->file, *descriptors, [](const QString &) { return true; });
}

} // namespace lorva
