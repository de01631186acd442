// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonWriter.h"

#include <QString>

#include <algorithm>
#include <charconv>
#include <cmath>
#include <utility>

namespace lorva {

namespace {

constexpr char kHex[] = "0123456789abcdef";

bool isPlain(char16_t unit)
{
    return unit >= 0x20 && unit < 0x80 && unit != u'"' && unit != u'\\';
}

void appendEscape(QByteArray &out, char16_t unit)
{
    out.append('\\');
    switch (unit) {
    case u'"':
    case u'\\':
        out.append(char(unit));
        return;
    case u'\b':
        out.append('b');
        return;
    case u'\f':
        out.append('f');
        return;
    case u'\n':
        out.append('n');
        return;
    case u'\r':
        out.append('r');
        return;
    case u'\t':
        out.append('t');
        return;
    default:
        out.append("u00");
        out.append(kHex[unit >> 4]);
        out.append(kHex[unit & 15]);
    }
}

/// `point` lies beyond ASCII.
void appendUtf8(QByteArray &out, char32_t point)
{
    if (point < 0x800) {
        out.append(char(0xC0 | (point >> 6)));
    } else {
        if (point < 0x10000) {
            out.append(char(0xE0 | (point >> 12)));
        } else {
            out.append(char(0xF0 | (point >> 18)));
            out.append(char(0x80 | ((point >> 12) & 0x3F)));
        }
        out.append(char(0x80 | ((point >> 6) & 0x3F)));
    }
    out.append(char(0x80 | (point & 0x3F)));
}

/// The code point at `at`, which moves behind it; U+FFFD for a lone surrogate.
char32_t takePoint(QStringView text, qsizetype &at)
{
    const char16_t unit = text[at++].unicode();
    if (!QChar::isSurrogate(unit))
        return unit;
    if (QChar::isHighSurrogate(unit) && at < text.size() && text[at].isLowSurrogate())
        return QChar::surrogateToUcs4(unit, text[at++].unicode());
    return QChar::ReplacementCharacter;
}

/// Appends what `text` begins with and needs neither escape nor encoding, and gives its length: in
/// names that is nearly always all.
qsizetype appendPlain(QByteArray &out, QStringView text)
{
    const auto end =
        std::find_if(text.begin(), text.end(), [](QChar unit) { return !isPlain(unit.unicode()); });
    const qsizetype before = out.size();
    out.resize(before + (end - text.begin()));
    std::transform(text.begin(), end, out.begin() + before,
                   [](QChar unit) { return char(unit.unicode()); });
    return end - text.begin();
}

} // namespace

void JsonWriter::key(QStringView name)
{
    separate();
    quoted(name);
    m_text.append(':');
    m_needsComma = false;
}

void JsonWriter::key(std::string_view name)
{
    separate();
    m_text.append('"');
    m_text.append(name.data(), qsizetype(name.size()));
    m_text.append("\":");
    m_needsComma = false;
}

void JsonWriter::string(QStringView text)
{
    separate();
    quoted(text);
}

void JsonWriter::utf8(QByteArrayView text)
{
    string(QString::fromUtf8(text));
}

void JsonWriter::integer(qint64 value)
{
    separate();
    char digits[24];
    const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, value);
    m_text.append(digits, result.ptr - digits);
}

void JsonWriter::number(double value)
{
    if (!std::isfinite(value))
        return null();
    separate();
    char digits[32];
    const std::to_chars_result result = std::to_chars(digits, digits + sizeof digits, value);
    m_text.append(digits, result.ptr - digits);
}

void JsonWriter::boolean(bool value)
{
    separate();
    m_text.append(value ? "true" : "false");
}

void JsonWriter::null()
{
    separate();
    m_text.append("null");
}

void JsonWriter::data(const QByteArray &bytes)
{
    separate();
    m_text.append('"');
    m_text.append(bytes.toBase64());
    m_text.append('"');
}

QByteArray JsonWriter::take()
{
    m_needsComma = false;
    return std::exchange(m_text, {});
}

void JsonWriter::open(char bracket)
{
    separate();
    m_text.append(bracket);
    m_needsComma = false;
}

void JsonWriter::close(char bracket)
{
    m_text.append(bracket);
    m_needsComma = true;
}

/// Puts the comma between this and the value before it.
void JsonWriter::separate()
{
    if (m_needsComma)
        m_text.append(',');
    m_needsComma = true;
}

void JsonWriter::quoted(QStringView text)
{
    m_text.append('"');
    for (qsizetype at = 0; at < text.size();) {
        at += appendPlain(m_text, text.sliced(at));
        if (at == text.size())
            break;
        if (const char16_t unit = text[at].unicode(); unit < 0x80) {
            appendEscape(m_text, unit);
            ++at;
        } else {
            appendUtf8(m_text, takePoint(text, at));
        }
    }
    m_text.append('"');
}

} // namespace lorva
