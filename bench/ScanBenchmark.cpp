// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "catalog/FontCatalogLoader.h"
#include "catalog/StyleWeight.h"
#include "install/FontFolderWalk.h"

#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <sys/stat.h>

// Scans of the folder that LORVA_BENCH_FONTS names, else of /usr/share/fonts, with warm files. The
// bars: the whole process with no cache at most 0.15 × fc-scan over the same files, and a scan with
// nothing changed at most 3 × the walk and a stat of every file.

namespace {

using namespace lorva;

FilePath fontFolder()
{
    const QByteArray given = qgetenv("LORVA_BENCH_FONTS");
    return FilePath(given.isEmpty() ? QByteArray("/usr/share/fonts") : given);
}

void countFiles(benchmark::State &state, size_t files)
{
    state.counters["files"] = double(files);
}

void scanWithoutCache(benchmark::State &state)
{
    size_t files = 0;
    for ([[maybe_unused]] auto _ : state) {
        FontCatalogLoader loader({std::make_shared<NoAvailableFonts>()});
        const std::vector<FilePath> found = fontFilesInFolder(fontFolder());
        files = found.size();
        benchmark::DoNotOptimize(loader.scan(found, nullptr));
    }
    countFiles(state, files);
}
BENCHMARK(scanWithoutCache)->Unit(benchmark::kMillisecond)->UseRealTime();

void scanWithNothingChanged(benchmark::State &state)
{
    FontCatalogLoader loader({std::make_shared<NoAvailableFonts>()});
    loader.scan(fontFilesInFolder(fontFolder()), nullptr);
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(loader.scan(fontFilesInFolder(fontFolder()), nullptr));
}
BENCHMARK(scanWithNothingChanged)->Unit(benchmark::kMillisecond)->UseRealTime();

void walkAndStat(benchmark::State &state)
{
    for ([[maybe_unused]] auto _ : state) {
        for (const FilePath &file : fontFilesInFolder(fontFolder())) {
            struct stat info;
            benchmark::DoNotOptimize(::stat(file.c_str(), &info));
        }
    }
}
BENCHMARK(walkAndStat)->Unit(benchmark::kMillisecond)->UseRealTime();

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
        file.write(
            "<?xml version=\"1.0\"?><!DOCTYPE fontconfig SYSTEM \"fonts.dtd\"><fontconfig/>");
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
                QString::fromUtf8(fontFolder().bytes())});
}
BENCHMARK(lorvactlList)->Unit(benchmark::kMillisecond)->UseRealTime();

void fcScan(benchmark::State &state)
{
    runProcess(state, QStringLiteral("fc-scan"), {QString::fromUtf8(fontFolder().bytes())});
}
BENCHMARK(fcScan)->Unit(benchmark::kMillisecond)->UseRealTime();

#endif

} // namespace

BENCHMARK_MAIN();
