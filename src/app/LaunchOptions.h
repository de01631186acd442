// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"
#include "ui/inspector/FontInspectorViewController.h"

#include <QSize>
#include <QStringList>

#include <optional>
#include <span>
#include <vector>

namespace lorva {

/// A place that the browser can show, as the command line names it.
struct LaunchSource
{
    BrowserSource::Kind kind = BrowserSource::Kind::allFonts;
    /// Of a style category or foundry its id, of a collection its name.
    QString text;

    bool operator==(const LaunchSource &) const = default;
};

/// What can be opened over the window, for its picture.
enum class LaunchSheet { activate, deactivate, history, settings };

/// Where the font quiz can be started.
enum class LaunchQuiz { intro, playing, poster };
/// What the welcome shows on a picture.
enum class LaunchWelcome { scene, card };

/// What the command line asks of the program.
struct LaunchOptions
{
    bool showsHelp = false;
    bool showsVersion = false;
    /// Show the main window off screen, write its picture here, and quit.
    std::optional<FilePath> screenshot;
    static constexpr QSize kWindowSize{1720, 920};
    /// Content size for the picture, in points; each window has its own where none is asked for.
    std::optional<QSize> windowSize;
    /// Opened for the picture, for the selected family.
    std::optional<LaunchSheet> sheet;
    /// Whether the desktop is to be taken for a dark one.
    std::optional<bool> isDark;
    std::vector<FilePath> folders;
    /// What is to be opened, as a file manager would: font files are shown by themselves, folders
    /// are added. Which of them are what is for the disk to say.
    std::vector<FilePath> places;
    /// Addresses that were given in place of paths, and name no file of this computer.
    QStringList foreignPlaces;
    /// Something is said about the library's window.
    bool isAboutLibrary = false;
    std::optional<LaunchSource> source;
    std::optional<QString> searchText;
    std::optional<QString> selectedFamily;
    /// Opened in the detail view.
    std::optional<QString> detailFamily;
    std::optional<DetailStage> detailStage;
    std::optional<FontInspectorViewController::Tab> inspectorTab;
    std::optional<LaunchQuiz> quiz;
    /// The welcome is shown, whether it was seen before or not.
    std::optional<LaunchWelcome> welcome;
    /// It is not shown, whether it was seen before or not.
    bool skipsWelcome = false;
    std::optional<ViewMode> viewMode;
    std::optional<ColorMode> colorMode;
    /// One of builtInBackgroundImages().
    std::optional<QString> backgroundImageID;
    std::optional<FilePath> logo;
    std::optional<double> pointSize;
    std::optional<int> weight;
    std::optional<QString> sampleText;
};

inline bool opensPlaces(const LaunchOptions &options)
{
    return !options.places.empty() || !options.foreignPlaces.isEmpty();
}

/// What is opened without any word about the library's window.
inline bool opensPlacesAlone(const LaunchOptions &options)
{
    return opensPlaces(options) && !options.isAboutLibrary;
}

/// Reads the arguments after the program's name. Fails with usage; the detail says what was wrong.
/// Relative paths are taken from `workingFolder`.
Result<LaunchOptions> parseLaunchOptions(std::span<const char *const> arguments,
                                         const FilePath &workingFolder);

} // namespace lorva
