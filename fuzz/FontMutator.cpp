// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

// Damage that knows where the tables of a font are. Most bytes of a font are outlines; a change of
// any byte would seldom hit the small tables that steer everything. Every table of the directory is
// as likely here, and its first bytes, where the counts and offsets stand, more than the rest.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>
#include <span>
#include <vector>

extern "C" size_t LLVMFuzzerMutate(uint8_t *data, size_t size, size_t maxSize);

namespace {

constexpr size_t kHeader = 12;
constexpr size_t kEntry = 16;
/// Counts and offsets of nearly all tables stand here.
constexpr size_t kTableHead = 64;

using Random = std::minstd_rand;

uint32_t below(Random &random, size_t count)
{
    return count == 0 ? 0 : uint32_t(random() % count);
}

uint32_t read32(std::span<const uint8_t> data, size_t at)
{
    return at + 4 > data.size() ? 0
                                : uint32_t(data[at]) << 24 | uint32_t(data[at + 1]) << 16
            | uint32_t(data[at + 2]) << 8 | data[at + 3];
}

/// Where the table directory of a face stands: of a collection one of the first four.
size_t directoryOf(std::span<const uint8_t> data, Random &random)
{
    constexpr uint32_t kCollection = 0x74746366;
    return read32(data, 0) == kCollection ? read32(data, 12 + 4 * below(random, 4)) : 0;
}

struct Table
{
    size_t entry = 0;
    std::span<uint8_t> bytes;
};

std::vector<Table> tablesOf(std::span<uint8_t> data, Random &random)
{
    std::vector<Table> tables;
    const size_t directory = directoryOf(data, random);
    const uint32_t count = read32(data, directory + 4) >> 16;
    for (uint32_t i = 0; i < std::min(count, 64u); ++i) {
        const size_t entry = directory + kHeader + i * kEntry;
        if (entry + kEntry > data.size())
            break;
        const size_t offset = read32(data, entry + 8);
        const size_t length = read32(data, entry + 12);
        if (offset < data.size() && length > 0)
            tables.push_back({entry, data.subspan(offset, std::min(length, data.size() - offset))});
    }
    return tables;
}

/// A number such as damaged tables hold, big-endian in 1, 2 or 4 bytes.
void writeNumber(std::span<uint8_t> bytes, size_t at, Random &random)
{
    constexpr uint32_t kNumbers[]{0,          1,        2,      3,      0x7F,       0x80,
                                  0xFF,       0x7FFF,   0x8000, 0xFFFF, 0xFFFE,     0x10000,
                                  0x100,      0xFFFFFF, 12,     32,     0x7FFFFFFF, 0x80000000,
                                  0xFFFFFFFF, 64,       1000};
    uint32_t value = kNumbers[below(random, std::size(kNumbers))];
    if (below(random, 4) == 0)
        value = below(random, bytes.size() * 2); // an offset within the table, or just beyond
    const size_t width = size_t(1) << below(random, 3);
    for (size_t i = 0; i < width && at + i < bytes.size(); ++i)
        bytes[at + i] = uint8_t(value >> (8 * (width - 1 - i)));
}

void damage(std::span<uint8_t> bytes, Random &random)
{
    for (uint32_t times = 1 + below(random, 4); times > 0; --times) {
        const bool isHead = below(random, 3) > 0;
        const size_t at = below(random, isHead ? std::min(bytes.size(), kTableHead) : bytes.size());
        switch (below(random, 4)) {
        case 0:
            bytes[at] = uint8_t(bytes[at] + (below(random, 2) ? 1 : -1));
            break;
        case 1: // a piece of the table somewhere else in it
            std::copy_n(bytes.begin() + below(random, bytes.size() / 2),
                        std::min<size_t>(below(random, 32), (bytes.size() - at) / 2),
                        bytes.begin() + std::ptrdiff_t(at));
            break;
        default:
            writeNumber(bytes, at & ~size_t(1), random);
        }
    }
}

} // namespace

extern "C" size_t LLVMFuzzerCustomMutator(uint8_t *data, size_t size, size_t maxSize, unsigned seed)
{
    Random random(seed);
    const std::vector<Table> tables = tablesOf({data, size}, random);
    if (tables.empty() || below(random, 4) == 0)
        return LLVMFuzzerMutate(data, size, maxSize);
    const Table &table = tables[below(random, tables.size())];
    switch (below(random, 10)) {
    case 0: // its length, its place or its tag
        writeNumber({data + table.entry, kEntry}, below(random, kEntry), random);
        break;
    case 1:
        LLVMFuzzerMutate(table.bytes.data(), table.bytes.size(), table.bytes.size());
        break;
    case 2: // the last byte says what is tried
        data[size - 1] = uint8_t(random());
        break;
    default:
        damage(table.bytes, random);
    }
    return size;
}
