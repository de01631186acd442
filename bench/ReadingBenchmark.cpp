// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Reading every installed font file with warm pages, against the least that the kernel asks for the
// same files. The time of one iteration is that of all files; "per_file" and "per_face" divide it.
#include "InstalledFonts.h"
#include "text/FontFace.h"
#include "text/FontFile.h"

#include <benchmark/benchmark.h>
#include <hb.h>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace lorva;

namespace {

void report(benchmark::State &state, const char *unit, size_t count)
{
    state.counters[unit] = benchmark::Counter(
        double(count), benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void openStatReadClose(benchmark::State &state)
{
    char page[4096];
    for (auto _ : state) {
        for (const FilePath &file : installedFonts()) {
            const int fd = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
            struct stat info;
            ::fstat(fd, &info);
            benchmark::DoNotOptimize(::pread(fd, page, sizeof page, 0));
            ::close(fd);
        }
    }
    report(state, "per_file", installedFonts().size());
}

void describeEveryFace(benchmark::State &state)
{
    size_t faces = 0;
    for (auto _ : state) {
        faces = 0;
        for (const FilePath &path : installedFonts()) {
            if (const auto opened = FontFile::openForReading(path))
                faces += opened->file->descriptors().value_or(std::vector<FaceDescriptor>()).size();
        }
    }
    report(state, "per_file", installedFonts().size());
    report(state, "per_face", faces);
}

void describeInTwoOpenings(benchmark::State &state)
{
    for (auto _ : state)
        for (const FilePath &path : installedFonts())
            if (const auto file = FontFile::open(path))
                benchmark::DoNotOptimize((*file)->descriptors());
    report(state, "per_file", installedFonts().size());
}

void describeAndAskForGlyphs(benchmark::State &state)
{
    constexpr char32_t kSamples[] = U"Aaz\u3042\u306E\u30A2\uAC00\uD55C\uB098\u6C38\u4E00\u5929";
    for (auto _ : state) {
        for (const FilePath &path : installedFonts()) {
            const auto opened = FontFile::openForReading(path);
            const auto face = opened ? opened->file->face({}) : tl::unexpected(opened.error());
            if (!face)
                continue;
            benchmark::DoNotOptimize(opened->file->descriptors());
            for (const char32_t sample : kSamples)
                benchmark::DoNotOptimize((*face)->glyphFor(sample));
        }
    }
    report(state, "per_file", installedFonts().size());
}

void pathToShapedText(benchmark::State &state)
{
    for (auto _ : state) {
        for (const FilePath &path : installedFonts()) {
            const auto file = FontFile::open(path);
            const auto face = file ? (*file)->face({}) : tl::unexpected(file.error());
            if (!face)
                continue;
            hb_buffer_t *buffer = hb_buffer_create();
            hb_buffer_add_utf8(buffer, "Aa 123", -1, 0, -1);
            hb_buffer_guess_segment_properties(buffer);
            hb_shape((*face)->shapingFont({}).get(), buffer, nullptr, 0);
            hb_buffer_destroy(buffer);
        }
    }
    report(state, "per_file", installedFonts().size());
}

BENCHMARK(openStatReadClose)->Unit(benchmark::kMillisecond);
BENCHMARK(describeEveryFace)->Unit(benchmark::kMillisecond);
BENCHMARK(describeInTwoOpenings)->Unit(benchmark::kMillisecond);
BENCHMARK(describeAndAskForGlyphs)->Unit(benchmark::kMillisecond);
BENCHMARK(pathToShapedText)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
