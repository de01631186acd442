// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgDocumentReader.h"

#include "base/SvgStyleText.h"
#include "text/color/GlyphPicture.h"
#include "text/FontLimits.h"

#include <QBuffer>

#include <zlib.h>

#include <algorithm>

namespace lorva {

namespace {

constexpr QByteArrayView kGzipStart("\x1f\x8b", 2);
/// Of zlib: a window of any size, and the header of gzip.
constexpr int kGzipWindowBits = 16 + MAX_WBITS;

// Not translated: nobody is told. A glyph whose document cannot be read is drawn without it.

tl::unexpected<Error> tooMuch()
{
    return failure(ErrorKind::tooLarge, QStringLiteral("the SVG document is too large"));
}

tl::unexpected<Error> damaged()
{
    return failure(ErrorKind::malformed, QStringLiteral("the SVG document is damaged"));
}

QString withoutPrefix(QStringView name)
{
    constexpr QLatin1String prefix("svg:");
    return (name.startsWith(prefix) ? name.sliced(prefix.size()) : name).toString();
}

void addSize(SvgDocument::Element &element, const QString &name, int length)
{
    const bool isGiven = std::any_of(element.attributes.begin(), element.attributes.end(),
                                     [&](const SvgDeclaration &one) { return one.name == name; });
    if (!isGiven)
        element.attributes.push_back({name, QString::number(length)});
}

QByteArray asPng(const QImage &picture)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    constexpr int fastest = 100;
    picture.save(&buffer, "png", fastest);
    return bytes;
}

} // namespace

Result<QByteArray> inflatedSvg(QByteArrayView bytes)
{
    if (!bytes.startsWith(kGzipStart))
        return bytes.size() > kMaxSvgDocumentBytes ? Result<QByteArray>(tooMuch())
                                                   : bytes.toByteArray();
    z_stream stream{};
    if (bytes.size() > kMaxSvgDocumentBytes)
        return tooMuch();
    if (inflateInit2(&stream, kGzipWindowBits) != Z_OK)
        return damaged();
    const std::unique_ptr<z_stream, decltype(&inflateEnd)> end(&stream, &inflateEnd);
    // zlib does not write through it.
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(bytes.data()));
    stream.avail_in = uInt(bytes.size());
    QByteArray out;
    int state = Z_OK;
    while (state == Z_OK && out.size() <= kMaxSvgDocumentBytes) {
        constexpr qsizetype step = 65'536;
        const qsizetype held = out.size();
        out.resize(held + step);
        stream.next_out = reinterpret_cast<Bytef *>(out.data() + held);
        stream.avail_out = uInt(step);
        state = inflate(&stream, Z_NO_FLUSH);
        out.chop(stream.avail_out);
    }
    if (out.size() > kMaxSvgDocumentBytes)
        return tooMuch();
    return state == Z_STREAM_END ? Result<QByteArray>(out) : damaged();
}

SvgDocumentReader::SvgDocumentReader(const QByteArray &xml)
    : m_reader(xml)
{
    // Prefixes that nobody declared are common, and no reason to refuse a document.
    m_reader.setNamespaceProcessing(false);
    m_document.m_size = xml.size();
}

Result<SvgDocument> SvgDocumentReader::read()
{
    while (!m_reader.atEnd() && !m_isTooMuch)
        take(m_reader.readNext());
    if (m_isTooMuch)
        return tooMuch();
    if (m_reader.hasError() || m_document.m_elements.empty())
        return damaged();
    m_document.m_hasStrokes |= m_document.m_sheet.hasStrokes();
    if (!m_document.weigh(0))
        return tooMuch();
    return std::move(m_document);
}

void SvgDocumentReader::take(QXmlStreamReader::TokenType token)
{
    // Entities could repeat themselves without end; a plain document type does no harm.
    if (token == QXmlStreamReader::DTD && !m_reader.entityDeclarations().isEmpty())
        m_reader.raiseError(QStringLiteral("entities"));
    else if (token == QXmlStreamReader::StartElement)
        beginElement();
    else if (token == QXmlStreamReader::EndElement)
        m_open.pop_back();
}

void SvgDocumentReader::beginElement()
{
    const QString name = withoutPrefix(m_reader.qualifiedName());
    const bool isRoot = m_document.m_elements.empty();
    if (isRoot && name != QLatin1String("svg"))
        m_reader.raiseError(QStringLiteral("no drawing"));
    else if (name == QLatin1String("style"))
        m_document.m_sheet.add(m_reader.readElementText(QXmlStreamReader::SkipChildElements));
    else if (isSvgElement(name))
        addElement(name);
    else
        m_reader.skipCurrentElement();
}

void SvgDocumentReader::addElement(const QString &name)
{
    const size_t index = m_document.m_elements.size();
    m_isTooMuch |=
        m_open.size() >= size_t(kMaxSvgDepth) || double(index) >= kMaxSvgDocumentElements;
    SvgDocument::Element element;
    element.name = name;
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        addAttribute(element, attribute.qualifiedName().toString(), attribute.value().toString());
    // Many write both, for readers of either.
    const bool isNew = attributes.hasAttribute(QLatin1String("href"));
    addReference(element,
                 attributes.value(QLatin1String(isNew ? "href" : "xlink:href")).toString());
    if (!m_open.empty()) {
        element.parent = m_open.back();
        m_document.m_elements[element.parent].children.push_back(index);
    }
    if (!element.id.isEmpty() && !m_document.m_byId.contains(element.id))
        m_document.m_byId.insert(element.id, index);
    m_document.m_elements.push_back(std::move(element));
    m_open.push_back(index);
}

void SvgDocumentReader::addAttribute(SvgDocument::Element &element, const QString &key,
                                     const QString &value)
{
    if (!isSvgAttribute(key) || hasOutsideUrl(value) || value.contains(u'\\'))
        return;
    if (key == QLatin1String("id"))
        element.id = isPlainSvgId(value) ? value : QString();
    else if (key == QLatin1String("class"))
        element.classes = value;
    else if (key == QLatin1String("style"))
        addStyle(element, value);
    else
        element.attributes.push_back({key, value});
    m_document.m_hasStrokes |= isSvgStroke(key, value);
    element.references += svgUrlIds(value);
}

void SvgDocumentReader::addReference(SvgDocument::Element &element, const QString &value)
{
    const QString target = value.trimmed();
    QString kept;
    if (element.name == QLatin1String("image"))
        kept = carriedPicture(element, target);
    else if (target.startsWith(u'#') && isPlainSvgId(QStringView(target).sliced(1)))
        kept = target;
    if (kept.isEmpty())
        return;
    element.attributes.push_back({QStringLiteral("xlink:href"), kept});
    if (kept.startsWith(u'#'))
        element.references.append(kept.sliced(1));
}

/// Kept as declarations, which count more than attributes do.
void SvgDocumentReader::addStyle(SvgDocument::Element &element, const QString &value)
{
    for (const SvgDeclaration &declaration : svgDeclarations(safeStyleText(value))) {
        m_document.m_hasStrokes |= isSvgStroke(declaration.name, declaration.value);
        element.attributes.push_back(
            {QString(QLatin1String("style:") + declaration.name), declaration.value});
    }
}

QString SvgDocumentReader::carriedPicture(SvgDocument::Element &element, const QString &value)
{
    const qsizetype comma = value.indexOf(u',');
    const QString head = value.left(std::max<qsizetype>(comma, 0)).trimmed();
    if (!head.startsWith(QLatin1String("data:image/"), Qt::CaseInsensitive)
        || !head.endsWith(QLatin1String(";base64"), Qt::CaseInsensitive))
        return {};
    const QByteArray bytes = QByteArray::fromBase64(value.mid(comma + 1).toLatin1());
    const QSize size = glyphPictureSize(bytes);
    m_picturePixels += qint64(size.width()) * size.height();
    m_isTooMuch |= m_picturePixels > kMaxSvgPicturePixels;
    const QImage picture = m_isTooMuch ? QImage() : readGlyphPicture(bytes);
    if (picture.isNull())
        return {};
    addSize(element, QStringLiteral("width"), size.width());
    addSize(element, QStringLiteral("height"), size.height());
    return QLatin1String("data:image/png;base64,") + QString::fromLatin1(asPng(picture).toBase64());
}

} // namespace lorva
