// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/EnglishTexts.h"
#include "cli/FaceReport.h"
#include "cli/Help.h"
#include "cli/Texts.h"

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl info [--json] [--glyphs] FILE"}, 13)
        .paragraph(
            Texts::tr("Shows what there is to know of every face of a font file: names in every "
                      "language, format, metrics, embedding rights, characters, variation axes "
                      "with their named values and instances, features, layout languages, colours "
                      "and tables; and which writing scripts its families serve."))
        .entries({{"--json", Texts::tr("one JSON object instead")},
                  {"--glyphs", Texts::tr("list every glyph with its name and its character, too")},
                  helpEntry()});
}

int run(const FilePath &path, bool isJson, GlyphListing glyphs)
{
    const auto english = englishFor(isJson);
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
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (arguments->positional().size() != 1)
        return failUsage("info", Texts::tr("info takes one font file"));
    return run(FilePath::absolute(arguments->positional().front()), arguments->has("--json"),
               arguments->has("--glyphs") ? GlyphListing::shown : GlyphListing::hidden);
}

} // namespace lorva::cli
