// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <memory>

namespace lorva {

class GuardedMapping;
class OpenedFile;

/// How a table is read by those who ask for it.
enum class TableUse {
    /// From end to end, as layout tables are checked.
    whole,
    /// A few glyphs of thousands.
    pieces
};

/// The bytes of one table in memory.
///
/// Large ones that are used in pieces are mapped where OpenedFile::map() allows it, so that a CJK
/// font costs what is looked at: 0.3 ms to its first pixels, where reading all of it takes 1 to 8.
/// Immutable. Thread: any.
class TableBytes
{
public:
    /// Null when the file does not give them, or memory is short.
    static std::shared_ptr<const TableBytes> load(const OpenedFile &file, quint64 offset,
                                                  quint32 length, TableUse use);
    ~TableBytes();
    TableBytes(const TableBytes &) = delete;
    TableBytes &operator=(const TableBytes &) = delete;

    const char *data() const { return m_data; }
    quint32 size() const { return m_size; }
    /// Memory that the table takes; of a mapped one, about.
    qint64 weight() const;

    /// The weight of all that live in the process.
    static qint64 total();

private:
    explicit TableBytes(quint32 size);
    bool mapFrom(const OpenedFile &file, quint64 offset);
    bool readFrom(const OpenedFile &file, quint64 offset);
    bool hasOwnPages() const;

    const quint32 m_size;
    std::unique_ptr<GuardedMapping> m_mapping;
    /// Ours unless mapped.
    char *m_bytes = nullptr;
    const char *m_data = nullptr;
    qint64 m_counted = 0;
};

} // namespace lorva
