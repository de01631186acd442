// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgVocabulary.h"

#include "base/SvgStyleText.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace lorva {

namespace {

// Each in the order of its letters.
constexpr std::array kElements{
    "circle", "clipPath",       "defs", "ellipse", "g",       "image",
    "line",   "linearGradient", "mask", "path",    "polygon", "polyline",
    "rect",   "stop",           "svg",  "symbol",  "use",
};
constexpr std::array kAttributes{
    "class",
    "clipPathUnits",
    "cx",
    "cy",
    "d",
    "fr",
    "fx",
    "fy",
    "gradientTransform",
    "gradientUnits",
    "height",
    "id",
    "maskContentUnits",
    "maskUnits",
    "offset",
    "points",
    "preserveAspectRatio",
    "r",
    "rx",
    "ry",
    "spreadMethod",
    "style",
    "viewBox",
    "width",
    "x",
    "x1",
    "x2",
    "y",
    "y1",
    "y2",
};
constexpr std::array kProperties{
    "clip-path",         "clip-rule",      "color",
    "display",           "fill",           "fill-opacity",
    "fill-rule",         "isolation",      "mask",
    "mask-type",         "mix-blend-mode", "opacity",
    "overflow",          "paint-order",    "stop-color",
    "stop-opacity",      "stroke",         "stroke-dasharray",
    "stroke-dashoffset", "stroke-linecap", "stroke-linejoin",
    "stroke-miterlimit", "stroke-opacity", "stroke-width",
    "transform",         "visibility",
};
/// Values replace variables by values that may hold variables.
constexpr int kMaxVariables = 16;

bool contains(const auto &names, QStringView name)
{
    return std::any_of(names.begin(), names.end(),
                       [name](const char *known) { return name == QLatin1String(known); });
}

bool isIdCharacter(QChar c)
{
    return c.isLetterOrNumber() || QStringView(u"-_.:").contains(c);
}

/// Past the parenthesis that closes the one before `at`.
qsizetype endOfParentheses(QStringView text, qsizetype at)
{
    for (int depth = 1; at < text.size(); ++at) {
        depth += text[at] == u'(' ? 1 : (text[at] == u')' ? -1 : 0);
        if (depth == 0)
            return at + 1;
    }
    return at;
}

QString variableValue(QStringView inside, std::span<const QRgb> colors)
{
    const qsizetype comma = inside.indexOf(u',');
    const QStringView name = inside.left(comma < 0 ? inside.size() : comma).trimmed();
    constexpr QLatin1String colorName("--color");
    bool isNumber = false;
    const uint entry =
        name.startsWith(colorName) ? name.sliced(colorName.size()).toUInt(&isNumber) : 0;
    if (isNumber && entry < colors.size())
        return svgColorText(colors[entry]);
    return comma < 0 ? QStringLiteral("currentColor")
                     : inside.sliced(comma + 1).trimmed().toString();
}

} // namespace

bool isSvgElement(QStringView name)
{
    return contains(kElements, name) || name == QLatin1String("radialGradient");
}

bool isSvgAttribute(QStringView name)
{
    return contains(kAttributes, name) || isSvgProperty(name);
}

bool isSvgProperty(QStringView name)
{
    return contains(kProperties, name);
}

std::vector<SvgDeclaration> svgDeclarations(const QString &text)
{
    std::vector<SvgDeclaration> declarations;
    for (const QStringView part : QStringView(text).split(u';')) {
        const qsizetype colon = part.indexOf(u':');
        if (colon < 0)
            continue;
        const QString name = part.left(colon).trimmed().toString().toLower();
        if (isSvgProperty(name))
            declarations.push_back({name, part.sliced(colon + 1).trimmed().toString()});
    }
    return declarations;
}

bool isPlainSvgId(QStringView id)
{
    return !id.isEmpty() && std::all_of(id.begin(), id.end(), isIdCharacter);
}

QStringList svgUrlIds(QStringView value)
{
    QStringList ids;
    constexpr QLatin1String start("url(");
    // Each goes on behind the one before it, so that a text of nothing else takes no longer.
    for (qsizetype at = value.indexOf(start, 0, Qt::CaseInsensitive); at >= 0;
         at = value.indexOf(start, at, Qt::CaseInsensitive)) {
        at += start.size();
        while (at < value.size()
               && (value[at].isSpace() || QStringView(u"\"'(").contains(value[at])))
            ++at;
        if (at >= value.size() || value[at] != u'#')
            continue;
        const auto *const begin = value.begin() + at + 1;
        const auto *const end = std::find_if_not(begin, value.end(), isIdCharacter);
        ids.append(QStringView(begin, end).toString());
        at = end - value.begin();
    }
    return ids;
}

bool isSvgLayer(QStringView name, QStringView value)
{
    value = value.trimmed();
    if (name == QLatin1String("opacity"))
        return value != QLatin1String("1");
    if (name == QLatin1String("mask") || name == QLatin1String("clip-path"))
        return value != QLatin1String("none");
    if (name == QLatin1String("mix-blend-mode"))
        return value != QLatin1String("normal");
    return name == QLatin1String("isolation") && value != QLatin1String("auto");
}

bool isSvgStroke(QStringView name, QStringView value)
{
    return name == QLatin1String("stroke") && value.trimmed() != QLatin1String("none");
}

double svgNumberSum(QStringView value)
{
    const QByteArray text = value.toLatin1();
    double sum = 0;
    for (const char *at = text.constData(); *at != '\0';) {
        char *end = nullptr;
        const bool mayBegin = (*at >= '0' && *at <= '9') || *at == '.';
        const double number = mayBegin ? std::strtod(at, &end) : 0;
        sum += std::abs(number);
        at = mayBegin && end != at ? end : at + 1;
    }
    return sum;
}

QString svgColorText(QRgb color)
{
    if (qAlpha(color) == 255)
        return QColor(color).name();
    return QStringLiteral("rgba(%1,%2,%3,%4)")
        .arg(qRed(color))
        .arg(qGreen(color))
        .arg(qBlue(color))
        .arg(qAlpha(color) / 255.0, 0, 'f', 4);
}

QString svgResolvedValue(const QString &value, std::span<const QRgb> colors)
{
    QString resolved = value;
    constexpr QLatin1String start("var(");
    for (int i = 0; i < kMaxVariables; ++i) {
        const qsizetype at = resolved.indexOf(start);
        if (at < 0)
            break;
        const qsizetype begin = at + start.size();
        const qsizetype end = endOfParentheses(resolved, begin);
        const QStringView inside =
            QStringView(resolved).sliced(begin, std::max<qsizetype>(0, end - 1 - begin));
        resolved = resolved.left(at) + variableValue(inside, colors) + resolved.mid(end);
    }
    const QString plain = resolved.trimmed();
    if (plain == QLatin1String("context-fill") || plain == QLatin1String("context-stroke"))
        return QStringLiteral("currentColor");
    return resolved;
}

} // namespace lorva
