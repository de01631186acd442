// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/TableBytes.h"

#include "text/GuardedMapping.h"
#include "text/OpenedFile.h"

#include <atomic>
#include <new>

#include <sys/mman.h>

namespace lorva {

namespace {

/// Smaller tables are read as fast as they are mapped.
constexpr quint32 kSmallestMapped = 512 << 10;
/// A line of text, and what HarfBuzz checks when it meets an outline table, touch about this share
/// of the pages.
constexpr qint64 kTouchedShare = 16;
/// Tables of this size have pages of their own, which go back to the system at once when the table
/// is let go; in the common heap those of CJK fonts would leave holes as large as themselves.
/// Smaller ones find room in the heap that is warm already, which is faster.
constexpr quint32 kOwnPages = 6 << 20;

std::atomic<qint64> totalWeight = 0;

char *newPages(quint32 size)
{
    void *const pages =
        ::mmap(nullptr, size, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED)
        return nullptr;
    // Five thousand page faults take as long as reading what they make room for.
    ::madvise(pages, size, MADV_HUGEPAGE);
    return static_cast<char *>(pages);
}

} // namespace

TableBytes::TableBytes(quint32 size)
    : m_size(size)
{
}

TableBytes::~TableBytes()
{
    totalWeight -= m_counted;
    if (!hasOwnPages())
        delete[] m_bytes;
    else if (m_bytes)
        ::munmap(m_bytes, m_size);
}

bool TableBytes::hasOwnPages() const
{
    return m_size >= kOwnPages;
}

bool TableBytes::mapFrom(const OpenedFile &file, quint64 offset)
{
    m_mapping = file.map(offset, m_size);
    m_data = m_mapping ? m_mapping->data() : nullptr;
    return m_mapping != nullptr;
}

bool TableBytes::readFrom(const OpenedFile &file, quint64 offset)
{
    m_bytes = hasOwnPages() ? newPages(m_size) : new (std::nothrow) char[m_size];
    m_data = m_bytes;
    return m_bytes && file.read(offset, m_bytes, m_size);
}

std::shared_ptr<const TableBytes> TableBytes::load(const OpenedFile &file, quint64 offset,
                                                   quint32 length, TableUse use)
{
    // Before anything is allocated: a damaged length must not cost memory.
    if (offset > file.size() || length > file.size() - offset)
        return nullptr;
    std::shared_ptr<TableBytes> bytes(new TableBytes(length));
    const bool isMapped =
        use == TableUse::pieces && length >= kSmallestMapped && bytes->mapFrom(file, offset);
    if (!isMapped && !bytes->readFrom(file, offset))
        return nullptr;
    bytes->m_counted = bytes->weight();
    totalWeight += bytes->m_counted;
    return bytes;
}

qint64 TableBytes::weight() const
{
    return m_mapping ? m_size / kTouchedShare : m_size;
}

qint64 TableBytes::total()
{
    return totalWeight;
}

} // namespace lorva
