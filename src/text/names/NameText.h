// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace lorva {

/// What becomes of a line break or a tab inside a name.
enum class NameBreaks { removed, asSpaces };

/// Keeps text to one line of well-formed UTF-16 without control characters, unit by unit.
class NameText
{
public:
    explicit NameText(qsizetype expected, NameBreaks breaks = NameBreaks::removed);

    void append(char16_t unit);
    void append(QStringView text);
    /// The text, trimmed.
    QString take();

private:
    void flush();
    void appendSpace();

    QString m_text;
    char16_t m_pendingHigh = 0;
    NameBreaks m_breaks;
};

} // namespace lorva
