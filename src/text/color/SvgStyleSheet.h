// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/color/SvgVocabulary.h"

#include <QHash>

namespace lorva {

/// The style sheets of a document, of which only what may stand is left, and what their rules mean
/// for its cost. Built once, then only read. Thread: any.
class SvgStyleSheet
{
public:
    struct Rule
    {
        QString selectors;
        std::vector<SvgDeclaration> declarations;
    };

    /// Adds the text of one "style" element. Rules with selectors beyond names, classes, ids and
    /// how they lie in each other are left out, and all beyond kMaxSvgRules.
    void add(const QString &text);

    const std::vector<Rule> &rules() const { return m_rules; }
    bool hasStrokes() const { return m_hasStrokes; }
    /// The declarations of all rules that may be meant for such an element.
    std::vector<const SvgDeclaration *> declarationsFor(const QString &name, const QString &id,
                                                        const QString &classes) const;

private:
    void addRule(QStringView selectors, QStringView declarations);

    std::vector<Rule> m_rules;
    bool m_hasStrokes = false;
    /// By the last name, ".class" or "#id" of a selector.
    QMultiHash<QString, size_t> m_bySubject;
};

} // namespace lorva
