// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontFace.h"
#include "text/TableView.h"

#include <functional>

namespace lorva {

/// What the lookups of `GSUB` or `GPOS` look at and join, read from the table itself: HarfBuzz
/// tells this too, but its work grows without bound on a table made for that.
///
/// Borrows the table's bytes. Thread: any, one at a time per object. Hostile fonts: all functions
/// together take kMaxLookupSteps, and give what they have by then.
class LayoutLookups
{
public:
    enum class Kind { substitution, positioning };
    LayoutLookups(QByteArrayView table, Kind kind, int glyphCount);

    using Visit = std::function<void(quint32 glyph)>;
    /// The glyphs that the lookup may change or move, and those that it does so together with; may
    /// give one several times. What only stands before or after is left out.
    void forEachInput(quint32 lookup, const Visit &visit);

    using VisitAlternates =
        std::function<bool(quint32 glyph, const std::vector<quint32> &alternates)>;
    /// What the lookup puts in the place of single glyphs, the first alternate first; `visit` says
    /// whether to go on.
    void forEachAlternate(quint32 lookup, const VisitAlternates &visit);

    using VisitLigature = std::function<bool(const std::vector<quint32> &glyphs)>;
    /// The glyphs that the lookup joins to one, in the table's order; `visit` says whether to go
    /// on.
    void forEachLigature(quint32 lookup, const VisitLigature &visit);

private:
    struct Subtable
    {
        int type = 0;
        TableView view;
    };

    bool step(quint64 count = 1);
    void forEachSubtable(quint32 lookup, const std::function<void(const Subtable &)> &visit);
    void visitCoverage(const TableView &subtable, quint64 offsetAt, const Visit &visit);
    void visitClasses(const TableView &classes, const std::vector<bool> &wanted,
                      const Visit &visit);
    void visitSubstitution(const Subtable &subtable, const Visit &visit);
    void visitPositioning(const Subtable &subtable, const Visit &visit);
    void visitPairs(const TableView &subtable, const Visit &visit);
    void visitContext(const TableView &subtable, bool isChained, const Visit &visit);
    void visitRules(const TableView &subtable, quint64 setsAt, bool isChained, const Visit &visit);
    void visitRange(quint32 first, quint32 last, const Visit &visit);
    bool visitLigatureSet(const TableView &set, quint32 first, const VisitLigature &visit);
    std::vector<quint32> covered(const TableView &subtable);
    std::vector<quint32> alternates(const Subtable &subtable, quint32 glyph, size_t coverageIndex);

    TableView m_table;
    Kind m_kind;
    quint32 m_glyphCount;
    quint64 m_stepsLeft;
};

} // namespace lorva
