// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/RunThen.h"

#include <QColor>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <functional>

class QPainter;

namespace lorva {

/// The colours of everything in the quiz but its cards.
struct FontQuizColors
{
    QColor ground;
    QColor text;
    /// Of a tile, at rest and under the pointer.
    QColor tile;
    QColor tileHover;
};

FontQuizColors fontQuizColors(bool isDark);

/// The ground of the quiz: a warm neutral with a wash of the current card's colour in its middle.
///
/// A worker paints it, because a window full of gradient takes longer than a frame; until it is
/// there, the last one stays. Thread: main.
class FontQuizGround final : public QObject
{
    Q_OBJECT
public:
    /// What it is made for; the wash is around `centre` (points).
    struct Look
    {
        QSize size;
        QPointF centre;
        double devicePixelRatio = 1;
        QColor bloom;
        bool isDark = false;

        bool operator==(const Look &) const = default;
    };

    explicit FontQuizGround(QObject *parent);
    ~FontQuizGround() override;

    void setLook(const Look &look);
    bool isComplete() const { return m_shownLook == m_look; }
    /// The whole widget of that size, opaque.
    void paint(QPainter &painter, const QRect &exposed) const;
    /// How far the new wash has come through the former one, 0 … 1.
    void setShare(double share) { m_share = share; }
    /// Where the wash can be seen.
    QRect bloomRect() const;

    /// The wash for another colour has arrived, and may come through.
    std::function<void()> onArrived;

private:
    void accept(const Look &look, const QImage &image);
    void draw(QPainter &painter, const QImage &image) const;

    QThreadPool m_pool;
    RunHandle m_painting;
    Look m_look;
    Look m_shownLook;
    QImage m_image;
    /// Of the same size; null when the ground is to change at once.
    QImage m_former;
    double m_share = 1;
};

} // namespace lorva
