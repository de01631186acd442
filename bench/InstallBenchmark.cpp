// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What is switched on, worked out anew for every family of the generated library that
// LORVA_BENCH_LIBRARY names, and the walk over the folder that LORVA_BENCH_FONTS names, else over
// 20,000 small files. The bar for 10,000 families: 200 ms.
#include "catalog/FontCatalogLoader.h"
#include "install/ActivationBooks.h"
#include "install/FontFolderWalk.h"

#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

using namespace lorva;

struct Library
{
    std::vector<FontFamilyRecord> families;
    QSet<FilePath> files;
};

Library readLibrary(const FilePath &folder)
{
    const std::vector<FilePath> files = fontFilesInFolder(folder);
    FontCatalogLoader loader(
        {.availableFonts = std::make_shared<NoAvailableFonts>(), .cacheFileURL = {}});
    Library library;
    if (auto result = loader.scan(files, nullptr))
        library.families = std::move(result->families);
    library.files = QSet<FilePath>(files.begin(), files.end());
    return library;
}

const Library &library()
{
    static const Library one = readLibrary(FilePath(qgetenv("LORVA_BENCH_LIBRARY")));
    return one;
}

enum class Watched { yes, no };

/// A user who has copied some and registered some fonts, none of them of the library.
ActivationBooks::Contents booksContents(Watched watched)
{
    ActivationBooks::Contents contents;
    contents.folders.userFonts = FilePath("/nowhere/fonts");
    contents.folders.allUsersFonts = FilePath("/usr/local/share/fonts");
    contents.folders.systemFonts = {FilePath("/usr/share/fonts")};
    contents.watchedFontURLs = watched == Watched::yes ? library().files : QSet<FilePath>();
    for (int i = 0; i < 1000; ++i) {
        const QByteArray name = "Copied-" + QByteArray::number(i) + ".otf";
        contents.fontsFolder.files.insert(contents.folders.userFonts.child(name));
        contents.fontsFolder.basenames.insert(name);
        contents.registeredURLs.insert(FilePath("/nowhere/else").child(name));
    }
    return contents;
}

void classifyLibrary(benchmark::State &state, Watched watched)
{
    if (library().families.empty()) {
        state.SkipWithError("LORVA_BENCH_LIBRARY names no generated library");
        return;
    }
    const ActivationBooks::Contents contents = booksContents(watched);
    size_t active = 0;
    size_t styles = 0;
    for ([[maybe_unused]] auto _ : state) {
        const ActivationBooks books(contents);
        active = 0;
        for (const FontFamilyRecord &family : library().families)
            active += books.activationState(family) ? 1 : 0;
    }
    for (const FontFamilyRecord &family : library().families)
        styles += family.styles.size();
    state.counters["families"] = double(library().families.size());
    state.counters["active"] = double(active);
    state.counters["styles"] = double(styles);
}

/// Two hundred folders of a hundred empty files each.
void fillFolder(const FilePath &folder)
{
    for (int i = 0; i < 20'000; ++i) {
        const FilePath inner = folder.child(QByteArray("Foundry " + QByteArray::number(i / 100)));
        if (i % 100 == 0)
            ::mkdir(inner.c_str(), 0700);
        const QByteArray name = "Font-" + QByteArray::number(i) + ".otf";
        const FilePath file = inner.child(name);
        ::close(::open(file.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600));
    }
}

void walkFolder(benchmark::State &state)
{
    FilePath folder(qgetenv("LORVA_BENCH_FONTS"));
    std::optional<QTemporaryDir> made;
    if (folder.isEmpty()) {
        folder = FilePath::fromText(made.emplace().path());
        fillFolder(folder);
    }
    size_t files = 0;
    for ([[maybe_unused]] auto _ : state)
        files = fontFilesInFolder(folder).size();
    state.counters["files"] = double(files);
}

BENCHMARK_CAPTURE(classifyLibrary, watched, Watched::yes)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(classifyLibrary, others, Watched::no)->Unit(benchmark::kMillisecond);
BENCHMARK(walkFolder)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
