// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArrayView>
#include <QtEndian>

#include <optional>

namespace lorva {

/// Big-endian numbers of a table that may lie about its own size: what lies outside reads as 0.
///
/// A value that borrows its bytes. Positions have 64 bits, so that sums of a file's own numbers
/// cannot wrap round.
class TableView
{
public:
    TableView() = default;
    explicit TableView(QByteArrayView bytes)
        : m_bytes(bytes)
    {
    }

    quint64 size() const { return quint64(m_bytes.size()); }
    bool isEmpty() const { return m_bytes.isEmpty(); }
    bool has(quint64 at, quint64 length) const { return at <= size() && length <= size() - at; }
    QByteArrayView bytes(quint64 at, quint64 length) const
    {
        return has(at, length) ? m_bytes.sliced(qsizetype(at), qsizetype(length))
                               : QByteArrayView();
    }
    TableView from(quint64 at) const
    {
        return at <= size() ? TableView(m_bytes.sliced(qsizetype(at))) : TableView();
    }

    quint16 u16(quint64 at) const { return number<quint16>(at); }
    qint16 i16(quint64 at) const { return number<qint16>(at); }
    quint32 u32(quint64 at) const { return number<quint32>(at); }
    /// A 16.16 fixed-point number.
    double fixed(quint64 at) const { return number<qint32>(at) / 65536.0; }

private:
    template <class T>
    T number(quint64 at) const
    {
        return has(at, sizeof(T)) ? qFromBigEndian<T>(m_bytes.data() + at) : T(0);
    }

    QByteArrayView m_bytes;
};

/// Of `count` records of `size` bytes that are sorted by the 16-bit number that each begins with,
/// the place of the one for `number`; nothing when there is none.
inline std::optional<quint64> findRecord(TableView records, quint64 count, quint64 size,
                                         quint32 number)
{
    quint64 low = 0;
    quint64 high = count;
    while (low < high) {
        const quint64 middle = low + (high - low) / 2;
        if (records.u16(middle * size) < number)
            low = middle + 1;
        else
            high = middle;
    }
    const bool isThere = low < count && records.has(low * size, size);
    return isThere && records.u16(low * size) == number ? std::optional(low) : std::nullopt;
}

} // namespace lorva
