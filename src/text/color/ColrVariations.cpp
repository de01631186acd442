// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/ColrVariations.h"

#include <algorithm>

namespace lorva {

ColrVariations::ColrVariations(TableView store, TableView indexMap,
                               const std::vector<int> &coordinates)
    : m_store(store)
    , m_indexMap(indexMap)
{
    if (std::any_of(coordinates.begin(), coordinates.end(), [](int c) { return c != 0; }))
        m_regionScalars = m_store.regionScalars(coordinates);
}

double ColrVariations::delta(quint32 index)
{
    if (index == kNone || m_regionScalars.empty())
        return 0;
    const DeltaSetIndex place = m_indexMap.map(index);
    m_steps -= m_store.columnCount(place.outer);
    return m_steps < 0 ? 0 : m_store.delta(place, m_regionScalars);
}

} // namespace lorva
