// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "bench/PeakMemory.h"
#include "catalog/FontCatalogLoader.h"
#include "catalog/StyleWeight.h"
#include "install/FontFolderWalk.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <cstdlib>

#include <sys/stat.h>

// Scans with warm files: of the folder that LORVA_BENCH_FONTS names, else of /usr/share/fonts, and
// of the generated library in LORVA_BENCH_LIBRARY. The bars: the whole process with no cache at
// most 0.15 × fc-scan over the same files, and a scan with nothing changed, its cache read from the
// disk, at most 3 × the walk and a stat of every file.

namespace {

using namespace lorva;

enum class Fonts { real, generated };

FilePath realFonts()
{
    const QByteArray given = qgetenv("LORVA_BENCH_FONTS");
    return FilePath(given.isEmpty() ? QByteArray("/usr/share/fonts") : given);
}

FilePath folderOf(Fonts fonts)
{
    return fonts == Fonts::real ? realFonts() : FilePath(qgetenv("LORVA_BENCH_LIBRARY"));
}

/// The folder to scan; empty, with the benchmark skipped, when there is none.
FilePath requireFolder(benchmark::State &state, Fonts fonts)
{
    const FilePath folder = folderOf(fonts);
    if (folder.isEmpty())
        state.SkipWithError("LORVA_BENCH_LIBRARY names no generated library");
    return folder;
}

FilePath cacheIn(const QTemporaryDir &folder)
{
    return FilePath::fromText(folder.filePath(QStringLiteral("parse-cache.json")));
}

FontCatalogLoader::Dependencies dependencies(const FilePath &cache = {})
{
    return {.availableFonts = std::make_shared<NoAvailableFonts>(), .cacheFileURL = cache};
}

void countResult(benchmark::State &state, const std::optional<FontCatalogResult> &result,
                 const ScanReport &report)
{
    size_t faces = 0;
    size_t identified = 0;
    for (const FontFamilyRecord &family : result->families) {
        faces += family.styles.size();
        identified += family.scripts ? 1 : 0;
    }
    state.counters["files"] = double(report.filesFound);
    state.counters["read"] = double(report.filesRead);
    state.counters["families"] = double(result->families.size());
    state.counters["identified"] = double(identified);
    state.counters["faces"] = double(faces);
}

void scanWithoutCache(benchmark::State &state, Fonts fonts)
{
    const FilePath folder = requireFolder(state, fonts);
    const bench::PeakMemory memory;
    for ([[maybe_unused]] auto _ : state) {
        FontCatalogLoader loader(dependencies());
        const auto result = loader.scan(fontFilesInFolder(folder), nullptr);
        state.PauseTiming();
        countResult(state, result, loader.lastScan());
        state.ResumeTiming();
    }
    memory.report(state);
}

/// Each round is a new process's first scan: a fresh loader that finds its cache on the disk.
void scanWithNothingChanged(benchmark::State &state, Fonts fonts)
{
    const FilePath folder = requireFolder(state, fonts);
    const QTemporaryDir home;
    if (!folder.isEmpty())
        FontCatalogLoader(dependencies(cacheIn(home))).scan(fontFilesInFolder(folder), nullptr);
    const bench::PeakMemory memory;
    for ([[maybe_unused]] auto _ : state) {
        FontCatalogLoader loader(dependencies(cacheIn(home)));
        const auto result = loader.scan(fontFilesInFolder(folder), nullptr);
        state.PauseTiming();
        countResult(state, result, loader.lastScan());
        if (loader.lastScan().filesRead != 0)
            state.SkipWithError("the cache did not serve every file");
        state.ResumeTiming();
    }
    memory.report(state);
}

/// The second and later scans of one process.
void scanAgain(benchmark::State &state, Fonts fonts)
{
    const FilePath folder = requireFolder(state, fonts);
    FontCatalogLoader loader(dependencies());
    if (!folder.isEmpty())
        loader.scan(fontFilesInFolder(folder), nullptr);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(loader.scan(fontFilesInFolder(folder), nullptr));
}

void walkAndStat(benchmark::State &state, Fonts fonts)
{
    const FilePath folder = requireFolder(state, fonts);
    for ([[maybe_unused]] auto _ : state) {
        for (const FilePath &file : fontFilesInFolder(folder)) {
            struct stat info;
            benchmark::DoNotOptimize(::stat(file.c_str(), &info));
        }
    }
}

#define LORVA_SCAN_BENCHMARK(name)                                                                 \
    BENCHMARK_CAPTURE(name, real, Fonts::real)->Unit(benchmark::kMillisecond)->UseRealTime();      \
    BENCHMARK_CAPTURE(name, generated, Fonts::generated)                                           \
        ->Unit(benchmark::kMillisecond)                                                            \
        ->UseRealTime()
LORVA_SCAN_BENCHMARK(scanWithoutCache);
LORVA_SCAN_BENCHMARK(scanWithNothingChanged);
LORVA_SCAN_BENCHMARK(scanAgain);
LORVA_SCAN_BENCHMARK(walkAndStat);

void weightOfALabel(benchmark::State &state)
{
    const QString labels[]{QStringLiteral("Regular"),   QStringLiteral("Semi Bold Italic"),
                           QStringLiteral("Condensed"), QStringLiteral("W6"),
                           QStringLiteral("Poster"),    QStringLiteral("ExtraLight")};
    size_t next = 0;
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(weightFromStyleLabel(labels[next++ % std::size(labels)]));
}
BENCHMARK(weightOfALabel);

#ifdef LORVACTL_PATH

/// A fontconfig that lists nothing, so that only the folder's files are measured.
QProcessEnvironment withoutSystemFonts(const QTemporaryDir &folder)
{
    const QString path = folder.filePath(QStringLiteral("fonts.conf"));
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(R"(<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig/>)");
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("FONTCONFIG_FILE"), path);
    return environment;
}

void runProcess(benchmark::State &state, const QString &program, const QStringList &arguments)
{
    const QTemporaryDir folder;
    const QProcessEnvironment environment = withoutSystemFonts(folder);
    for ([[maybe_unused]] auto _ : state) {
        QProcess process;
        process.setProcessEnvironment(environment);
        process.setStandardOutputFile(QProcess::nullDevice());
        process.setStandardErrorFile(QProcess::nullDevice());
        process.start(program, arguments);
        if (!process.waitForFinished(-1) || process.exitCode() != 0)
            state.SkipWithError("the program failed");
    }
}

void lorvactlList(benchmark::State &state)
{
    runProcess(state, QStringLiteral(LORVACTL_PATH),
               {QStringLiteral("list"), QStringLiteral("--folder"),
                QString::fromUtf8(realFonts().bytes())});
}
BENCHMARK(lorvactlList)->Unit(benchmark::kMillisecond)->UseRealTime();

void fcScan(benchmark::State &state)
{
    runProcess(state, QStringLiteral("fc-scan"), {QString::fromUtf8(realFonts().bytes())});
}
BENCHMARK(fcScan)->Unit(benchmark::kMillisecond)->UseRealTime();

#endif

} // namespace

BENCHMARK_MAIN();
