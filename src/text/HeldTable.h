// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/Font.h"
#include "text/TableView.h"

#include <algorithm>

struct hb_blob_t;
struct hb_face_t;

namespace lorva {

/// One table of a face, held in memory while this and its copies live. Empty when the face has
/// none. Thread: any.
class HeldTable
{
public:
    HeldTable() = default;
    HeldTable(hb_face_t *face, FontTag tag);
    HeldTable(const Font &font, FontTag tag);

    const TableView &view() const { return m_view; }
    /// At most `limit` bytes from the start.
    QByteArrayView bytes(quint64 limit) const
    {
        return m_view.bytes(0, std::min(limit, m_view.size()));
    }

private:
    std::shared_ptr<hb_blob_t> m_blob;
    TableView m_view;
};

} // namespace lorva
