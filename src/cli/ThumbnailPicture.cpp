// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/ThumbnailPicture.h"

#include "cli/Texts.h"
#include "text/GlyphPainter.h"

#include <QBuffer>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace lorva::cli {

namespace {

constexpr QImage::Format kFormat = QImage::Format_RGB32;
constexpr QColor kSheet(255, 255, 255);
constexpr QColor kInk(0x1D, 0x1D, 0x1F);
/// 8.5 % of black: where the sheet ends on a white window.
constexpr QColor kEdge(0, 0, 0, 22);

// Shares of the side.
constexpr double kWordWidth = 0.74;
constexpr double kWordHeight = 0.56;
constexpr double kSymbol = 0.34;
constexpr double kSymbolGap = 0.08;
/// No letter is drawn larger: a full stop in all its glory is not what a font looks like.
constexpr double kLargestEm = 2;

struct Placed
{
    TextLayout layout;
    QPointF origin;
};

bool isSound(const QRectF &ink)
{
    return std::isfinite(ink.width()) && std::isfinite(ink.height()) && std::isfinite(ink.left())
        && std::isfinite(ink.top()) && ink.width() > 0 && ink.height() > 0;
}

TextLayout laidOut(const QString &word, const Font &font, const QByteArray &language)
{
    TextLayoutOptions options;
    options.language = language;
    return {word, font, options};
}

/// As large as the box takes, in its middle.
std::optional<Placed> placed(const QString &word, const ThumbnailLetters &letters,
                             const std::shared_ptr<const FontFace> &face, const QRectF &box)
{
    const double trialSize = box.height();
    const Font trial(face, trialSize);
    const QRectF ink = laidOut(word, trial, letters.language).inkBounds();
    if (!isSound(ink))
        return std::nullopt;
    const double scale = std::min(box.width() / ink.width(), box.height() / ink.height());
    const double largest = kLargestEm * box.height();
    Placed result{
        laidOut(word, trial.withPointSize(std::min(trialSize * scale, largest)), letters.language),
        {}};
    result.origin = box.center() - result.layout.inkBounds().center();
    return result;
}

std::vector<QRectF> boxes(qsizetype count, double side)
{
    const QPointF middle(side / 2, side / 2);
    const auto box = [](QPointF center, QSizeF size) {
        return QRectF(center - QPointF(size.width() / 2, size.height() / 2), size);
    };
    if (count == 1)
        return {box(middle, {side * kWordWidth, side * kWordHeight})};
    std::vector<QRectF> all;
    const double away = side * (kSymbol + kSymbolGap) / 2;
    for (const QPointF corner : {QPointF(-1, -1), QPointF(1, -1), QPointF(-1, 1), QPointF(1, 1)})
        all.push_back(box(middle + corner * away, {side * kSymbol, side * kSymbol}));
    return all;
}

QImage emptySheet(int sidePx)
{
    QImage sheet(sidePx, sidePx, kFormat);
    sheet.fill(kSheet);
    QPainter painter(&sheet);
    painter.setPen(kEdge);
    painter.drawRect(0, 0, sidePx - 1, sidePx - 1);
    return sheet;
}

} // namespace

std::optional<QImage> drawnThumbnail(const std::shared_ptr<const FontFace> &face,
                                     const ThumbnailLetters &letters, int sidePx)
{
    const std::vector<QRectF> places = boxes(letters.words.size(), sidePx);
    QImage sheet = emptySheet(sidePx);
    for (size_t i = 0; i < places.size(); ++i) {
        const auto word = placed(letters.words[qsizetype(i)], letters, face, places[i]);
        if (!word)
            return std::nullopt;
        GlyphPainter::paint(sheet, word->layout, word->origin, kInk);
    }
    return sheet;
}

Result<QByteArray> encodedThumbnail(const QByteArray &pixels, int sidePx)
{
    const qsizetype lineBytes = 4 * qsizetype(sidePx);
    if (pixels.size() != lineBytes * sidePx)
        return failure(ErrorKind::malformed, Texts::tr("the picture cannot be encoded"));
    const QImage picture(reinterpret_cast<const uchar *>(pixels.constData()), sidePx, sidePx,
                         lineBytes, kFormat);
    QByteArray png;
    QBuffer buffer(&png);
    if (!buffer.open(QIODevice::WriteOnly) || !picture.save(&buffer, "PNG"))
        return failure(ErrorKind::ioFailure, Texts::tr("the picture cannot be encoded"));
    return png;
}

} // namespace lorva::cli
