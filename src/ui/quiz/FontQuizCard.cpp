// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizCard.h"

#include "base/TextBeginning.h"
#include "catalog/RepresentativeStyle.h"
#include "text/CharacterSet.h"
#include "text/GlyphPainter.h"
#include "ui/preview/PreviewText.h"
#include "ui/quiz/FontQuizLayout.h"
#include "ui/quiz/FontQuizShadow.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <limits>

namespace lorva {

namespace {

constexpr double kPreviewSize = 86;
constexpr double kPangramSize = 25;
/// Smaller, and the pangram wraps instead.
constexpr double kLeastPangramSize = 17;
constexpr double kWrappedPangramSize = 21;
constexpr double kLeastSize = 1;
constexpr double kMargin = 64;
/// Where the texts have their centres, from the top of the card.
constexpr double kPreviewCentre = 196;
constexpr double kPangramCentre = 306;
constexpr double kNameCentre = 437;
constexpr QSizeF kPreviewRoom{kFontQuizCardSize.width() - 2 * kMargin, 150};
constexpr QSizeF kPangramRoom{kFontQuizCardSize.width() - 2 * kMargin, 80};
/// Of a face of which only its own characters can be shown.
constexpr int kPreviewLetters = 6;
constexpr int kPangramLetters = 24;
constexpr double kPangramAlpha = 0.86;
constexpr double kNameAlpha = 0.6;
constexpr int kNameSize = int(InterfaceSize::label);
/// Names of families are bounded by nobody.
constexpr qsizetype kLongestName = 200;

const QString kPangram = QStringLiteral("5 quick brown foxes jumped over 12 lazy dogs at the park");

bool canDraw(const Font &font, const QString &text)
{
    const auto scalars = text.toUcs4();
    return std::all_of(scalars.begin(), scalars.end(), [&](char32_t scalar) {
        return QChar::isSpace(scalar) || font.hasGlyphFor(scalar);
    });
}

/// Icons often have no characters but private ones.
bool isSymbol(char32_t scalar)
{
    return QChar::category(scalar) == QChar::Other_PrivateUse
        || (QChar::isPrint(scalar) && !QChar::isSpace(scalar) && !QChar::isMark(scalar));
}

/// Characters of the face's own, letters if it has any, for faces of scripts that have no sample.
QString ownSample(const Font &font, int count)
{
    std::u32string letters;
    std::u32string others;
    const CharacterSet characters = readCharacters(*font.face());
    for (const CharacterRange &range : characters.ranges()) {
        for (char32_t scalar = range.first; scalar <= range.last; ++scalar) {
            if (QChar::isLetter(scalar) && int(letters.size()) < count)
                letters += scalar;
            else if (isSymbol(scalar) && int(others.size()) < count)
                others += scalar;
        }
        if (int(letters.size()) == count)
            break;
    }
    return QString::fromStdU32String(letters.empty() ? others : letters);
}

QString sample(const FontQuizCard &card, const Font &font, int ownCharacters)
{
    const QString probe = fallbackText(font, card.primaryScript);
    if (canDraw(font, probe))
        return probe;
    const QString own = ownSample(font, ownCharacters);
    return own.isEmpty() ? probe : own;
}

QString previewText(const FontQuizCard &card, const Font &font)
{
    const QString name = textBeginning(card.familyName.simplified(), kLongestName);
    return !name.isEmpty() && canDraw(font, name) ? name : sample(card, font, kPreviewLetters);
}

QString pangramText(const FontQuizCard &card, const Font &font)
{
    if (canDraw(font, kPangram))
        return kPangram;
    const QString own = defaultPangram(card.primaryScript);
    return canDraw(font, own) ? own : sample(card, font, kPangramLetters);
}

FontQuizCardLabel setLabel(const QString &text, const Font &font, double width)
{
    TextLayoutOptions options;
    options.alignment = TextAlignment::center;
    options.width = width;
    FontQuizCardLabel label{text, TextLayout(text, font, options), {}, {}};
    label.ink = label.layout.inkBounds();
    return label;
}

constexpr double kOneLine = std::numeric_limits<double>::infinity();

/// At `pointSize`, or as much smaller as it takes to fit.
FontQuizCardLabel fittedLabel(const QString &text, const Font &face, double pointSize, double width,
                              QSizeF room)
{
    double size = pointSize;
    FontQuizCardLabel label = setLabel(text, face.withPointSize(size), width);
    // Faces with optical sizes do not shrink evenly.
    for (int tries = 0; tries < 3 && size > kLeastSize; ++tries) {
        const double over =
            std::max(label.ink.width() / room.width(), label.ink.height() / room.height());
        if (over <= 1.0)
            break;
        size = std::max(kLeastSize, size / over * 0.995);
        label = setLabel(text, face.withPointSize(size), width);
    }
    return label;
}

void centre(FontQuizCardLabel &label, double y)
{
    label.origin = QPointF(kFontQuizCardSize.width() / 2.0, y) - label.ink.center();
    label.ink.translate(label.origin);
}

FontQuizCardLabel pangramLabel(const QString &text, const Font &face)
{
    FontQuizCardLabel label = fittedLabel(text, face, kPangramSize, kOneLine, kPangramRoom);
    const double natural = setLabel(text, face.withPointSize(kPangramSize), kOneLine).ink.width();
    if (natural * kLeastPangramSize > kPangramRoom.width() * kPangramSize)
        label = fittedLabel(text, face, kWrappedPangramSize, kPangramRoom.width(), kPangramRoom);
    return label;
}

/// At full size.
QImage emptyImage(const FontQuizCardLook &look)
{
    const double ratio = look.devicePixelRatio;
    const double margins = 2 * kFontQuizShadowReach;
    const QSizeF size = QSizeF(kFontQuizCardSize) + QSizeF(margins, margins);
    QImage image = fontQuizShadow((size * ratio).toSize(), ratio, look.isDark);
    image.setDevicePixelRatio(ratio);
    return image;
}

void paintSurface(QImage &image, const FontQuizCardTheme &theme)
{
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme.background);
    const QRectF card(QPointF(kFontQuizShadowReach, kFontQuizShadowReach), kFontQuizCardSize);
    painter.drawRoundedRect(card, kFontQuizCardRadius, kFontQuizCardRadius);
    // A hair of light along the edge parts cards of like colours that lie on each other.
    const double hair = 1.0 / image.devicePixelRatio();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(withAlpha(Qt::white, 0.28), hair));
    painter.drawRoundedRect(card.adjusted(hair / 2, hair / 2, -hair / 2, -hair / 2),
                            kFontQuizCardRadius, kFontQuizCardRadius);
}

void paintLabel(QImage &image, const FontQuizCardLabel &label, const QColor &color)
{
    const QPointF corner(kFontQuizShadowReach, kFontQuizShadowReach);
    GlyphPainter::paint(image, label.layout, corner + label.origin, color);
}

QImage halved(const QImage &image)
{
    return image.scaled(image.size() / 2, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// A smaller card is a smaller picture of the card.
void scale(QImage &image, const FontQuizCardLook &look)
{
    if (look.scale < 1)
        image = image.scaled((QSizeF(image.size()) * look.scale).toSize(), Qt::IgnoreAspectRatio,
                             Qt::SmoothTransformation);
}

void makeCopies(FontQuizCardPicture &picture, const FontQuizCardLook &look)
{
    scale(picture.image, look);
    picture.half = halved(picture.image);
    picture.quarter = halved(picture.half);
}

QString nameText(const FontQuizCardPicture &picture, const FontQuizCard &card)
{
    return picture.isStandIn
        ? QCoreApplication::translate("lorva::FontQuizCardView",
                                      "“%1” could not be loaded. The system font is shown instead.")
              .arg(card.familyName)
        : card.familyName;
}

/// `ratio`: pixels for a point of the full card.
void paintName(QImage &image, double ratio, const QString &name, const FontQuizCardTheme &theme)
{
    image.setDevicePixelRatio(1);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QFont font = interfaceFont(InterfaceSize::label);
    font.setPixelSize(std::max(1, int(std::lround(kNameSize * ratio))));
    painter.setFont(font);
    painter.setPen(quietColor(theme.foreground, theme.background, kNameAlpha));
    const double width = (kFontQuizCardSize.width() - 2 * kMargin) * ratio;
    const QRectF line((kFontQuizShadowReach + kMargin) * ratio,
                      (kFontQuizShadowReach + kNameCentre - kNameSize) * ratio, width,
                      2 * kNameSize * ratio);
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine,
                     QFontMetrics(font).elidedText(name, Qt::ElideMiddle, int(width)));
}

} // namespace

FontQuizCard fontQuizCard(const FontFamilyRecord &family, const FontQuizCardTheme &theme)
{
    const FontStyleRecord *style = representativeStyle(family.styles);
    return {family.familyName, style ? std::optional(*style) : std::nullopt,
            family.primaryScript.value_or(WritingScript::latin), theme};
}

FontQuizCardParts layOutFontQuizCard(const FontQuizCard &card, const Font &face)
{
    FontQuizCardParts parts;
    parts.familyNameLabel.text = card.familyName;
    if (face.isNull())
        return parts;
    parts.previewLabel =
        fittedLabel(previewText(card, face), face, kPreviewSize, kOneLine, kPreviewRoom);
    centre(parts.previewLabel, kPreviewCentre);
    const QString pangram = pangramText(card, face);
    if (pangram == parts.previewLabel.text)
        return parts;
    parts.pangramLabel = pangramLabel(pangram, face);
    centre(parts.pangramLabel, kPangramCentre);
    return parts;
}

FontQuizCardPicture paintFontQuizCard(const FontQuizCard &card, const Font &face,
                                      const FontQuizCardLook &look)
{
    const FontQuizCardTheme &theme = card.theme;
    FontQuizCardPicture picture{
        emptyImage(look), {}, {}, layOutFontQuizCard(card, face), face.isStandIn()};
    paintSurface(picture.image, theme);
    paintLabel(picture.image, picture.parts.previewLabel, theme.foreground);
    paintLabel(picture.image, picture.parts.pangramLabel,
               quietColor(theme.foreground, theme.background, kPangramAlpha));
    makeCopies(picture, look);
    return picture;
}

void paintFontQuizCardName(FontQuizCardPicture &picture, const FontQuizCard &card,
                           const FontQuizCardLook &look)
{
    const double ratio = look.devicePixelRatio * look.scale;
    picture.parts.familyNameLabel.text = nameText(picture, card);
    paintName(picture.image, ratio, picture.parts.familyNameLabel.text, card.theme);
    paintName(picture.half, ratio / 2, picture.parts.familyNameLabel.text, card.theme);
}

FontQuizCardPicture paintBlankFontQuizCard(const FontQuizCardTheme &theme,
                                           const FontQuizCardLook &look)
{
    FontQuizCardPicture picture;
    picture.image = emptyImage(look);
    paintSurface(picture.image, theme);
    makeCopies(picture, look);
    return picture;
}

} // namespace lorva
