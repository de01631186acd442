// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What a load and a key press of a search cost a library of 10,000 families: the work over names
// alone.

#include "base/Folding.h"
#include "bench/OrganizeNames.h"
#include "model/records/StyleCategories.h"
#include "organize/Foundries.h"
#include "organize/SearchText.h"
#include "organize/StyleClassifier.h"

#include <benchmark/benchmark.h>

namespace lorva::bench {

namespace {

constexpr int kFamilies = 10000;
/// As many as a user who cares moves by hand.
constexpr int kMoves = 200;

const NamedLibrary &library()
{
    static const NamedLibrary made = makeNamedLibrary(kFamilies);
    return made;
}

QStringList searchTexts()
{
    QStringList texts;
    texts.reserve(kFamilies);
    for (const FontFamilyRecord &family : library().families)
        texts.append(searchTextOf(family, library().manufacturers.value(family.familyName)));
    return texts;
}

void derive(benchmark::State &state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            deriveFoundries(library().manufacturers, kFewestFamiliesOfFoundry));
    }
}

FoundryCorrections manyCorrections(const std::vector<FoundryCollectionRecord> &foundries)
{
    FoundryCorrections corrections;
    for (int i = 0; i < kMoves; ++i) {
        const size_t foundry = size_t(i) % foundries.size();
        corrections.overrides.insert(library().families[size_t(i)].familyName,
                                     foundries[foundry].id);
        corrections.names.insert(foundries[foundry].id, QStringLiteral("Name %1").arg(i));
    }
    return corrections;
}

void correct(benchmark::State &state)
{
    const auto foundries = deriveFoundries(library().manufacturers, kFewestFamiliesOfFoundry);
    const FoundryCorrections corrections = manyCorrections(foundries);
    for (auto _ : state)
        benchmark::DoNotOptimize(correctedFoundries(foundries, corrections));
}

void fold(benchmark::State &state)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(searchTexts());
}

void match(benchmark::State &state, const QString &typed)
{
    const QStringList texts = searchTexts();
    qsizetype found = 0;
    for (auto _ : state) {
        const SearchQuery query(typed);
        found = std::count_if(texts.begin(), texts.end(),
                              [&query](const QString &text) { return query.matches(text); });
        benchmark::DoNotOptimize(found);
    }
    state.counters["found"] = double(found);
}

void matchByQt(benchmark::State &state)
{
    const QStringList texts = searchTexts();
    const QString typed = QStringLiteral("grot");
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            std::count_if(texts.begin(), texts.end(), [&typed](const QString &text) {
                return text.contains(typed, Qt::CaseInsensitive);
            }));
    }
}

void classifyAll(benchmark::State &state)
{
    for (auto _ : state) {
        benchmark::DoNotOptimize(
            classify(library().families, defaultStyleCategories(), ClassifierPass::full));
    }
}

} // namespace

BENCHMARK(derive)->Name("derive the foundries of 10,000 families")->Unit(benchmark::kMillisecond);
BENCHMARK(correct)
    ->Name("apply 200 moves and names to these foundries")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(fold)->Name("fold 10,000 search texts")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(match, letter, QStringLiteral("g"))
    ->Name("search 10,000 texts for one letter")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(match, word, QStringLiteral("grot"))
    ->Name("search 10,000 texts for a word")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(match, kana, QStringLiteral("ごしっく"))
    ->Name("search 10,000 texts for kana")
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(match, absent, QStringLiteral("helvetica neue haas"))
    ->Name("search 10,000 texts in vain")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(matchByQt)
    ->Name("search 10,000 texts for a word, QString::contains ignoring case")
    ->Unit(benchmark::kMillisecond);
BENCHMARK(classifyAll)->Name("classify 10,000 families")->Unit(benchmark::kMillisecond);

} // namespace lorva::bench

BENCHMARK_MAIN();
