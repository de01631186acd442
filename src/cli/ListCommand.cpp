// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Folding.h"
#include "catalog/FontCatalogLoader.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "install/FontFolderWalk.h"
#include "model/records/RecordsJson.h"
#include "platform/linux/FontconfigAvailableFonts.h"
#include "platform/linux/XdgFolders.h"

#include <algorithm>
#include <chrono>
#include <tuple>

#include <sys/stat.h>

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl list [--json] [--folder DIR]...\n"
    "\n"
    "Lists the font families of this machine, one line each: the name, a tab, the styles.\n"
    "Characters that would break a line are written as escapes (\\n, \\u{202e}).\n"
    "\n"
    "  --json         one JSON array of families instead\n"
    "  --folder DIR   take in the fonts below DIR too; may be given more than once\n"
    "  --help         show this help\n";

Result<std::vector<FilePath>> folderFiles(const Arguments &arguments)
{
    std::vector<FilePath> files;
    for (const QByteArray &word : arguments.values("--folder")) {
        const FilePath folder = FilePath::absolute(word);
        struct stat info;
        if (::stat(folder.c_str(), &info) != 0)
            return failure(ErrorKind::notFound,
                           QStringLiteral("there is no folder ") + folder.displayText());
        if (!S_ISDIR(info.st_mode))
            return failure(ErrorKind::invalidValue,
                           folder.displayText() + QStringLiteral(" is no folder"));
        const std::vector<FilePath> found = fontFilesInFolder(folder);
        files.insert(files.end(), found.begin(), found.end());
    }
    return files;
}

FontCatalogResult scan(const std::vector<FilePath> &watchedFiles)
{
    FontCatalogLoader loader(
        {std::make_shared<FontconfigAvailableFonts>(xdgFolders().registeredLinks())});
    ProgressLine line;
    std::chrono::steady_clock::time_point shownAt;
    const auto show = [&](const FontScanPhase &phase) {
        const auto now = std::chrono::steady_clock::now();
        if (now - shownAt < std::chrono::milliseconds(50))
            return;
        shownAt = now;
        line.show(phase.text());
    };
    const FontCatalogLoader::ProgressCallback progress =
        line.isShown() ? FontCatalogLoader::ProgressCallback(show) : nullptr;
    // Never empty: nobody asks this scan to stop.
    return *loader.scan(watchedFiles, progress);
}

/// As a reader looks names up; names that only differ in case keep one order by their characters.
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

void printLines(const std::vector<FontFamilyRecord> &families)
{
    for (const FontFamilyRecord &family : families) {
        QStringList labels;
        for (const FontStyleRecord &style : family.styles)
            labels.push_back(singleLine(style.label));
        printText(QString(singleLine(family.familyName) + u'\t' + labels.join(QStringLiteral(", "))
                          + u'\n'));
    }
}

} // namespace

int runListCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(
        words,
        {{"--help", Value::none}, {"-h", Value::none}, {"--json", Value::none}, {"--folder"}});
    if (!arguments)
        return failUsage("list", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    if (!arguments->positional().empty())
        return failUsage("list", QStringLiteral("list takes folders as --folder DIR"));
    const Result<std::vector<FilePath>> files = folderFiles(*arguments);
    if (!files)
        return fail(files.error().detail);
    FontCatalogResult result = scan(*files);
    sortByName(result.families);
    if (arguments->has("--json"))
        print(QByteArray(encodeFamilies(result.families) + '\n'));
    else
        printLines(result.families);
    return finish();
}

} // namespace lorva::cli
