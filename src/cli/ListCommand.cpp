// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FamilyListing.h"
#include "cli/Help.h"
#include "cli/Library.h"
#include "cli/Texts.h"
#include "cli/Words.h"
#include "model/records/RecordsJson.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl list [--json] [--script NAME] [--folder DIR]..."})
        .paragraph(Texts::tr(
            "Lists the font families of this machine, one line each: the name, a tab, the styles. "
            "Characters that would break a line are written as escapes (\\n, \\u{202e})."))
        .entries({{"--json", Texts::tr("one JSON array of families instead")},
                  {"--script NAME",
                   Texts::tr("only families that can set latin, japanese, korean, "
                             "simplifiedChinese or traditionalChinese")},
                  folderEntry(),
                  helpEntry()});
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
    return failure(ErrorKind::usage, Texts::tr("--script takes %1").arg(listed(known)));
}

void keepOnly(WritingScript script, std::vector<FontFamilyRecord> &families)
{
    std::erase_if(families, [&](const FontFamilyRecord &family) {
        return !family.scripts || !family.scripts->contains(script);
    });
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
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (!arguments->positional().empty())
        return failUsage("list", Texts::tr("list takes folders as --folder DIR"));
    const auto script = wantedScript(*arguments);
    if (!script)
        return failUsage("list", script.error().detail);
    const Result<std::vector<FilePath>> folders = givenFolders(*arguments);
    if (!folders)
        return fail("list", folders.error());
    FontCatalogResult result = scanLibrary(withWatchedFolders(*folders));
    if (*script)
        keepOnly(**script, result.families);
    sortByName(result.families);
    if (arguments->has("--json"))
        print(QByteArray(encodeFamilies(result.families) + '\n'));
    else
        printFamilies(result.families);
    return finish();
}

} // namespace lorva::cli
