// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QListView>

namespace lorva {

/// For a list whose surroundings paint the ground, and that scrolls by an OverlayScrollBar: without
/// frame and bars of its own, one row selected at a time, rows lit up under the mouse. Thread:
/// main.
inline void makeGroundless(QListView &list)
{
    list.setFrameShape(QFrame::NoFrame);
    list.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list.setSelectionMode(QAbstractItemView::SingleSelection);
    list.setAutoFillBackground(false);
    list.viewport()->setAutoFillBackground(false);
    list.viewport()->setAttribute(Qt::WA_Hover);
}

} // namespace lorva
