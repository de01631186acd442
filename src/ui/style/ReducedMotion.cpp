// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/ReducedMotion.h"

#include <QApplication>
#include <QStyle>
#include <QWidget>

namespace lorva {

namespace {

std::optional<bool> &reducedMotionOverride()
{
    static std::optional<bool> reduced;
    return reduced;
}

} // namespace

bool prefersReducedMotion(const QWidget *widget)
{
    if (reducedMotionOverride())
        return *reducedMotionOverride();
    const QStyle *style = widget ? widget->style() : QApplication::style();
    return style->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, widget) == 0;
}

void setReducedMotionOverride(std::optional<bool> reduced)
{
    reducedMotionOverride() = reduced;
}

} // namespace lorva
