// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "support/PseudoTranslator.h"

#include <QRegularExpression>

namespace lorva::test {

namespace {

constexpr QStringView kLower = u"àƀçđéƒĝĥîĵķļɱñôþʠŕšţûṽŵẋýž";
constexpr QStringView kUpper = u"ÀƁÇĐÉƑĜĤÎĴĶĻṀÑÔÞɊŔŠŢÛṼŴẊÝŽ";

QChar pseudo(QChar letter)
{
    if (letter >= u'a' && letter <= u'z')
        return kLower[letter.unicode() - u'a'];
    if (letter >= u'A' && letter <= u'Z')
        return kUpper[letter.unicode() - u'A'];
    return letter == u'…' ? QChar(u'⋯') : letter;
}

QString pseudo(QStringView text)
{
    QString result;
    for (const QChar letter : text)
        result += pseudo(letter);
    return result;
}

/// What wraps as words do.
QString padding(qsizetype length)
{
    QString result;
    for (qsizetype left = std::max<qsizetype>(2, length * 2 / 5); left > 0; left -= 8)
        result += u' ' + QString(std::min<qsizetype>(left, 8), u'~');
    return result;
}

} // namespace

QString PseudoTranslator::translate(const char *context, const char *source, const char *,
                                    int) const
{
    // Names of keys are shown as the keyboard has them; the toolkit asks the next for the direction
    // of its layouts.
    const QLatin1String asking(context);
    if (asking == QLatin1String("QShortcut") || asking == QLatin1String("QGuiApplication"))
        return {};
    static const QRegularExpression places(QStringLiteral("%L?(\\d+|n)|<[^>]*>"));
    const QString text = QString::fromUtf8(source);
    QString result;
    qsizetype at = 0;
    for (auto each = places.globalMatch(text); each.hasNext();) {
        const QRegularExpressionMatch place = each.next();
        result += pseudo(QStringView(text).mid(at, place.capturedStart() - at)) + place.captured();
        at = place.capturedEnd();
    }
    result += pseudo(QStringView(text).mid(at));
    return u'[' + result + padding(text.size()) + u']';
}

} // namespace lorva::test
