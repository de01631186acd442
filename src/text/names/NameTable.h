// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TableView.h"

#include <QString>

#include <vector>

namespace lorva {

/// Name ids of OpenType `name` that are used here.
enum class NameId : quint16 {
    copyright = 0,
    family = 1,
    style = 2,
    full = 4,
    version = 5,
    postScript = 6,
    manufacturer = 8,
    designer = 9,
    typographicFamily = 16,
    typographicStyle = 17,
    wwsFamily = 21,
    variationsPostScriptPrefix = 25,
};

/// Which records are worth keeping.
enum class NameSelection {
    /// What a descriptor shows, and nothing from 256 on.
    essential,
    /// As `essential`, and the font's own ids from 256 on, for axes and named instances.
    withInstances,
    /// What a family is called, in whichever language.
    families,
    all,
};

/// Texts of OpenType `name`, as people may see them: control characters removed, white space
/// trimmed, halves of surrogate pairs replaced.
///
/// Reads Unicode and Windows records (UTF-16) and Mac Roman ones. Of several languages English
/// comes first, Windows records before Mac ones, then whichever stands first in the table. Records
/// that point outside the table, and those without any visible text, count as missing.
///
/// Borrows the table's bytes. Thread: any.
class NameTable
{
public:
    NameTable() = default;
    NameTable(QByteArrayView table, NameSelection selection);

    /// Empty when there is none. At most `maxBytes` of the record are looked at.
    QString text(NameId id, int maxBytes) const;
    QString text(quint16 id, int maxBytes) const;
    /// What the family is called in every language: records 16, 1 and 21, in table order, the
    /// first thousand. May hold a name several times.
    std::vector<QString> familyNames() const;

private:
    struct Record
    {
        quint16 id;
        /// Lower is better; see text().
        quint8 rank;
        bool isMacRoman;
        quint16 order;
        quint16 length;
        quint32 offset;
    };

    bool readRecord(quint64 at, quint16 order, NameSelection selection, Record &record) const;
    QString decode(const Record &record, int maxBytes) const;

    TableView m_table;
    /// By id, then rank, then place in the table.
    std::vector<Record> m_records;
};

/// One byte of Mac OS Roman as Unicode.
char16_t macRomanToUnicode(quint8 byte);

} // namespace lorva
