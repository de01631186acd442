// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/ReferencePicture.h"

#include <QHash>
#include <QProcess>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

namespace lorva::test {

namespace {

QByteArray runHbView(const ReferenceRequest &request, const QStringList &how)
{
    QStringList arguments = how;
    const auto add = [&](const char *option, const QString &value) {
        if (!value.isEmpty())
            arguments << QString(QLatin1String(option) + value);
    };
    add("--features=", request.features);
    add("--variations=", request.variations);
    add("--language=", request.language);
    add("--direction=", request.direction);
    add("--script=", request.script);
    add("--face-index=", QString::number(request.faceIndex));
    add("--text=", request.lines.join(u'\n'));
    arguments << request.font.displayText();
    QProcess process;
    process.start(QStringLiteral("hb-view"), arguments);
    process.waitForFinished(60'000);
    EXPECT_TRUE(process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        << "hb-view (package libharfbuzz-bin) fails on "
        << qUtf8Printable(request.font.displayText()) << ": "
        << process.readAllStandardError().constData();
    return process.readAllStandardOutput();
}

/// The path data that cairo writes: absolute M, L, C and Z with blanks between.
QPainterPath pathOf(QStringView data)
{
    QPainterPath path;
    const QList<QStringView> words = data.split(u' ', Qt::SkipEmptyParts);
    const auto point = [&](qsizetype at) {
        return at + 1 < words.size() ? QPointF(words[at].toDouble(), words[at + 1].toDouble())
                                     : QPointF();
    };
    for (qsizetype i = 0; i < words.size();) {
        const QStringView command = words[i++];
        if (command == u"M") {
            path.moveTo(point(i));
            i += 2;
        } else if (command == u"L") {
            path.lineTo(point(i));
            i += 2;
        } else if (command == u"C") {
            path.cubicTo(point(i), point(i + 2), point(i + 4));
            i += 6;
        } else if (command == u"Z") {
            path.closeSubpath();
        } else {
            ADD_FAILURE() << "unknown path command " << command.toUtf8().constData();
            return {};
        }
    }
    return path;
}

/// Reads symbols and where they are used.
class SvgReader
{
public:
    SvgReader(const QByteArray &svg, double lineHeight)
        : m_xml(svg)
        , m_lineHeight(lineHeight)
    {
    }

    ReferencePicture read(qsizetype lineCount)
    {
        m_picture.lines.resize(size_t(lineCount));
        while (!m_xml.atEnd()) {
            if (m_xml.readNext() == QXmlStreamReader::StartElement)
                readElement(m_xml.attributes());
        }
        EXPECT_FALSE(m_xml.hasError()) << qUtf8Printable(m_xml.errorString());
        return m_picture;
    }

private:
    void readElement(const QXmlStreamAttributes &attributes)
    {
        const QStringView name = m_xml.name();
        if (name == u"svg")
            m_picture.width =
                attributes.value(QLatin1String("viewBox")).split(u' ').value(2).toDouble();
        else if (name == u"symbol" || name == u"clipPath")
            m_symbol = attributes.value(QLatin1String("id")).toString();
        else if (name == u"path")
            m_symbols[m_symbol] = pathOf(attributes.value(QLatin1String("d")));
        else if (name == u"use")
            use(attributes);
    }

    void use(const QXmlStreamAttributes &attributes)
    {
        const QPointF at(attributes.value(QLatin1String("x")).toDouble(),
                         attributes.value(QLatin1String("y")).toDouble());
        const auto line = size_t(std::max(0.0, at.y() / m_lineHeight));
        const QString href =
            attributes.value(QStringLiteral("http://www.w3.org/1999/xlink"), QStringLiteral("href"))
                .mid(1)
                .toString();
        if (line < m_picture.lines.size())
            m_picture.lines[line].glyphs.push_back(
                {m_symbols[href], at - QPointF(0, (double(line) + 0.5) * m_lineHeight)});
    }

    QXmlStreamReader m_xml;
    const double m_lineHeight;
    QString m_symbol;
    QHash<QString, QPainterPath> m_symbols;
    ReferencePicture m_picture;
};

QStringList extents(int lineHeight, int ascent)
{
    return {QStringLiteral("--font-extents=%1,%2,0").arg(ascent).arg(lineHeight - ascent)};
}

} // namespace

ReferencePicture referencePicture(const ReferenceRequest &request, int unitsPerEm)
{
    // So far apart that a mark's own offset never leads to another line.
    const int lineHeight = 64 * unitsPerEm;
    const QByteArray svg =
        runHbView(request,
                  QStringList{QStringLiteral("--output-format=svg"),
                              QStringLiteral("--font-size=upem"), QStringLiteral("--margin=0")}
                      + extents(lineHeight, lineHeight / 2));
    return svg.isEmpty() ? ReferencePicture()
                         : SvgReader(svg, lineHeight).read(request.lines.size());
}

QImage referencePixels(const ReferenceRequest &request, int sizePx, int lineHeightPx)
{
    const QByteArray png =
        runHbView(request,
                  QStringList{QStringLiteral("--output-format=png"),
                              QStringLiteral("--font-size=%1").arg(sizePx),
                              QStringLiteral("--margin=0,%1").arg(lineHeightPx / 3)}
                      + extents(lineHeightPx, lineHeightPx * 2 / 3));
    const QImage gray = QImage::fromData(png, "PNG").convertToFormat(QImage::Format_Grayscale8);
    QImage coverage(gray.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < gray.height(); ++y) {
        for (int x = 0; x < gray.width(); ++x)
            coverage.setPixel(x, y, qRgba(0, 0, 0, 255 - qGray(gray.pixel(x, y))));
    }
    return coverage;
}

CoverageDifference compareCoverage(const QImage &ours, const QImage &theirs)
{
    CoverageDifference result;
    EXPECT_EQ(ours.size(), theirs.size());
    if (ours.size() != theirs.size() || ours.isNull())
        return {1, 0, 1};
    const int width = ours.width();
    double differing = 0;
    std::vector<int> streak(size_t(width), 0); // differing pixels above each other, so far
    for (int y = 0; y < ours.height(); ++y) {
        const auto *a = reinterpret_cast<const QRgb *>(ours.constScanLine(y));
        const auto *b = reinterpret_cast<const QRgb *>(theirs.constScanLine(y));
        int across = 0;
        for (int x = 0; x < width; ++x) {
            const int difference = std::abs(qAlpha(a[x]) - qAlpha(b[x]));
            differing += difference;
            result.inkPixels += std::max(qAlpha(a[x]), qAlpha(b[x]));
            int &down = streak[size_t(x)];
            down = difference > 127 ? down + 1 : 0;
            across = down >= 3 ? across + 1 : 0;
            result.differentBlocks += across >= 3;
        }
    }
    result.share = result.inkPixels > 0 ? differing / result.inkPixels : 0;
    result.inkPixels /= 255;
    return result;
}

} // namespace lorva::test
