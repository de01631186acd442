// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/DetailPreviewView.h"

namespace lorva {

DetailPreviewView::DetailPreviewView(QWidget *parent)
    : DetailSection(parent)
{
}

DetailPreviewView::~DetailPreviewView() = default;

void DetailPreviewView::apply(const DetailSpecimen &) { }

QString DetailPreviewView::text() const
{
    return {};
}

bool DetailPreviewView::isEditing() const
{
    return false;
}

int DetailPreviewView::heightFor(int) const
{
    return 200;
}

} // namespace lorva
