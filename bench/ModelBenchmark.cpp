// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What the main thread does between a person's hand and the next picture, on the generated library
// that LORVA_BENCH_LIBRARY names, with every family sorted into a style category and half of them
// in a collection. The bars for 10,000 families: 5 ms for a key press of a search or a switch of
// sources, 10 ms for a change with its write, 100 ms for foundries and search texts on a worker.
#include "catalog/FontCatalogLoader.h"
#include "install/FontInstallationService.h"
#include "model/LorvaAppModel.h"
#include "platform/linux/DesktopTrash.h"
#include "platform/linux/LinkFolderRegistrar.h"
#include "platform/SqlitePreferenceStore.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>

#include <array>
#include <cstdio>
#include <cstdlib>

namespace {

using namespace lorva;

class NoStandIn final : public SystemFontLocator
{
public:
    Location systemFont() const override { return {}; }
};

/// One user with a large library.
struct User
{
    explicit User(const FilePath &library)
        : preferences(FilePath::fromText(home.path()))
        , model({std::make_unique<FontLibraryService>(FontLibraryService::Dependencies{
                     std::make_shared<NoAvailableFonts>(), std::make_shared<NoStandIn>()}),
                 makeActivation(), preferences,
                 std::make_unique<GivenFolders>(std::vector{library})})
    {
        model.loadCatalog();
        while (model.isLoading())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        sortEverything();
    }

    std::unique_ptr<ActivationProvider> makeActivation()
    {
        PlatformFolders folders;
        folders.applicationSupport = FilePath::fromText(home.path());
        folders.userFonts = folders.applicationSupport.child("fonts");
        FontInstallationService::Dependencies dependencies{
            folders, std::make_shared<LinkFolderRegistrar>(folders.registeredLinks()),
            std::make_shared<DesktopTrash>()};
        return std::make_unique<FontInstallationService>(
            std::make_unique<FontInstallationStore>(preferences), std::move(dependencies));
    }

    void sortEverything()
    {
        std::array<QStringList, 6> byStyle;
        QStringList half;
        for (size_t i = 0; i < model.allFamilies()->size(); ++i) {
            const QString name = (*model.allFamilies())[i].familyName;
            byStyle[i % byStyle.size()].append(name);
            if (i % 2 == 0)
                half.append(name);
        }
        for (size_t i = 0; i < byStyle.size(); ++i)
            static_cast<void>(model.setStyle(byStyle[i], model.styleCategories()[i].id));
        collection = model.createCollection(QStringLiteral("Half")).value();
        static_cast<void>(model.addFamilies(collection, half));
    }

    /// Families on the screen, as the views would ask after a change.
    size_t shown() { return model.visibleFamilies().size(); }

    QTemporaryDir home;
    SqlitePreferenceStore preferences;
    LorvaAppModel model;
    QString collection;
};

User &user()
{
    static User one(FilePath(qgetenv("LORVA_BENCH_LIBRARY")));
    return one;
}

void searchKeyPress(benchmark::State &state)
{
    User &person = user();
    person.model.select(BrowserSource::allFonts());
    static const std::array<QString, 6> kTyped{"a", "an", "and", "ando", "zzz", "e"};
    size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        person.model.setSearchQuery(kTyped[i++ % kTyped.size()]);
        benchmark::DoNotOptimize(person.shown());
    }
    person.model.setSearchQuery({});
    state.counters["families"] = double(person.model.allFamilies()->size());
}

void switchSource(benchmark::State &state)
{
    User &person = user();
    const std::array<BrowserSource, 6> sources{
        BrowserSource::allFonts(),
        BrowserSource::inactive(),
        BrowserSource::style(QStringLiteral("sans")),
        BrowserSource::collection(person.collection),
        BrowserSource::active(),
        BrowserSource::foundry(person.model.foundryCollections()[0].id)};
    size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        person.model.select(sources[i++ % sources.size()]);
        benchmark::DoNotOptimize(person.shown());
    }
    person.model.select(BrowserSource::allFonts());
}

void answerQuizCard(benchmark::State &state)
{
    User &person = user();
    size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const FontFamilyList families = person.model.allFamilies();
        const QString name = (*families)[i % families->size()].familyName;
        const auto style = person.model.styleCategories()[i % 6].id;
        static_cast<void>(person.model.setStyle({name}, style));
        benchmark::DoNotOptimize(person.shown());
        i += 7;
    }
}

void addToCollection(benchmark::State &state)
{
    User &person = user();
    size_t i = 1;
    for ([[maybe_unused]] auto _ : state) {
        const FontFamilyList families = person.model.allFamilies();
        const QString name = (*families)[i % families->size()].familyName;
        if (person.model.isMember(name, person.collection))
            static_cast<void>(person.model.removeFamilies(person.collection, {name}));
        else
            static_cast<void>(person.model.addFamilies(person.collection, {name}));
        benchmark::DoNotOptimize(person.shown());
        i += 2;
    }
}

void moveToFoundry(benchmark::State &state)
{
    User &person = user();
    size_t i = 0;
    for ([[maybe_unused]] auto _ : state) {
        const FontFamilyList families = person.model.allFamilies();
        const QString name = (*families)[i % families->size()].familyName;
        const auto &foundries = person.model.foundryCollections();
        static_cast<void>(person.model.setFoundry({name}, foundries[i % foundries.size()].id));
        benchmark::DoNotOptimize(person.shown());
        i += 7;
    }
}

void foundriesAndSearchTexts(benchmark::State &state)
{
    const CatalogSnapshot catalog{user().model.allFamilies(), user().model.manufacturersByFamily()};
    for ([[maybe_unused]] auto _ : state)
        benchmark::DoNotOptimize(makeLibraryIndex(catalog));
}

BENCHMARK(searchKeyPress)->Unit(benchmark::kMillisecond);
BENCHMARK(switchSource)->Unit(benchmark::kMillisecond);
BENCHMARK(answerQuizCard)->Unit(benchmark::kMillisecond);
BENCHMARK(addToCollection)->Unit(benchmark::kMillisecond);
BENCHMARK(moveToFoundry)->Unit(benchmark::kMillisecond);
BENCHMARK(foundriesAndSearchTexts)->Unit(benchmark::kMillisecond);

} // namespace

int main(int count, char **arguments)
{
    if (qEnvironmentVariableIsEmpty("LORVA_BENCH_LIBRARY")) {
        std::fputs("LORVA_BENCH_LIBRARY names no generated library (lorva_generate_library makes "
                   "one)\n",
                   stderr);
        return EXIT_FAILURE;
    }
    const QCoreApplication application(count, arguments);
    benchmark::Initialize(&count, arguments);
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
