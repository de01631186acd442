// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "base/Result.h"

#include <QColor>
#include <QString>

#include <optional>

namespace lorva::cli {

constexpr int kMaxSpecimenSide = 16384;
constexpr int kMaxSpecimenSize = 4096;

/// What to draw, and where the picture goes. Units: pixels.
struct SpecimenRequest
{
    FilePath font;
    FilePath picture;
    QString text = QStringLiteral("The quick brown fox jumps over the lazy dog");
    int faceIndex = 0;
    /// Empty: the face's default instance.
    QString instance;
    double pixelsPerEm = 48;
    /// Absent: as large as the text and a margin.
    std::optional<int> width;
    std::optional<int> height;
    QColor color = Qt::black;
    QColor background = Qt::white;
};

/// Draws the text and writes it as a PNG, whole or not at all. Fails for a font that cannot be
/// read, a face or instance that it does not have, and a picture that would take the place of a
/// font; the detail names the file.
Result<void> writeSpecimen(const SpecimenRequest &request);

} // namespace lorva::cli
