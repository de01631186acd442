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
    void invalidate() { m_isStale = true; }
    /// Nobody looks: its memory may be used otherwise.
    void letGo();
    /// Draws what of the specimen lies in `needed`, painting first what is missing of it.
    void draw(QPainter &painter, const PreviewPlacement &placement, const DetailSpecimen &specimen,
              const QRect &needed, int width);

private:
    bool holds(const QRect &devicePx, double ratio) const;
    void paint(const PreviewPlacement &placement, const DetailSpecimen &specimen,
               const QRect &devicePx, double ratio);

    /// Kept while an axis is dragged: new memory for each frame costs as much as the type on it.
    QImage m_image;
    bool m_isStale = true;
    /// Where it stands, from the view's top left.
    QRect m_devicePx;
};

} // namespace lorva
