// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "cli/SpecimenPage.h"

#include "cli/Console.h"

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
    page.size = {request.width.value_or(std::min(fitted(text.width()), kMaxSpecimenSide)),
                 request.height.value_or(fitted(text.height()))};
    const double free = page.size.height() - text.height();
    page.origin = {margin, free > 0 ? std::floor(free / 2) : margin};
    page.color = request.color;
    page.background = request.background;
    page.title = singleLine(request.text.left(kMaxTitleLength));
    return page;
}

} // namespace lorva::cli
