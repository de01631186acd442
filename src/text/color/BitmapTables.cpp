// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/color/BitmapTables.h"

#include <hb.h>

#include <algorithm>
#include <numeric>

namespace lorva {

HeldTable::HeldTable(const Font &font, FontTag tag)
    : m_blob(hb_face_reference_table(hb_font_get_face(font.shapingFont().get()), tag),
             &hb_blob_destroy)
{
    unsigned length = 0;
    const char *const data = hb_blob_get_data(m_blob.get(), &length);
    if (length > 0)
        m_view = TableView(QByteArrayView(data, qsizetype(length)));
}

std::vector<size_t> bySuitability(const std::vector<double> &pixelsPerEm, double wanted)
{
    std::vector<size_t> order(pixelsPerEm.size());
    std::iota(order.begin(), order.end(), size_t(0));
    std::stable_sort(order.begin(), order.end(), [&](size_t a, size_t b) {
        const double first = pixelsPerEm[a];
        const double second = pixelsPerEm[b];
        if ((first >= wanted) != (second >= wanted))
            return first >= wanted;
        return first >= wanted ? first < second : first > second;
    });
    return order;
}

} // namespace lorva
