// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QList>
#include <QString>

#include <string>

namespace lorva::test {

/// A text as part of a test's name, the same in every run and harmless to the build's own language:
/// spaces as "_", what is neither a plain ASCII letter or digit nor harmless as "U+05D0".
inline std::string nameText(const QString &text)
{
    QString name;
    for (const uint c : text.toUcs4()) {
        const bool isPlain = c < 0x80 && (QChar::isLetterOrNumber(c) || c == '.' || c == '-');
        if (isPlain)
            name += QChar(char16_t(c));
        else if (c == ' ')
            name += u'_';
        else
            name += QStringLiteral("U+%1").arg(c, 4, 16, QChar(u'0')).toUpper();
    }
    return name.toStdString();
}

inline std::string nameText(const char *utf8)
{
    return nameText(QString::fromUtf8(utf8));
}

} // namespace lorva::test
