// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/records/FontRecords.h"
#include "text/TextLayout.h"
#include "ui/quiz/FontQuizCardTheme.h"

#include <QImage>
#include <QRectF>
#include <QString>

#include <optional>

namespace lorva {

// The cards of the quiz as pixels, without widgets, so that workers can make them. Thread: any,
// but where noted. Units: points of the card, from its top left.

/// What a card shows.
struct FontQuizCard
{
    QString familyName;
    /// The one that stands for the family; absent: its default face.
    std::optional<FontStyleRecord> style;
    WritingScript primaryScript = WritingScript::latin;
    FontQuizCardTheme theme;

    bool operator==(const FontQuizCard &) const = default;
};

FontQuizCard fontQuizCard(const FontFamilyRecord &family, const FontQuizCardTheme &theme);

/// How large and on what the cards are painted.
struct FontQuizCardLook
{
    /// Of the full size.
    double scale = 1;
    double devicePixelRatio = 1;
    /// Shadows on a dark ground are deeper.
    bool isDark = false;

    bool operator==(const FontQuizCardLook &) const = default;
};

/// A text on a card.
struct FontQuizCardLabel
{
    QString text;
    TextLayout layout;
    QPointF origin;
    /// Where its ink is.
    QRectF ink;
};

/// A card, set.
struct FontQuizCardParts
{
    /// The family's name in its own face; another text where the face lacks a character of it.
    FontQuizCardLabel previewLabel;
    /// Likewise; empty where it would only repeat the preview.
    FontQuizCardLabel pangramLabel;
    /// In the interface's face: no layout.
    FontQuizCardLabel familyNameLabel;
};

/// The preview and the pangram fit into the card, whatever the face.
FontQuizCardParts layOutFontQuizCard(const FontQuizCard &card, const Font &face);

/// The shadow reaches so far around a card, in points of the card.
inline constexpr double kFontQuizShadowReach = 72;

/// A card, painted.
struct FontQuizCardPicture
{
    /// The card with its shadow, kFontQuizShadowReach (scaled) around it; premultiplied.
    QImage image;
    /// The same, a half and a quarter as large, so that a small card is not drawn from a large one.
    QImage half;
    QImage quarter;
    FontQuizCardParts parts;
    /// The face could not be loaded, and the system's font is shown.
    bool isStandIn = false;
};

/// All but the family's name.
FontQuizCardPicture paintFontQuizCard(const FontQuizCard &card, const Font &face,
                                      const FontQuizCardLook &look);
/// Writes the family's name (and that the face is missing), in the interface's face. Thread: main.
void paintFontQuizCardName(FontQuizCardPicture &picture, const FontQuizCard &card,
                           const FontQuizCardLook &look);
/// A card of which nothing is known yet.
FontQuizCardPicture paintBlankFontQuizCard(const FontQuizCardTheme &theme,
                                           const FontQuizCardLook &look);

} // namespace lorva
