// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/PreviewPlacement.h"

#include <QImage>

class QPainter;

namespace lorva {

/// The pixels of the large preview: of as much of it as is in sight, and a little more, so that
/// neither a blinking caret nor a short scroll paints type anew.
///
/// Thread: main. Units: points of the view unless named otherwise.
class PreviewPicture
{
public:
    /// What is shown is another text, or has another face or colour.
    void invalidate() { m_image = {}; }
    /// Draws what of the specimen lies in `needed`, painting first what is missing of it.
    void draw(QPainter &painter, const PreviewPlacement &placement, const DetailSpecimen &specimen,
              const QRect &needed, int width);

private:
    void paint(const PreviewPlacement &placement, const DetailSpecimen &specimen,
               const QRect &devicePx, double ratio);

    QImage m_image;
    /// Where it stands, from the view's top left.
    QRect m_devicePx;
};

} // namespace lorva
