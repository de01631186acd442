// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QStringView>

#include <string_view>

namespace lorva {

/// Writes one compact JSON document in the order of the calls. Most code wants encodeJson() in
/// Json.h.
///
/// The caller keeps the shape right: in an object each value follows its key(), and every begin has
/// its end. The text is always valid UTF-8: lone surrogates and broken bytes become U+FFFD. Thread:
/// any, one at a time.
class JsonWriter
{
public:
    void beginObject() { open('{'); }
    void endObject() { close('}'); }
    void beginArray() { open('['); }
    void endArray() { close(']'); }

    void key(QStringView name);
    /// `name` is ASCII that needs no escape, as the keys in code are.
    void key(std::string_view name);

    void string(QStringView text);
    void utf8(QByteArrayView text);
    void integer(qint64 value);
    /// The shortest digits that read back as exactly `value`; null for what is no finite number.
    void number(double value);
    void boolean(bool value);
    void null();
    /// As a base64 string.
    void data(const QByteArray &bytes);

    /// The text written so far, which the writer gives away.
    QByteArray take();

private:
    void open(char bracket);
    void close(char bracket);
    void separate();
    void quoted(QStringView text);

    QByteArray m_text;
    bool m_needsComma = false;
};

} // namespace lorva
