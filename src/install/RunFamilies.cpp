// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "install/RunFamilies.h"

#include <algorithm>

namespace lorva {

namespace {

QSet<FilePath> filesLeft(const InstallationOutcome &outcome)
{
    return {outcome.filesLeft.begin(), outcome.filesLeft.end()};
}

} // namespace

FilesOfFamilies filesByFamily(const std::vector<FontFamilyRecord> &families)
{
    FilesOfFamilies byName;
    for (const FontFamilyRecord &family : families) {
        std::vector<FilePath> &files = byName[family.familyName];
        for (FilePath &file : ActivationBooks::filesOf(family.styles))
            files.push_back(std::move(file));
    }
    return byName;
}

void setMethods(const FilesOfFamilies &families, InstallMethod method, InstallationResult &result)
{
    const QSet<FilePath> left = filesLeft(result.outcome);
    for (const auto &[name, files] : families) {
        const auto isDealtWith = [&](const FilePath &file) { return !left.contains(file); };
        if (std::ranges::any_of(files, isDealtWith))
            result.changes.methods[name] = method;
    }
}

void removeMethods(const FilesOfFamilies &families, const ActivationBooks &books,
                   InstallationResult &result)
{
    const QSet<FilePath> left = filesLeft(result.outcome);
    const bool canBeUndone = !result.outcome.withdrawn.isEmpty();
    for (const auto &[name, files] : families) {
        const auto isLeft = [&](const FilePath &file) { return left.contains(file); };
        if (files.empty() || std::ranges::any_of(files, isLeft))
            continue;
        result.changes.methods[name] = std::nullopt;
        const auto before = books.contents().methods.find(name);
        if (canBeUndone && before != books.contents().methods.end())
            result.outcome.withdrawn.methods.insert(*before);
    }
}

} // namespace lorva
