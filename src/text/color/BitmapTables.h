// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"
#include "text/TableView.h"

struct hb_blob_t;

namespace lorva {

/// One table of a face, held in memory. Empty when the face has none.
class HeldTable
{
public:
    HeldTable(const Font &font, FontTag tag);

    const TableView &view() const { return m_view; }

private:
    std::shared_ptr<hb_blob_t> m_blob;
    TableView m_view;
};

/// Of what strikes there are, the order in which they suit a wanted size: the smallest that is
/// large enough first, then the larger ones, then the smaller ones, largest first.
std::vector<size_t> bySuitability(const std::vector<double> &pixelsPerEm, double wanted);

} // namespace lorva
