// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/FontBrowserState.h"
#include "ui/sidebar/SidebarState.h"

namespace lorva {

// What the panes show of the model, as values. Thread: main.

SidebarState sidebarStateOf(LorvaAppModel &model);

/// `logo`: the model's logo, decoded; absent while it is not. `userImages`: as
/// DisplayControlsState::userImages. The state refers to the model, which must outlive it.
FontBrowserState browserStateOf(LorvaAppModel &model, const std::optional<QImage> &logo,
                                const QStringList &userImages);

} // namespace lorva
