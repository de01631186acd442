// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/quiz/FontQuizCardPainting.h"
#include "ui/style/FocusRinged.h"

#include <QAbstractButton>

#include <functional>
#include <vector>

namespace lorva {

/// A tile of the quiz: a category with its key, and the cards that lie on its pile. A button.
/// Thread: main.
class FontQuizCategoryView final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    /// `tile`: 1 … 6, which is its key, too.
    FontQuizCategoryView(int tile, QWidget *parent);

    std::function<void()> onClick;

    /// The lowest first; poses are in points of the parent. `count`: how many lie there, drawn or
    /// not.
    void setPile(std::vector<FontQuizShownCard> pile, int count);
    const std::vector<FontQuizShownCard> &pile() const { return m_pile; }
    int count() const { return m_count; }
    /// The tile lights up in the colour of the card that it was chosen for, `strength` 0 … 1.
    void setFlash(const QColor &color, double strength);
    double flash() const { return m_flash; }

    QSize sizeHint() const override { return {176, 150}; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void paintSurface(QPainter &painter) const;
    void paintTexts(QPainter &painter) const;
    void describe();

    const int m_tile;
    std::vector<FontQuizShownCard> m_pile;
    int m_count = 0;
    QColor m_flashColor;
    double m_flash = 0;
};

} // namespace lorva
