// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <functional>

class QWidget;

namespace lorva {

/// What the welcome says.
struct WelcomeText
{
    QString body;
    /// The button that goes on.
    QString button;
};

/// Welcomes the user at the first start, while the main window is there but cannot be seen.
/// Thread: main.
class OnboardingOverlayController
{
public:
    enum class End {
        /// The user has seen it and went on: it is not shown again.
        continued,
        /// There was nothing to show, or the user closed it: the window appears as at any other
        /// start.
        absent
    };

    virtual ~OnboardingOverlayController() = default;
    /// `ended` is called once, at once or later; the controller may be gone when it returns.
    virtual void show(QWidget &mainWindow, const WelcomeText &text,
                      std::function<void(End)> ended) = 0;
    /// What is shown, for a picture of it; null while nothing is.
    virtual QWidget *overlay() { return nullptr; }
    /// For a picture: the scene at its end, or the card over it, with nothing moving any more.
    virtual void settleForPicture(bool /*showsCard*/) { }
};

/// No welcome.
class AbsentOnboarding final : public OnboardingOverlayController
{
public:
    void show(QWidget &, const WelcomeText &, std::function<void(End)> ended) override
    {
        ended(End::absent);
    }
};

} // namespace lorva
