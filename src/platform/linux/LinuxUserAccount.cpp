// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "platform/UserAccount.h"

#include <QStringDecoder>

#include <cerrno>
#include <vector>

#include <pwd.h>
#include <unistd.h>

namespace lorva {

namespace {

constexpr size_t kFirstBuffer = 1024;
/// An entry beyond this is nobody's name.
constexpr size_t kLargestBuffer = size_t(1) << 20;

QString decoded(const QByteArray &bytes)
{
    // Stateless: a letter that is cut off at the end is an error, too.
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = utf8(bytes);
    return utf8.hasError() ? QString::fromLatin1(bytes) : text;
}

QString onOneLine(QString text)
{
    text.removeIf([](QChar c) { return c.category() == QChar::Other_Control && !c.isSpace(); });
    return text.simplified();
}

QString capitalised(const QString &name)
{
    return name.left(1).toUpper() + name.mid(1);
}

} // namespace

QString accountFullName(const QByteArray &comment, const QByteArray &login)
{
    const QString loginName = onOneLine(decoded(login));
    const QByteArray field = comment.split(',').constFirst();
    const QString name = onOneLine(decoded(field).replace(u'&', capitalised(loginName)));
    return name.isEmpty() ? loginName : name;
}

QString userFullName()
{
    for (size_t size = kFirstBuffer; size <= kLargestBuffer; size *= 4) {
        std::vector<char> buffer(size);
        passwd entry{};
        passwd *found = nullptr;
        const int failed = ::getpwuid_r(::getuid(), &entry, buffer.data(), buffer.size(), &found);
        if (failed == EINTR || failed == ERANGE)
            continue;
        return found ? accountFullName(found->pw_gecos, found->pw_name) : QString();
    }
    return {};
}

} // namespace lorva
