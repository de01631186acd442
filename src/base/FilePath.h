// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QString>

#include <compare>
#include <functional>

namespace lorva {

/// The absolute path of a file as the bytes that the system calls take.
///
/// File names on Linux are bytes, not text: QString would lose the names that are no UTF-8.
/// A value, cheap to copy. Thread: any.
class FilePath
{
public:
    FilePath() = default;
    explicit FilePath(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }
    /// The path whose UTF-8 form is `text`.
    static FilePath fromText(const QString &text) { return FilePath(text.toUtf8()); }
    /// The process's working folder; "/" when that has gone.
    static FilePath workingFolder();
    /// What an argument names: itself when it begins with a slash, else the path below `folder`.
    static FilePath absolute(const QByteArray &argument, const FilePath &folder = workingFolder());
    /// The path that a file URL ("file:///a%20b") names. Fails with invalidValue for another
    /// scheme, a foreign host, a path that is not absolute, a query or fragment, a broken percent
    /// escape, or an embedded NUL.
    static Result<FilePath> fromUrl(QByteArrayView url);

    const QByteArray &bytes() const { return m_bytes; }
    const char *c_str() const { return m_bytes.constData(); }
    bool isEmpty() const { return m_bytes.isEmpty(); }
    bool isUtf8() const;

    /// The part after the last slash.
    QByteArray fileName() const;
    /// The part of the file name after its last dot, ASCII letters lower-cased; empty without a dot
    /// and for a name whose only dot is its first byte.
    QByteArray lowerCaseExtension() const;
    /// The path before the last slash; "/" for what lies directly in it, empty without a slash.
    FilePath parent() const;
    FilePath child(QByteArrayView name) const;
    /// True when this is `folder` itself or lies below it.
    bool isInside(const FilePath &folder) const;

    /// For people: bytes that are no UTF-8 show as U+FFFD, control characters as spaces.
    QString displayText() const;
    /// The absolute file URL: every byte but RFC 3986's unreserved characters and the slash is
    /// percent-encoded.
    QByteArray toUrl() const;

    bool operator==(const FilePath &) const = default;
    std::strong_ordering operator<=>(const FilePath &other) const
    {
        return m_bytes.compare(other.m_bytes) <=> 0;
    }
    friend size_t qHash(const FilePath &path, size_t seed = 0) { return qHash(path.m_bytes, seed); }

private:
    QByteArray m_bytes;
};

} // namespace lorva

template <>
struct std::hash<lorva::FilePath>
{
    size_t operator()(const lorva::FilePath &path) const noexcept { return qHash(path.bytes()); }
};
