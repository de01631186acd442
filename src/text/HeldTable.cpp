// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/HeldTable.h"

#include <hb.h>

namespace lorva {

HeldTable::HeldTable(hb_face_t *face, FontTag tag)
    : m_blob(hb_face_reference_table(face, tag), &hb_blob_destroy)
{
    unsigned length = 0;
    const char *const data = hb_blob_get_data(m_blob.get(), &length);
    if (length > 0)
        m_view = TableView(QByteArrayView(data, qsizetype(length)));
}

HeldTable::HeldTable(const Font &font, FontTag tag)
    : HeldTable(hb_font_get_face(font.shapingFont().get()), tag)
{
}

} // namespace lorva
