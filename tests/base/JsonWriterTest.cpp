// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/Json.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace lorva {

namespace {

struct TextCase
{
    QString text;
    const char *json;
};

TEST(JsonWriter, EscapesWhatJsonRequires)
{
    const TextCase cases[]{
        {QString(), R"("")"},
        {QStringLiteral("plain / text"), R"("plain / text")"},
        {QStringLiteral("\"quoted\" \\ back"), R"("\"quoted\" \\ back")"},
        {QStringLiteral("\b\f\n\r\t"), R"("\b\f\n\r\t")"},
        {QString(QChar(0)) + QChar(0x1F) + QChar(0x7F), "\"\\u0000\\u001f\x7F\""},
        {QStringLiteral("é 明 \U0001F600"), "\"é 明 \U0001F600\""},
        {QStringLiteral("\u2028"), "\"\u2028\""},
        {QString(QChar(0xD83D)), "\"\uFFFD\""},
        {QString(QChar(0xDE00)) + u'x', "\"\uFFFDx\""},
        {QString(QChar(0xD83D)) + QChar(0xD83D) + QChar(0xDE00), "\"\uFFFD\U0001F600\""},
    };
    for (const TextCase &each : cases) {
        EXPECT_EQ(encodeJson(each.text).toStdString(), each.json);
        const Result<QString> back = decodeJson<QString>(encodeJson(each.text));
        ASSERT_TRUE(back);
        if (each.text.isValidUtf16()) {
            EXPECT_EQ(*back, each.text);
        }
    }
}

TEST(JsonWriter, NumbersComeBackExactly)
{
    for (const double value :
         {0.0, -0.0, 0.1, 1.0 / 3, 36.0, 1e21, -1.5e-9, 5e-324, 1.7976931348623157e308,
          9007199254740993.0, 716822400.123456789, 2.2250738585072014e-308, 123456789012345680.0}) {
        const QByteArray json = encodeJson(value);
        const Result<double> back = decodeJson<double>(json);
        ASSERT_TRUE(back) << json.constData();
        EXPECT_EQ(*back, value) << json.constData();
        EXPECT_EQ(std::signbit(*back), std::signbit(value));
    }
    for (const qint64 value : {std::numeric_limits<qint64>::min(), qint64(-1), qint64(0),
                               std::numeric_limits<qint64>::max()})
        EXPECT_EQ(decodeJson<qint64>(encodeJson(value)), value);
    EXPECT_EQ(encodeJson(0.1).toStdString(), "0.1");
    EXPECT_EQ(encodeJson(36.0).toStdString(), "36");
    EXPECT_EQ(encodeJson(std::nan("")).toStdString(), "null");
    EXPECT_EQ(encodeJson(HUGE_VAL).toStdString(), "null");
}

TEST(JsonWriter, NestsAndSeparates)
{
    JsonWriter out;
    out.beginObject();
    out.key(QStringView(u"a\"b"));
    out.beginArray();
    out.integer(1);
    out.boolean(true);
    out.null();
    out.beginObject();
    out.endObject();
    out.beginArray();
    out.endArray();
    out.endArray();
    out.key(std::string_view("data"));
    out.data(QByteArray("\0\xFF", 2));
    out.key(std::string_view("bytes"));
    out.utf8("\xFFx");
    out.endObject();
    EXPECT_EQ(out.take().toStdString(),
              "{\"a\\\"b\":[1,true,null,{},[]],\"data\":\"AP8=\",\"bytes\":\"\uFFFDx\"}");
    EXPECT_EQ(out.take().size(), 0);
}

TEST(JsonWriter, MapsAreWrittenByKey)
{
    const QHash<QString, QStringList> map{{QStringLiteral("z"), {}},
                                          {QStringLiteral("a"), {QStringLiteral("1")}},
                                          {QStringLiteral("é"), {}}};
    EXPECT_EQ(encodeJson(map).toStdString(), R"({"a":["1"],"z":[],"é":[]})");
    const auto back = decodeJson<QHash<QString, QStringList>>(encodeJson(map));
    ASSERT_TRUE(back);
    EXPECT_EQ(*back, map);
}

} // namespace

} // namespace lorva
