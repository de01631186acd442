// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/names/NameEncodings.h"

#include "text/names/NameTable.h"
#include "text/names/NameText.h"
#include "text/TableView.h"

#include <unicode/ucnv.h>

#include <algorithm>
#include <iterator>
#include <memory>

namespace lorva {

namespace {

constexpr quint16 kUnicodePlatform = 0;
constexpr quint16 kMacPlatform = 1;
constexpr quint16 kWindowsPlatform = 3;
constexpr quint16 kMacRoman = 0;

/// The single bytes that Apple added to a double-byte encoding.
struct ExtraByte
{
    quint8 byte;
    char16_t character;
};

struct Charset
{
    quint16 encoding;
    const char *icuName;
    /// The bytes that begin a character of two; none for encodings of one byte.
    quint8 firstLead = 0xFF;
    quint8 lastLead = 0;
    ExtraByte extra[5] = {};
};

/// Apple's "script codes". ICU has Microsoft's encodings of the Asian ones, which hold all that
/// Apple's do but a few single bytes.
constexpr Charset kMacCharsets[] = {
    {1,
     "windows-932",
     0x81,
     0xFC,
     {{0x80, u'\\'}, {0xA0, 0xA0}, {0xFD, u'©'}, {0xFE, u'™'}, {0xFF, u'…'}}},
    {2,
     "windows-950",
     0x81,
     0xFC,
     {{0x80, u'\\'}, {0xA0, 0xA0}, {0xFD, u'©'}, {0xFE, u'™'}, {0xFF, u'…'}}},
    {3,
     "windows-949",
     0xA1,
     0xFD,
     {{0x80, 0xA0}, {0x81, u'₩'}, {0x83, u'©'}, {0xFE, u'™'}, {0xFF, u'…'}}},
    {6, "x-mac-greek"},
    {7, "x-mac-cyrillic"},
    {21, "windows-874"},
    {25,
     "windows-936",
     0xA1,
     0xFC,
     {{0x80, u'ü'}, {0xA0, 0xA0}, {0xFD, u'©'}, {0xFE, u'™'}, {0xFF, u'…'}}},
    {29, "x-mac-centraleurroman"},
};

constexpr Charset kWindowsCharsets[] = {
    {2, "windows-932"},
    {3, "windows-936"},
    {4, "windows-950"},
    {5, "windows-949"},
};

template <size_t N>
const Charset *findCharset(const Charset (&charsets)[N], quint16 encoding)
{
    const auto *found =
        std::find_if(std::begin(charsets), std::end(charsets),
                     [encoding](const Charset &charset) { return charset.encoding == encoding; });
    return found == std::end(charsets) ? nullptr : found;
}

/// Fonts in Turkish, Polish and the like say "Roman" and mean the variant of their language.
const char *romanVariant(quint16 language)
{
    constexpr quint16 kTurkish = 17;
    constexpr quint16 kCentralEuropean[] = {24, 25, 26, 28, 38, 39};
    constexpr quint16 kUnknownVariants[] = {15, 18, 30, 37, 40};
    const auto isIn = [language](const auto &list) {
        return std::find(std::begin(list), std::end(list), language) != std::end(list);
    };
    if (language == kTurkish)
        return "x-mac-turkish";
    if (isIn(kCentralEuropean))
        return "x-mac-centraleurroman";
    return isIn(kUnknownVariants) ? "US-ASCII" : nullptr;
}

/// A converter of ICU, with replacement characters for what cannot be.
class Converter
{
public:
    explicit Converter(const char *name)
    {
        UErrorCode status = U_ZERO_ERROR;
        m_converter.reset(ucnv_open(name, &status));
    }
    bool isOpen() const { return m_converter != nullptr; }
    void convert(QByteArrayView bytes, NameText &text) const
    {
        QString out(bytes.size() * 2 + 8, Qt::Uninitialized);
        UErrorCode status = U_ZERO_ERROR;
        const int length = ucnv_toUChars(m_converter.get(), reinterpret_cast<UChar *>(out.data()),
                                         int(out.size()), bytes.data(), int(bytes.size()), &status);
        if (U_SUCCESS(status) && length >= 0)
            text.append(QStringView(out).first(std::min<qsizetype>(length, out.size())));
    }

private:
    struct Close
    {
        void operator()(UConverter *converter) const { ucnv_close(converter); }
    };
    std::unique_ptr<UConverter, Close> m_converter;
};

const ExtraByte *findExtra(const Charset &charset, quint8 byte)
{
    const auto *found =
        std::find_if(std::begin(charset.extra), std::end(charset.extra),
                     [byte](const ExtraByte &extra) { return byte != 0 && extra.byte == byte; });
    return found == std::end(charset.extra) ? nullptr : found;
}

bool isLead(const Charset &charset, quint8 byte)
{
    const bool isHalfWidthKatakana = charset.encoding == 1 && byte >= 0xA0 && byte <= 0xDF;
    return byte >= charset.firstLead && byte <= charset.lastLead && !isHalfWidthKatakana;
}

QString convert(const Charset &charset, QByteArrayView bytes, NameText text)
{
    const Converter converter(charset.icuName);
    if (!converter.isOpen())
        return {};
    qsizetype start = 0;
    for (qsizetype at = 0; at < bytes.size(); ++at) {
        const quint8 byte = quint8(bytes[at]);
        if (const ExtraByte *extra = findExtra(charset, byte)) {
            converter.convert(bytes.sliced(start, at - start), text);
            text.append(extra->character);
            start = at + 1;
        } else if (isLead(charset, byte)) {
            ++at;
        }
    }
    converter.convert(bytes.sliced(std::min(start, bytes.size())), text);
    return text.take();
}

QString fromUtf16(QByteArrayView bytes, NameText text)
{
    const TableView view(bytes);
    for (quint64 at = 0; at + 1 < view.size(); at += 2)
        text.append(view.u16(at));
    return text.take();
}

QString fromMacRoman(QByteArrayView bytes, NameText text)
{
    for (const char byte : bytes)
        text.append(macRomanToUnicode(quint8(byte)));
    return text.take();
}

bool isAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return quint8(byte) < 0x80; });
}

std::optional<QString> fromMac(NameEncoding encoding, QByteArrayView bytes, const NameText &text)
{
    const char *variant =
        encoding.encoding == kMacRoman ? romanVariant(encoding.language) : nullptr;
    // All of Apple's encodings of a script begin with ASCII.
    if (isAscii(bytes) || (encoding.encoding == kMacRoman && !variant))
        return fromMacRoman(bytes, text);
    if (variant)
        return qstrcmp(variant, "US-ASCII") == 0
            ? std::nullopt
            : std::optional(convert({0, variant}, bytes, text));
    const Charset *charset = findCharset(kMacCharsets, encoding.encoding);
    return charset ? std::optional(convert(*charset, bytes, text)) : std::nullopt;
}

/// Windows pads the one-byte characters of its old encodings to two bytes.
std::optional<QString> fromWindows(NameEncoding encoding, QByteArrayView bytes,
                                   const NameText &text)
{
    const Charset *charset = findCharset(kWindowsCharsets, encoding.encoding);
    if (!charset)
        return std::nullopt;
    return convert(*charset, bytes.toByteArray().replace('\0', ""), text);
}

} // namespace

std::optional<QString> decodeName(NameEncoding encoding, QByteArrayView bytes)
{
    const NameText text(bytes.size(), NameBreaks::asSpaces);
    const bool isWindowsUtf16 = encoding.platform == kWindowsPlatform
        && (encoding.encoding <= 1 || encoding.encoding == 10);
    if (encoding.platform == kUnicodePlatform || isWindowsUtf16)
        return fromUtf16(bytes, text);
    if (encoding.platform == kMacPlatform)
        return fromMac(encoding, bytes, text);
    return encoding.platform == kWindowsPlatform ? fromWindows(encoding, bytes, text)
                                                 : std::nullopt;
}

} // namespace lorva
