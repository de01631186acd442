// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Report.h"
#include "cli/Texts.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl report [--json]"}, 13)
        .paragraph(Texts::tr(
            "Tells what a report of a fault needs: versions, the desktop, counts, sizes, times, "
            "what the doctor finds, and settings. Nothing in it names a font, a file, a folder, a "
            "collection or a person, and no text that was typed is in it. It is in English, "
            "whatever the language."))
        .entries({{"--json", Texts::tr("one JSON object instead")}, helpEntry()});
}

int run(bool isJson)
{
    const std::vector<ReportSection> report = makeReport();
    if (isJson) {
        print(reportJson(report));
        return finish();
    }
    printText(reportText(report));
    // In English as all of the report: whoever reads it need not know the user's language.
    print("\nNothing here names a font, a file, a folder or a person. Paste all of it into your "
          "report, below what you did and saw.\n");
    return finish();
}

} // namespace

int runReportCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(
        words, {{"--help", Value::none}, {"-h", Value::none}, {"--json", Value::none}});
    if (!arguments)
        return failUsage("report", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (!arguments->positional().empty())
        return failUsage("report", Texts::tr("report takes no words"));
    return run(arguments->has("--json"));
}

} // namespace lorva::cli
