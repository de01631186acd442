// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/DoctorChecks.h"
#include "cli/EnglishTexts.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "platform/linux/XdgFolders.h"

#include <algorithm>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl doctor [--json]"})
        .paragraph(Texts::tr(
            "Tells how preferences, caches, active fonts and watched folders fare, and changes "
            "nothing. One line for each finding: \"ok\", \"note\" or \"wrong\", a tab, the file or "
            "preference, a tab, what there is to say. A note is worth knowing, but nothing is out "
            "of order: preferences of another version, damaged ones that were kept beside new "
            "ones, a cache of no use that will be written anew, books that the next activation "
            "brings into line with the disk."))
        .entries({{"--json", Texts::tr("one JSON object instead")}, helpEntry()})
        .paragraph(Texts::tr("Exit status: 0 all is well, 1 something is wrong."));
}

std::string_view stateName(Finding::State state)
{
    switch (state) {
    case Finding::State::well:
        return "ok";
    case Finding::State::note:
        return "note";
    case Finding::State::wrong:
        break;
    }
    return "wrong";
}

void printLines(const Findings &findings)
{
    for (const Finding &each : findings)
        printText(QStringLiteral("%1\t%2\t%3\n")
                      .arg(QLatin1String(stateName(each.state).data()), singleLine(each.about),
                           singleLine(each.text)));
}

void printJson(const Findings &findings, bool isWell)
{
    JsonWriter out;
    out.beginObject();
    out.key("isWell");
    out.boolean(isWell);
    out.key("findings");
    out.beginArray();
    for (const Finding &each : findings) {
        out.beginObject();
        out.key("check");
        out.utf8(QByteArrayView(each.check));
        out.key("state");
        out.utf8(QByteArrayView(stateName(each.state)));
        out.key("about");
        out.string(each.about);
        out.key("text");
        out.string(each.text);
        out.endObject();
    }
    out.endArray();
    out.endObject();
    print(QByteArray(out.take() + '\n'));
}

Findings findingsOf(Examined &examined)
{
    Findings all;
    for (const DoctorCheck &check : doctorChecks()) {
        Findings found;
        check.run(examined, found);
        for (Finding &each : found) {
            each.check = check.name;
            all.push_back(std::move(each));
        }
    }
    return all;
}

int run(bool isJson)
{
    const auto english = englishFor(isJson);
    const PlatformFolders folders = xdgFolders();
    Examined examined{folders, lookAtPreferences(folders.applicationSupport), std::nullopt};
    const Findings findings = findingsOf(examined);
    const bool isWell = std::none_of(findings.begin(), findings.end(), [](const Finding &each) {
        return each.state == Finding::State::wrong;
    });
    if (isJson)
        printJson(findings, isWell);
    else
        printLines(findings);
    const int code = finish();
    return isWell ? code : exitFailed;
}

} // namespace

int runDoctorCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(
        words, {{"--help", Value::none}, {"-h", Value::none}, {"--json", Value::none}});
    if (!arguments)
        return failUsage("doctor", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (!arguments->positional().empty())
        return failUsage("doctor", Texts::tr("doctor takes no words"));
    return run(arguments->has("--json"));
}

} // namespace lorva::cli
