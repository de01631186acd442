// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/quiz/FontQuizCardPainting.h"
#include "ui/sheets/SheetText.h"

#include <QWidget>

#include <functional>
#include <vector>

namespace lorva {

class TextButton;

/// What the quiz says before it begins: a fan of its first cards, what it is for, and Start; or,
/// without cards, that there is nothing to do. Thread: main.
class FontQuizIntroView final : public QWidget
{
    Q_OBJECT
public:
    explicit FontQuizIntroView(QWidget *parent);

    std::function<void()> onStart;

    /// `sorted`: families that have a category already; `waiting`: those that have not.
    void setNumbers(int sorted, int waiting);
    /// The deck's first ones; their poses are of no matter.
    void setCards(std::vector<FontQuizShownCard> cards);
    /// Empty without cards.
    QString title() const;
    const QString &sentence() const { return m_sentence; }
    /// Gives the keyboard to Start, or to the page without it.
    void focusPage();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    struct Places
    {
        FontQuizPose fan;
        QRect title;
        QRect sentence;
        QRect button;
    };

    WrappedText sentenceText() const;
    Places places() const;
    void placeButton();
    void paintFan(QPainter &painter, const FontQuizPose &middle) const;

    TextButton *m_startButton;
    QString m_sentence;
    bool m_isEmpty = false;
    std::vector<FontQuizShownCard> m_cards;
};

} // namespace lorva
