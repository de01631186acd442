// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/SpecimenOptions.h"

#include "cli/Texts.h"

#include <QRegularExpression>

#include <cmath>

namespace lorva::cli {

namespace {

/// `text`: of what the option takes, with a place for its name.
tl::unexpected<Error> wrong(QByteArrayView option, const QString &text)
{
    return failure(ErrorKind::usage, text.arg(QString::fromUtf8(option)));
}

std::optional<quint32> featureValue(const QByteArray &text)
{
    if (text == "on" || text == "off")
        return text == "on" ? 1 : 0;
    bool isNumber = false;
    const uint value = text.toUInt(&isNumber);
    return isNumber ? std::optional<quint32>(value) : std::nullopt;
}

std::optional<FeatureSetting> featureSetting(QByteArray text)
{
    FeatureSetting setting;
    const bool hasSign = text.startsWith('+') || text.startsWith('-');
    const qsizetype equals = text.indexOf('=');
    if (hasSign) {
        setting.value = text.startsWith('+') ? 1 : 0;
        text = text.sliced(1);
    } else if (equals >= 0) {
        const auto value = featureValue(text.sliced(equals + 1).trimmed());
        if (!value)
            return std::nullopt;
        setting.value = *value;
        text = text.first(equals).trimmed();
    }
    const auto tag = tagFromText(QString::fromUtf8(text));
    if (!tag || text.contains('=') || text.contains(' '))
        return std::nullopt;
    setting.tag = *tag;
    return setting;
}

std::optional<VariationSetting> variationSetting(const QByteArray &text)
{
    const qsizetype equals = text.indexOf('=');
    if (equals < 0)
        return std::nullopt;
    const auto tag = tagFromText(QString::fromUtf8(text.first(equals).trimmed()));
    bool isNumber = false;
    const double value = text.sliced(equals + 1).trimmed().toDouble(&isNumber);
    if (!tag || !isNumber || !std::isfinite(value))
        return std::nullopt;
    return VariationSetting{*tag, value};
}

/// The parts between commas; nothing if `parse` takes one of them for wrong.
template <class Parse>
auto list(const QByteArray &value, Parse parse)
    -> std::optional<std::vector<typename decltype(parse(value))::value_type>>
{
    std::vector<typename decltype(parse(value))::value_type> settings;
    for (const QByteArray &part : value.split(',')) {
        const auto setting = parse(part.trimmed());
        if (!setting)
            return std::nullopt;
        settings.push_back(*setting);
    }
    return settings;
}

} // namespace

Result<std::vector<FeatureSetting>> featureList(QByteArrayView option, const QByteArray &value)
{
    const auto settings = list(value, featureSetting);
    if (!settings)
        return wrong(option, Texts::tr("%1 takes a list of features as smcp,onum=0,-liga"));
    return *settings;
}

Result<std::vector<VariationSetting>> variationList(QByteArrayView option, const QByteArray &value)
{
    const auto settings = list(value, variationSetting);
    if (!settings)
        return wrong(option, Texts::tr("%1 takes a list of axes as wght=650,wdth=80"));
    return *settings;
}

Result<QByteArray> languageTag(QByteArrayView option, const QByteArray &value)
{
    // RFC 5646, section 2.1: language with extended languages, script, region, variants,
    // extensions, private use.
    static const QRegularExpression wellFormed(
        QStringLiteral("\\A(?:(?:[a-z]{2,3}(?:-[a-z]{3}){0,3}|[a-z]{4,8})(?:-[a-z]{4})?"
                       "(?:-(?:[a-z]{2}|[0-9]{3}))?(?:-(?:[a-z0-9]{5,8}|[0-9][a-z0-9]{3}))*"
                       "(?:-[0-9a-wy-z](?:-[a-z0-9]{2,8})+)*(?:-x(?:-[a-z0-9]{1,8})+)?"
                       "|x(?:-[a-z0-9]{1,8})+)\\z"),
        QRegularExpression::CaseInsensitiveOption);
    constexpr qsizetype kMaxLength = 100;
    if (value.size() > kMaxLength || !wellFormed.match(QString::fromUtf8(value)).hasMatch())
        return wrong(option,
                     Texts::tr("%1 takes a language as ja, zh-Hant or sr-Latn-RS (BCP 47)"));
    return value;
}

Result<TextDirection> textDirection(QByteArrayView option, const QByteArray &value)
{
    if (value == "auto")
        return TextDirection::automatic;
    if (value == "ltr")
        return TextDirection::leftToRight;
    if (value == "rtl")
        return TextDirection::rightToLeft;
    return wrong(option, Texts::tr("%1 takes ltr, rtl or auto"));
}

Result<QColor> color(QByteArrayView option, const QByteArray &value)
{
    const QColor parsed = QColor::fromString(QString::fromUtf8(value));
    if (value.size() != 7 || !value.startsWith('#') || !parsed.isValid())
        return wrong(option, Texts::tr("%1 takes a colour as #RRGGBB"));
    return parsed;
}

} // namespace lorva::cli
