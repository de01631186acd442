// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// A never-seen specimen, from path to pixels: "Aa 123" at 48 points on a card of 430 by 220 pixels,
// for every installed font file. Pages are warm, nothing of the file is in the process. One
// iteration is one pass over all files; the counters are microseconds per file.
#include "InstalledFonts.h"
#include "text/FontFile.h"
#include "text/GlyphPainter.h"
#include "text/WarmFaces.h"

#include <benchmark/benchmark.h>

#include <time.h>

using namespace lorva;

namespace {

double threadMicroseconds()
{
    timespec now{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e6 + double(now.tv_nsec) / 1e3;
}

/// Microseconds per sample; told as median, 95th percentile and worst.
class Samples
{
public:
    template <class Work>
    void time(Work work)
    {
        const double start = threadMicroseconds();
        work();
        m_microseconds.push_back(threadMicroseconds() - start);
    }

    void report(benchmark::State &state)
    {
        std::sort(m_microseconds.begin(), m_microseconds.end());
        state.counters["median_us"] = at(0.5);
        state.counters["p95_us"] = at(0.95);
        state.counters["worst_us"] = at(1);
    }

private:
    double at(double share) const
    {
        return m_microseconds.empty() ? 0
                                      : m_microseconds[size_t(share * (m_microseconds.size() - 1))];
    }

    std::vector<double> m_microseconds;
};

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
