// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Folding.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Library.h"
#include "install/WatchedFontRegistrar.h"
#include "model/records/RecordsJson.h"

#include <algorithm>
#include <tuple>

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl list [--json] [--script NAME] [--folder DIR]...\n"
    "\n"
    "Lists the font families of this machine, one line each: the name, a tab, the styles.\n"
    "Characters that would break a line are written as escapes (\\n, \\u{202e}).\n"
    "\n"
    "  --json         one JSON array of families instead\n"
    "  --script NAME  only families that can set latin, japanese, korean, simplifiedChinese or\n"
    "                 traditionalChinese\n"
    "  --folder DIR   take in the fonts below DIR too; may be given more than once\n"
    "  --help         show this help\n";

FontCatalogResult scan(const std::vector<FilePath> &folders)
{
    FontCatalogLoader loader(machineFonts(CacheUse::readOnly));
    ScanProgress progress;
    // Never empty: nobody asks this scan to stop.
    return *loader.scan(WatchedFontRegistrar().fontFiles(folders, {}), progress.callback());
}

/// The script of `--script`, whatever its case; nothing without the option.
Result<std::optional<WritingScript>> wantedScript(const Arguments &arguments)
{
    const std::optional<QByteArray> name = arguments.value("--script");
    if (!name)
        return std::nullopt;
    QStringList known;
    for (const WritingScript script : kAllWritingScripts) {
        if (storedName(script).compare(QString::fromUtf8(*name), Qt::CaseInsensitive) == 0)
            return script;
        known.push_back(storedName(script));
    }
    return failure(ErrorKind::usage,
                   QStringLiteral("--script takes ") + known.join(QStringLiteral(", ")));
}

void keepOnly(WritingScript script, std::vector<FontFamilyRecord> &families)
{
    std::erase_if(families, [&](const FontFamilyRecord &family) {
        return !family.scripts || !family.scripts->contains(script);
    });
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
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--script"},
                                                          {"--folder"}});
    if (!arguments)
        return failUsage("list", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    if (!arguments->positional().empty())
        return failUsage("list", QStringLiteral("list takes folders as --folder DIR"));
    const auto script = wantedScript(*arguments);
    if (!script)
        return failUsage("list", script.error().detail);
    const Result<std::vector<FilePath>> folders = givenFolders(*arguments);
    if (!folders)
        return fail("list", folders.error());
    FontCatalogResult result = scan(*folders);
    if (*script)
        keepOnly(**script, result.families);
    sortByName(result.families);
    if (arguments->has("--json"))
        print(QByteArray(encodeFamilies(result.families) + '\n'));
    else
        printLines(result.families);
    return finish();
}

} // namespace lorva::cli
