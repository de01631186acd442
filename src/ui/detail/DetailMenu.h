// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/FontDetailState.h"

#include <functional>

class QMenu;

namespace lorva {

/// What the detail view's own menu is about. The delegate outlives the menu.
struct DetailMenuSubject
{
    const FontDetailState &state;
    FontDetailDelegate &delegate;
    std::function<void()> exportPage;
    std::function<void()> copyCss;
};

/// Where the family belongs, switching it on and off, and what can be taken away of the page.
QMenu *makeDetailMenuFor(const DetailMenuSubject &subject, QWidget *parent);

} // namespace lorva
