// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/features/LayoutLookups.h"

#include "text/FontLimits.h"

#include <algorithm>
#include <bit>

namespace lorva {

namespace {

// Lookup types as OpenType numbers them.
constexpr int kSingleSubstitution = 1;
constexpr int kAlternateSubstitution = 3;
constexpr int kLigatureSubstitution = 4;
constexpr int kContextSubstitution = 5;
constexpr int kChainedSubstitution = 6;
constexpr int kSubstitutionExtension = 7;
constexpr int kPairPositioning = 2;
constexpr int kMarkToBase = 4;
constexpr int kMarkToMark = 6;
constexpr int kContextPositioning = 7;
constexpr int kChainedPositioning = 8;
constexpr int kPositioningExtension = 9;

constexpr size_t kClasses = 0x10000;
/// Room for marks of all classes takes as long to make as so many glyphs to visit.
constexpr quint64 kStepsToMarkClasses = 64;

} // namespace

LayoutLookups::LayoutLookups(QByteArrayView table, Kind kind, int glyphCount)
    : m_table(table)
    , m_kind(kind)
    , m_glyphCount(quint32(std::max(0, glyphCount)))
    , m_stepsLeft(kMaxLookupSteps)
{
}

/// False once the work is used up.
bool LayoutLookups::step(quint64 count)
{
    if (count > m_stepsLeft) {
        m_stepsLeft = 0;
        return false;
    }
    m_stepsLeft -= count;
    return true;
}

void LayoutLookups::forEachSubtable(quint32 lookup,
                                    const std::function<void(const Subtable &)> &visit)
{
    const TableView lookups = m_table.from(m_table.u16(8));
    if (lookup >= lookups.u16(0))
        return;
    const TableView table = lookups.from(lookups.u16(2 + quint64(lookup) * 2));
    const int extension =
        m_kind == Kind::substitution ? kSubstitutionExtension : kPositioningExtension;
    for (int i = 0; i < table.u16(4) && step(); ++i) {
        const quint16 offset = table.u16(6 + quint64(i) * 2);
        Subtable subtable{table.u16(0), table.from(offset)};
        if (subtable.type == extension)
            subtable = {subtable.view.u16(2), subtable.view.from(subtable.view.u32(4))};
        if (offset != 0 && !subtable.view.isEmpty())
            visit(subtable);
    }
}

void LayoutLookups::visitRange(quint32 first, quint32 last, const Visit &visit)
{
    for (quint32 glyph = first; glyph <= last && glyph < m_glyphCount && step(); ++glyph)
        visit(glyph);
}

void LayoutLookups::visitCoverage(const TableView &subtable, quint64 offsetAt, const Visit &visit)
{
    const quint16 offset = subtable.u16(offsetAt);
    const TableView coverage = offset != 0 ? subtable.from(offset) : TableView();
    const quint16 count = coverage.u16(2);
    for (quint64 i = 0; i < count && step(); ++i) {
        if (coverage.u16(0) == 1)
            visitRange(coverage.u16(4 + i * 2), coverage.u16(4 + i * 2), visit);
        else if (coverage.u16(0) == 2 && coverage.has(4 + i * 6, 6))
            visitRange(coverage.u16(4 + i * 6), coverage.u16(6 + i * 6), visit);
    }
}

/// The glyphs of the classes that are wanted. Class 0, all glyphs that are not listed, is never
/// told: it stands for "whatever".
void LayoutLookups::visitClasses(const TableView &classes, const std::vector<bool> &wanted,
                                 const Visit &visit)
{
    const auto isWanted = [&](quint16 number) {
        return number != 0 && number < wanted.size() && wanted[number];
    };
    if (classes.u16(0) == 1) {
        for (quint64 i = 0; i < classes.u16(4) && step(); ++i) {
            if (isWanted(classes.u16(6 + i * 2)))
                visitRange(quint32(classes.u16(2) + i), quint32(classes.u16(2) + i), visit);
        }
    } else if (classes.u16(0) == 2) {
        for (quint64 i = 0; i < classes.u16(2) && step(); ++i) {
            const quint64 at = 4 + i * 6;
            if (isWanted(classes.u16(at + 4)) && classes.has(at, 6))
                visitRange(classes.u16(at), classes.u16(at + 2), visit);
        }
    }
}

void LayoutLookups::forEachInput(quint32 lookup, const Visit &visit)
{
    forEachSubtable(lookup, [&](const Subtable &subtable) {
        if (m_kind == Kind::substitution)
            visitSubstitution(subtable, visit);
        else
            visitPositioning(subtable, visit);
    });
}

void LayoutLookups::visitSubstitution(const Subtable &subtable, const Visit &visit)
{
    if (subtable.type == kContextSubstitution || subtable.type == kChainedSubstitution) {
        visitContext(subtable.view, subtable.type == kChainedSubstitution, visit);
        return;
    }
    visitCoverage(subtable.view, 2, visit);
    if (subtable.type != kLigatureSubstitution)
        return;
    for (quint64 i = 0; i < subtable.view.u16(4) && step(); ++i) {
        const TableView set = subtable.view.from(subtable.view.u16(6 + i * 2));
        visitLigatureSet(set, 0, [&](const std::vector<quint32> &glyphs) {
            std::for_each(glyphs.begin() + 1, glyphs.end(), visit);
            return true;
        });
    }
}

void LayoutLookups::visitPositioning(const Subtable &subtable, const Visit &visit)
{
    if (subtable.type == kContextPositioning || subtable.type == kChainedPositioning) {
        visitContext(subtable.view, subtable.type == kChainedPositioning, visit);
        return;
    }
    visitCoverage(subtable.view, 2, visit);
    if (subtable.type == kPairPositioning)
        visitPairs(subtable.view, visit);
    if (subtable.type >= kMarkToBase && subtable.type <= kMarkToMark)
        visitCoverage(subtable.view, 4, visit);
}

/// The second glyphs.
void LayoutLookups::visitPairs(const TableView &subtable, const Visit &visit)
{
    if (subtable.u16(0) == 2) {
        static const std::vector<bool> all(kClasses, true);
        visitClasses(subtable.from(subtable.u16(10)), all, visit);
        return;
    }
    const int values = std::popcount(subtable.u16(4)) + std::popcount(subtable.u16(6));
    const quint64 recordSize = 2 + quint64(values) * 2;
    for (quint64 i = 0; i < subtable.u16(8) && step(); ++i) {
        const TableView set = subtable.from(subtable.u16(10 + i * 2));
        for (quint64 pair = 0; pair < set.u16(0) && step(); ++pair)
            visitRange(set.u16(2 + pair * recordSize), set.u16(2 + pair * recordSize), visit);
    }
}

void LayoutLookups::visitContext(const TableView &subtable, bool isChained, const Visit &visit)
{
    const quint16 format = subtable.u16(0);
    if (format == 3) {
        const quint64 inputAt = isChained ? 4 + quint64(subtable.u16(2)) * 2 : 2;
        const quint64 offsetsAt = isChained ? inputAt + 2 : 6;
        for (quint64 i = 0; i < subtable.u16(inputAt) && step(); ++i)
            visitCoverage(subtable, offsetsAt + i * 2, visit);
        return;
    }
    visitCoverage(subtable, 2, visit);
    if (format == 1) {
        visitRules(subtable, 4, isChained, visit);
    } else if (format == 2 && step(kStepsToMarkClasses)) {
        std::vector<bool> wanted(kClasses);
        visitRules(subtable, isChained ? 10 : 6, isChained,
                   [&](quint32 number) { wanted[number & 0xFFFF] = true; });
        visitClasses(subtable.from(subtable.u16(isChained ? 6 : 4)), wanted, visit);
    }
}

/// The glyphs, or classes, of all rules from the second one of each on.
void LayoutLookups::visitRules(const TableView &subtable, quint64 setsAt, bool isChained,
                               const Visit &visit)
{
    for (quint64 i = 0; i < subtable.u16(setsAt) && step(); ++i) {
        const quint16 setOffset = subtable.u16(setsAt + 2 + i * 2);
        const TableView set = setOffset != 0 ? subtable.from(setOffset) : TableView();
        for (quint64 rule = 0; rule < set.u16(0) && step(); ++rule) {
            const TableView inputs = set.from(set.u16(2 + rule * 2));
            const quint64 countAt = isChained ? 2 + quint64(inputs.u16(0)) * 2 : 0;
            const quint64 firstAt = isChained ? countAt + 2 : 4;
            for (quint64 input = 1; input < inputs.u16(countAt) && step(); ++input)
                visit(inputs.u16(firstAt + (input - 1) * 2));
        }
    }
}

bool LayoutLookups::visitLigatureSet(const TableView &set, quint32 first,
                                     const VisitLigature &visit)
{
    for (quint64 i = 0; i < set.u16(0) && step(); ++i) {
        const TableView ligature = set.from(set.u16(2 + i * 2));
        const quint16 count = ligature.u16(2);
        if (count == 0 || count > kMaxLigatureParts || !step(count))
            continue;
        std::vector<quint32> glyphs{first};
        for (quint64 part = 1; part < count; ++part)
            glyphs.push_back(ligature.u16(4 + (part - 1) * 2));
        if (!visit(glyphs))
            return false;
    }
    return true;
}

/// The glyphs by their coverage index.
std::vector<quint32> LayoutLookups::covered(const TableView &subtable)
{
    std::vector<quint32> glyphs;
    visitCoverage(subtable, 2, [&](quint32 glyph) { glyphs.push_back(glyph); });
    return glyphs;
}

void LayoutLookups::forEachLigature(quint32 lookup, const VisitLigature &visit)
{
    bool goesOn = true;
    forEachSubtable(lookup, [&](const Subtable &subtable) {
        if (!goesOn || subtable.type != kLigatureSubstitution)
            return;
        const std::vector<quint32> firsts = covered(subtable.view);
        const size_t sets = std::min<size_t>(subtable.view.u16(4), firsts.size());
        for (size_t i = 0; i < sets && goesOn; ++i) {
            const TableView set = subtable.view.from(subtable.view.u16(6 + i * 2));
            goesOn = visitLigatureSet(set, firsts[i], visit);
        }
    });
}

std::vector<quint32> LayoutLookups::alternates(const Subtable &subtable, quint32 glyph,
                                               size_t coverageIndex)
{
    const TableView &view = subtable.view;
    if (subtable.type == kSingleSubstitution && view.u16(0) == 1)
        return {(glyph + view.u16(4)) & 0xFFFF};
    if (coverageIndex >= view.u16(4))
        return {};
    const quint16 entry = view.u16(6 + coverageIndex * 2);
    if (subtable.type == kSingleSubstitution)
        return {entry};
    const TableView set = view.from(entry);
    std::vector<quint32> glyphs;
    for (quint64 i = 0; i < std::min<quint64>(set.u16(0), kMaxGlyphAlternates) && step(); ++i)
        glyphs.push_back(set.u16(2 + i * 2));
    return glyphs;
}

void LayoutLookups::forEachAlternate(quint32 lookup, const VisitAlternates &visit)
{
    bool goesOn = true;
    forEachSubtable(lookup, [&](const Subtable &subtable) {
        if (subtable.type != kSingleSubstitution && subtable.type != kAlternateSubstitution)
            return;
        const std::vector<quint32> glyphs = covered(subtable.view);
        for (size_t i = 0; i < glyphs.size() && goesOn && step(); ++i) {
            std::vector<quint32> found = alternates(subtable, glyphs[i], i);
            std::erase_if(found, [this](quint32 glyph) { return glyph >= m_glyphCount; });
            if (!found.empty())
                goesOn = visit(glyphs[i], found);
        }
    });
}

} // namespace lorva
