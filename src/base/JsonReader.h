// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <type_traits>

namespace lorva {

class JsonReader;

/// A string that is wanted as its UTF-8 bytes, such as a path; a bare QByteArray is base64 data.
struct JsonUtf8
{
    QByteArray bytes;
    bool operator==(const JsonUtf8 &) const = default;
};

/// One key that an object is expected to have, and what reads its value.
struct JsonField
{
    std::string_view name;
    bool isRequired = true;
    void *target = nullptr;
    void (*read)(JsonReader &, void *target) = nullptr;
};

/// Reads one JSON document from front to back. Most code wants decodeJson() in Json.h instead.
///
/// The reader stands before one value, which a read call takes. The first failure sticks: from then
/// on every call does nothing and gives an empty value, so that only the end has to ask. The
/// error's detail begins with the place: "families[3].styles[0].weight: expected an integer".
///
/// Strict: the whole document must be well-formed UTF-8 JSON, also the parts that nobody reads; no
/// lone surrogates, no duplicate of a known key, at most kMaxDepth levels, nothing after the end.
/// Unknown keys are ignored, keys come in any order, and an optional key may hold null for absent.
///
/// Owns: the text. Thread: any, one at a time.
class JsonReader
{
public:
    enum class Kind { object, array, string, number, boolean, null };
    static constexpr int kMaxDepth = 128;
    static constexpr size_t kMaxFields = 32;

    explicit JsonReader(QByteArray json);
    ~JsonReader();
    JsonReader(const JsonReader &) = delete;
    JsonReader &operator=(const JsonReader &) = delete;

    /// What the value looks like, without taking it; nothing after a failure.
    std::optional<Kind> kind();

    void read(QString &out);
    void read(qint64 &out);
    /// Accepts integers as well; what does not fit a double fails.
    void read(double &out);
    void read(bool &out);
    void read(JsonUtf8 &out);
    /// From a base64 string with its padding.
    void readData(QByteArray &out);
    /// Takes the value if it is null.
    bool readNull();
    /// Takes the value and checks that it is well-formed.
    void skip();

    /// Calls `element()` with the reader before each element; what it does not take is skipped.
    template <class Element>
    void readArray(Element &&element)
    {
        using Plain = std::remove_reference_t<Element>;
        readElements(const_cast<std::remove_const_t<Plain> *>(&element),
                     [](void *function) { (*static_cast<Plain *>(function))(); });
    }

    /// Calls `member(std::string_view key)`, the key in UTF-8, with the reader before each value.
    template <class Member>
    void readObject(Member &&member)
    {
        using Plain = std::remove_reference_t<Member>;
        readMembers(
            const_cast<std::remove_const_t<Plain> *>(&member),
            [](void *function, std::string_view key) { (*static_cast<Plain *>(function))(key); });
    }

    /// Reads an object whose known keys are `fields` (at most kMaxFields).
    void readFields(std::span<const JsonField> fields);

    bool hasFailed() const;
    /// Fails at the value being read, or at `place` ("style._0") below it.
    void fail(ErrorKind kind, const QString &detail, const QString &place = {});

    /// Ends the reading: fails when the value was not read or anything follows it.
    std::optional<Error> finish();

private:
    struct Impl;

    void readElements(void *function, void (*call)(void *));
    void readMembers(void *function, void (*call)(void *, std::string_view));

    const std::unique_ptr<Impl> m_impl;
};

} // namespace lorva
