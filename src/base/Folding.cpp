// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Folding.h"

#include <unicode/uchar.h>
#include <unicode/ucol.h>
#include <unicode/unorm2.h>
#include <unicode/ustring.h>
#include <unicode/utrans.h>

#include <algorithm>
#include <limits>
#include <mutex>

namespace lorva {

namespace {

constexpr int kMaxText = std::numeric_limits<int32_t>::max() / 8;

struct CollatorDeleter
{
    void operator()(UCollator *collator) const { ucol_close(collator); }
};

struct TransliteratorDeleter
{
    void operator()(UTransliterator *transliterator) const { utrans_close(transliterator); }
};

const UChar *unitsOf(QStringView text)
{
    return text.utf16();
}

int32_t lengthOf(QStringView text)
{
    return int32_t(std::min<qsizetype>(text.size(), kMaxText));
}

/// The result of an ICU function that fills a buffer, given a guess of the size; `text` unchanged
/// if it fails.
template <class Fill>
QString filled(QStringView text, qsizetype guess, Fill &&fill)
{
    QString out(guess, Qt::Uninitialized);
    for (int attempt = 0; attempt < 2; ++attempt) {
        UErrorCode code = U_ZERO_ERROR;
        const int32_t length =
            fill(reinterpret_cast<UChar *>(out.data()), int32_t(out.size()), &code);
        const bool isShort = code == U_BUFFER_OVERFLOW_ERROR;
        if (U_FAILURE(code) && !isShort)
            break;
        out.resize(length);
        if (!isShort)
            return out;
    }
    return text.toString();
}

bool isWidthVariant(char32_t point)
{
    const int type = u_getIntPropertyValue(UChar32(point), UCHAR_DECOMPOSITION_TYPE);
    return type == U_DT_WIDE || type == U_DT_NARROW;
}

/// Calls `visit(code point, its UTF-16 units)` for each character.
template <class Visit>
void forEachCharacter(QStringView text, const Visit &visit)
{
    for (qsizetype at = 0; at < text.size();) {
        UChar32 point = 0;
        const qsizetype start = at;
        U16_NEXT(text.utf16(), at, text.size(), point);
        visit(point, text.sliced(start, at - start));
    }
}

/// Full-width and half-width forms turned into the characters that they are forms of.
QString withoutWidth(QStringView text)
{
    UErrorCode code = U_ZERO_ERROR;
    const UNormalizer2 *normalizer = unorm2_getNFKCInstance(&code);
    QString out;
    out.reserve(text.size());
    forEachCharacter(text, [&](UChar32 point, QStringView units) {
        UChar plain[32];
        const int32_t length = U_SUCCESS(code) && isWidthVariant(char32_t(point))
            ? unorm2_getRawDecomposition(normalizer, point, plain, 32, &code)
            : -1;
        if (length >= 0 && U_SUCCESS(code))
            out.append(QStringView(plain, length));
        else
            out.append(units);
    });
    return out;
}

QString caseFolded(QStringView text)
{
    return filled(text, text.size() + 16, [&](UChar *out, int32_t size, UErrorCode *code) {
        return u_strFoldCase(out, size, unitsOf(text), lengthOf(text), U_FOLD_CASE_DEFAULT, code);
    });
}

QString decomposed(QStringView text)
{
    UErrorCode code = U_ZERO_ERROR;
    const UNormalizer2 *normalizer = unorm2_getNFDInstance(&code);
    if (U_FAILURE(code))
        return text.toString();
    return filled(text, text.size() * 2 + 16, [&](UChar *out, int32_t size, UErrorCode *error) {
        return unorm2_normalize(normalizer, unitsOf(text), lengthOf(text), out, size, error);
    });
}

QString withoutMarks(QStringView text)
{
    QString out;
    out.reserve(text.size());
    forEachCharacter(text, [&](UChar32 point, QStringView units) {
        if (!(U_GET_GC_MASK(point) & U_GC_M_MASK))
            out.append(units);
    });
    return out;
}

bool isAscii(QStringView text)
{
    return std::all_of(text.begin(), text.end(), [](QChar unit) { return unit < u'\x80'; });
}

QString asciiLowerCase(QStringView text)
{
    QString out = text.toString();
    for (QChar &unit : out) {
        if (unit >= u'A' && unit <= u'Z')
            unit = QChar(unit.unicode() + 32);
    }
    return out;
}

bool isHiragana(QChar unit)
{
    return unit >= u'\x3040' && unit <= u'\x309F';
}

} // namespace

QString foldedForSearch(QStringView text)
{
    // Nearly all family names are ASCII.
    if (isAscii(text))
        return asciiLowerCase(text);
    return withoutMarks(decomposed(caseFolded(withoutWidth(text))));
}

QString withKatakana(const QString &text)
{
    if (std::none_of(text.begin(), text.end(), isHiragana))
        return text;
    // Opening one reads rules; using one is not safe from two threads.
    static std::mutex mutex;
    static const std::unique_ptr<UTransliterator, TransliteratorDeleter> transliterator = [] {
        static constexpr char16_t kId[] = u"Hiragana-Katakana";
        UErrorCode code = U_ZERO_ERROR;
        return std::unique_ptr<UTransliterator, TransliteratorDeleter>(
            utrans_openU(kId, -1, UTRANS_FORWARD, nullptr, 0, nullptr, &code));
    }();
    if (!transliterator)
        return text;
    const std::lock_guard lock(mutex);
    return filled(text, text.size() * 2 + 16, [&](UChar *out, int32_t size, UErrorCode *code) {
        int32_t length = lengthOf(text);
        if (length > size) {
            *code = U_BUFFER_OVERFLOW_ERROR;
            return length;
        }
        std::copy_n(unitsOf(text), length, out);
        int32_t limit = length;
        utrans_transUChars(transliterator.get(), out, &length, size, 0, &limit, code);
        return length;
    });
}

struct NameCollator::Impl
{
    std::unique_ptr<UCollator, CollatorDeleter> collator;
};

NameCollator::NameCollator(const QLocale &locale)
{
    auto impl = std::make_shared<Impl>();
    UErrorCode code = U_ZERO_ERROR;
    impl->collator.reset(ucol_open(locale.bcp47Name().toLatin1().constData(), &code));
    if (impl->collator)
        ucol_setStrength(impl->collator.get(), UCOL_SECONDARY);
    m_impl = std::move(impl);
}

int NameCollator::compare(QStringView left, QStringView right) const
{
    if (!m_impl->collator)
        return left.compare(right, Qt::CaseInsensitive);
    return ucol_strcoll(m_impl->collator.get(), unitsOf(left), lengthOf(left), unitsOf(right),
                        lengthOf(right));
}

QByteArray NameCollator::sortKey(QStringView text) const
{
    if (!m_impl->collator)
        return text.toString().toCaseFolded().toUtf8();
    QByteArray key(text.size() * 3 + 16, Qt::Uninitialized);
    for (;;) {
        const int32_t size =
            ucol_getSortKey(m_impl->collator.get(), unitsOf(text), lengthOf(text),
                            reinterpret_cast<uint8_t *>(key.data()), int32_t(key.size()));
        const bool isWhole = size <= key.size();
        // The last byte is a terminator.
        key.resize(isWhole ? std::max(size - 1, 0) : size);
        if (isWhole)
            return key;
    }
}

bool isDefaultIgnorable(char32_t scalar)
{
    return u_hasBinaryProperty(UChar32(scalar), UCHAR_DEFAULT_IGNORABLE_CODE_POINT);
}

} // namespace lorva
