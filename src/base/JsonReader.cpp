// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/JsonReader.h"

#include "base/JsonFieldFinder.h"
#include "base/JsonPlace.h"

#include <QCoreApplication>

#include <simdjson.h>

#include <cstring>
#include <utility>

namespace lorva {

namespace ondemand = simdjson::ondemand;

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(JsonReader)
};

constexpr qsizetype kPadding = simdjson::SIMDJSON_PADDING;

QString malformedText(simdjson::error_code code)
{
    switch (code) {
    case simdjson::EMPTY:
        return Texts::tr("the document is empty");
    case simdjson::UTF8_ERROR:
        return Texts::tr("invalid UTF-8");
    case simdjson::UNESCAPED_CHARS:
        return Texts::tr("control character in a string");
    case simdjson::UNCLOSED_STRING:
        return Texts::tr("unclosed string");
    case simdjson::STRING_ERROR:
        return Texts::tr("broken escape in a string");
    case simdjson::CAPACITY:
    case simdjson::MEMALLOC:
        return Texts::tr("the document is too large");
    default:
        return Texts::tr("malformed JSON");
    }
}

ErrorKind malformedKind(simdjson::error_code code)
{
    const bool isSize = code == simdjson::CAPACITY || code == simdjson::MEMALLOC;
    return isSize ? ErrorKind::tooLarge : ErrorKind::malformed;
}

/// "-12", but not "012", "1.0" or "1e3".
bool looksLikeInteger(std::string_view token)
{
    if (token.starts_with('-'))
        token.remove_prefix(1);
    if (token.empty() || (token.size() > 1 && token.front() == '0'))
        return false;
    return token.find_first_not_of("0123456789") == std::string_view::npos;
}

} // namespace

/// The parser's state. simdjson's on-demand parser walks the text itself, so a value must be taken
/// in the order in which it stands there; `isWaiting` says that it has not been taken yet.
struct JsonReader::Impl
{
    QByteArray json;
    ondemand::parser parser;
    ondemand::document document;
    ondemand::value value;
    bool isRoot = true;
    bool isWaiting = false;
    int depth = 0;
    std::optional<Error> error;
    /// Where the failure is, built from the inside out while the calls return.
    QString place;

    /// Calls `function` with what stands for the value: simdjson has a type of its own for the
    /// root.
    template <class Function>
    auto withValue(Function &&function)
    {
        return isRoot ? function(document) : function(value);
    }

    void fail(ErrorKind kind, const QString &detail, const QString &where = {})
    {
        if (error)
            return;
        error = Error{kind, detail};
        place = where;
    }

    void failMalformed(simdjson::error_code code)
    {
        fail(malformedKind(code), malformedText(code));
    }

    /// For a container that does not open: it may be another type, or cut off.
    void failOpening(simdjson::error_code code, const QString &expected)
    {
        code == simdjson::INCORRECT_TYPE ? failType(expected) : failMalformed(code);
    }

    void failType(const QString &expected) { fail(ErrorKind::typeMismatch, expected); }

    void wrapPlace(const QString &outer) { place = joinedPlace(outer, place); }

    /// True when there is a value to take, and takes it.
    bool take()
    {
        if (error)
            return false;
        if (!isWaiting)
            fail(ErrorKind::usage, Texts::tr("the value was read already"));
        return std::exchange(isWaiting, false);
    }

    void standBefore(ondemand::value next)
    {
        value = next;
        isRoot = false;
        isWaiting = true;
    }

    bool enter()
    {
        if (++depth <= kMaxDepth)
            return true;
        fail(ErrorKind::malformed, Texts::tr("nested too deeply"));
        return false;
    }

    std::string_view token();
    std::optional<std::string_view> takeString();
    std::optional<std::string_view> keyOf(ondemand::field &field);
    void skipScalar(Kind kind);
    std::optional<Kind> kind();
};

/// The characters of the scalar, white space behind it removed.
std::string_view JsonReader::Impl::token()
{
    std::string_view text;
    if (withValue([](auto &each) {
            return simdjson::simdjson_result<std::string_view>(each.raw_json_token());
        }).get(text))
        return {};
    const size_t last = text.find_last_not_of(" \t\r\n");
    return text.substr(0, last + 1);
}

/// The string in UTF-8, which stays valid as long as the reader.
std::optional<std::string_view> JsonReader::Impl::takeString()
{
    const std::string_view raw = token();
    if (!raw.starts_with('"')) {
        failType(Texts::tr("expected a string"));
        return std::nullopt;
    }
    // Nearly all strings hold no escape, so they can be read where they lie.
    const bool isPlain =
        raw.size() >= 2 && raw.ends_with('"') && !std::memchr(raw.data(), '\\', raw.size());
    if (isPlain) {
        if (withValue([](auto &each) { return each.get_raw_json_string().error(); }))
            return std::nullopt;
        return raw.substr(1, raw.size() - 2);
    }
    std::string_view text;
    if (const auto code = withValue([](auto &each) { return each.get_string(); }).get(text))
        failMalformed(code);
    else if (!QByteArrayView(text.data(), qsizetype(text.size())).isValidUtf8())
        fail(ErrorKind::malformed, malformedText(simdjson::STRING_ERROR));
    return text;
}

std::optional<std::string_view> JsonReader::Impl::keyOf(ondemand::field &field)
{
    std::string_view key;
    if (const auto code = field.unescaped_key().get(key)) {
        failMalformed(code);
        return std::nullopt;
    }
    if (!QByteArrayView(key.data(), qsizetype(key.size())).isValidUtf8()) {
        fail(ErrorKind::malformed, malformedText(simdjson::STRING_ERROR));
        return std::nullopt;
    }
    return key;
}

std::optional<JsonReader::Kind> JsonReader::Impl::kind()
{
    if (error)
        return std::nullopt;
    ondemand::json_type type{};
    if (const auto code = withValue([](auto &each) { return each.type(); }).get(type)) {
        failMalformed(code);
        return std::nullopt;
    }
    switch (type) {
    case ondemand::json_type::object:
        return Kind::object;
    case ondemand::json_type::array:
        return Kind::array;
    case ondemand::json_type::string:
        return Kind::string;
    case ondemand::json_type::number:
        return Kind::number;
    case ondemand::json_type::boolean:
        return Kind::boolean;
    case ondemand::json_type::null:
        return Kind::null;
    }
    return std::nullopt;
}

void JsonReader::Impl::skipScalar(Kind kind)
{
    simdjson::error_code code = simdjson::SUCCESS;
    if (kind == Kind::string) {
        takeString();
        return;
    }
    if (kind == Kind::number)
        code = withValue([](auto &each) { return each.get_double().error(); });
    else if (kind == Kind::boolean)
        code = withValue([](auto &each) { return each.get_bool().error(); });
    else
        code = withValue([](auto &each) { return each.is_null().error(); });
    if (code)
        failMalformed(simdjson::TAPE_ERROR);
}

JsonReader::JsonReader(QByteArray json)
    : m_impl(std::make_unique<Impl>())
{
    // The parser reads in blocks and so a little beyond the end, where nothing may look like JSON.
    const qsizetype size = json.size();
    json.resize(size + kPadding);
    std::memset(json.data() + size, 0, size_t(kPadding));
    m_impl->json = std::move(json);

    const simdjson::padded_string_view view(m_impl->json.constData(), size_t(size),
                                            size_t(size + kPadding));
    if (const auto code = m_impl->parser.iterate(view).get(m_impl->document))
        m_impl->failMalformed(code);
    else
        m_impl->isWaiting = true;
}

JsonReader::~JsonReader() = default;

std::optional<JsonReader::Kind> JsonReader::kind()
{
    return m_impl->kind();
}

void JsonReader::read(QString &out)
{
    if (!m_impl->take())
        return;
    if (const std::optional<std::string_view> text = m_impl->takeString())
        out = QString::fromUtf8(text->data(), qsizetype(text->size()));
}

void JsonReader::read(JsonUtf8 &out)
{
    if (!m_impl->take())
        return;
    if (const std::optional<std::string_view> text = m_impl->takeString())
        out.bytes = QByteArray(text->data(), qsizetype(text->size()));
}

void JsonReader::read(qint64 &out)
{
    if (!m_impl->take())
        return;
    int64_t value = 0;
    if (!m_impl->withValue([](auto &each) { return each.get_int64(); }).get(value))
        out = value;
    else if (looksLikeInteger(m_impl->token()))
        m_impl->fail(ErrorKind::invalidValue, Texts::tr("the integer is out of range"));
    else
        m_impl->failType(Texts::tr("expected an integer"));
}

void JsonReader::read(double &out)
{
    if (!m_impl->take())
        return;
    if (m_impl->withValue([](auto &each) { return each.get_double(); }).get(out))
        m_impl->failType(Texts::tr("expected a number"));
}

void JsonReader::read(bool &out)
{
    if (!m_impl->take())
        return;
    if (m_impl->withValue([](auto &each) { return each.get_bool(); }).get(out))
        m_impl->failType(Texts::tr("expected true or false"));
}

void JsonReader::readData(QByteArray &out)
{
    JsonUtf8 base64;
    read(base64);
    if (hasFailed())
        return;
    // Qt takes a text without its padding, which may as well have lost more than that.
    const bool isPadded = base64.bytes.size() % 4 == 0;
    const auto decoded = QByteArray::fromBase64Encoding(
        std::move(base64.bytes),
        QByteArray::Base64Encoding | QByteArray::AbortOnBase64DecodingErrors);
    if (decoded && isPadded)
        out = *decoded;
    else
        fail(ErrorKind::invalidValue, Texts::tr("broken base64"));
}

bool JsonReader::readNull()
{
    bool isNull = false;
    if (m_impl->error || !m_impl->isWaiting)
        return false;
    if (m_impl
            ->withValue([](auto &each) { return simdjson::simdjson_result<bool>(each.is_null()); })
            .get(isNull))
        m_impl->failMalformed(simdjson::TAPE_ERROR);
    if (isNull)
        m_impl->isWaiting = false;
    return isNull;
}

void JsonReader::skip()
{
    const std::optional<Kind> kind = m_impl->kind();
    if (!kind)
        return;
    if (kind == Kind::array)
        readArray([] {});
    else if (kind == Kind::object)
        readObject([](std::string_view) {});
    else if (m_impl->take())
        m_impl->skipScalar(*kind);
}

void JsonReader::readElements(void *function, void (*call)(void *))
{
    Impl &impl = *m_impl;
    ondemand::array array;
    if (!impl.take() || !impl.enter())
        return;
    if (const auto code = impl.withValue([](auto &each) { return each.get_array(); }).get(array))
        return impl.failOpening(code, Texts::tr("expected an array"));
    qsizetype index = 0;
    for (auto element : array) {
        ondemand::value value;
        if (const auto code = element.get(value))
            return impl.failMalformed(code);
        impl.standBefore(value);
        call(function);
        if (impl.isWaiting)
            skip();
        if (impl.error)
            return impl.wrapPlace(QStringLiteral("[%1]").arg(index));
        ++index;
    }
    --impl.depth;
}

void JsonReader::readMembers(void *function, void (*call)(void *, std::string_view))
{
    Impl &impl = *m_impl;
    ondemand::object object;
    if (!impl.take() || !impl.enter())
        return;
    if (const auto code = impl.withValue([](auto &each) { return each.get_object(); }).get(object))
        return impl.failOpening(code, Texts::tr("expected an object"));
    for (auto each : object) {
        ondemand::field field;
        if (const auto code = std::move(each).get(field))
            return impl.failMalformed(code);
        const std::optional<std::string_view> key = impl.keyOf(field);
        if (!key)
            return;
        impl.standBefore(field.value());
        call(function, *key);
        if (impl.isWaiting)
            skip();
        if (impl.error)
            return impl.wrapPlace(placeOfKey(*key));
    }
    --impl.depth;
}

void JsonReader::readFields(std::span<const JsonField> fields)
{
    Impl &impl = *m_impl;
    ondemand::object object;
    if (!impl.take() || !impl.enter())
        return;
    if (const auto code = impl.withValue([](auto &each) { return each.get_object(); }).get(object))
        return impl.failOpening(code, Texts::tr("expected an object"));
    FieldFinder finder(fields);
    for (auto each : object) {
        ondemand::field field;
        if (const auto code = std::move(each).get(field))
            return impl.failMalformed(code);
        // A key that is spelled as in the list needs no unescaping.
        const ondemand::raw_json_string raw = field.key();
        size_t index =
            finder.find([&](std::string_view name) { return raw.unsafe_is_equal(name); });
        std::string_view name;
        if (index < fields.size()) {
            name = fields[index].name;
        } else {
            const std::optional<std::string_view> key = impl.keyOf(field);
            if (!key)
                return;
            name = *key;
            index = finder.find([&](std::string_view known) { return known == name; });
        }
        impl.standBefore(field.value());
        if (index == fields.size())
            skip();
        else if (finder.markSeen(index))
            fields[index].read(*this, fields[index].target);
        else
            impl.fail(ErrorKind::malformed, Texts::tr("duplicate key"));
        if (impl.error)
            return impl.wrapPlace(placeOfKey(name));
    }
    if (const JsonField *missing = finder.firstMissing())
        //: A key that must be there, in a JSON document.
        impl.fail(ErrorKind::missingKey, Texts::tr("missing"), placeOfKey(missing->name));
    --impl.depth;
}

bool JsonReader::hasFailed() const
{
    return m_impl->error.has_value();
}

void JsonReader::fail(ErrorKind kind, const QString &detail, const QString &place)
{
    m_impl->fail(kind, detail, place);
}

std::optional<Error> JsonReader::finish()
{
    Impl &impl = *m_impl;
    if (!impl.error && impl.isWaiting)
        impl.fail(ErrorKind::usage, Texts::tr("nothing was read"));
    // At the end, and only there, the document has no place to stand any more.
    if (!impl.error && impl.document.current_location().error() != simdjson::OUT_OF_BOUNDS)
        impl.fail(ErrorKind::malformed, Texts::tr("text after the end"));
    if (!impl.error || impl.place.isEmpty())
        return impl.error;
    //: A place in a JSON document, and what is wrong there.
    return Error{impl.error->kind, Texts::tr("%1: %2").arg(impl.place, impl.error->detail)};
}

} // namespace lorva
