// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Any bytes as a font file: descriptors, then one of the things that the engine does with a face.
// The last byte says which; no table reads it.
//
//     fuzz/make-seed-corpus.py corpus && build/fuzz/fuzz/lorva_text_fuzzer -max_len=65536 corpus
#include "FontTrials.h"

#include "text/FontFile.h"

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
    const FontTrial trial = fontTrials()[data[size - 1] % fontTrials().size()];
    constexpr char32_t kSamples[]{U'a', U'\u3042', U'\U0001F600'};
    for (size_t i = 0; i < std::min(kFacesTried, descriptors->size()); ++i) {
        static_cast<void>((*file)->reach((*descriptors)[i].key, kSamples));
        if (const auto face = (*file)->face((*descriptors)[i].key))
            trial(*face);
    }
    return 0;
}
