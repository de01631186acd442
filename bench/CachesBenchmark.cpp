// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Reading and writing the parse cache and the snapshot of the generated library that
// LORVA_BENCH_LIBRARY names. The bar: 100,000 faces read in at most 100 ms each.
#include "bench/PeakMemory.h"
#include "catalog/CatalogCache.h"
#include "catalog/FontCatalogLoader.h"
#include "install/FontFolderWalk.h"

#include <QTemporaryDir>

#include <cstdio>
#include <cstdlib>

namespace {

using namespace lorva;

/// The two files as one scan of the library leaves them.
struct Caches
{
    explicit Caches(const FilePath &library)
    {
        FontCatalogLoader loader(
            {.availableFonts = std::make_shared<NoAvailableFonts>(), .cacheFileURL = parseCache});
        auto result = loader.scan(fontFilesInFolder(library), nullptr);
        CatalogCache(snapshot).save(
            {makeFamilyList(std::move(result->families)), std::move(result->manufacturers)});
    }

    FilePath path(const char *name) const
    {
        return FilePath::fromText(folder.filePath(QLatin1String(name)));
    }

    QTemporaryDir folder;
    FilePath parseCache = path("parse-cache.json");
    FilePath snapshot = path("catalog-snapshot.json");
};

const Caches &caches()
{
    static const Caches made(FilePath(qgetenv("LORVA_BENCH_LIBRARY")));
    return made;
}

PersistedCache parseCache()
{
    return readPersistedCache(caches().parseCache).value();
}

CatalogSnapshot snapshot()
{
    return CatalogCache(caches().snapshot).load().value();
}

/// Times what `read` does without what freeing its result costs: that happens elsewhere.
template <class Read, class Count>
void timeReading(benchmark::State &state, Read &&read, Count &&countFaces)
{
    read();
    const bench::PeakMemory memory;
    for ([[maybe_unused]] auto _ : state) {
        auto value = read();
        state.PauseTiming();
        state.counters["faces"] = double(countFaces(value));
        {
            const auto freed = std::move(value);
        }
        state.ResumeTiming();
    }
    memory.report(state);
}

void readParseCache(benchmark::State &state)
{
    timeReading(state, parseCache, [](const PersistedCache &cache) {
        size_t faces = 0;
        for (const ParsedFontFile &file : cache.files)
            faces += file.entries.size();
        return faces;
    });
}

void readSnapshot(benchmark::State &state)
{
    timeReading(state, snapshot, [](const CatalogSnapshot &read) {
        size_t faces = 0;
        for (const FontFamilyRecord &family : *read.families)
            faces += family.styles.size();
        return faces;
    });
}

template <class Encode>
void timeEncoding(benchmark::State &state, Encode &&encode)
{
    const bench::PeakMemory memory;
    for ([[maybe_unused]] auto _ : state) {
        const QByteArray json = encode();
        state.counters["mb"] = double(json.size()) / (1024 * 1024);
    }
    memory.report(state);
}

void encodeParseCache(benchmark::State &state)
{
    const PersistedCache cache = parseCache();
    timeEncoding(state, [&] { return encodePersistedCache(cache); });
}

void encodeWholeSnapshot(benchmark::State &state)
{
    const CatalogSnapshot whole = snapshot();
    timeEncoding(state, [&] { return encodeSnapshot(whole); });
}

BENCHMARK(readParseCache)->Unit(benchmark::kMillisecond);
BENCHMARK(readSnapshot)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeParseCache)->Unit(benchmark::kMillisecond);
BENCHMARK(encodeWholeSnapshot)->Unit(benchmark::kMillisecond);

} // namespace

int main(int count, char **arguments)
{
    if (qEnvironmentVariableIsEmpty("LORVA_BENCH_LIBRARY")) {
        std::fputs("LORVA_BENCH_LIBRARY names no generated library (lorva_generate_library makes "
                   "one)\n",
                   stderr);
        return EXIT_FAILURE;
    }
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
