// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Any bytes as a font file: descriptors, then names, metrics, layout and painting of its first
// faces.
//
//     fuzz/make-seed-corpus.py corpus && build/fuzz/fuzz/lorva_text_fuzzer -max_len=65536 corpus
#include "text/FontFile.h"
#include "text/GlyphPainter.h"

#include <sys/mman.h>
#include <unistd.h>

using namespace lorva;

namespace {

/// Faces beyond these cost time and reach no new code.
constexpr size_t kFacesTried = 2;

/// A file without a name on any disk, with the bytes given.
class MemoryFile
{
public:
    MemoryFile(const uint8_t *data, size_t size)
        : m_fd(::memfd_create("font", MFD_CLOEXEC))
    {
        for (size_t done = 0; m_fd >= 0 && done < size;) {
            const ssize_t written = ::write(m_fd, data + done, size - done);
            if (written <= 0)
                break;
            done += size_t(written);
        }
    }
    ~MemoryFile() { ::close(m_fd); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    FilePath path() const { return FilePath("/proc/self/fd/" + QByteArray::number(m_fd)); }

private:
    const int m_fd;
};

const std::vector<QString> &texts()
{
    static const std::vector<QString> all{
        QStringLiteral("Aa 123 office AVATAR"),
        QString::fromUtf8("abc \u05D0\u05D1\u05B8 (\u0627\u0644\u0633\u0644\u0627\u0645) 12"),
        QString::fromUtf8("\u0915\u094D\u0937\u093F \u0E01\u0E47 \uAC01 \u6C38 e\u0301\u0302")};
    return all;
}

TextLayoutOptions narrow(LineBreakMode mode)
{
    TextLayoutOptions options;
    options.width = 90;
    options.lineBreakMode = mode;
    options.maximumLines = 3;
    return options;
}

void setTexts(const Font &font)
{
    QImage image(100, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (const QString &text : texts()) {
        for (const LineBreakMode mode : {LineBreakMode::wordWrap, LineBreakMode::truncateTail}) {
            const TextLayout layout(text, font, narrow(mode));
            layout.inkBounds();
            GlyphPainter::paint(image, layout, QPointF(5, 5), Qt::black);
        }
    }
}

void tryFace(const std::shared_ptr<const FontFace> &face)
{
    face->names();
    face->familyNamesInAllLanguages();
    face->namedInstances();
    const Font font(face, 20);
    font.capHeight();
    setTexts(font);
    std::vector<VariationSetting> extremes;
    for (const VariationAxis &axis : face->axes())
        extremes.push_back({axis.tag, axis.maxValue});
    if (!extremes.empty())
        setTexts(font.withVariations(extremes).withFeatures({{fontTag('s', 'm', 'c', 'p'), 1}}));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const MemoryFile memory(data, size);
    const auto file = FontFile::open(memory.path());
    if (!file)
        return 0;
    const auto descriptors = (*file)->descriptors();
    if (!descriptors)
        return 0;
    constexpr char32_t kSamples[]{U'a', U'\u3042', U'\U0001F600'};
    for (size_t i = 0; i < std::min(kFacesTried, descriptors->size()); ++i) {
        static_cast<void>((*file)->reach((*descriptors)[i].key, kSamples));
        if (const auto face = (*file)->face((*descriptors)[i].key))
            tryFace(*face);
    }
    return 0;
}
