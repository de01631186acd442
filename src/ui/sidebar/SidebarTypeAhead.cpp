// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarTypeAhead.h"

#include "base/Folding.h"

#include <QApplication>

#include <algorithm>

namespace lorva {

namespace {

bool isOneKeyRepeated(const QString &text)
{
    return std::ranges::all_of(text, [&](QChar c) { return c == text.front(); });
}

} // namespace

bool SidebarTypeAhead::isRunning() const
{
    return m_sinceLast.isValid() && m_sinceLast.elapsed() < QApplication::keyboardInputInterval();
}

qsizetype SidebarTypeAhead::find(const QString &typed, const QStringList &labels, qsizetype current)
{
    m_typed = isRunning() ? QString(m_typed + typed) : typed;
    m_sinceLast.start();
    if (typed.isEmpty() || labels.isEmpty())
        return -1;
    QString wanted = foldedForSearch(m_typed);
    // An accent on its own folds to nothing, with which every label begins.
    if (wanted.isEmpty())
        return -1;
    const bool goesOn = isOneKeyRepeated(wanted);
    if (goesOn)
        wanted.truncate(1);
    const qsizetype count = labels.size();
    const qsizetype start = std::max<qsizetype>(0, goesOn || current < 0 ? current + 1 : current);
    for (qsizetype step = 0; step < count; ++step) {
        const qsizetype place = (start + step) % count;
        if (foldedForSearch(labels.at(place)).startsWith(wanted))
            return place;
    }
    return -1;
}

} // namespace lorva
