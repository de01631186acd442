// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"
#include "base/TextColumns.h"
#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Console.h"
#include "cli/Help.h"
#include "cli/Library.h"
#include "cli/Texts.h"
#include "install/WatchedFontRegistrar.h"

#include <QLocale>

namespace lorva::cli {

namespace {

HelpText help()
{
    return HelpText({"lorvactl scan [--json] [--folder DIR]..."})
        .paragraph(Texts::tr(
            "Reads the fonts of this machine that have changed since the last scan, writes down "
            "what it learned for the next one, and tells what it did and how long each step took."))
        .entries({{"--json", Texts::tr("one JSON object instead")}, folderEntry(), helpEntry()});
}

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
    /// For Texts::tr().
    const char *title;
    const char *key;
    ScanReport::Duration ScanReport::*time;
};

/// Of the steps, and of the space before and after them.
constexpr int kTitleColumns = 20;

constexpr Step kSteps[]{
    {QT_TRANSLATE_NOOP("lorvactl", "Read the cache"), "cache", &ScanReport::readingCache},
    {QT_TRANSLATE_NOOP("lorvactl", "Find files"), "enumerating", &ScanReport::enumerating},
    {QT_TRANSLATE_NOOP("lorvactl", "Read faces"), "scanning", &ScanReport::scanning},
    {QT_TRANSLATE_NOOP("lorvactl", "Identify families"), "identifying", &ScanReport::identifying},
    {QT_TRANSLATE_NOOP("lorvactl", "Group families"), "preparing", &ScanReport::preparing},
};

double milliseconds(Clock::duration time)
{
    return std::chrono::duration<double, std::milli>(time).count();
}

QString timeLine(const QString &title, Clock::duration time)
{
    const QString number = QString::number(milliseconds(time), 'f', 1);
    //: a time in milliseconds
    return QStringLiteral("  %1\t%2\n").arg(title, Texts::tr("%1 ms").arg(number, 9));
}

QString counted(qint64 count)
{
    return QLocale().toString(count);
}

QString summaryText(const Summary &summary)
{
    const ScanReport &report = summary.report;
    QString text =
        Texts::tr("Fonts: %1 found, %2 read, %3 unchanged")
            .arg(counted(report.filesFound), counted(report.filesRead), counted(report.filesReused))
        % u'\n';
    //: the part "%1 with %2" of what a scan found
    const QString styles =
        Texts::tr("%1 styles", nullptr, int(summary.faces)).arg(counted(summary.faces));
    text += Texts::tr("Families: %1 with %2, %3 newly identified")
                .arg(counted(summary.families), styles, counted(report.familiesIdentified))
        % u'\n';
    QString times;
    for (const Step &step : kSteps)
        times += timeLine(Texts::tr(step.title), report.*step.time);
    times += timeLine(Texts::tr("In all"), summary.total);
    return text + alignedAtTabs(times, kTitleColumns);
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
    if (arguments->has("--help") || arguments->has("-h"))
        return showHelp(help());
    if (!arguments->positional().empty())
        return failUsage("scan", Texts::tr("scan takes folders as --folder DIR"));
    const Result<std::vector<FilePath>> folders = givenFolders(*arguments);
    if (!folders)
        return fail("scan", folders.error());
    return run(withWatchedFolders(*folders), arguments->has("--json"));
}

} // namespace lorva::cli
