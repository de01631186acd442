// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/StyleRowsView.h"

namespace lorva {

StyleRowsView::StyleRowsView(std::shared_ptr<FontResolver>, QWidget *parent)
    : DetailSection(parent)
{
}

StyleRowsView::~StyleRowsView() = default;

void StyleRowsView::apply(const FontDetailState &, const std::vector<FontStyleRecord> &,
                          const QString &)
{
}

void StyleRowsView::setColors(const QColor &, const QColor &) { }

int StyleRowsView::heightFor(int) const
{
    return 200;
}

void StyleRowsView::setVisibleBand(int, int) { }

bool StyleRowsView::isSettled() const
{
    return true;
}

} // namespace lorva
