// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/StyleActivations.h"
#include "ui/browser/FontBrowserState.h"
#include "ui/detail/FontDetailState.h"
#include "ui/DetailActions.h"
#include "ui/sidebar/SidebarState.h"

namespace lorva {

// What the panes show of the model, as values. Thread: main.

SidebarState sidebarStateOf(LorvaAppModel &model);

/// What the browser shows besides the model: pictures, as far as they are decoded.
struct PanePictures
{
    /// The model's logo; absent while it is being decoded.
    std::optional<QImage> logo;
    /// As DisplayControlsState.
    QStringList userImages;
    std::shared_ptr<const BackgroundImageStore> imageStore;
    QImage userThumbnail;
};

/// The state refers to the model, which must outlive it.
FontBrowserState browserStateOf(LorvaAppModel &model, const PanePictures &pictures);

/// `family` is the model's; `browser` what the browser shows at the same moment.
FontDetailState detailStateOf(LorvaAppModel &model, const FontFamilyRecord &family,
                              const FontBrowserState &browser, const DetailSession &session,
                              const StyleActivations &styles);

} // namespace lorva
