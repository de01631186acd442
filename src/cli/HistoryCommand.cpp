// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Texts.h"
#include "install/ActivationHistory.h"
#include "platform/linux/XdgFolders.h"

namespace lorva::cli {

namespace {

constexpr int kMostRuns = 1'000'000;

HelpText help()
{
    return HelpText({"lorvactl history [--limit N] [--json|--csv]"}, 21)
        .paragraph(Texts::tr(
            "Tells what was switched on and off here, in the window and by lorvactl, the newest "
            "first. One line for each time: when, a tab, \"copied\", \"registered\", "
            "\"deactivated\", \"moved\" or \"restored\", a tab, the families; after \"moved\" a "
            "tab, and where to. Then a line for each file, which begins with a tab: \"done\", "
            "\"skipped\" (its name was taken), \"failed\" or \"left\" (it was stopped before), a "
            "tab, the file; after \"failed\" a tab, and why."))
        .paragraph(Texts::tr("Reasons stay in the language of whoever switched the fonts, with "
                             "--json and --csv, too."))
        .entries({{"--limit N", Texts::tr("only the newest N times")},
                  {"--json", Texts::tr("one JSON array instead of lines")},
                  {"--csv", Texts::tr("a table for spreadsheets instead, one row for each file")},
                  helpEntry()});
}

using Entry = ActivationHistoryEntry;

void writeFile(JsonWriter &out, const Entry::File &file)
{
    out.beginObject();
    out.key("fileURL");
    out.utf8(file.path.toUrl());
    out.key("outcome");
    out.string(historyName(file.fate));
    if (!file.reason.isEmpty()) {
        out.key("reason");
        out.string(file.reason);
    }
    out.endObject();
}

void writeEntry(JsonWriter &out, const Entry &entry)
{
    out.beginObject();
    out.key("when");
    out.string(entry.when.toString(Qt::ISODateWithMs));
    out.key("action");
    out.string(historyName(entry.action));
    out.key("families");
    out.beginArray();
    for (const QString &family : entry.families)
        out.string(family);
    out.endArray();
    if (entry.destination) {
        out.key("destinationURL");
        out.utf8(entry.destination->toUrl());
    }
    out.key("files");
    out.beginArray();
    for (const Entry::File &file : entry.files)
        writeFile(out, file);
    out.endArray();
    out.endObject();
}

void printJson(const std::vector<Entry> &entries)
{
    JsonWriter out;
    out.beginArray();
    for (const Entry &entry : entries)
        writeEntry(out, entry);
    out.endArray();
    print(QByteArray(out.take() + '\n'));
}

void printEntry(const Entry &entry)
{
    QString line = entry.when.toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")) % u'\t'
        % historyName(entry.action) % u'\t' % singleLine(entry.families.join(QLatin1String(", ")));
    if (entry.destination)
        line += u'\t' % singleLine(*entry.destination);
    printText(QString(line % u'\n'));
    for (const Entry::File &file : entry.files) {
        const QString reason =
            file.reason.isEmpty() ? QString() : QString(u'\t' % singleLine(file.reason));
        printText(QString(u'\t' % historyName(file.fate) % u'\t' % singleLine(file.path) % reason
                          % u'\n'));
    }
}

Result<void> run(const Arguments &arguments)
{
    const Result<int> limit =
        wholeNumber("--limit", arguments.value("--limit").value_or(QByteArray::number(kMostRuns)),
                    1, kMostRuns);
    if (!limit)
        return tl::unexpected(limit.error());
    const bool isJson = arguments.has("--json");
    if (isJson && arguments.has("--csv"))
        return failure(ErrorKind::usage, Texts::tr("history takes --json or --csv, not both"));
    if (!arguments.positional().empty())
        return failure(ErrorKind::usage, Texts::tr("history takes no further words"));
    const auto entries = ActivationHistory(xdgFolders().activationHistory()).read(size_t(*limit));
    if (!entries)
        return tl::unexpected(entries.error());
    if (isJson) {
        printJson(*entries);
    } else if (arguments.has("--csv")) {
        print(historyAsCsv(*entries));
    } else {
        for (const Entry &entry : *entries)
            printEntry(entry);
    }
    return {};
}

} // namespace

int runHistoryCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(words,
                                                         {{"--help", Value::none},
                                                          {"-h", Value::none},
                                                          {"--json", Value::none},
                                                          {"--csv", Value::none},
                                                          {"--limit"}});
    if (!arguments)
        return failUsage("history", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (const Result<void> done = run(*arguments); !done)
        return fail("history", done.error());
    return finish();
}

} // namespace lorva::cli
