// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/VariantBar.h"

namespace lorva {

VariantBar::VariantBar(QWidget *parent)
    : QWidget(parent)
{
}

VariantBar::~VariantBar() = default;

void VariantBar::apply(const QStringList &, const QString &) { }

void VariantBar::setColors(const QColor &, const QColor &) { }

} // namespace lorva
