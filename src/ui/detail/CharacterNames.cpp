// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterNames.h"

#include <QCoreApplication>

#include <unicode/uchar.h>

#include <array>

namespace lorva {

namespace {

/// Control characters have no names, only aliases, which ICU does not hold (Unicode
/// NameAliases.txt, the first of each): from U+0000 and from U+007F on.
constexpr const char *kLowControls[]{"NULL",
                                     "START OF HEADING",
                                     "START OF TEXT",
                                     "END OF TEXT",
                                     "END OF TRANSMISSION",
                                     "ENQUIRY",
                                     "ACKNOWLEDGE",
                                     "ALERT",
                                     "BACKSPACE",
                                     "CHARACTER TABULATION",
                                     "LINE FEED",
                                     "LINE TABULATION",
                                     "FORM FEED",
                                     "CARRIAGE RETURN",
                                     "SHIFT OUT",
                                     "SHIFT IN",
                                     "DATA LINK ESCAPE",
                                     "DEVICE CONTROL ONE",
                                     "DEVICE CONTROL TWO",
                                     "DEVICE CONTROL THREE",
                                     "DEVICE CONTROL FOUR",
                                     "NEGATIVE ACKNOWLEDGE",
                                     "SYNCHRONOUS IDLE",
                                     "END OF TRANSMISSION BLOCK",
                                     "CANCEL",
                                     "END OF MEDIUM",
                                     "SUBSTITUTE",
                                     "ESCAPE",
                                     "INFORMATION SEPARATOR FOUR",
                                     "INFORMATION SEPARATOR THREE",
                                     "INFORMATION SEPARATOR TWO",
                                     "INFORMATION SEPARATOR ONE"};
constexpr const char *kHighControls[]{"DELETE",
                                      "PADDING CHARACTER",
                                      "HIGH OCTET PRESET",
                                      "BREAK PERMITTED HERE",
                                      "NO BREAK HERE",
                                      "INDEX",
                                      "NEXT LINE",
                                      "START OF SELECTED AREA",
                                      "END OF SELECTED AREA",
                                      "CHARACTER TABULATION SET",
                                      "CHARACTER TABULATION WITH JUSTIFICATION",
                                      "LINE TABULATION SET",
                                      "PARTIAL LINE FORWARD",
                                      "PARTIAL LINE BACKWARD",
                                      "REVERSE LINE FEED",
                                      "SINGLE SHIFT TWO",
                                      "SINGLE SHIFT THREE",
                                      "DEVICE CONTROL STRING",
                                      "PRIVATE USE ONE",
                                      "PRIVATE USE TWO",
                                      "SET TRANSMIT STATE",
                                      "CANCEL CHARACTER",
                                      "MESSAGE WAITING",
                                      "START OF GUARDED AREA",
                                      "END OF GUARDED AREA",
                                      "START OF STRING",
                                      "SINGLE GRAPHIC CHARACTER INTRODUCER",
                                      "SINGLE CHARACTER INTRODUCER",
                                      "CONTROL SEQUENCE INTRODUCER",
                                      "STRING TERMINATOR",
                                      "OPERATING SYSTEM COMMAND",
                                      "PRIVACY MESSAGE",
                                      "APPLICATION PROGRAM COMMAND"};
constexpr char32_t kFirstHighControl = 0x7F;

QString hex(char32_t scalar)
{
    return QString::number(scalar, 16).toUpper();
}

QString nameOf(char32_t scalar, UCharNameChoice choice)
{
    // The longest names have some ninety characters.
    std::array<char, 256> buffer;
    UErrorCode code = U_ZERO_ERROR;
    const int32_t length =
        u_charName(UChar32(scalar), choice, buffer.data(), int32_t(buffer.size()), &code);
    return U_SUCCESS(code) && length > 0 ? QString::fromLatin1(buffer.data(), length) : QString();
}

QString controlAlias(char32_t scalar)
{
    if (scalar < std::size(kLowControls))
        return QLatin1String(kLowControls[scalar]);
    const char32_t high = scalar - kFirstHighControl;
    return high < std::size(kHighControls) ? QLatin1String(kHighControls[high]) : QString();
}

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(CharacterNames)
};

QString letterText(int8_t category)
{
    switch (category) {
    case U_UPPERCASE_LETTER:
        //: The general category that Unicode gives a character.
        return Texts::tr("Uppercase letter");
    case U_LOWERCASE_LETTER:
        return Texts::tr("Lowercase letter");
    case U_TITLECASE_LETTER:
        return Texts::tr("Titlecase letter");
    case U_MODIFIER_LETTER:
        return Texts::tr("Modifier letter");
    default:
        return Texts::tr("Letter");
    }
}

QString symbolText(int8_t category)
{
    switch (category) {
    case U_MATH_SYMBOL:
        return Texts::tr("Mathematical symbol");
    case U_CURRENCY_SYMBOL:
        return Texts::tr("Currency symbol");
    default:
        return Texts::tr("Symbol");
    }
}

} // namespace

char32_t firstScalar(QStringView text)
{
    if (text.isEmpty())
        return 0;
    if (!text.front().isSurrogate())
        return text.front().unicode();
    const bool isPair = text.size() > 1 && text[0].isHighSurrogate() && text[1].isLowSurrogate();
    return isPair ? QChar::surrogateToUcs4(text[0], text[1]) : char32_t(0xFFFD);
}

QString textOf(char32_t scalar)
{
    return QString::fromUcs4(&scalar, 1);
}

QString codePointText(char32_t scalar)
{
    return QLatin1String("U+") + hex(scalar).rightJustified(4, u'0');
}

QString unicodeName(char32_t scalar)
{
    const QString name = nameOf(scalar, U_UNICODE_CHAR_NAME);
    if (!name.isEmpty())
        return name;
    const QString alias = nameOf(scalar, U_CHAR_NAME_ALIAS);
    return alias.isEmpty() ? controlAlias(scalar) : alias;
}

QString categoryText(char32_t scalar)
{
    const uint32_t mask = U_GET_GC_MASK(UChar32(scalar));
    const int8_t category = u_charType(UChar32(scalar));
    if (mask & U_GC_L_MASK)
        return letterText(category);
    if (mask & U_GC_M_MASK)
        return Texts::tr("Combining mark");
    if (mask & U_GC_N_MASK)
        return category == U_DECIMAL_DIGIT_NUMBER ? Texts::tr("Digit") : Texts::tr("Number");
    if (mask & U_GC_P_MASK)
        return Texts::tr("Punctuation");
    if (mask & U_GC_S_MASK)
        return symbolText(category);
    if (mask & U_GC_Z_MASK)
        //: A kind of character, not the key.
        return Texts::tr("Space");
    //: A kind of character.
    return category == U_PRIVATE_USE_CHAR ? Texts::tr("Private use") : Texts::tr("Other");
}

QString utf8Text(char32_t scalar)
{
    return QString::fromLatin1(textOf(scalar).toUtf8().toHex(' ').toUpper());
}

QString htmlText(char32_t scalar)
{
    return QLatin1String("&#x") + hex(scalar) + u';';
}

} // namespace lorva
