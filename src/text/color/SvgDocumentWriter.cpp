// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgDocumentWriter.h"

#include "text/FontLimits.h"

#include <array>
#include <cmath>

namespace lorva {

namespace {

using Element = SvgDocument::Element;

/// A path is at most so much longer than the sum of the numbers that it is written with.
constexpr double kLengthFactor = 3;

QString number(double value)
{
    return QString::number(value, 'g', 12);
}

QString attribute(const Element &element, QLatin1String name)
{
    for (const SvgDeclaration &one : element.attributes) {
        if (one.name == name)
            return one.value;
    }
    return {};
}

/// Per cents and nonsense are no size of their own.
double ownLength(QString text)
{
    text = text.trimmed();
    if (text.endsWith(QLatin1String("px")))
        text.chop(2);
    bool isNumber = false;
    const double length = text.toDouble(&isNumber);
    return isNumber && std::isfinite(length) ? std::max(0.0, length) : 0;
}

QRectF ownViewBox(const Element &root)
{
    const QStringList parts = attribute(root, QLatin1String("viewBox"))
                                  .replace(u',', u' ')
                                  .simplified()
                                  .split(u' ', Qt::SkipEmptyParts);
    if (parts.size() == 4)
        return {parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble(), parts[3].toDouble()};
    const double width = ownLength(attribute(root, QLatin1String("width")));
    const double height = ownLength(attribute(root, QLatin1String("height")));
    return {0, 0, width > 0 ? width : height, height > 0 ? height : width};
}

/// Of the room that is left over, by "xMid" or "YMax" and the like.
double alignedPart(const QString &aspect, QLatin1String axis)
{
    if (aspect.contains(QString(axis + QLatin1String("Min"))))
        return 0;
    return aspect.contains(QString(axis + QLatin1String("Max"))) ? 1 : 0.5;
}

/// OpenType `SVG `: the document's viewport is the em square, below the baseline; its own box is
/// fitted into that as SVG fits any.
QTransform toEm(const Element &root, double unitsPerEm)
{
    const QRectF box = ownViewBox(root);
    if (!(box.width() > 0 && box.height() > 0))
        return {};
    const QString aspect = attribute(root, QLatin1String("preserveAspectRatio"));
    double across = unitsPerEm / box.width();
    double down = unitsPerEm / box.height();
    if (!aspect.contains(QLatin1String("none"))) {
        const bool isSlice = aspect.contains(QLatin1String("slice"));
        across = down = isSlice ? std::max(across, down) : std::min(across, down);
    }
    const double left =
        (unitsPerEm - box.width() * across) * alignedPart(aspect, QLatin1String("x"));
    const double top = (unitsPerEm - box.height() * down) * alignedPart(aspect, QLatin1String("Y"));
    return QTransform(across, 0, 0, down, left - box.x() * across, top - box.y() * down);
}

QString matrixText(const QTransform &matrix)
{
    QStringList parts;
    for (const double part : std::array{matrix.m11(), matrix.m12(), matrix.m21(), matrix.m22(),
                                        matrix.dx(), matrix.dy()})
        parts.append(number(part));
    return QStringLiteral("matrix(%1)").arg(parts.join(u' '));
}

bool isOfViewport(const QString &name)
{
    return name == QLatin1String("viewBox") || name == QLatin1String("width")
        || name == QLatin1String("height") || name == QLatin1String("x")
        || name == QLatin1String("y") || name == QLatin1String("preserveAspectRatio")
        || name == QLatin1String("overflow");
}

} // namespace

SvgDocumentWriter::SvgDocumentWriter(const std::vector<Element> &elements,
                                     const std::vector<char> &marks, const SvgStyleSheet &sheet,
                                     const SvgDocument::Colors &colors, double length)
    : m_elements(elements)
    , m_marks(marks)
    , m_sheet(sheet)
    , m_colors(colors)
    , m_length(length)
    , m_writer(&m_written.xml)
{
}

SvgDocument::Written SvgDocumentWriter::write(const SvgDocument::Canvas &canvas)
{
    m_isToBeMeasured = canvas.isToBeMeasured;
    writeRoot(canvas);
    writeSheet();
    const double side = SvgDocument::kEmSide / canvas.unitsPerEm;
    m_writer.writeStartElement(QStringLiteral("g"));
    m_writer.writeAttribute(QStringLiteral("transform"),
                            matrixText(toEm(m_elements.front(), canvas.unitsPerEm)
                                       * QTransform::fromScale(side, side)));
    writeElement(0, QStringLiteral("g"));
    m_writer.writeEndElement();
    m_writer.writeEndElement();
    return std::move(m_written);
}

void SvgDocumentWriter::writeRoot(const SvgDocument::Canvas &canvas)
{
    const QRectF &box = canvas.viewBox;
    m_writer.writeStartElement(QStringLiteral("svg"));
    m_writer.writeAttribute(QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg"));
    m_writer.writeAttribute(QStringLiteral("xmlns:xlink"),
                            QStringLiteral("http://www.w3.org/1999/xlink"));
    m_writer.writeAttribute(QStringLiteral("width"), number(box.width()));
    m_writer.writeAttribute(QStringLiteral("height"), number(box.height()));
    const QStringList corners{number(box.x()), number(box.y()), number(box.width()),
                              number(box.height())};
    m_writer.writeAttribute(QStringLiteral("viewBox"), corners.join(u' '));
    m_writer.writeAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    m_writer.writeAttribute(QStringLiteral("overflow"), QStringLiteral("visible"));
    m_writer.writeAttribute(QStringLiteral("color"), svgColorText(m_colors.foreground));
}

void SvgDocumentWriter::writeSheet()
{
    if (m_sheet.rules().empty())
        return;
    QString text;
    for (const SvgStyleSheet::Rule &rule : m_sheet.rules()) {
        text += rule.selectors + u'{';
        for (const SvgDeclaration &one : rule.declarations) {
            const QString written = value(one.name, one.value);
            if (!written.isNull())
                text += one.name + u':' + written + u';';
        }
        text += u'}';
    }
    m_writer.writeTextElement(QStringLiteral("style"), text);
}

void SvgDocumentWriter::writeElement(size_t index, const QString &name)
{
    if (m_marks[index] == kLeftOut)
        return;
    const Element &element = m_elements[index];
    if (m_isToBeMeasured && name == QLatin1String("image")) {
        writePictureBox(element);
        return;
    }
    m_writer.writeStartElement(name);
    writeAttributes(element, index == 0);
    for (const size_t child : element.children)
        writeElement(child, m_elements[child].name);
    m_writer.writeEndElement();
}

void SvgDocumentWriter::writePictureBox(const Element &picture)
{
    m_writer.writeStartElement(QStringLiteral("rect"));
    for (const QLatin1String name : {QLatin1String("x"), QLatin1String("y"), QLatin1String("width"),
                                     QLatin1String("height"), QLatin1String("transform")}) {
        const QString kept = attribute(picture, name);
        if (!kept.isEmpty())
            m_writer.writeAttribute(QString(name), kept);
    }
    m_writer.writeAttribute(QStringLiteral("style"),
                            QStringLiteral("fill:#000;stroke:none;visibility:visible"));
    m_writer.writeEndElement();
}

void SvgDocumentWriter::writeAttributes(const Element &element, bool isRoot)
{
    constexpr QLatin1String style("style:");
    if (!element.id.isEmpty())
        m_writer.writeAttribute(QStringLiteral("id"), element.id);
    if (!element.classes.isEmpty())
        m_writer.writeAttribute(QStringLiteral("class"), element.classes);
    QString styles;
    for (const SvgDeclaration &one : element.attributes) {
        const bool isStyle = one.name.startsWith(style);
        const QString name = isStyle ? one.name.sliced(style.size()) : one.name;
        const QString written = value(name, one.value);
        if (written.isNull() || (isRoot && isOfViewport(name)))
            continue;
        if (isStyle)
            styles += name + u':' + written + u';';
        else
            m_writer.writeAttribute(name, written);
    }
    if (!styles.isEmpty())
        m_writer.writeAttribute(QStringLiteral("style"), styles);
}

QString SvgDocumentWriter::value(QStringView name, const QString &raw)
{
    const bool isDash = name == QLatin1String("stroke-dasharray");
    const QString resolved = raw.contains(u'-') ? svgResolvedValue(raw, m_colors.palette) : raw;
    if (isDash && isTooDense(resolved))
        return {};
    if (resolved.contains(QLatin1String("currentColor"), Qt::CaseInsensitive))
        m_written.usesForeground = true;
    return resolved;
}

bool SvgDocumentWriter::isTooDense(QStringView dashes) const
{
    const double pattern = svgNumberSum(dashes);
    return pattern > 0 && m_length * kLengthFactor / pattern > kMaxSvgDashes;
}

} // namespace lorva
