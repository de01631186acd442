// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/discover/DiscoverViewController.h"

namespace lorva {

DiscoverViewController::DiscoverViewController(std::shared_ptr<DesktopOpener> desktop,
                                               QWidget *parent,
                                               std::vector<DiscoverFoundry> foundries)
    : QWidget(parent)
    , m_desktop(std::move(desktop))
    , m_foundries(std::move(foundries))
{
    setObjectName(QStringLiteral("DiscoverViewController"));
}

DiscoverViewController::~DiscoverViewController() = default;

void DiscoverViewController::focusPage() { }

bool DiscoverViewController::isSettled() const
{
    return true;
}

} // namespace lorva
