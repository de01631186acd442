// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "app/LaunchOptions.h"

#include <functional>

class QWidget;

namespace lorva {

class LorvaAppModel;
class LorvaRootSplitViewController;
class LorvaSettingsViewModel;
class OnboardingOverlayController;

/// Writes what a widget shows as PNG, and ends the program; with status 1 where it cannot.
void writePictureAndEnd(QWidget &shown, const FilePath &target);

/// The picture of --screenshot: what it is to show is opened when the library is there, and taken
/// when all of that is drawn.
///
/// Holds what it is of, which outlives it. Thread: main.
class WindowPicture
{
public:
    /// What can be shown besides the main window; null where it is not.
    struct Extras
    {
        QWidget *settings = nullptr;
        const LorvaSettingsViewModel *settingsViewModel = nullptr;
        OnboardingOverlayController *welcome = nullptr;
    };
    struct Scene
    {
        LorvaAppModel &model;
        LorvaRootSplitViewController &root;
        std::function<void()> showSettings;
        /// As they are now.
        std::function<Extras()> extras;
    };

    WindowPicture(const LaunchOptions &options, Scene scene);

    /// True once everything that is wanted is shown; opens what is missing.
    bool isReady();
    /// Writes the picture, and ends the program.
    void take();

private:
    void open();
    bool playsCard();
    void openSheet();
    bool isOpen() const;
    bool knowsFolders() const;
    QWidget *shown() const;

    const LaunchOptions &m_options;
    const Scene m_scene;
    bool m_wasOpened = false;
    int m_played = 0;
};

} // namespace lorva
