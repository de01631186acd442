// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/quiz/FontQuizCardPictures.h"
#include "ui/quiz/FontQuizLayout.h"

#include <QRegion>

class QPainter;

namespace lorva {

/// A card in its place.
struct FontQuizShownCard
{
    /// Null: not there yet.
    FontQuizCardPictures::Picture picture;
    FontQuizCardTheme theme;
    FontQuizPose pose;
};

/// Draws the card from the nearest of its pictures, pixel by pixel where it lies straight and at
/// its own size; a blank surface without a picture. Thread: the painter's.
void drawFontQuizCard(QPainter &painter, const FontQuizShownCard &card);
/// What of the window it covers, shadow included.
QRect fontQuizCardRegion(const FontQuizPose &pose);
/// Draws them the nearest last; what the nearest covers anyhow, or what lies outside of `exposed`,
/// is left out.
void drawFontQuizCards(QPainter &painter, const std::vector<FontQuizShownCard> &nearestFirst,
                       const QRegion &exposed);

} // namespace lorva
