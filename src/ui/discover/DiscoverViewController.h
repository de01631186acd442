// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "platform/DesktopOpener.h"
#include "ui/discover/DiscoverFoundry.h"

#include <QWidget>

#include <memory>

namespace lorva {

/// The Discover page: the catalogue of foundries as a grid of cards. It knows nothing of the
/// library. Thread: main.
class DiscoverViewController final : public QWidget
{
    Q_OBJECT
public:
    /// `desktop` opens the foundries' sites; null: links do nothing. `foundries`: the catalogue,
    /// but in tests.
    explicit DiscoverViewController(std::shared_ptr<DesktopOpener> desktop,
                                    QWidget *parent = nullptr,
                                    std::vector<DiscoverFoundry> foundries = discoverFoundries());
    ~DiscoverViewController() override;

    /// Gives the keyboard to the first card's link.
    void focusPage();
    /// All artwork in sight is drawn.
    bool isSettled() const;

private:
    const std::shared_ptr<DesktopOpener> m_desktop;
    const std::vector<DiscoverFoundry> m_foundries;
};

} // namespace lorva
