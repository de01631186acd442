// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/SvgStyleText.h"

namespace lorva {

namespace {

/// From "url(" to its parenthesis; where the reference begins within.
struct Url
{
    qsizetype begin = -1;
    qsizetype end = -1;
    bool isInside = false;
};

Url findUrl(QStringView text, qsizetype from)
{
    Url url;
    url.begin = text.indexOf(QLatin1String("url("), from, Qt::CaseInsensitive);
    if (url.begin < 0)
        return url;
    const qsizetype close = text.indexOf(u')', url.begin);
    url.end = close < 0 ? text.size() : close + 1;
    QStringView name = text.sliced(url.begin + 4, url.end - url.begin - 4).trimmed();
    if (name.startsWith(u'"') || name.startsWith(u'\''))
        name = name.sliced(1).trimmed();
    url.isInside = name.startsWith(u'#');
    return url;
}

QString withoutComments(const QString &text)
{
    QString kept;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype open = text.indexOf(QLatin1String("/*"), at);
        kept += QStringView(text).sliced(at, (open < 0 ? text.size() : open) - at);
        if (open < 0)
            break;
        const qsizetype close = text.indexOf(QLatin1String("*/"), open + 2);
        at = close < 0 ? text.size() : close + 2;
    }
    return kept;
}

/// Where the at-rule that begins at `at` ends: after its semicolon, or after its block.
qsizetype endOfAtRule(QStringView text, qsizetype at)
{
    int depth = 0;
    for (qsizetype i = at; i < text.size(); ++i) {
        const QChar c = text[i];
        if (c == u'{')
            ++depth;
        if (c == u'}' && --depth <= 0)
            return i + 1;
        if (c == u';' && depth == 0)
            return i + 1;
    }
    return text.size();
}

QString withoutAtRules(const QString &text)
{
    QString kept;
    qsizetype at = 0;
    while (at < text.size()) {
        const qsizetype rule = text.indexOf(u'@', at);
        kept += QStringView(text).sliced(at, (rule < 0 ? text.size() : rule) - at);
        at = rule < 0 ? text.size() : endOfAtRule(text, rule);
    }
    return kept;
}

QString withoutOutsideUrls(const QString &text)
{
    QString kept;
    qsizetype at = 0;
    while (at < text.size()) {
        const Url url = findUrl(text, at);
        if (url.begin < 0)
            break;
        kept += QStringView(text).sliced(at, url.begin - at);
        if (url.isInside)
            kept += QStringView(text).sliced(url.begin, url.end - url.begin);
        else
            kept += QLatin1String("none");
        at = url.end;
    }
    kept += QStringView(text).sliced(at);
    return kept;
}

} // namespace

bool hasOutsideUrl(const QString &value)
{
    for (Url url = findUrl(value, 0); url.begin >= 0; url = findUrl(value, url.end)) {
        if (!url.isInside)
            return true;
    }
    return false;
}

QString safeStyleText(const QString &text)
{
    if (text.contains(u'\\'))
        return {};
    return withoutOutsideUrls(withoutAtRules(withoutComments(text)));
}

} // namespace lorva
