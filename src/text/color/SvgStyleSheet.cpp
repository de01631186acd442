// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/SvgStyleSheet.h"

#include "base/SvgStyleText.h"
#include "text/FontLimits.h"

#include <algorithm>

namespace lorva {

namespace {

bool isPlainSelector(QStringView text)
{
    return !text.trimmed().isEmpty() && std::all_of(text.begin(), text.end(), [](QChar c) {
        return c.isLetterOrNumber() || c.isSpace() || QStringView(u"-_.#*,>+~").contains(c);
    });
}

/// "g > .a path.b" → ".b": what an element must have, whatever else is asked for.
QString subject(QStringView selector)
{
    const auto isLink = [](QChar c) { return c.isSpace() || QStringView(u">+~").contains(c); };
    const QStringView trimmed = selector.trimmed();
    const auto begin = std::find_if(std::make_reverse_iterator(trimmed.end()),
                                    std::make_reverse_iterator(trimmed.begin()), isLink)
                           .base();
    const QStringView last(begin, trimmed.end());
    const auto mark =
        std::find_if(last.begin(), last.end(), [](QChar c) { return c == u'.' || c == u'#'; });
    if (mark == last.end())
        return last.toString();
    const auto end =
        std::find_if(mark + 1, last.end(), [](QChar c) { return c == u'.' || c == u'#'; });
    return QStringView(mark, end).toString();
}

} // namespace

void SvgStyleSheet::add(const QString &text)
{
    const QString safe = safeStyleText(text);
    const QStringView view(safe);
    qsizetype at = 0;
    for (;;) {
        const qsizetype open = view.indexOf(u'{', at);
        const qsizetype close = open < 0 ? -1 : view.indexOf(u'}', open);
        if (close < 0)
            return;
        addRule(view.sliced(at, open - at), view.sliced(open + 1, close - open - 1));
        at = close + 1;
    }
}

void SvgStyleSheet::addRule(QStringView selectors, QStringView declarations)
{
    if (m_rules.size() >= kMaxSvgRules || !isPlainSelector(selectors))
        return;
    Rule rule{selectors.trimmed().toString(), svgDeclarations(declarations.toString())};
    if (rule.declarations.empty())
        return;
    for (const SvgDeclaration &one : rule.declarations)
        m_hasStrokes |= isSvgStroke(one.name, one.value);
    for (const QStringView selector : selectors.split(u','))
        m_bySubject.insert(subject(selector), m_rules.size());
    m_rules.push_back(std::move(rule));
}

std::vector<const SvgDeclaration *> SvgStyleSheet::declarationsFor(const QString &name,
                                                                   const QString &id,
                                                                   const QString &classes) const
{
    std::vector<const SvgDeclaration *> found;
    if (m_rules.empty())
        return found;
    QStringList subjects{QStringLiteral("*"), name};
    if (!id.isEmpty())
        subjects.append(QString(u'#' + id));
    for (const QString &one : classes.simplified().split(u' ', Qt::SkipEmptyParts))
        subjects.append(QString(u'.' + one));
    subjects.removeDuplicates();
    for (const QString &one : std::as_const(subjects)) {
        const auto [first, last] = m_bySubject.equal_range(one);
        for (auto it = first; it != last; ++it) {
            for (const SvgDeclaration &declaration : m_rules[*it].declarations)
                found.push_back(&declaration);
        }
    }
    return found;
}

} // namespace lorva
