// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FamilyListing.h"
#include "cli/Help.h"
#include "cli/Library.h"
#include "cli/Texts.h"
#include "model/records/RecordsJson.h"
#include "organize/SearchText.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl search TEXT [--json] [--folder DIR]..."})
        .paragraph(Texts::tr("Lists the font families that the window's search field finds: those "
                             "with TEXT in their name, in a name in another language or in their "
                             "manufacturer's name, whatever its case, accents and width, Hiragana "
                             "for Katakana. One line each: the name, a tab, the styles."))
        .entries({{"--json", Texts::tr("one JSON array of families instead")},
                  folderEntry(),
                  helpEntry()});
}

Result<void> run(const Arguments &arguments)
{
    const Result<QString> typed = text("search", arguments.positional().front());
    if (!typed)
        return tl::unexpected(typed.error());
    const Result<std::vector<FilePath>> folders = givenFolders(arguments);
    if (!folders)
        return tl::unexpected(folders.error());
    FontCatalogResult result = scanLibrary(withWatchedFolders(*folders));
    const SearchQuery query(*typed);
    std::erase_if(result.families, [&](const FontFamilyRecord &family) {
        return !query.matches(searchTextOf(family, result.manufacturers.value(family.familyName)));
    });
    sortByName(result.families);
    if (arguments.has("--json"))
        print(QByteArray(encodeFamilies(result.families) + '\n'));
    else
        printFamilies(result.families);
    return {};
}

} // namespace

int runSearchCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(
        words,
        {{"--help", Value::none}, {"-h", Value::none}, {"--json", Value::none}, {"--folder"}});
    if (!arguments)
        return failUsage("search", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (arguments->positional().size() != 1)
        return failUsage("search", Texts::tr("search takes one text"));
    if (const Result<void> done = run(*arguments); !done)
        return fail("search", done.error());
    return finish();
}

} // namespace lorva::cli
