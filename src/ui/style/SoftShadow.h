// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPainter>

namespace lorva {

/// The soft shadow around a panel that lies above the rest of the window. Made once per size and
/// ratio and then kept. Thread: main. Units: points.
class SoftShadow
{
public:
    /// What the shadow of `panel` covers: it reaches further down than up.
    static QRect outerRect(const QRect &panel);
    /// `outer`: the panel's outerRect(), in the painter's points.
    void draw(QPainter &painter, const QRect &outer, double radius);

private:
    QImage m_image;
};

} // namespace lorva
