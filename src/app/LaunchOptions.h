// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "model/records/BrowserSource.h"
#include "model/records/DisplayRecords.h"
#include "ui/inspector/FontInspectorViewController.h"

#include <QSize>

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
    /// Content size for the picture, in points.
    QSize windowSize{1720, 920};
    /// Opened for the picture, for the selected family.
    std::optional<LaunchSheet> sheet;
    /// Whether the desktop is to be taken for a dark one.
    std::optional<bool> isDark;
    std::vector<FilePath> folders;
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

/// Reads the arguments after the program's name. Fails with usage; the detail says what was wrong.
/// Relative paths are taken from `workingFolder`.
Result<LaunchOptions> parseLaunchOptions(std::span<const char *const> arguments,
                                         const FilePath &workingFolder);

/// The text of --help.
QString launchHelp();

} // namespace lorva
