// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/ComparisonView.h"

namespace lorva {

ComparisonView::ComparisonView(std::shared_ptr<FontResolver>, QWidget *parent)
    : DetailSection(parent)
{
}

ComparisonView::~ComparisonView() = default;

void ComparisonView::apply(const DetailSpecimen &) { }

void ComparisonView::setStyle(const FontStyleRecord &) { }

void ComparisonView::setFamilies(const FontFamilySubset &) { }

QStringList ComparisonView::otherFamilies() const
{
    return {};
}

void ComparisonView::setOtherFamilies(const QStringList &) { }

SpecimenPage ComparisonView::page() const
{
    return {};
}

int ComparisonView::heightFor(int) const
{
    return 200;
}

bool ComparisonView::isSettled() const
{
    return true;
}

} // namespace lorva
