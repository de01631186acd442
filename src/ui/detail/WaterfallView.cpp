// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/WaterfallView.h"

namespace lorva {

WaterfallView::WaterfallView(QWidget *parent)
    : DetailSection(parent)
{
}

WaterfallView::~WaterfallView() = default;

void WaterfallView::apply(const DetailSpecimen &) { }

SpecimenPage WaterfallView::page() const
{
    return {};
}

int WaterfallView::heightFor(int) const
{
    return 200;
}

void WaterfallView::setVisibleBand(int, int) { }

} // namespace lorva
