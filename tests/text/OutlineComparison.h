// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/ReferencePicture.h"
#include "text/TextLayout.h"

namespace lorva::test {

constexpr double kComparedSizePx = 40;

/// How far a line of ours is from one of the reference, both filled by the same rasteriser at
/// kComparedSizePx.
CoverageDifference compareLine(const TextLayout &layout, const ReferenceLine &reference,
                               double pixelsPerUnit);
/// The tolerance: of all ink at most 0.8 % may differ, and nowhere a block of 3 × 3 pixels by more
/// than half. Glyphs that touch are one path in ours, so that their seams differ a little.
bool isSamePicture(const CoverageDifference &difference);

/// Expects each line of the request to look as hb-view draws it.
void expectSamePictures(const ReferenceRequest &request, const Font &font);
/// As expectSamePictures(), of one line that is there already.
void expectSameLine(const TextLayout &layout, const ReferenceLine &reference, double pixelsPerUnit,
                    const QString &text);

} // namespace lorva::test
