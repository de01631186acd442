// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/SpecimenPage.h"
#include "ui/preview/SpecimenImage.h"

#include <optional>

namespace lorva {

/// A text in its place, with its pixels once it was drawn, so that a repaint only copies them.
///
/// Thread: one at a time. Units: points of the view.
class TextInk
{
public:
    TextInk() = default;
    /// What goes beyond the left or right end of `room` fades out before it: a line that is cut
    /// shows that it goes on, and no ellipsis pretends to be part of the specimen. Ink that only
    /// hangs over stays.
    TextInk(SpecimenPage::Text text, const QRectF &room);

    const SpecimenPage::Text &text() const { return m_text; }
    void draw(QPainter &painter, const SpecimenCanvas &canvas);
    /// Lets the pixels go until it is drawn again.
    void letGo();
    bool hasPixels() const { return m_canvas.has_value(); }

private:
    void fade(double from, double to);

    SpecimenPage::Text m_text;
    QRectF m_room;
    /// What m_image was made for.
    std::optional<SpecimenCanvas> m_canvas;
    SpecimenImage m_image;
};

} // namespace lorva
