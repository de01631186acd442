// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"

#include <QImage>
#include <QPainterPath>
#include <QString>

#include <vector>

namespace lorva::test {

/// What `hb-view` (package libharfbuzz-bin) is asked to draw.
struct ReferenceRequest
{
    FilePath font;
    int faceIndex = 0;
    /// One line each; none may be empty.
    QStringList lines;
    /// As hb-view takes them; empty: left to it.
    QString features = {};
    QString variations = {};
    QString language = QStringLiteral("en");
    QString direction = {};
    QString script = {};
};

/// One line as hb-view placed its glyphs, in font units, y down from the baseline.
struct ReferenceLine
{
    struct Glyph
    {
        QPainterPath outline;
        QPointF position;
    };
    std::vector<Glyph> glyphs;
};

struct ReferencePicture
{
    /// As many as lines were asked for; none when hb-view failed.
    std::vector<ReferenceLine> lines;
    /// Of the widest line, in font units.
    double width = 0;
};

/// Reads hb-view's vector picture, so that neither its whole-pixel glyph positions nor another
/// rasteriser stands between its outlines and ours. Fails the running case when hb-view does.
ReferencePicture referencePicture(const ReferenceRequest &request, int unitsPerEm);

/// hb-view's own pixels: each line `lineHeightPx` high, its baseline two thirds down, its pen
/// starting a third of the line height from the left; the alpha of each pixel is its coverage.
QImage referencePixels(const ReferenceRequest &request, int sizePx, int lineHeightPx);

/// How one picture of coverage differs from another of the same size.
struct CoverageDifference
{
    /// Of all ink that either picture has, the share that they do not agree on.
    double share = 0;
    /// The ink itself, in pixels.
    double inkPixels = 0;
    /// Pixels in whose 3 × 3 neighbourhood every pixel differs by more than half.
    int differentBlocks = 0;
};
CoverageDifference compareCoverage(const QImage &ours, const QImage &theirs);

} // namespace lorva::test
