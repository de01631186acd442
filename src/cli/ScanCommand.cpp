// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Library.h"
#include "install/WatchedFontRegistrar.h"

#include <QLocale>

namespace lorva::cli {

namespace {

constexpr char kHelp[] =
    "Usage: lorvactl scan [--json] [--folder DIR]...\n"
    "\n"
    "Reads the fonts of this machine that have changed since the last scan, writes down what it\n"
    "learned for the next one, and tells what it did and how long each step took.\n"
    "\n"
    "  --json         one JSON object instead\n"
    "  --folder DIR   take in the fonts below DIR too, beside those of the watched folders\n"
    "  --help         show this help\n";

using Clock = std::chrono::steady_clock;

struct Summary
{
    ScanReport report;
    qint64 families = 0;
    qint64 faces = 0;
    Clock::duration total{};
};

struct Step
{
    const char *title;
    const char *key;
    ScanReport::Duration ScanReport::*time;
};

constexpr Step kSteps[]{
    {"Read the cache", "cache", &ScanReport::readingCache},
    {"Find files", "enumerating", &ScanReport::enumerating},
    {"Read faces", "scanning", &ScanReport::scanning},
    {"Identify families", "identifying", &ScanReport::identifying},
    {"Group families", "preparing", &ScanReport::preparing},
};

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

QString timeLine(const QString &title, Clock::duration time)
{
    return QStringLiteral("  %1%2 ms\n")
        .arg(title.leftJustified(18))
        .arg(QString::number(milliseconds(time), 'f', 1), 9);
}

QString counted(qint64 count)
{
    return QLocale().toString(count);
}

QString summaryText(const Summary &summary)
{
    const ScanReport &report = summary.report;
    QString text = QStringLiteral("Fonts: %1 found, %2 read, %3 unchanged\n")
                       .arg(counted(report.filesFound), counted(report.filesRead),
                            counted(report.filesReused));
    text += QStringLiteral("Families: %1 with %2 styles, %3 newly identified\n")
                .arg(counted(summary.families), counted(summary.faces),
                     counted(report.familiesIdentified));
    for (const Step &step : kSteps)
        text += timeLine(QString::fromLatin1(step.title), report.*step.time);
    return text + timeLine(QStringLiteral("In all"), summary.total);
}

QByteArray summaryJson(const Summary &summary)
{
    JsonWriter out;
    const auto integer = [&](std::string_view key, qint64 value) {
        out.key(key);
        out.integer(value);
    };
    out.beginObject();
    integer("filesFound", summary.report.filesFound);
    integer("filesRead", summary.report.filesRead);
    integer("filesReused", summary.report.filesReused);
    integer("families", summary.families);
    integer("styles", summary.faces);
    integer("familiesIdentified", summary.report.familiesIdentified);
    out.key("milliseconds");
    out.beginObject();
    for (const Step &step : kSteps) {
        out.key(step.key);
        out.number(milliseconds(summary.report.*step.time));
    }
    out.key("total");
    out.number(milliseconds(summary.total));
    out.endObject();
    out.endObject();
    return out.take() + '\n';
}

Summary scan(FontCatalogLoader &loader, const std::vector<FilePath> &folders)
{
    const auto start = Clock::now();
    ScanProgress progress;
    const auto report = progress.callback();
    if (report)
        report(FontScanPhase::enumerating(0));
    const std::vector<FilePath> files = WatchedFontRegistrar().fontFiles(folders, {});
    const auto walked = Clock::now() - start;
    // Never empty: nobody asks this scan to stop.
    const FontCatalogResult result = *loader.scan(files, report);
    Summary summary{loader.lastScan(), qint64(result.families.size()), 0, Clock::now() - start};
    summary.report.enumerating += walked;
    for (const FontFamilyRecord &family : result.families)
        summary.faces += qint64(family.styles.size());
    return summary;
}

int run(const std::vector<FilePath> &folders, bool isJson)
{
    FontCatalogLoader loader(machineFonts(CacheUse::readAndSave));
    const Summary summary = scan(loader, folders);
    if (isJson)
        print(summaryJson(summary));
    else
        printText(summaryText(summary));
    if (const Result<void> saved = loader.finishSaving(); !saved)
        return fail(saved.error().detail);
    return finish();
}

} // namespace

int runScanCommand(std::span<const QByteArray> words)
{
    using Value = OptionSpec::Value;
    const Result<Arguments> arguments = Arguments::parse(
        words,
        {{"--help", Value::none}, {"-h", Value::none}, {"--json", Value::none}, {"--folder"}});
    if (!arguments)
        return failUsage("scan", arguments.error().detail);
    if (arguments->has("--help") || arguments->has("-h")) {
        print(kHelp);
        return finish();
    }
    if (!arguments->positional().empty())
        return failUsage("scan", QStringLiteral("scan takes folders as --folder DIR"));
    const Result<std::vector<FilePath>> folders = givenFolders(*arguments);
    if (!folders)
        return fail("scan", folders.error());
    return run(withWatchedFolders(*folders), arguments->has("--json"));
}

} // namespace lorva::cli
