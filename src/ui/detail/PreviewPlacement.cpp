// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/PreviewPlacement.h"

#include "ui/preview/SpecimenLogo.h"

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// Ems. A bearing beyond it is meant as room: of a space, or of a letter that stands apart.
constexpr double kMostBearing = 0.15;
/// Ems above and below the lines. Thousands of marks on one letter would reach up for ever.
constexpr double kMostRoom = 4;
/// Of the width, for what hangs over at the sides.
constexpr double kMostSideRoom = 1.0 / 3;
/// Points that nobody misses.
constexpr double kNoOverhang = 0.01;
constexpr int kMostTries = 4;
/// Ems that a selected line end takes.
constexpr double kLineEndWidth = 0.15;
/// Where there is no font: a line that the caret can stand in.
constexpr double kLeastHeight = 48;

enum class Reading { leftToRight, rightToLeft, both };

Reading readingOf(const TextLayout &layout)
{
    const auto isRightToLeft = [](const LayoutLine &line) { return line.isRightToLeft; };
    const std::vector<LayoutLine> &lines = layout.lines();
    if (std::ranges::none_of(lines, isRightToLeft))
        return Reading::leftToRight;
    return std::ranges::all_of(lines, isRightToLeft) ? Reading::rightToLeft : Reading::both;
}

/// The text in a box, as yet without a place in the view.
struct Setting
{
    TextLayout layout;
    QRectF logoRect;
    /// The logo's included.
    QRectF ink;
    double boxWidth = 0;
};

Setting set(const QString &text, const DetailSpecimen &specimen, double boxWidth)
{
    const Font &font = specimen.font;
    TextLayoutOptions options;
    options.width = boxWidth;
    options.letterSpacing = specimen.letterSpacing * font.pointSize();
    QSizeF logo;
    if (specimen.logoImage && !font.isNull()) {
        logo = logoSize(specimen.logoImage->size(), font.capHeight(), specimen.logoSizeRatio);
        options.firstLineInset = logoInset(logo, specimen.logoSpacing, font.pointSize());
    }
    Setting setting{TextLayout(text, font, options), {}, {}, boxWidth};
    setting.ink = setting.layout.inkBounds();
    if (!logo.isEmpty() && !setting.layout.lines().empty()) {
        setting.logoRect = logoRectInLayout(setting.layout.lines().front(), logo, font.capHeight());
        setting.ink = setting.ink.united(setting.logoRect);
    }
    return setting;
}

/// How far the box moves, so that the ink begins where the page's margin ends. Lines of both
/// directions stay where they are: each would move the other's edge.
double opticalShift(const Setting &setting, double pointSize)
{
    if (setting.ink.isNull())
        return 0;
    const double most = kMostBearing * pointSize;
    switch (readingOf(setting.layout)) {
    case Reading::leftToRight:
        return -std::min(setting.ink.left(), most);
    case Reading::rightToLeft:
        return std::min(setting.boxWidth - setting.ink.right(), most);
    case Reading::both:
        break;
    }
    return 0;
}

double roomFor(double overhang, double pointSize)
{
    return std::clamp(overhang, 0.0, kMostRoom * pointSize);
}

/// What of the ink lies beyond the view's sides, if the box has its left end at `left`.
struct Overhang
{
    double left = 0;
    double right = 0;
    double sum() const { return left + right; }
};

Overhang overhangOf(const Setting &setting, double left, double width)
{
    if (setting.ink.isNull())
        return {};
    return {std::max(0.0, -(setting.ink.left() + left)),
            std::max(0.0, setting.ink.right() + left - width)};
}

/// The box and its left end, so that the ink stays within the width. Narrower lines may end in
/// letters that hang over further, so it may take more than one try; few texts take any.
std::pair<Setting, double> fitted(const QString &text, const DetailSpecimen &specimen, double width)
{
    const double pointSize = specimen.font.pointSize();
    const double most = width * kMostSideRoom;
    Setting setting = set(text, specimen, width);
    double left = opticalShift(setting, pointSize);
    Overhang room;
    for (int tries = 0; tries < kMostTries && room.sum() < most; ++tries) {
        const Overhang over = overhangOf(setting, left, width);
        if (over.sum() <= kNoOverhang)
            break;
        const double share = std::min(1.0, (most - room.sum()) / over.sum());
        room = {room.left + over.left * share, room.right + over.right * share};
        setting = set(text, specimen, std::max(1.0, width - room.sum()));
        left = room.left + opticalShift(setting, pointSize);
    }
    return {std::move(setting), left};
}

/// The y where the next line's box begins, or this one's ends.
double bottomOf(const std::vector<LayoutLine> &lines, size_t line)
{
    if (line + 1 < lines.size())
        return lines[line + 1].origin.y() - lines[line + 1].ascent;
    return lines[line].origin.y() + lines[line].descent;
}

/// A line end that is selected, for a line that has one before another line.
void addLineEnd(const TextCarets &carets, const LayoutLine &line, double bottom,
                std::vector<QRectF> &shapes)
{
    const double width = (line.ascent + line.descent) * kLineEndWidth;
    const QRectF caret = carets.caretRect({line.textEnd, true});
    const double left = line.isRightToLeft ? caret.x() - width : caret.x();
    shapes.emplace_back(left, caret.top(), width, bottom - caret.top());
}

} // namespace

PreviewPlacement placePreview(const QString &text, const DetailSpecimen &specimen, double width)
{
    width = std::max(1.0, width);
    auto [setting, left] = fitted(text, specimen, width);
    const double pointSize = specimen.font.pointSize();
    const double lines = setting.layout.size().height();
    const double above = roomFor(-setting.ink.top(), pointSize);
    const double below = roomFor(setting.ink.bottom() - lines, pointSize);
    const QPointF origin(left, std::ceil(above));
    PreviewPlacement placement{TextCarets(text, std::move(setting.layout)), origin, {}, {}, 0};
    if (!setting.logoRect.isNull())
        placement.logoRect = setting.logoRect.translated(origin);
    if (!setting.ink.isNull())
        placement.ink = setting.ink.translated(origin);
    placement.height = int(std::ceil(std::max(origin.y() + lines + below, kLeastHeight)));
    return placement;
}

std::vector<QRectF> selectionShapes(const TextCarets &carets, int start, int end)
{
    const std::vector<LayoutLine> &lines = carets.layout().lines();
    std::vector<QRectF> shapes;
    if (lines.empty() || start >= end)
        return shapes;
    const auto last = size_t(carets.lineOf({end, true}));
    for (auto i = size_t(carets.lineOf({start, false})); i <= last; ++i) {
        const LayoutLine &line = lines[i];
        const double bottom = bottomOf(lines, i);
        const int from = std::max(start, line.textStart);
        for (QRectF rect : carets.selectionRects(from, std::min(end, line.textEnd))) {
            rect.setBottom(bottom);
            shapes.push_back(rect);
        }
        const bool hasLineEnd = i + 1 < lines.size() && lines[i + 1].textStart > line.textEnd;
        if (hasLineEnd && from <= line.textEnd && end > line.textEnd)
            addLineEnd(carets, line, bottom, shapes);
    }
    return shapes;
}

std::vector<QRectF> underlines(const TextCarets &carets, int start, int end, double thickness)
{
    const std::vector<LayoutLine> &lines = carets.layout().lines();
    std::vector<QRectF> rects = carets.selectionRects(start, end);
    for (QRectF &rect : rects) {
        const auto line = std::ranges::find_if(lines, [&](const LayoutLine &at) {
            return at.origin.y() + at.descent >= rect.center().y();
        });
        const double baseline = line == lines.end() ? rect.bottom() : line->origin.y();
        rect = QRectF(rect.left(), baseline + 1.5 * thickness, rect.width(), thickness);
    }
    return rects;
}

} // namespace lorva
