// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/ReleaseFeed.h"

#include "base/Json.h"
#include "base/TextBeginning.h"
#include "platform/ReleaseVersion.h"

#include <QCoreApplication>

#include <sodium.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(ReleaseFeed)
};

constexpr qint64 kFormat = 1;
constexpr qsizetype kLongestPage = 2048;
constexpr qsizetype kLongestSummary = 600;

struct Envelope
{
    QByteArray payload;
    QByteArray signature;
};

template <class Fields, JsonRecordOf<Envelope> Record>
void jsonFields(Fields &fields, Record &envelope)
{
    fields("payload", envelope.payload);
    fields("signature", envelope.signature);
}

/// What every format has.
struct PayloadFormat
{
    qint64 format = 0;
};

template <class Fields, JsonRecordOf<PayloadFormat> Record>
void jsonFields(Fields &fields, Record &payload)
{
    fields("format", payload.format);
}

struct PayloadProduct
{
    QString product;
};

template <class Fields, JsonRecordOf<PayloadProduct> Record>
void jsonFields(Fields &fields, Record &payload)
{
    fields("product", payload.product);
}

struct Payload
{
    QString version;
    QString date;
    QString page;
    std::optional<QString> summary;
};

template <class Fields, JsonRecordOf<Payload> Record>
void jsonFields(Fields &fields, Record &payload)
{
    fields("version", payload.version);
    fields("date", payload.date);
    fields("page", payload.page);
    fields("summary", payload.summary);
}

tl::unexpected<Error> unreadable(const QString &detail)
{
    return failure(ErrorKind::malformed,
                   Texts::tr("the release feed cannot be read: %1").arg(detail));
}

template <class T>
Result<T> decoded(const QByteArray &json)
{
    Result<T> record = decodeJson<T>(json);
    return record ? std::move(record) : unreadable(record.error().detail);
}

bool isSigned(const Envelope &envelope, const QByteArray &publicKey)
{
    static const bool isReady = sodium_init() >= 0;
    const auto bytes = [](const QByteArray &data) {
        return reinterpret_cast<const unsigned char *>(data.constData());
    };
    return isReady && envelope.signature.size() == qsizetype(crypto_sign_BYTES)
        && publicKey.size() == qsizetype(crypto_sign_PUBLICKEYBYTES)
        && crypto_sign_verify_detached(bytes(envelope.signature), bytes(envelope.payload),
                                       size_t(envelope.payload.size()), bytes(publicKey))
        == 0;
}

bool turnsOrHides(char32_t c)
{
    const bool isJoiner = c == 0x200C || c == 0x200D;
    return QChar::category(c) == QChar::Other_Format && !isJoiner;
}

/// On one line, which nothing in it can turn or hide a part of.
QString cleanText(const QString &text)
{
    QString clean;
    for (const char32_t c : text.toUcs4()) {
        if (QChar::category(c) == QChar::Other_Control)
            clean += u' ';
        else if (!turnsOrHides(c))
            clean += QChar::fromUcs4(c);
    }
    clean = clean.simplified();
    return clean.size() <= kLongestSummary ? clean
                                           : textBeginning(clean, kLongestSummary - 1) + u'…';
}

QDate readDate(const QString &text)
{
    return text.size() == 10 ? QDate::fromString(text, QStringLiteral("yyyy-MM-dd")) : QDate();
}

QUrl readPage(const QString &text)
{
    if (text.size() > kLongestPage)
        return {};
    QUrl page(text, QUrl::StrictMode);
    const bool isPage = page.isValid() && page.scheme() == QLatin1String("https")
        && !page.host().isEmpty() && page.userInfo().isEmpty();
    return isPage ? page : QUrl();
}

Result<Release> releaseOf(const Payload &payload)
{
    if (!isReleaseVersion(payload.version))
        return unreadable(Texts::tr("version: expected numbers with dots between them"));
    const QDate date = readDate(payload.date);
    if (!date.isValid())
        return unreadable(Texts::tr("date: expected a day such as 2026-11-22"));
    const QUrl page = readPage(payload.page);
    if (page.isEmpty())
        return unreadable(Texts::tr("page: expected an https address"));
    return Release{payload.version, date, page, cleanText(payload.summary.value_or(QString()))};
}

Result<void> checkMeaning(const QByteArray &payload)
{
    const Result<PayloadFormat> format = decoded<PayloadFormat>(payload);
    if (!format)
        return tl::unexpected(format.error());
    if (format->format != kFormat)
        return failure(ErrorKind::unsupported,
                       Texts::tr("the release feed is made for a newer Lorva: its format is "
                                 "%1, not %2")
                           .arg(format->format)
                           .arg(kFormat));
    const Result<PayloadProduct> product = decoded<PayloadProduct>(payload);
    if (!product)
        return tl::unexpected(product.error());
    if (product->product != QLatin1String("vantrel.lorva"))
        return failure(ErrorKind::typeMismatch,
                       Texts::tr("the release feed is about another product"));
    return {};
}

} // namespace

Result<QByteArray> readReleaseFeedKey(const QByteArray &base64)
{
    const auto key =
        QByteArray::fromBase64Encoding(base64, QByteArray::AbortOnBase64DecodingErrors);
    if (!key || key.decoded.size() != qsizetype(crypto_sign_PUBLICKEYBYTES))
        return failure(ErrorKind::invalidValue,
                       Texts::tr("the release feed's key is not 32 bytes in Base64"));
    return key.decoded;
}

Result<Release> readReleaseFeed(const QByteArray &feed, const QByteArray &publicKey)
{
    if (feed.size() > kLargestReleaseFeed)
        return failure(ErrorKind::tooLarge, Texts::tr("the release feed is too large"));
    const Result<Envelope> envelope = decoded<Envelope>(feed);
    if (!envelope)
        return tl::unexpected(envelope.error());
    if (!isSigned(*envelope, publicKey))
        return failure(ErrorKind::invalidValue,
                       Texts::tr("the release feed is not signed by the makers of Lorva"));
    if (const Result<void> meaning = checkMeaning(envelope->payload); !meaning)
        return tl::unexpected(meaning.error());
    const Result<Payload> payload = decoded<Payload>(envelope->payload);
    return payload ? releaseOf(*payload) : tl::unexpected(payload.error());
}

} // namespace lorva
