// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/names/NameText.h"

namespace lorva {

namespace {

bool isBreak(char16_t unit)
{
    return (unit >= 0x09 && unit <= 0x0D) || unit == 0x85;
}

bool isControl(char16_t unit)
{
    constexpr char16_t kByteOrderMark = 0xFEFF;
    return unit < 0x20 || (unit >= 0x7F && unit < 0xA0) || unit == kByteOrderMark || unit >= 0xFFFE;
}

} // namespace

NameText::NameText(qsizetype expected, NameBreaks breaks)
    : m_breaks(breaks)
{
    m_text.reserve(expected);
}

void NameText::append(char16_t unit)
{
    if (m_pendingHigh && QChar::isLowSurrogate(unit)) {
        m_text.append(QChar(m_pendingHigh)).append(QChar(unit));
        m_pendingHigh = 0;
        return;
    }
    flush();
    if (QChar::isHighSurrogate(unit))
        m_pendingHigh = unit;
    else if (QChar::isLowSurrogate(unit))
        m_text.append(QChar::ReplacementCharacter);
    else if (unit == 0x2028 || unit == 0x2029)
        m_text.append(u' ');
    else if (m_breaks == NameBreaks::asSpaces && isBreak(unit))
        appendSpace();
    else if (!isControl(unit))
        m_text.append(QChar(unit));
}

void NameText::append(QStringView text)
{
    for (const QChar c : text)
        append(c.unicode());
}

QString NameText::take()
{
    flush();
    return m_text.trimmed();
}

void NameText::flush()
{
    if (m_pendingHigh)
        m_text.append(QChar::ReplacementCharacter);
    m_pendingHigh = 0;
}

/// "\r\n" and empty lines leave one space.
void NameText::appendSpace()
{
    if (!m_text.endsWith(u' '))
        m_text.append(u' ');
}

} // namespace lorva
