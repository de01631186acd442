// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace lorva {

/// What specimens are drawn on. The numbers are stored.
enum class ColorMode { white = 0, black = 1, custom = 2, image = 3 };
inline constexpr ColorMode kAllColorModes[]{ColorMode::white, ColorMode::black, ColorMode::custom,
                                            ColorMode::image};

/// The mode stored as `number`; nothing for any other integer.
constexpr std::optional<ColorMode> colorModeFromNumber(qint64 number)
{
    if (number < qint64(ColorMode::white) || number > qint64(ColorMode::image))
        return std::nullopt;
    return ColorMode(number);
}

enum class ViewMode { grid, list };
inline constexpr ViewMode kAllViewModes[]{ViewMode::grid, ViewMode::list};

/// The logo shown beside preview text.
struct LogoConfiguration
{
    /// The image file's bytes as imported.
    QByteArray imageData;
    /// Logo height relative to the text size.
    double sizeRatio = 1;
    /// Between logo and text, in points.
    double spacing = 0;

    bool operator==(const LogoConfiguration &) const = default;
};

/// Display settings kept per browser source. An absent field means that the global value applies.
struct SourceDisplaySettings
{
    std::optional<ColorMode> colorMode;
    /// "#" and six hexadecimal digits, as all colours here.
    std::optional<QString> customForegroundColorHex;
    std::optional<QString> customBackgroundColorHex;
    std::optional<QByteArray> logoImageData;
    std::optional<double> logoSizeRatio;
    std::optional<double> logoSpacing;
    std::optional<bool> logoVisible;
    std::optional<double> browserPointSize;
    std::optional<qint64> browserFontWeight;
    std::optional<QString> sampleText;
    /// A built-in background image.
    std::optional<QString> backgroundImageID;
    /// A background image that the user imported.
    std::optional<QString> backgroundImageUserFilename;
    /// The text's colour over a background image.
    std::optional<QString> imageForegroundColorHex;

    bool operator==(const SourceDisplaySettings &) const = default;
};

} // namespace lorva
