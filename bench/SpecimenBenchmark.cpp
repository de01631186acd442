// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// A never-seen specimen, from path to pixels: "Aa 123" at 48 points on a card of 430 by 220 pixels,
// for every installed font file. Pages are warm, nothing of the file is in the process. One
// iteration is one pass over all files; the counters are microseconds per file.
#include "InstalledFonts.h"
#include "Samples.h"
#include "text/FontFile.h"
#include "text/GlyphPainter.h"
#include "text/WarmFaces.h"

#include <benchmark/benchmark.h>

using namespace lorva;
using namespace lorva::bench;

namespace {

QImage card()
{
    QImage image(430, 220, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

TextLayout specimen(const Font &font)
{
    TextLayoutOptions options;
    options.width = 390;
    options.lineBreakMode = LineBreakMode::truncateTail;
    options.maximumLines = 1;
    return TextLayout(QStringLiteral("Aa 123"), font, options);
}

std::optional<Font> openFont(const FilePath &path)
{
    const auto file = FontFile::open(path);
    if (!file)
        return std::nullopt;
    const auto face = (*file)->face({});
    return face ? std::optional(Font(*face, 48)) : std::nullopt;
}

std::vector<Font> warmFonts()
{
    std::vector<Font> fonts;
    for (const FilePath &path : installedFonts()) {
        if (const auto font = openFont(path))
            fonts.push_back(*font);
    }
    return fonts;
}

void pathToPixels(benchmark::State &state)
{
    installedFonts();
    Samples samples;
    for (auto _ : state) {
        WarmFaces::instance().clear();
        for (const FilePath &path : installedFonts()) {
            samples.time([&] {
                QImage image = card();
                if (const auto font = openFont(path))
                    GlyphPainter::paint(image, specimen(*font), QPointF(20, 70), Qt::black);
                benchmark::DoNotOptimize(image.constBits());
            });
        }
    }
    samples.report(state);
}

/// A second visit of a face that is still warm: what scrolling back costs before any picture is
/// cached.
void layoutOnly(benchmark::State &state)
{
    const std::vector<Font> fonts = warmFonts();
    Samples samples;
    for (auto _ : state) {
        for (const Font &font : fonts) {
            const std::shared_ptr<hb_font_t> held = font.shapingFont();
            benchmark::DoNotOptimize(specimen(font));
            samples.time([&] { benchmark::DoNotOptimize(specimen(font)); });
        }
    }
    samples.report(state);
}

void paintOnly(benchmark::State &state)
{
    const std::vector<Font> fonts = warmFonts();
    QImage image = card();
    Samples samples;
    for (auto _ : state) {
        for (const Font &font : fonts) {
            const std::shared_ptr<hb_font_t> held = font.shapingFont();
            const TextLayout layout = specimen(font);
            GlyphPainter::paint(image, layout, QPointF(20, 70), Qt::black);
            samples.time([&] { GlyphPainter::paint(image, layout, QPointF(20, 70), Qt::black); });
        }
    }
    samples.report(state);
}

/// Ten thousand characters of running text, wrapped.
void longLayout(benchmark::State &state)
{
    const std::vector<Font> fonts = warmFonts();
    if (fonts.empty())
        return state.SkipWithError("no fonts installed");
    const QString text =
        QStringLiteral("The quick brown fox jumps over the lazy dog. ").repeated(250).left(10'000);
    TextLayoutOptions options;
    options.width = 600;
    for (auto _ : state)
        benchmark::DoNotOptimize(TextLayout(text, fonts.front(), options));
}

BENCHMARK(pathToPixels)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(layoutOnly)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(paintOnly)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(longLayout)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
