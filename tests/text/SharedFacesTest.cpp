// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Several threads at the same faces, for the thread sanitizer above all; what they see must be what
// one thread sees.
#include "text/CharacterSet.h"
#include "text/FaceInformation.h"
#include "text/FontFeatures.h"
#include "text/GlyphNames.h"
#include "text/GlyphPainter.h"
#include "text/TextCarets.h"
#include "text/WarmFaces.h"

#include "text/LayoutSupport.h"
#include "text/MadeFonts.h"

#include <QCryptographicHash>

#include <thread>

using namespace lorva;
using namespace lorva::test;

namespace {

constexpr int kThreads = 3;
constexpr int kRounds = 6;

std::vector<FilePath> fontPaths()
{
    return {realFont("opentype/ebgaramond/EBGaramond12-Regular.otf"),
            realFont("truetype/inter-vf/Inter.var.ttf"),
            realFont("opentype/fonts-hosny-amiri/AmiriQuranColored.ttf"),
            realFont("truetype/lohit-devanagari/Lohit-Devanagari.ttf"),
            realFont("truetype/nanum/NanumSquareB.ttf"),
            realFont("truetype/noto/NotoColorEmoji.ttf")};
}

QByteArray pictureOf(const Font &font)
{
    TextLayoutOptions options;
    options.width = 180;
    const QString text = QStringLiteral("Aa 123 قرآن अक्षि 한글 😀 fi");
    const TextLayout layout(text, font, options);
    QImage image(200, 200, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::white);
    GlyphPainter::paint(image, layout, QPointF(5, 5), Qt::darkBlue);
    const TextCarets carets(text, layout);
    QByteArray picture(reinterpret_cast<const char *>(image.constBits()), image.sizeInBytes());
    for (int i = 0; i <= text.size(); i += 3)
        picture += QByteArray::number(carets.caretRect({i, false}).x());
    return picture;
}

/// Everything that can be asked of a face, as one digest.
QByteArray digest(const FontFace &face, const Font &font)
{
    QByteArray all = pictureOf(font);
    all += pictureOf(font.withFeatures({{fontTag('s', 'm', 'c', 'p'), 1}}));
    if (!face.axes().empty())
        all += pictureOf(font.withVariations({{face.axes().front().tag, 700}}));
    all += face.names().family.toUtf8() + QByteArray::number(face.metrics().capHeight)
        + QByteArray::number(font.withVariations({{fontTag('w', 'g', 'h', 't'), 300}}).xHeight())
        + QByteArray::number(readCharacters(face).count())
        + QByteArray::number(qsizetype(readFaceInformation(face).names.size()))
        + QByteArray::number(qsizetype(fontFeatures(face).size()))
        + GlyphNames(face).name(3).toUtf8();
    return QCryptographicHash::hash(all, QCryptographicHash::Sha1);
}

std::vector<QByteArray> digests(const std::vector<std::shared_ptr<const FontFace>> &faces)
{
    std::vector<QByteArray> result;
    for (const auto &face : faces)
        result.push_back(digest(*face, Font(face, 30)));
    return result;
}

std::vector<std::shared_ptr<const FontFace>> openFaces()
{
    std::vector<std::shared_ptr<const FontFace>> faces;
    for (const FilePath &path : fontPaths()) {
        if (const auto face = openFace(path))
            faces.push_back(face);
    }
    return faces;
}

void runTogether(const std::function<void(int thread)> &work)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < kThreads; ++i)
        threads.emplace_back(work, i);
    for (std::thread &thread : threads)
        thread.join();
}

} // namespace

TEST(SharedFaces, ThreadsSeeTheSameOfFacesThatTheyShare)
{
    const std::vector<QByteArray> expected = digests(openFaces());
    WarmFaces::instance().clear();
    const auto faces = openFaces(); // nothing is read of them yet: the threads are first together
    std::vector<std::vector<QByteArray>> seen(kThreads);
    runTogether([&](int thread) { seen[size_t(thread)] = digests(faces); });
    for (const auto &one : seen)
        EXPECT_EQ(one, expected);
}

TEST(SharedFaces, FacesAreDroppedAndForgottenWhileOthersDrawWithThem)
{
    const std::vector<QByteArray> expected = digests(openFaces());
    std::atomic<int> wrong = 0;
    std::atomic<int> busy = kThreads - 1;
    runTogether([&](int thread) {
        if (thread == 0) {
            // Until the others are done, so that every stage of theirs meets a clearing.
            while (busy > 0) {
                WarmFaces::instance().clear();
                std::this_thread::yield();
            }
            return;
        }
        for (int round = 0; round < kRounds; ++round) {
            // New faces each round, dropped at its end; the warm ones behind them are common.
            const auto faces = openFaces();
            const size_t at = size_t(round + thread) % faces.size();
            wrong += digest(*faces[at], Font(faces[at], 30)) == expected[at] ? 0 : 1;
        }
        --busy;
    });
    EXPECT_EQ(wrong, 0);
}

TEST(SharedFaces, NothingStaysInMemoryOfFacesThatAreGone)
{
    WarmFaces::instance().clear();
    const qint64 before = WarmFaces::tableBytes();
    digests(openFaces());
    EXPECT_GT(WarmFaces::tableBytes(), before);
    WarmFaces::instance().clear();
    EXPECT_EQ(WarmFaces::tableBytes(), before);
}

TEST(SharedFaces, AFontThatIsKeptHoldsNoTables)
{
    WarmFaces::instance().clear();
    const qint64 before = WarmFaces::tableBytes();
    const auto faces = openFaces();
    std::vector<Font> fonts;
    std::vector<TextLayout> layouts;
    for (const auto &face : faces) {
        fonts.emplace_back(face, 30);
        layouts.emplace_back(QStringLiteral("Aa 123"), fonts.back());
        pictureOf(fonts.back());
    }
    WarmFaces::instance().clear();
    EXPECT_EQ(WarmFaces::tableBytes(), before);
    EXPECT_EQ(digests(faces), digests(openFaces())); // and reads them again when asked
}
