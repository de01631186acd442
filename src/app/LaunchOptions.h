// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "model/records/DisplayRecords.h"

#include <QSize>

#include <optional>
#include <span>
#include <vector>

namespace lorva {

/// What the command line asks of the program.
struct LaunchOptions
{
    bool showsHelp = false;
    bool showsVersion = false;
    /// Show the main window off screen, write its picture here, and quit.
    std::optional<FilePath> screenshot;
    /// Content size for the picture, in points.
    QSize windowSize{1720, 920};
    std::vector<FilePath> folders;
    std::optional<ViewMode> viewMode;
    std::optional<ColorMode> colorMode;
    std::optional<double> pointSize;
    std::optional<QString> sampleText;
};

/// Reads the arguments after the program's name. Fails with usage; the detail says what was wrong.
/// Relative paths are taken from `workingFolder`.
Result<LaunchOptions> parseLaunchOptions(std::span<const char *const> arguments,
                                         const FilePath &workingFolder);

/// The text of --help.
QString launchHelp();

} // namespace lorva
