// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/FallingLetter.h"

#include "text/GlyphPainter.h"
#include "text/TextLayout.h"
#include "ui/onboarding/ConvexParts.h"

#include <QTransform>

#include <algorithm>

namespace lorva {

namespace {

/// In type sizes. Swashes reach far; a letter that is smaller than this looks like dirt.
constexpr double kLargestInk = 1.15;
constexpr double kSmallestInk = 0.2;
constexpr int kWorldEvery = 5;
/// Neighbours are not neighbours here; without a common divisor with the count, so that all come.
constexpr int kLatinStep = 8;

constexpr std::u32string_view kLatin = U"agRQ&?@3SkeGBf2yMß§JW";
/// Of scripts that Latin families rarely have; one of each, so that every such family shows its
/// own.
constexpr std::u32string_view kWorld = U"عऄשЖกΩअկლশകதම한永ش";

std::u32string_view ownLetters(std::optional<WritingScript> script)
{
    switch (script.value_or(WritingScript::latin)) {
    case WritingScript::japanese:
        return U"あ永の愛";
    case WritingScript::korean:
        return U"한글봄";
    case WritingScript::simplifiedChinese:
        return U"永汉字";
    case WritingScript::traditionalChinese:
        return U"永龍字";
    case WritingScript::latin:
        break;
    }
    return {};
}

std::u32string turned(std::u32string_view letters, int by)
{
    std::u32string result(letters);
    if (!result.empty())
        std::rotate(result.begin(), result.begin() + by % std::ssize(result), result.end());
    return result;
}

/// Gives nothing for what cannot be shown at a reasonable size.
std::optional<FallingLetter> letterOf(const QPainterPath &outline, double pointSize)
{
    const QRectF ink = outline.boundingRect();
    const double extent = std::max(ink.width(), ink.height());
    if (!(extent >= kSmallestInk * pointSize) || extent > kFarthestPart)
        return {};
    const double scale = std::min(1.0, kLargestInk * pointSize / extent);
    const QPointF centre = ink.center();
    const QTransform centred =
        QTransform::fromScale(scale, scale).translate(-centre.x(), -centre.y());
    FallingLetter letter{centred.map(outline), {}};
    letter.parts = convexParts(letter.outline);
    return letter.parts.empty() ? std::nullopt : std::optional(std::move(letter));
}

} // namespace

std::optional<FallingLetter> makeFallingLetter(const Font &font, const std::u32string &characters)
{
    for (const char32_t character : characters) {
        if (font.isNull() || !font.hasGlyphFor(character))
            continue;
        const TextLayout layout(QString::fromUcs4(&character, 1), font);
        if (auto letter = letterOf(GlyphPainter::path(layout), font.pointSize()))
            return letter;
    }
    return {};
}

std::u32string lettersToTry(int number, std::optional<WritingScript> primaryScript)
{
    const std::u32string own = turned(ownLetters(primaryScript), number);
    const std::u32string latin = turned(kLatin, number * kLatinStep);
    const std::u32string world = turned(kWorld, number / kWorldEvery);
    return number % kWorldEvery == kWorldEvery - 1 ? own + world + latin : own + latin + world;
}

} // namespace lorva
