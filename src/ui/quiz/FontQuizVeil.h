// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

namespace lorva {

/// A picture of what was shown before, above what is shown now: it fades, and takes no input.
/// Thread: main.
class FontQuizVeil final : public QWidget
{
    Q_OBJECT
public:
    explicit FontQuizVeil(QWidget *parent);

    /// Covers all of the parent; with `ground` if the picture is null.
    void cover(const QPixmap &former, const QColor &ground);
    /// 1: only the picture is seen; 0: it is let go.
    void setStrength(double strength);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QPixmap m_former;
    QColor m_ground;
    double m_strength = 0;
};

} // namespace lorva
