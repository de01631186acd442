// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/JsonReader.h"
#include "base/JsonWriter.h"

#include <QCoreApplication>
#include <QHash>
#include <QStringList>

#include <array>
#include <concepts>
#include <map>
#include <set>
#include <utility>
#include <vector>

/// \file
/// The one way to read and write JSON.
///
///     struct Chapter { QString title; std::optional<qint64> pages; };
///
///     template <class Fields, JsonRecordOf<Chapter> Record>
///     void jsonFields(Fields &fields, Record &chapter)
///     {
///         fields("title", chapter.title);
///         fields("pages", chapter.pages);
///     }
///
///     QByteArray text = encodeJson(chapter);             // {"title":"One"}
///     Result<Chapter> read = decodeJson<Chapter>(text);
///
/// jsonFields() stands in the namespace of its type, where it is looked up.
///
/// One list serves both directions: keys are written in its order, and read in any order. A
/// std::optional member is an optional key that is left out while it is empty; every other one is
/// required. Types that are no plain list of keys provide readJson(JsonReader &, T &) and
/// writeJson(JsonWriter &, const T &) instead. Vectors, sets of enumerators, QStringList,
/// string-keyed maps (QHash, std::map), QByteArray (base64), FilePath (file URL), JsonUtf8,
/// integers, double and bool work as they are.

namespace lorva {

template <class Record, class T>
concept JsonRecordOf = std::same_as<std::remove_const_t<Record>, T>;

class JsonFieldReader;
class JsonFieldWriter;

template <class T>
concept JsonRecord = requires(JsonFieldReader &fields, T &record)
{
    jsonFields(fields, record);
};

template <class T>
concept JsonInteger = std::integral<T> && !std::same_as<T, bool>;

// What can be read, one overload per type. The templates come after all declarations, so that they
// nest in any order.

inline void readJson(JsonReader &in, QString &out)
{
    in.read(out);
}
inline void readJson(JsonReader &in, double &out)
{
    in.read(out);
}
inline void readJson(JsonReader &in, bool &out)
{
    in.read(out);
}
inline void readJson(JsonReader &in, JsonUtf8 &out)
{
    in.read(out);
}
inline void readJson(JsonReader &in, QByteArray &out)
{
    in.readData(out);
}
void readJson(JsonReader &in, FilePath &out);
void readJson(JsonReader &in, QStringList &out);
template <JsonInteger T>
void readJson(JsonReader &in, T &out);
template <class T>
void readJson(JsonReader &in, std::vector<T> &out);
template <class T>
void readJson(JsonReader &in, std::set<T> &out);
template <class T>
void readJson(JsonReader &in, QHash<QString, T> &out);
template <class T>
void readJson(JsonReader &in, std::map<QString, T> &out);
template <JsonRecord T>
void readJson(JsonReader &in, T &out);

inline void writeJson(JsonWriter &out, const QString &value)
{
    out.string(value);
}
inline void writeJson(JsonWriter &out, double value)
{
    out.number(value);
}
inline void writeJson(JsonWriter &out, const JsonUtf8 &value)
{
    out.utf8(value.bytes);
}
inline void writeJson(JsonWriter &out, const QByteArray &value)
{
    out.data(value);
}
void writeJson(JsonWriter &out, const FilePath &value);
void writeJson(JsonWriter &out, const QStringList &value);
// Only a bool: anything that merely turns into one has no JSON form.
template <std::same_as<bool> T>
void writeJson(JsonWriter &out, const T &value)
{
    out.boolean(value);
}
template <JsonInteger T>
void writeJson(JsonWriter &out, const T &value)
{
    out.integer(qint64(value));
}
template <class T>
void writeJson(JsonWriter &out, const std::vector<T> &value);
template <class T>
void writeJson(JsonWriter &out, const std::set<T> &value);
template <class T>
void writeJson(JsonWriter &out, const QHash<QString, T> &value);
template <class T>
void writeJson(JsonWriter &out, const std::map<QString, T> &value);
template <JsonRecord T>
void writeJson(JsonWriter &out, const T &value);

/// The names under which an enumeration is stored.
template <class E>
using JsonNames = std::span<const std::pair<E, std::string_view>>;

template <class E>
std::string_view jsonName(JsonNames<E> names, E value)
{
    for (const auto &[each, name] : names) {
        if (each == value)
            return name;
    }
    return {};
}

template <class E>
std::optional<E> fromJsonName(JsonNames<E> names, QByteArrayView text)
{
    for (const auto &[value, name] : names) {
        if (text == QByteArrayView(name.data(), qsizetype(name.size())))
            return value;
    }
    return std::nullopt;
}

/// Reads an enumerator by its name; fails with invalidValue for a name that is not among `names`.
template <class E>
void readJsonName(JsonReader &in, JsonNames<E> names, E &out)
{
    JsonUtf8 text;
    in.read(text);
    if (in.hasFailed())
        return;
    if (const std::optional<E> value = fromJsonName(names, text.bytes))
        out = *value;
    else
        in.fail(ErrorKind::invalidValue,
                QCoreApplication::translate("JsonReader", "unknown value"));
}

/// Decodes a whole document; nothing is built from a damaged one.
template <class T>
Result<T> decodeJson(QByteArray json)
{
    JsonReader in(std::move(json));
    T value{};
    readJson(in, value);
    if (std::optional<Error> error = in.finish())
        return tl::unexpected<Error>(*std::move(error));
    return value;
}

template <class T>
QByteArray encodeJson(const T &value)
{
    JsonWriter out;
    writeJson(out, value);
    return out.take();
}

// --- How the parts above work ---

/// Collects what jsonFields() lists, so that the reader can find each key's target.
class JsonFieldReader
{
public:
    template <class T>
    void operator()(std::string_view name, T &member)
    {
        add({name, true, &member,
             [](JsonReader &in, void *target) { readJson(in, *static_cast<T *>(target)); }});
    }

    template <class T>
    void operator()(std::string_view name, std::optional<T> &member)
    {
        add({name, false, &member, [](JsonReader &in, void *target) {
                 if (!in.readNull())
                     readJson(in, static_cast<std::optional<T> *>(target)->emplace());
             }});
    }

    std::span<const JsonField> fields() const { return {m_fields.data(), m_count}; }

private:
    void add(const JsonField &field)
    {
        Q_ASSERT(m_count < m_fields.size());
        m_fields[m_count++] = field;
    }

    std::array<JsonField, JsonReader::kMaxFields> m_fields;
    size_t m_count = 0;
};

/// Writes what jsonFields() lists.
class JsonFieldWriter
{
public:
    explicit JsonFieldWriter(JsonWriter &out)
        : m_out(out)
    {
    }

    template <class T>
    void operator()(std::string_view name, const T &member)
    {
        m_out.key(name);
        writeJson(m_out, member);
    }

    template <class T>
    void operator()(std::string_view name, const std::optional<T> &member)
    {
        if (member)
            (*this)(name, *member);
    }

private:
    JsonWriter &m_out;
};

template <JsonInteger T>
void readJson(JsonReader &in, T &out)
{
    qint64 value = 0;
    in.read(value);
    if (!std::in_range<T>(value))
        in.fail(ErrorKind::invalidValue,
                QCoreApplication::translate("JsonReader", "the integer is out of range"));
    else
        out = T(value);
}

template <class T>
void readJson(JsonReader &in, std::vector<T> &out)
{
    in.readArray([&] { readJson(in, out.emplace_back()); });
}

template <class T>
void readJson(JsonReader &in, std::set<T> &out)
{
    in.readArray([&] {
        T value{};
        readJson(in, value);
        out.insert(std::move(value));
    });
}

/// The place of a new key in a string-keyed map; a key that is there already fails.
template <class Map>
void readJsonMap(JsonReader &in, Map &out)
{
    in.readObject([&](std::string_view key) {
        const QString name = QString::fromUtf8(key.data(), qsizetype(key.size()));
        if (out.contains(name))
            in.fail(ErrorKind::malformed,
                    QCoreApplication::translate("JsonReader", "duplicate key"));
        else
            readJson(in, out[name]);
    });
}

template <class T>
void readJson(JsonReader &in, QHash<QString, T> &out)
{
    readJsonMap(in, out);
}

template <class T>
void readJson(JsonReader &in, std::map<QString, T> &out)
{
    readJsonMap(in, out);
}

template <JsonRecord T>
void readJson(JsonReader &in, T &out)
{
    JsonFieldReader fields;
    jsonFields(fields, out);
    in.readFields(fields.fields());
}

template <class Range>
void writeJsonArray(JsonWriter &out, const Range &values)
{
    out.beginArray();
    for (const auto &value : values)
        writeJson(out, value);
    out.endArray();
}

template <class T>
void writeJson(JsonWriter &out, const std::vector<T> &value)
{
    writeJsonArray(out, value);
}

template <class T>
void writeJson(JsonWriter &out, const std::set<T> &value)
{
    writeJsonArray(out, value);
}

template <class T>
void writeJson(JsonWriter &out, const std::map<QString, T> &value)
{
    out.beginObject();
    for (const auto &[key, each] : value) {
        out.key(QStringView(key));
        writeJson(out, each);
    }
    out.endObject();
}

/// By key, so that equal maps give equal texts.
template <class T>
void writeJson(JsonWriter &out, const QHash<QString, T> &value)
{
    QStringList keys = value.keys();
    keys.sort();
    out.beginObject();
    for (const QString &key : std::as_const(keys)) {
        out.key(QStringView(key));
        writeJson(out, *value.constFind(key));
    }
    out.endObject();
}

template <JsonRecord T>
void writeJson(JsonWriter &out, const T &value)
{
    out.beginObject();
    JsonFieldWriter fields(out);
    jsonFields(fields, value);
    out.endObject();
}

} // namespace lorva
