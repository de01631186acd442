// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"
#include "text/TextLayout.h"

#include <QColor>
#include <QString>

#include <optional>

namespace lorva::cli {

constexpr int kMaxSpecimenSide = 16384;
constexpr int kMaxSpecimenSize = 4096;
/// Either way.
constexpr int kMaxSpecimenLetterSpacing = 1000;

/// What to draw, and where the picture goes. Units: pixels.
struct SpecimenRequest
{
    FilePath font;
    /// Its name's end says what to write: ".png", ".svg" or ".pdf".
    FilePath picture;
    QString text = QStringLiteral("The quick brown fox jumps over the lazy dog");
    int faceIndex = 0;
    /// Empty: the face's default instance.
    QString instance;
    std::vector<VariationSetting> variations;
    std::vector<FeatureSetting> features;
    /// Absent: the font's first palette.
    std::optional<int> palette;
    double pixelsPerEm = 48;
    double letterSpacing = 0;
    TextDirection direction = TextDirection::automatic;
    /// BCP 47; empty: as TextLayoutOptions has it.
    QByteArray language;
    /// Absent: as large as the text and a margin.
    std::optional<int> width;
    std::optional<int> height;
    QColor color = Qt::black;
    QColor background = Qt::white;
};

/// Draws the text and writes it as a picture, whole or not at all; gives notes about what was asked
/// for and could not be had, one line each. Fails for a font that cannot be read, a face, instance,
/// axis or palette that it does not have, a picture of no known kind, and one that would take the
/// place of a font; the detail names the file.
Result<std::vector<QString>> writeSpecimen(const SpecimenRequest &request);

} // namespace lorva::cli
