// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "base/SvgReferences.h"
#include "base/SvgStyleText.h"
#include "ui/display/SafeImage.h"
#include "ui/display/SafeSvg.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QXmlStreamReader>
#include <QXmlStreamWriter>

#include <algorithm>
#include <array>
#include <cmath>

namespace lorva {

namespace {

// What a drawing may come to; the most intricate map or ornament stays far below.
constexpr qsizetype kMostBytes = 16'000'000;
constexpr int kMostDepth = 64;
constexpr double kMostElements = 50'000;
constexpr double kMostExpandedBytes = 16'000'000;
constexpr qsizetype kMostTextLength = 20'000;
/// Each rule of a style sheet is tried on each element.
constexpr double kMostRuleTrials = 5'000'000;
/// Entities are expanded by the parser: few, short ones.
constexpr int kMostEntityLength = 1024;
constexpr qsizetype kMostEntityUses = 4000;
/// Of the pictures that it carries.
constexpr int kMostPictureSidePx = 2048;
constexpr qint64 kMostPicturePixels = 16'000'000;
/// Coordinates beyond are damage, and overflow what they are computed with.
constexpr double kMostLength = 1e7;

constexpr std::array kElements{
    "a",      "circle",  "defs",     "ellipse",        "g",    "image", "line",  "linearGradient",
    "path",   "polygon", "polyline", "radialGradient", "rect", "stop",  "style", "svg",
    "switch", "symbol",  "text",     "tspan",          "use",
};
constexpr std::array kDroppedAttributes{"clip-path", "filter",       "mask",       "base",
                                        "marker",    "marker-start", "marker-mid", "marker-end"};

bool contains(const auto &names, QStringView name)
{
    return std::any_of(names.begin(), names.end(),
                       [name](const char *known) { return name == QLatin1String(known); });
}

tl::unexpected<Error> tooComplicated()
{
    return failure(
        ErrorKind::tooLarge,
        QCoreApplication::translate("SafeImage", "The drawing is too complicated to be shown"));
}

tl::unexpected<Error> damaged()
{
    return failure(
        ErrorKind::malformed,
        QCoreApplication::translate("SafeImage", "The drawing is damaged and cannot be read"));
}

/// The element's name where it is SVG's; other programs' own elements have other prefixes.
QString svgName(const QXmlStreamReader &reader)
{
    QString name = reader.qualifiedName().toString();
    if (name.startsWith(QLatin1String("svg:")))
        name.remove(0, 4);
    return name;
}

std::optional<double> number(QStringView text)
{
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber);
    if (!isNumber || !(std::abs(value) <= kMostLength))
        return std::nullopt;
    return value;
}

/// A length in any absolute unit, as the figure alone: both sides have the same unit in practice.
double absoluteLength(QStringView text)
{
    text = text.trimmed();
    while (!text.isEmpty() && text.back().isLetter())
        text.chop(1);
    return std::max(0.0, number(text).value_or(0));
}

class Sanitizer
{
public:
    explicit Sanitizer(const QByteArray &bytes)
        : m_reader(bytes)
        , m_writer(&m_svg.xml)
    {
        // Prefixes that nobody declared are common, and no reason to refuse a drawing.
        m_reader.setNamespaceProcessing(false);
        m_reader.setEntityExpansionLimit(kMostEntityLength);
    }

    Result<SafeSvg> run()
    {
        while (!m_reader.atEnd() && !m_isTooMuch)
            take(m_reader.readNext());
        if (m_isTooMuch)
            return tooComplicated();
        if (m_reader.hasError() || !m_hasRoot)
            return damaged();
        const auto weight = m_references.expanded();
        if (!weight || weight->elements > kMostElements || weight->bytes > kMostExpandedBytes
            || weight->elements * m_ruleCount > kMostRuleTrials)
            return tooComplicated();
        return std::move(m_svg);
    }

private:
    void take(QXmlStreamReader::TokenType token)
    {
        // Document type, processing instructions, comments and unknown entities are left out.
        if (token == QXmlStreamReader::StartElement)
            beginElement();
        else if (token == QXmlStreamReader::EndElement)
            endElement();
        else if (token == QXmlStreamReader::Characters)
            takeText();
    }

    void beginElement()
    {
        const QString name = svgName(m_reader);
        const bool isRoot = !m_hasRoot;
        if (isRoot ? name != QLatin1String("svg") : !contains(kElements, name)) {
            if (isRoot)
                m_reader.raiseError(QStringLiteral("no drawing"));
            else
                m_reader.skipCurrentElement();
            return;
        }
        m_hasRoot = true;
        m_isTooMuch |=
            m_names.size() >= kMostDepth || double(m_references.elementCount()) >= kMostElements;
        if (name == QLatin1String("style"))
            writeStyle();
        else
            writeElement(isRoot ? QStringLiteral("root") : name);
    }

    void endElement()
    {
        m_references.end();
        if (m_names.takeLast() == QLatin1String("symbol"))
            m_writer.writeEndElement();
        m_writer.writeEndElement();
    }

    void takeText()
    {
        const bool isShown = !m_names.isEmpty()
            && (m_names.back() == QLatin1String("text")
                || m_names.back() == QLatin1String("tspan"));
        if (!isShown)
            return;
        m_textLength += m_reader.text().size();
        m_isTooMuch |= m_textLength > kMostTextLength;
        QString text = m_reader.text().toString();
        // The parser takes what no document may hold from entities, and cannot read it again.
        text.removeIf([](QChar c) { return c < u' ' && !c.isSpace(); });
        m_writer.writeCharacters(text);
    }

    void writeStyle()
    {
        const QString text =
            safeStyleText(m_reader.readElementText(QXmlStreamReader::SkipChildElements));
        m_ruleCount += double(text.count(u'{'));
        m_isTooMuch |= double(text.size()) > kMostExpandedBytes / 16;
        m_writer.writeStartElement(QStringLiteral("style"));
        m_writer.writeAttribute(QStringLiteral("type"), QStringLiteral("text/css"));
        m_writer.writeCharacters(text);
        m_writer.writeEndElement();
    }

    /// A symbol is only shown where it is repeated, and a drawing within a drawing is a group: the
    /// renderer knows neither.
    void writeElement(const QString &name)
    {
        m_names.append(name);
        const QXmlStreamAttributes attributes = m_reader.attributes();
        if (name == QLatin1String("symbol"))
            m_writer.writeStartElement(QStringLiteral("defs"));
        if (name == QLatin1String("root"))
            writeRoot(attributes);
        else if (name == QLatin1String("symbol") || name == QLatin1String("svg")
                 || name == QLatin1String("a"))
            m_writer.writeStartElement(QStringLiteral("g"));
        else
            m_writer.writeStartElement(name);
        writeAttributes(name, attributes);
    }

    void writeRoot(const QXmlStreamAttributes &attributes)
    {
        m_writer.writeStartElement(QStringLiteral("svg"));
        m_writer.writeAttribute(QStringLiteral("xmlns"),
                                QStringLiteral("http://www.w3.org/2000/svg"));
        m_writer.writeAttribute(QStringLiteral("xmlns:xlink"),
                                QStringLiteral("http://www.w3.org/1999/xlink"));
        const QSizeF size(absoluteLength(attributes.value(QLatin1String("width"))),
                          absoluteLength(attributes.value(QLatin1String("height"))));
        QRectF viewBox = parsedViewBox(attributes.value(QLatin1String("viewBox")));
        if (viewBox.isEmpty())
            viewBox = QRectF(QPointF(0, 0), size);
        m_svg.size = size.isEmpty() ? viewBox.size() : size;
        if (viewBox.isEmpty())
            return;
        const QString box = QStringLiteral("%1 %2 %3 %4")
                                .arg(viewBox.x(), 0, 'g', 12)
                                .arg(viewBox.y(), 0, 'g', 12)
                                .arg(viewBox.width(), 0, 'g', 12)
                                .arg(viewBox.height(), 0, 'g', 12);
        m_writer.writeAttribute(QStringLiteral("viewBox"), box);
    }

    static QRectF parsedViewBox(QStringView text)
    {
        const QStringList parts =
            text.toString().replace(u',', u' ').simplified().split(u' ', Qt::SkipEmptyParts);
        if (parts.size() != 4)
            return {};
        std::array<double, 4> values{};
        for (size_t i = 0; i < values.size(); ++i) {
            const std::optional<double> value = number(parts[qsizetype(i)]);
            if (!value)
                return {};
            values[i] = *value;
        }
        return {values[0], values[1], values[2], values[3]};
    }

    void writeAttributes(const QString &name, const QXmlStreamAttributes &attributes)
    {
        QString id;
        QString repeated;
        qsizetype bytes = 0;
        for (const QXmlStreamAttribute &attribute : attributes) {
            const QString key = attribute.qualifiedName().toString();
            const QString value = safeValue(name, key, attribute.value().toString());
            if (value.isNull())
                continue;
            bytes += value.size();
            if (key == QLatin1String("id"))
                id = value;
            if (isReference(key)) {
                repeated = name == QLatin1String("use") ? value.mid(1) : repeated;
                m_hrefs = value;
            } else {
                m_writer.writeAttribute(key, value);
            }
        }
        // What a gradient has where it says nothing, which the renderer does not know.
        if (name == QLatin1String("radialGradient") && m_hrefs.isNull()
            && !attributes.hasAttribute(QLatin1String("r")))
            m_writer.writeAttribute(QStringLiteral("r"), QStringLiteral("0.5"));
        // One name for both spellings, and once: the renderer knows only the older one.
        if (!m_hrefs.isNull())
            m_writer.writeAttribute(QStringLiteral("xlink:href"), m_hrefs);
        m_hrefs = QString();
        m_references.begin(id, {repeated}, {.elements = 1, .bytes = double(bytes)});
    }

    static bool isReference(const QString &key)
    {
        return key == QLatin1String("href") || key == QLatin1String("xlink:href");
    }

    /// Null: left out.
    QString safeValue(const QString &name, const QString &key, const QString &value)
    {
        if (isReference(key))
            return name == QLatin1String("image") ? carriedPicture(value) : insideReference(value);
        if (key == QLatin1String("xml:space"))
            return value;
        if (key.contains(u':') || key.startsWith(QLatin1String("on"), Qt::CaseInsensitive)
            || key.startsWith(QLatin1String("xmlns")) || contains(kDroppedAttributes, key))
            return {};
        const bool isSize = key == QLatin1String("width") || key == QLatin1String("height")
            || key == QLatin1String("viewBox") || key == QLatin1String("x")
            || key == QLatin1String("y");
        if (isSize && (name == QLatin1String("root") || name == QLatin1String("svg")))
            return {};
        if (key == QLatin1String("style"))
            return safeStyleText(value);
        if (name.endsWith(QLatin1String("Gradient")) && value.endsWith(u'%'))
            return share(value);
        return hasOutsideUrl(value) ? QString() : value;
    }

    /// The renderer takes the per cent of a gradient's places for whole numbers.
    static QString share(const QString &value)
    {
        const std::optional<double> percent = number(QStringView(value).chopped(1));
        return percent ? QString::number(*percent / 100) : QString();
    }

    static QString insideReference(const QString &value)
    {
        const QString trimmed = value.trimmed();
        return trimmed.size() > 1 && trimmed.startsWith(u'#') ? trimmed : QString();
    }

    /// Decoded and written anew, so that no decoder but ours sees what the file carries.
    QString carriedPicture(const QString &value)
    {
        const qsizetype comma = value.indexOf(u',');
        const QString head = value.left(std::max<qsizetype>(comma, 0)).trimmed();
        if (!head.startsWith(QLatin1String("data:image/"), Qt::CaseInsensitive)
            || !head.endsWith(QLatin1String(";base64"), Qt::CaseInsensitive))
            return {};
        const QByteArray bytes = QByteArray::fromBase64(value.mid(comma + 1).toLatin1());
        const Result<QImage> picture = readSafePixels(bytes, kMostPictureSidePx);
        if (!picture)
            return {};
        m_picturePixels += qint64(picture->width()) * picture->height();
        m_isTooMuch |= m_picturePixels > kMostPicturePixels;
        if (m_isTooMuch)
            return {};
        return QLatin1String("data:image/png;base64,") + QString::fromLatin1(encoded(*picture));
    }

    static QByteArray encoded(const QImage &picture)
    {
        QByteArray bytes;
        QBuffer buffer(&bytes);
        buffer.open(QIODevice::WriteOnly);
        constexpr int fastest = 100;
        picture.save(&buffer, "png", fastest);
        return bytes.toBase64();
    }

    QXmlStreamReader m_reader;
    SafeSvg m_svg;
    QXmlStreamWriter m_writer;
    SvgReferences m_references;
    QStringList m_names;
    QString m_hrefs;
    double m_ruleCount = 0;
    qsizetype m_textLength = 0;
    qint64 m_picturePixels = 0;
    bool m_hasRoot = false;
    bool m_isTooMuch = false;
};

} // namespace

Result<SafeSvg> sanitizeSvg(const QByteArray &bytes)
{
    const bool declaresEntities = bytes.contains("<!ENTITY");
    if (bytes.size() > kMostBytes || (declaresEntities && bytes.count('&') > kMostEntityUses))
        return tooComplicated();
    return Sanitizer(bytes).run();
}

} // namespace lorva
