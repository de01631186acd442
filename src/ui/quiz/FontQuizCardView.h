// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/quiz/FontQuizCardPainting.h"
#include "ui/style/FocusRinged.h"

#include <QWidget>

#include <vector>

namespace lorva {

/// The current card and those that peek out behind it. Its name for assistive technology is the
/// current family's.
///
/// Draws finished pictures only. Thread: main.
class FontQuizCardView final : public FocusRinged<QWidget>
{
    Q_OBJECT
public:
    explicit FontQuizCardView(QWidget *parent);

    /// The nearest first; poses are in points of the parent.
    void setCards(std::vector<FontQuizShownCard> cards);
    const std::vector<FontQuizShownCard> &cards() const { return m_cards; }
    /// Empty where no card is, or its picture has not arrived.
    FontQuizCardParts shownParts() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::vector<FontQuizShownCard> m_cards;
};

} // namespace lorva
