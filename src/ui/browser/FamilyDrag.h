// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontFamilySubset.h"

#include <QColor>
#include <QMimeData>
#include <QPixmap>
#include <QPoint>
#include <QUrl>

#include <memory>
#include <vector>

namespace lorva {

class FontCollectionItem;

// Families that leave the browser, by a drag or a copy. Thread: main.

/// The distinct font files of the families at `indices`, in their order.
QList<QUrl> fontFileUrls(const FontFamilySubset &families, const std::vector<int> &indices);

/// The families at `indices`, by name for our own windows and as font files for every other
/// program. The list of files is made when somebody asks for it: with all of a large library
/// selected it takes longer than a frame, and most drags end in the sidebar.
std::unique_ptr<QMimeData> familyMimeData(const FontFamilySubset &families,
                                          const std::vector<int> &indices);

struct DragColors
{
    QColor foreground;
    QColor background;
};
/// What hangs at the pointer: the card's specimen made small, and how many there are.
QPixmap familyDragPixmap(const FontCollectionItem &item, int count, const DragColors &colors);
/// Where the pointer is in that picture: beside it, so that the row under the pointer is seen.
inline constexpr QPoint kFamilyDragHotSpot(-4, -4);

} // namespace lorva
