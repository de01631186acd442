// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailTopBar.h"

namespace lorva {

DetailTopBar::DetailTopBar(QWidget *parent)
    : QWidget(parent)
{
}

DetailTopBar::~DetailTopBar() = default;

void DetailTopBar::setDelegate(FontDetailDelegate *) { }

void DetailTopBar::apply(const FontDetailState &) { }

void DetailTopBar::setColors(const QColor &, const QColor &) { }

void DetailTopBar::clearSearch() { }

void DetailTopBar::focusSearch() { }

} // namespace lorva
