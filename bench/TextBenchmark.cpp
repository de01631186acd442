// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// The type engine by kind of font, each beside FreeType, which does the same in the same process:
// path to pixels of a never-seen specimen, opening of faces, and setting of 10,000 characters.
// Pages are warm. The counters are microseconds per font.
#include "FreeTypeSpecimen.h"
#include "InstalledFonts.h"
#include "Samples.h"
#include "text/color/ColorGlyphSource.h"
#include "text/FontFile.h"
#include "text/GlyphPainter.h"
#include "text/WarmFaces.h"

#include <benchmark/benchmark.h>

using namespace lorva;
using namespace lorva::bench;

namespace {

constexpr double kSizePx = 48;
const QPoint kAt(20, 70);

enum class Kind { trueType, cff, variable, cjk, color };

/// Above all but CJK fonts.
constexpr int kManyGlyphs = 8000;

struct Specimen
{
    FilePath path;
    QString text;
};

std::shared_ptr<const FontFace> openFace(const FilePath &path)
{
    const auto file = FontFile::open(path);
    const auto face = file ? (*file)->face({}) : tl::unexpected(file.error());
    return face.value_or(nullptr);
}

Kind kindOf(const FontFace &face)
{
    if (mayHaveColor(face))
        return Kind::color;
    if (face.glyphCount() > kManyGlyphs)
        return Kind::cjk;
    if (!face.axes().empty())
        return Kind::variable;
    return face.formatNumber() == 3 ? Kind::cff : Kind::trueType;
}

/// The first text that the face can write; nothing for fonts of other scripts.
QString textFor(const FontFace &face)
{
    for (const char *text : {"\u6C38\u9AA8 \u76F4\u8FD4", "Aa 123", "\U0001F600\U0001F680\u2764",
                             "\u0628\u0633\u0645"}) {
        const QString sample = QString::fromUtf8(text);
        if (face.glyphFor(sample.toUcs4().front()))
            return sample;
    }
    return {};
}

const std::vector<Specimen> &specimens(Kind kind)
{
    static const auto all = [] {
        std::map<Kind, std::vector<Specimen>> sorted;
        for (const FilePath &path : installedFonts()) {
            const auto face = openFace(path);
            const QString text = face ? textFor(*face) : QString();
            if (!text.isEmpty())
                sorted[kindOf(*face)].push_back({path, text});
        }
        return sorted;
    }();
    static const std::vector<Specimen> none;
    const auto found = all.find(kind);
    return found == all.end() ? none : found->second;
}

QImage card()
{
    QImage image(430, 220, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    return image;
}

TextLayoutOptions oneLine()
{
    TextLayoutOptions options;
    options.width = 390;
    options.lineBreakMode = LineBreakMode::truncateTail;
    options.maximumLines = 1;
    return options;
}

template <class Paint>
void measureSpecimens(benchmark::State &state, Kind kind, Paint paint)
{
    if (specimens(kind).empty())
        return state.SkipWithError("no font of this kind is installed");
    Samples samples;
    for (auto _ : state) {
        WarmFaces::instance().clear();
        for (const Specimen &specimen : specimens(kind)) {
            samples.time([&] {
                QImage image = card();
                paint(image, specimen);
                benchmark::DoNotOptimize(image.constBits());
            });
        }
    }
    samples.report(state);
    state.counters["fonts"] = double(specimens(kind).size());
}

void paintOurs(QImage &image, const Specimen &specimen)
{
    if (const auto face = openFace(specimen.path))
        GlyphPainter::paint(image, TextLayout(specimen.text, Font(face, kSizePx), oneLine()), kAt,
                            Qt::black);
}

void paintFreeType(QImage &image, const Specimen &specimen)
{
    freeTypeSpecimen(image, specimen.path, specimen.text, kSizePx, kAt);
}

// Files opened, and their faces named.

void openOurs(benchmark::State &state)
{
    installedFonts();
    for (auto _ : state) {
        for (const FilePath &path : installedFonts()) {
            if (const auto opened = FontFile::openForReading(path))
                benchmark::DoNotOptimize(opened->file->descriptors());
        }
    }
    state.counters["faces"] = double(installedFonts().size());
}

/// Of a collection the first face.
void openFreeType(benchmark::State &state)
{
    installedFonts();
    for (auto _ : state) {
        for (const FilePath &path : installedFonts())
            benchmark::DoNotOptimize(freeTypeGlyphCount(path));
    }
    state.counters["faces"] = double(installedFonts().size());
}

// Ten thousand characters.

QString tenThousandCharacters()
{
    return QStringLiteral("The quick brown fox jumps over the lazy dog. ")
        .repeated(250)
        .left(10'000);
}

FilePath readingFont()
{
    return FilePath("/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf");
}

void layoutOurs(benchmark::State &state)
{
    const auto face = openFace(readingFont());
    if (!face)
        return state.SkipWithError("fonts-dejavu-core is not installed");
    const Font font(face, 12);
    const std::shared_ptr<hb_font_t> held = font.shapingFont();
    const QString text = tenThousandCharacters();
    TextLayoutOptions options;
    options.width = 600;
    for (auto _ : state)
        benchmark::DoNotOptimize(TextLayout(text, font, options));
}

/// Shaping alone, in one run: no directions, scripts or lines.
void layoutHarfBuzzFreeType(benchmark::State &state)
{
    FreeTypeShaper shaper(readingFont(), 12);
    if (!shaper.isReady())
        return state.SkipWithError("fonts-dejavu-core is not installed");
    const QString text = tenThousandCharacters();
    for (auto _ : state)
        benchmark::DoNotOptimize(shaper.advance(text));
}

BENCHMARK(openOurs)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(openFreeType)->Iterations(5)->Unit(benchmark::kMillisecond);
BENCHMARK(layoutOurs)->Unit(benchmark::kMillisecond);
BENCHMARK(layoutHarfBuzzFreeType)->Unit(benchmark::kMillisecond);

/// "specimenCff" and "freeTypeCff", for each kind.
const bool registered = [] {
    const std::pair<const char *, Kind> kinds[] = {{"TrueType", Kind::trueType},
                                                   {"Cff", Kind::cff},
                                                   {"Variable", Kind::variable},
                                                   {"Cjk", Kind::cjk},
                                                   {"Color", Kind::color}};
    for (const auto &[name, kind] : kinds) {
        const auto add = [kind = kind](const std::string &title, auto paint) {
            benchmark::RegisterBenchmark(
                title.c_str(),
                [kind, paint](benchmark::State &state) { measureSpecimens(state, kind, paint); })
                ->Iterations(5)
                ->Unit(benchmark::kMillisecond);
        };
        add(std::string("specimen") + name, paintOurs);
        add(std::string("freeType") + name, paintFreeType);
    }
    return true;
}();

} // namespace

BENCHMARK_MAIN();
