// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "platform/PreferenceValue.h"

#include "base/Json.h"

#include <QStringDecoder>

namespace lorva {

namespace {

constexpr char kData[] = "data";
constexpr char kString[] = "string";
constexpr char kStringArray[] = "stringArray";
constexpr char kStringDictionary[] = "stringDictionary";
constexpr char kBoolean[] = "boolean";

struct RowWriter
{
    PreferenceRow operator()(const QByteArray &data) const { return {kData, data}; }
    PreferenceRow operator()(const QString &text) const { return {kString, text.toUtf8()}; }
    PreferenceRow operator()(const QStringList &texts) const
    {
        return {kStringArray, encodeJson(texts)};
    }
    PreferenceRow operator()(const QHash<QString, QString> &texts) const
    {
        return {kStringDictionary, encodeJson(texts)};
    }
    PreferenceRow operator()(bool isSet) const { return {kBoolean, isSet ? "1" : "0"}; }
};

std::optional<PreferenceValue> textOfBytes(const QByteArray &bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? std::nullopt : std::optional<PreferenceValue>(text);
}

std::optional<PreferenceValue> booleanOfBytes(const QByteArray &bytes)
{
    if (bytes != "0" && bytes != "1")
        return std::nullopt;
    return PreferenceValue(bytes == "1");
}

template <class T>
std::optional<PreferenceValue> jsonOfBytes(const QByteArray &bytes)
{
    Result<T> decoded = decodeJson<T>(bytes);
    return decoded ? std::optional<PreferenceValue>(std::move(*decoded)) : std::nullopt;
}

} // namespace

PreferenceRow rowOfPreference(const PreferenceValue &value)
{
    return std::visit(RowWriter(), value);
}

std::optional<PreferenceValue> preferenceOfRow(const PreferenceRow &row)
{
    if (row.kind == kData)
        return row.value;
    if (row.kind == kString)
        return textOfBytes(row.value);
    if (row.kind == kStringArray)
        return jsonOfBytes<QStringList>(row.value);
    if (row.kind == kStringDictionary)
        return jsonOfBytes<QHash<QString, QString>>(row.value);
    if (row.kind == kBoolean)
        return booleanOfBytes(row.value);
    return std::nullopt;
}

} // namespace lorva
