// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/quiz/FontQuizCardPainting.h"

#include <QWidget>

#include <optional>

namespace lorva {

/// The card that flies, above everything else; takes no input. Thread: main.
class FontQuizFlightView final : public QWidget
{
    Q_OBJECT
public:
    explicit FontQuizFlightView(QWidget *parent);

    /// Nothing: none flies. The pose is in points of the view.
    void setCard(std::optional<FontQuizShownCard> card);
    void setPose(const FontQuizPose &pose);
    const std::optional<FontQuizShownCard> &card() const { return m_card; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect covered() const;

    std::optional<FontQuizShownCard> m_card;
};

} // namespace lorva
