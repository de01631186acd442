// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// What opened faces cost in memory that is this process's own.
#include "base/Sanitizers.h"
#include "text/GlyphPainter.h"
#include "text/WarmFaces.h"

#include "text/ReadingSupport.h"

#include <QFile>

#include <cstdio>
#include <thread>

#include <malloc.h>

using namespace lorva;
using namespace lorva::test;

namespace {

constexpr double kBarMegabytes = 150;
constexpr size_t kFaces = 100;

/// proc(5), smaps_rollup: pages that no other process shares.
double privateMegabytes()
{
    double kilobytes = 0;
    if (std::FILE *const file = std::fopen("/proc/self/smaps_rollup", "r")) {
        char line[256];
        long value = 0;
        while (std::fgets(line, sizeof line, file)) {
            if (std::sscanf(line, "Private_Clean: %ld", &value) == 1
                || std::sscanf(line, "Private_Dirty: %ld", &value) == 1)
                kilobytes += double(value);
        }
        std::fclose(file);
    }
    return kilobytes / 1024;
}

/// CTest gives each case a process of its own; run by hand after others, what those left behind
/// does not count.
double privateBefore()
{
    ::malloc_trim(0);
    return ::testing::UnitTest::GetInstance()->test_to_run_count() == 1 ? 0 : privateMegabytes();
}

struct CjkFace
{
    FilePath path;
    int faceIndex = 0;
};

/// All faces of the installed CJK fonts, and of as many copies as it takes: a link would share the
/// outlines of what it leads to.
std::vector<CjkFace> manyCjkFaces()
{
    std::vector<CjkFace> faces;
    const auto add = [&](const FilePath &path) {
        const auto file = openFont(path);
        for (int i = 0; file && i < file->faceCount(); ++i)
            faces.push_back({path, i});
    };
    for (const char *name :
         {"opentype/noto/NotoSansCJK-Regular.ttc", "opentype/noto/NotoSerifCJK-Regular.ttc",
          "opentype/noto/NotoSansCJK-Bold.ttc", "opentype/noto/NotoSerifCJK-Bold.ttc",
          "truetype/lxgw-wenkai/LXGWWenKai-Regular.ttf",
          "truetype/lxgw-wenkai/LXGWWenKai-Light.ttf", "truetype/nanum/NanumGothic.ttf",
          "truetype/nanum/NanumMyeongjo.ttf"})
        add(realFont(name));
    const FilePath folder = TestHome::instance().makeFolder("copies");
    const QByteArray copied = readFile(realFont("opentype/noto/NotoSansCJK-Regular.ttc"));
    for (int copy = 0; faces.size() < kFaces; ++copy)
        add(writeFile(folder, QByteArray::number(copy) + ".ttc", copied));
    faces.resize(kFaces);
    return faces;
}

/// Sets and paints a line; the amount of ink tells that outlines were there.
bool paintSpecimen(const Font &font)
{
    QImage image(320, 80, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    const TextLayout layout(QStringLiteral("永和直骨 한글 かな Aa 123"), font);
    GlyphPainter::paint(image, layout, QPointF(4, 4), Qt::black);
    qint64 ink = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ink += qAlpha(image.pixel(x, y));
    }
    return ink > 20'000;
}

/// The faces `from`, `from + step`, …; they stay open, and each may lay out again at any time.
struct Painted
{
    std::vector<Font> fonts;
    size_t blank = 0;
    double peakMegabytes = 0;
};

Painted paintFaces(const std::vector<CjkFace> &faces, size_t from, size_t step)
{
    Painted painted;
    for (size_t i = from; i < faces.size(); i += step) {
        const auto face = openFace(faces[i].path, {faces[i].faceIndex, -1});
        if (!face)
            continue;
        face->names();
        painted.fonts.emplace_back(face, 24);
        painted.blank += paintSpecimen(painted.fonts.back()) ? 0 : 1;
        painted.peakMegabytes = std::max(painted.peakMegabytes, privateMegabytes());
    }
    return painted;
}

class FaceMemory : public ::testing::TestWithParam<size_t>
{
};

TEST_P(FaceMemory, aHundredOpenedCjkFacesStayWithinTheBar)
{
    if (kHasShadowMemory)
        GTEST_SKIP() << "a sanitizer keeps freed memory and shadows of all of it";
    const std::vector<CjkFace> faces = manyCjkFaces();
    const size_t threadCount = GetParam();
    const double before = privateBefore();
    std::vector<Painted> parts(threadCount);
    std::vector<std::thread> threads;
    for (size_t i = 0; i < threadCount; ++i)
        threads.emplace_back([&, i] { parts[i] = paintFaces(faces, i, threadCount); });
    for (std::thread &thread : threads)
        thread.join();

    size_t opened = 0;
    for (const Painted &part : parts) {
        opened += part.fonts.size();
        EXPECT_EQ(part.blank, 0u);
        EXPECT_LT(part.peakMegabytes - before, kBarMegabytes) << "while painting";
    }
    EXPECT_EQ(opened, kFaces);
    EXPECT_LT(privateMegabytes() - before, kBarMegabytes) << "once painted";
    for (const Painted &part : parts)
        RecordProperty("peakMegabytes", int(part.peakMegabytes - before));
    RecordProperty("afterMegabytes", int(privateMegabytes() - before));
}

INSTANTIATE_TEST_SUITE_P(Threads, FaceMemory, ::testing::Values(1, 3));

} // namespace
