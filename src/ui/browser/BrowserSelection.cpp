// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/BrowserSelection.h"

#include <algorithm>
#include <cstdlib>

namespace lorva {

void BrowserSelection::setItems(const QStringList &ids)
{
    const int previous = current();
    m_items = ids;
    m_indexByID.clear();
    m_indexByID.reserve(ids.size());
    for (int index = 0; index < ids.size(); ++index)
        m_indexByID.insert(ids.at(index), index);
    m_selected.removeIf([this](const QString &id) { return !m_indexByID.contains(id); });
    settleCurrent(std::max(previous, 0));
}

bool BrowserSelection::isSelected(int index) const
{
    return index >= 0 && index < m_items.size() && m_selected.contains(m_items.at(index));
}

QStringList BrowserSelection::selectedIDs() const
{
    // Not sorted: of ten thousand that would take longer than a frame.
    QStringList ids;
    ids.reserve(m_selected.size());
    for (auto it = m_items.cbegin(); ids.size() < m_selected.size() && it != m_items.cend(); ++it) {
        if (m_selected.contains(*it))
            ids.append(*it);
    }
    return ids;
}

/// The current card has left: the selected one nearest to where it stood takes over.
void BrowserSelection::settleCurrent(int near)
{
    if (m_selected.contains(m_currentID))
        return;
    const auto distance = [&](const QString &id) { return std::abs(indexOf(id) - near); };
    const auto nearest = std::ranges::min_element(m_selected, {}, distance);
    m_currentID = nearest == m_selected.end() ? QString() : *nearest;
}

void BrowserSelection::choose(int index)
{
    m_selected.clear();
    m_currentID = index < 0 ? QString() : m_items.at(index);
    m_anchorID = m_currentID;
    if (index >= 0)
        m_selected.insert(m_currentID);
}

void BrowserSelection::toggle(int index)
{
    if (index < 0)
        return;
    const QString id = m_items.at(index);
    m_anchorID = id;
    if (m_selected.remove(id)) {
        settleCurrent(index);
        return;
    }
    m_selected.insert(id);
    m_currentID = id;
}

void BrowserSelection::extendTo(int index, Others others)
{
    if (index < 0)
        return;
    if (indexOf(m_anchorID) < 0)
        m_anchorID = m_currentID.isEmpty() ? m_items.at(index) : m_currentID;
    if (others == Others::drop)
        m_selected.clear();
    const int anchor = indexOf(m_anchorID);
    for (int each = std::min(anchor, index); each <= std::max(anchor, index); ++each)
        m_selected.insert(m_items.at(each));
    m_currentID = m_items.at(index);
}

void BrowserSelection::selectAll()
{
    m_selected = QSet<QString>(m_items.cbegin(), m_items.cend());
    settleCurrent(0);
    if (indexOf(m_anchorID) < 0)
        m_anchorID = m_currentID;
}

void BrowserSelection::chooseForMenu(int index)
{
    if (isSelected(index))
        m_currentID = m_items.at(index);
    else
        choose(index);
}

void BrowserSelection::applyBand(const std::vector<int> &touched, Band band)
{
    if (band == Band::replace)
        m_selected.clear();
    for (const int index : touched) {
        const QString &id = m_items.at(index);
        if (band != Band::toggle || !m_selected.remove(id))
            m_selected.insert(id);
    }
    settleCurrent(touched.empty() ? 0 : touched.front());
    m_anchorID = m_currentID;
}

void BrowserSelection::mirror(const QString &id)
{
    if (id == m_currentID)
        return;
    if (m_selected.contains(id))
        m_currentID = id;
    else
        choose(indexOf(id));
}

} // namespace lorva
