// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/FontLimits.h"
#include "text/ItemVariationStore.h"

#include <vector>

namespace lorva {

/// How the values of OpenType `COLR` vary at one place in the font's design space.
///
/// Borrows the table's bytes. Thread: any, one at a time per object. Hostile fonts: deltas beyond
/// kMaxPaintDeltaSteps count as no variation.
class ColrVariations
{
public:
    /// The value that says that a record does not vary.
    static constexpr quint32 kNone = 0xFFFFFFFF;

    ColrVariations() = default;
    /// Coordinates are normalised, 2.14 fixed point, in axis order.
    ColrVariations(TableView store, TableView indexMap, const std::vector<int> &coordinates);

    /// What to add to the value, in units of the value's last binary place.
    double delta(quint32 index);

private:
    ItemVariationStore m_store;
    DeltaSetIndexMap m_indexMap;
    /// Empty at the default place, where nothing varies.
    std::vector<float> m_regionScalars;
    qint64 m_steps = kMaxPaintDeltaSteps;
};

} // namespace lorva
