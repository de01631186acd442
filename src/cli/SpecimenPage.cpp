// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/SpecimenPage.h"

#include "cli/Console.h"

#include <QMarginsF>

#include <algorithm>
#include <cmath>

namespace lorva::cli {

namespace {

constexpr int kMaxTitleLength = 200;

TextLayoutOptions layoutOptions(const SpecimenRequest &request, double width)
{
    TextLayoutOptions options;
    options.width = width;
    options.direction = request.direction;
    options.letterSpacing = request.letterSpacing;
    options.language = request.language;
    return options;
}

/// How far swashes and stacked marks reach beyond the text's own box and the space around it, in
/// whole pixels; at most what any picture has.
QMarginsF inkBeyond(const QRectF &ink, const QSizeF &text, double space)
{
    const auto over = [space](double distance) {
        return std::clamp(std::ceil(distance - space), 0.0, double(kMaxSpecimenSide));
    };
    return {over(-ink.left()), over(-ink.top()), over(ink.right() - text.width()),
            over(ink.bottom() - text.height())};
}

} // namespace

SpecimenPage layOutSpecimen(const SpecimenRequest &request, const Font &font)
{
    const double margin = std::ceil(request.pixelsPerEm / 4);
    const auto layOut = [&](double width) {
        return TextLayout(request.text, font,
                          layoutOptions(request, std::max(1.0, width - 2 * margin)));
    };
    SpecimenPage page;
    page.layout = layOut(request.width ? *request.width : std::numeric_limits<double>::infinity());
    // A hostile font's advances add up to more than a whole number holds.
    const auto fitted = [&](double length) {
        return int(std::min(std::ceil(length + 2 * margin), 1e9));
    };
    if (!request.width && fitted(page.layout.size().width()) > kMaxSpecimenSide)
        page.layout = layOut(kMaxSpecimenSide);
    const QSizeF text = page.layout.size();
    const QRectF ink = page.layout.inkBounds();
    const QMarginsF beyond = inkBeyond(ink, text, margin / 2);
    page.size = {request.width.value_or(std::min(
                     fitted(text.width() + beyond.left() + beyond.right()), kMaxSpecimenSide)),
                 request.height.value_or(fitted(text.height() + beyond.top() + beyond.bottom()))};
    const double free = page.size.height() - text.height();
    page.origin = {request.width ? margin : margin + beyond.left(),
                   free > 0 ? std::floor(free / 2) : margin};
    if (!request.height)
        page.origin.setY(margin + beyond.top());
    page.isCropped =
        !ink.isNull() && !QRectF(QPointF(0, 0), page.size).contains(ink.translated(page.origin));
    page.color = request.color;
    page.background = request.background;
    page.title = singleLine(request.text.left(kMaxTitleLength));
    return page;
}

} // namespace lorva::cli
