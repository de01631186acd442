// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/FamilyListing.h"

#include "base/Folding.h"
#include "cli/Console.h"
#include "cli/Library.h"
#include "install/WatchedFontRegistrar.h"

#include <algorithm>
#include <tuple>

namespace lorva::cli {

FontCatalogResult scanLibrary(const std::vector<FilePath> &folders)
{
    FontCatalogLoader loader(machineFonts(CacheUse::readOnly));
    ScanProgress progress;
    // Never empty: nobody asks this scan to stop.
    return *loader.scan(WatchedFontRegistrar().fontFiles(folders, {}), progress.callback());
}

void sortByName(std::vector<FontFamilyRecord> &families)
{
    const NameCollator collator;
    std::vector<std::pair<QByteArray, FontFamilyRecord>> keyed;
    keyed.reserve(families.size());
    for (FontFamilyRecord &family : families)
        keyed.emplace_back(collator.sortKey(family.familyName), std::move(family));
    std::sort(keyed.begin(), keyed.end(), [](const auto &a, const auto &b) {
        return std::tie(a.first, a.second.familyName) < std::tie(b.first, b.second.familyName);
    });
    families.clear();
    for (auto &entry : keyed)
        families.push_back(std::move(entry.second));
}

void printFamilies(const std::vector<FontFamilyRecord> &families)
{
    for (const FontFamilyRecord &family : families) {
        QStringList labels;
        for (const FontStyleRecord &style : family.styles)
            labels.push_back(singleLine(style.label));
        printText(QString(singleLine(family.familyName) + u'\t' + labels.join(QStringLiteral(", "))
                          + u'\n'));
    }
}

} // namespace lorva::cli
