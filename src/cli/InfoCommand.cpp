// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/FaceReport.h"

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl info [--json] [--glyphs] FILE\n"
    "\n"
    "Shows what there is to know of every face of a font file: names in every language, format,\n"
    "metrics, embedding rights, characters, variation axes with their named values and instances,\n"
    "features, layout languages, colours and tables; and which writing scripts its families "
    "serve.\n"
    "\n"
    "  --json     one JSON object instead\n"
    "  --glyphs   list every glyph with its name and its character, too\n"
    "  --help     show this help\n";

int run(const FilePath &path, bool isJson, GlyphListing glyphs)
{
    const auto report = reportFaces(path, glyphs);
    if (!report)
        return fail(report.error().detail);
    if (isJson)
        print(QByteArray(faceReportJson(*report) + '\n'));
    else
        printText(faceReportText(*report));
    return finish();
}

} // namespace

int runInfoCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--glyphs", Value::none}});
    if (!arguments)
        return failUsage("info", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    if (arguments->positional().size() != 1)
        return failUsage("info", QStringLiteral("info takes one font file"));
    return run(FilePath::absolute(arguments->positional().front()), arguments->has("--json"),
               arguments->has("--glyphs") ? GlyphListing::shown : GlyphListing::hidden);
}

} // namespace lorva::cli
