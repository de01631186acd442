// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/FontInspectorViewController.h"

namespace lorva {

FontInspectorViewController::FontInspectorViewController(std::shared_ptr<const OrthographyBook>,
                                                         QWidget *parent)
    : QWidget(parent)
{
}

FontInspectorViewController::~FontInspectorViewController() = default;

void FontInspectorViewController::setDelegate(FontInspectorDelegate *) { }

void FontInspectorViewController::showFace(const DisplayedFace &,
                                           const std::optional<FontFamilyActivation> &)
{
}

FontInspectorViewController::Tab FontInspectorViewController::selectedTab() const
{
    return Tab::features;
}

void FontInspectorViewController::setSelectedTab(Tab) { }

bool FontInspectorViewController::isSettled() const
{
    return true;
}

} // namespace lorva
