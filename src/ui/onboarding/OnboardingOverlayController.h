// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

class QWidget;

namespace lorva {

/// Welcomes the user at the first start, while the main window is there but cannot be seen.
/// Thread: main.
class OnboardingOverlayController
{
public:
    enum class End {
        /// The user has seen it and went on: it is not shown again.
        continued,
        /// There was nothing to show: the window appears as at any other start.
        absent
    };

    virtual ~OnboardingOverlayController() = default;
    /// `ended` is called once, at once or later; the controller may be gone when it returns.
    virtual void show(QWidget &mainWindow, std::function<void(End)> ended) = 0;
};

/// No welcome.
class AbsentOnboarding final : public OnboardingOverlayController
{
public:
    void show(QWidget &, std::function<void(End)> ended) override { ended(End::absent); }
};

} // namespace lorva
