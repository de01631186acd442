// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/SpecimenPage.h"

namespace lorva {

void paintPage(QPainter &, const SpecimenPage &) { }

Result<void> writePage(const SpecimenPage &, const QColor &, const FilePath &)
{
    return {};
}

} // namespace lorva
