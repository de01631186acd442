// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "base/SvgReferences.h"
#include "text/color/SvgStyleSheet.h"

#include <QRectF>
#include <QTransform>

namespace lorva {

/// An SVG document of a font, read into what may stand of it, and written anew for one glyph at a
/// time.
///
/// What is left out: scripts, animations, text, filters, patterns, foreign content, every reference
/// to something outside; pictures are taken only from the document itself, decoded and written
/// anew. Immutable but for what it remembers of weights. Thread: any, one at a time per object.
class SvgDocument
{
public:
    /// A document as OpenType `SVG ` holds it, plain or compressed. Fails with `tooLarge` beyond
    /// what FontLimits.h allows, and with `malformed` for what is no SVG or declares entities.
    static Result<SvgDocument> read(QByteArrayView bytes);

    /// An em has so many units in what is written, whatever the font's are.
    static constexpr double kEmSide = 256;
    struct Canvas
    {
        /// Which part is the document's viewport; y down from the glyph's origin.
        QRectF viewBox{0, 0, kEmSide, kEmSide};
        double unitsPerEm = 1000;
        /// Pictures are written as boxes: the library finds no ink in them.
        bool isToBeMeasured = false;
    };
    struct Colors
    {
        std::span<const QRgb> palette;
        QRgb foreground = 0;
    };
    struct Written
    {
        QByteArray xml;
        /// Whether it asks for the foreground.
        bool usesForeground = false;
    };

    /// What drawing the element of that id comes to. Fails with `notFound`, and with `tooLarge`
    /// where it is more than any glyph.
    Result<SvgReferences::Weight> weight(const QString &id);
    /// A document in which that element can be drawn: it, what it lies in, and what it refers to.
    Written write(const QString &id, const Canvas &canvas, const Colors &colors);
    /// Bytes that were read, as a measure of what it keeps.
    qsizetype size() const { return m_size; }

    /// One element, with only such attributes as may stand.
    struct Element
    {
        QString name;
        QString id;
        QString classes;
        std::vector<SvgDeclaration> attributes;
        QStringList references;
        std::vector<size_t> children;
        size_t parent = 0;
    };

private:
    friend class SvgDocumentReader;
    SvgDocument() = default;
    /// False beyond what may be matched.
    bool weigh(size_t index);
    void markNeeded(size_t index, std::vector<char> &marks) const;

    std::vector<Element> m_elements;
    QHash<QString, size_t> m_byId;
    SvgStyleSheet m_sheet;
    SvgReferences m_references;
    double m_matches = 0;
    /// Whether anything says so; what it is meant for may lie anywhere.
    bool m_hasStrokes = false;
    qsizetype m_size = 0;
};

} // namespace lorva
