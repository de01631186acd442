// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/Arguments.h"

#include "cli/Texts.h"

#include <QStringDecoder>

#include <algorithm>
#include <cmath>

namespace lorva::cli {

namespace {

QString shown(QByteArrayView bytes)
{
    return QString::fromUtf8(bytes);
}

} // namespace

Result<Arguments> Arguments::parse(std::span<const QByteArray> words,
                                   std::initializer_list<OptionSpec> options)
{
    Arguments parsed;
    bool takesOptions = true;
    for (size_t i = 0; i < words.size(); ++i) {
        const QByteArray &word = words[i];
        if (!takesOptions || !word.startsWith('-') || word == "-") {
            parsed.m_positional.push_back(word);
            continue;
        }
        if (word == "--") {
            takesOptions = false;
            continue;
        }
        const qsizetype equals = word.startsWith("--") ? word.indexOf('=') : -1;
        const QByteArray name = equals < 0 ? word : word.first(equals);
        const auto spec = std::find_if(options.begin(), options.end(),
                                       [&](const OptionSpec &o) { return o.name == name; });
        if (spec == options.end())
            return failure(ErrorKind::usage, Texts::tr("unknown option %1").arg(shown(name)));
        const bool takesValue = spec->value == OptionSpec::Value::required;
        if (!takesValue && equals >= 0)
            return failure(ErrorKind::usage, Texts::tr("%1 takes no value").arg(shown(name)));
        if (takesValue && equals < 0 && i + 1 == words.size())
            return failure(ErrorKind::usage, Texts::tr("%1 needs a value").arg(shown(name)));
        QByteArray value;
        if (takesValue)
            value = equals >= 0 ? word.mid(equals + 1) : words[++i];
        parsed.m_options.emplace_back(name, value);
    }
    return parsed;
}

bool Arguments::has(QByteArrayView option) const
{
    return value(option).has_value();
}

std::optional<QByteArray> Arguments::value(QByteArrayView option) const
{
    const std::vector<QByteArray> all = values(option);
    return all.empty() ? std::nullopt : std::optional(all.back());
}

std::vector<QByteArray> Arguments::values(QByteArrayView option) const
{
    std::vector<QByteArray> found;
    for (const auto &[name, value] : m_options) {
        if (name == option)
            found.push_back(value);
    }
    return found;
}

Result<int> wholeNumber(QByteArrayView option, const QByteArray &value, int least, int most)
{
    bool isNumber = false;
    const int parsed = value.toInt(&isNumber);
    if (!isNumber || parsed < least || parsed > most) {
        return failure(ErrorKind::usage,
                       Texts::tr("%1 takes a whole number from %2 to %3")
                           .arg(shown(option), QString::number(least), QString::number(most)));
    }
    return parsed;
}

Result<double> number(QByteArrayView option, const QByteArray &value, double least, double most)
{
    bool isNumber = false;
    const double parsed = value.toDouble(&isNumber);
    if (!isNumber || !std::isfinite(parsed) || parsed < least || parsed > most) {
        return failure(ErrorKind::usage,
                       Texts::tr("%1 takes a number from %2 to %3")
                           .arg(shown(option), QString::number(least), QString::number(most)));
    }
    return parsed;
}

Result<QString> text(QByteArrayView option, const QByteArray &value)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString decoded = decoder.decode(value);
    if (decoder.hasError())
        return failure(ErrorKind::usage, Texts::tr("%1 takes UTF-8 text").arg(shown(option)));
    return decoded;
}

} // namespace lorva::cli
