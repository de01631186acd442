// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgDocument.h"

#include "text/color/SvgDocumentReader.h"
#include "text/color/SvgDocumentWriter.h"
#include "text/color/SvgPathWork.h"
#include "text/FontLimits.h"

namespace lorva {

namespace {

/// Percentages and lengths in other units are at most so much longer than their figures.
constexpr double kLongestUnit = 100;
/// So many characters of a declaration are read in the time that it takes to find it.
constexpr double kCharactersPerTrial = 8;

/// Of what an element draws along; colours and the like count too, which does no harm.
double outlineLength(const SvgDeclaration &attribute)
{
    const QString &name = attribute.name;
    const double sum = svgNumberSum(attribute.value);
    if (name == QLatin1String("d") || name == QLatin1String("points"))
        return sum;
    const bool isLength =
        name.size() <= 2 || name == QLatin1String("width") || name == QLatin1String("height");
    const bool hasUnit = !attribute.value.isEmpty() && !attribute.value.back().isDigit();
    return isLength ? sum * (hasUnit ? kLongestUnit : 1) : 0;
}

double outlineCrossings(const SvgDeclaration &attribute, bool mayBeStroked)
{
    const bool isPathData = attribute.name == QLatin1String("d");
    if (!isPathData && attribute.name != QLatin1String("points"))
        return 0;
    return mayBeStroked ? svgMostCrossings(attribute.value, isPathData)
                        : svgCrossings(attribute.value, isPathData);
}

QStringView bareName(const QString &name)
{
    constexpr QLatin1String style("style:");
    return name.startsWith(style) ? QStringView(name).sliced(style.size()) : QStringView(name);
}

/// Not translated, like all that fails here: such a glyph is drawn otherwise, and nobody is told.
tl::unexpected<Error> tooMuch()
{
    return failure(ErrorKind::tooLarge, QStringLiteral("the SVG glyph is too complicated"));
}

} // namespace

Result<SvgDocument> SvgDocument::read(QByteArrayView bytes)
{
    const Result<QByteArray> xml = inflatedSvg(bytes);
    if (!xml)
        return tl::unexpected(xml.error());
    return SvgDocumentReader(*xml).read();
}

/// Style sheets count where they stand in the document's order, but mean all of it: so this comes
/// last.
bool SvgDocument::weigh(size_t index)
{
    Element &element = m_elements[index];
    SvgReferences::Weight own{.elements = 1};
    for (const SvgDeclaration &attribute : element.attributes) {
        const bool isReference = attribute.name == QLatin1String("xlink:href");
        own.bytes += isReference ? 0 : double(attribute.value.size());
        own.layers += isSvgLayer(bareName(attribute.name), attribute.value) ? 1 : 0;
        own.length += outlineLength(attribute);
        own.crossings += outlineCrossings(attribute, m_hasStrokes);
    }
    for (const SvgDeclaration *declaration :
         m_sheet.declarationsFor(element.name, element.id, element.classes)) {
        own.layers += isSvgLayer(declaration->name, declaration->value) ? 1 : 0;
        element.references += svgUrlIds(declaration->value);
        m_matches += 1 + double(declaration->value.size()) / kCharactersPerTrial;
        if (m_matches > kMaxSvgRuleTrials)
            return false;
    }
    element.references.removeDuplicates();
    m_references.begin(element.id, element.references, own);
    for (const size_t child : element.children) {
        if (!weigh(child))
            return false;
    }
    m_references.end();
    return true;
}

Result<SvgReferences::Weight> SvgDocument::weight(const QString &id)
{
    const auto found = m_byId.constFind(id);
    if (found == m_byId.constEnd())
        return failure(ErrorKind::notFound, QStringLiteral("no such element"));
    const auto weight = m_references.expanded(*found);
    if (!weight || weight->elements > kMaxSvgElements || weight->bytes > kMaxSvgAttributeBytes
        || weight->layers > kMaxSvgLayers || weight->crossings > kMaxSvgCrossings
        || weight->elements * double(m_sheet.rules().size()) > kMaxSvgRuleTrials)
        return tooMuch();
    return *weight;
}

void SvgDocument::markNeeded(size_t index, std::vector<char> &marks) const
{
    if (marks[index] == SvgDocumentWriter::kWhole)
        return;
    marks[index] = SvgDocumentWriter::kWhole;
    const Element &element = m_elements[index];
    for (const size_t child : element.children)
        markNeeded(child, marks);
    for (const QString &id : element.references) {
        const auto found = m_byId.constFind(id);
        if (found != m_byId.constEnd())
            markNeeded(*found, marks);
    }
    for (size_t at = index; at != 0;) {
        at = m_elements[at].parent;
        if (marks[at] == SvgDocumentWriter::kLeftOut)
            marks[at] = SvgDocumentWriter::kShell;
    }
}

SvgDocument::Written SvgDocument::write(const QString &id, const Canvas &canvas,
                                        const Colors &colors)
{
    const auto found = m_byId.constFind(id);
    const Result<SvgReferences::Weight> cost = weight(id);
    if (!cost)
        return {};
    std::vector<char> marks(m_elements.size(), SvgDocumentWriter::kLeftOut);
    markNeeded(*found, marks);
    marks[0] = std::max(marks[0], SvgDocumentWriter::kShell);
    return SvgDocumentWriter(m_elements, marks, m_sheet, colors, cost->length).write(canvas);
}

} // namespace lorva
