// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/FilePath.h"

#include <QCoreApplication>

#include <cstdlib>

#include <unistd.h>

namespace lorva {

namespace {

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(FilePath)
};

constexpr QByteArrayView kScheme = "file:";

bool isUnreserved(char byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z')
        || (byte >= '0' && byte <= '9') || byte == '-' || byte == '.' || byte == '_' || byte == '~';
}

int hexValue(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    const char lower = char(digit | 0x20);
    return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
}

tl::unexpected<Error> badUrl(QByteArrayView url, const QString &why)
{
    const QString shown =
        FilePath(url.first(std::min<qsizetype>(url.size(), 200)).toByteArray()).displayText();
    return failure(ErrorKind::invalidValue, Texts::tr("\"%1\" is no file URL: %2").arg(shown, why));
}

/// Takes "//host" off the front of what follows the scheme; false for a host that is not this
/// machine.
bool dropAuthority(QByteArrayView &rest)
{
    if (!rest.startsWith("//"))
        return true;
    const qsizetype slash = rest.indexOf('/', 2);
    const QByteArrayView host = rest.sliced(2, (slash < 0 ? rest.size() : slash) - 2);
    if (!host.isEmpty() && host.compare("localhost", Qt::CaseInsensitive) != 0)
        return false;
    rest = rest.sliced(2 + host.size());
    return true;
}

/// The bytes that the escapes stand for; empty for a broken escape.
std::optional<QByteArray> percentDecoded(QByteArrayView text)
{
    QByteArray bytes;
    bytes.reserve(text.size());
    for (qsizetype at = 0; at < text.size();) {
        const qsizetype escape = text.indexOf('%', at);
        bytes.append(text.sliced(at, (escape < 0 ? text.size() : escape) - at));
        if (escape < 0)
            break;
        const int high = escape + 2 < text.size() ? hexValue(text[escape + 1]) : -1;
        const int low = high >= 0 ? hexValue(text[escape + 2]) : -1;
        if (low < 0)
            return std::nullopt;
        bytes.append(char(high * 16 + low));
        at = escape + 3;
    }
    return bytes;
}

} // namespace

FilePath FilePath::workingFolder()
{
    char *folder = ::getcwd(nullptr, 0);
    const FilePath path{QByteArray(folder ? folder : "/")};
    std::free(folder);
    return path;
}

FilePath FilePath::absolute(const QByteArray &argument, const FilePath &folder)
{
    return argument.startsWith('/') ? FilePath(argument) : folder.child(argument);
}

Result<FilePath> FilePath::fromUrl(QByteArrayView url)
{
    if (url.size() < kScheme.size()
        || url.first(kScheme.size()).compare(kScheme, Qt::CaseInsensitive) != 0)
        return badUrl(url, Texts::tr("it does not begin with file:"));
    QByteArrayView rest = url.sliced(kScheme.size());
    if (!dropAuthority(rest))
        return badUrl(url, Texts::tr("it names another host"));
    if (!rest.startsWith('/'))
        return badUrl(url, Texts::tr("its path is not absolute"));
    if (rest.contains('?') || rest.contains('#'))
        return badUrl(url, Texts::tr("it has a query or a fragment"));
    std::optional<QByteArray> bytes = percentDecoded(rest);
    if (!bytes)
        return badUrl(url, Texts::tr("it has a broken percent escape"));
    if (bytes->contains('\0'))
        return badUrl(url, Texts::tr("it contains a NUL"));
    return FilePath(*std::move(bytes));
}

bool FilePath::isUtf8() const
{
    return m_bytes.isValidUtf8();
}

QByteArray FilePath::fileName() const
{
    return m_bytes.sliced(m_bytes.lastIndexOf('/') + 1);
}

QByteArray FilePath::lowerCaseExtension() const
{
    const QByteArray name = fileName();
    const qsizetype dot = name.lastIndexOf('.');
    return dot > 0 ? name.sliced(dot + 1).toLower() : QByteArray();
}

FilePath FilePath::parent() const
{
    const qsizetype slash = m_bytes.lastIndexOf('/');
    if (slash == 0)
        return FilePath("/");
    return FilePath(slash > 0 ? m_bytes.first(slash) : QByteArray());
}

FilePath FilePath::child(QByteArrayView name) const
{
    QByteArray bytes;
    bytes.reserve(m_bytes.size() + 1 + name.size());
    bytes.append(m_bytes);
    if (!m_bytes.endsWith('/'))
        bytes.append('/');
    bytes.append(name);
    return FilePath(std::move(bytes));
}

bool FilePath::isInside(const FilePath &folder) const
{
    QByteArrayView prefix = folder.m_bytes;
    if (prefix.isEmpty())
        return false;
    while (prefix.endsWith('/'))
        prefix.chop(1);
    if (!m_bytes.startsWith(prefix))
        return false;
    return m_bytes.size() == prefix.size() || m_bytes[prefix.size()] == '/';
}

QString FilePath::displayText() const
{
    QString text = QString::fromUtf8(m_bytes);
    for (QChar &unit : text) {
        const QChar::Category category = unit.category();
        if (category == QChar::Other_Control || category == QChar::Separator_Line
            || category == QChar::Separator_Paragraph)
            unit = u' ';
    }
    return text;
}

QByteArray FilePath::toUrl() const
{
    static constexpr char kHex[] = "0123456789ABCDEF";
    QByteArray url = QByteArrayLiteral("file://");
    url.reserve(url.size() + m_bytes.size() + m_bytes.size() / 4);
    for (const char byte : m_bytes) {
        if (isUnreserved(byte) || byte == '/') {
            url.append(byte);
            continue;
        }
        url.append('%');
        url.append(kHex[uchar(byte) >> 4]);
        url.append(kHex[uchar(byte) & 15]);
    }
    return url;
}

} // namespace lorva
