// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/WaterfallRows.h"

#include "ui/preview/PreviewText.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QFontMetrics>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr double kCaptionAlpha = 0.5;
/// Above and below a line, beside a share of its size: a headline needs more air than small print.
constexpr double kPadding = 7;
constexpr double kPaddingShare = 0.06;
/// Fonts whose tables say nothing still need a place to stand.
constexpr double kLeastAscent = 0.7;
constexpr double kLeastDescent = 0.2;

} // namespace

std::vector<WaterfallRow> waterfallRows(const Font &font)
{
    std::vector<WaterfallRow> rows;
    if (font.isNull())
        return rows;
    // Asked for once: at other axis values than its own a face is set up anew for each answer.
    const double largest = kWaterfallSizes.front();
    const Font sized = font.withPointSize(largest);
    const double ascent = std::max(sized.ascent() / largest, kLeastAscent);
    const double descent = std::max(sized.descent() / largest, kLeastDescent);
    int top = 0;
    for (const int size : kWaterfallSizes) {
        const double padding = kPadding + kPaddingShare * size;
        const int above = int(std::ceil(padding + ascent * size));
        const int height = above + int(std::ceil(descent * size + padding));
        rows.push_back({size, top, height, top + above});
        top += height;
    }
    return rows;
}

QString waterfallText(const QString &text)
{
    for (QStringView rest(text); !rest.isEmpty();) {
        const auto isBreak = [](QChar c) {
            return c == u'\n' || c == u'\r' || c == QChar::ParagraphSeparator
                || c == QChar::LineSeparator;
        };
        const auto end = std::find_if(rest.begin(), rest.end(), isBreak);
        const QStringView paragraph = rest.first(end - rest.begin()).trimmed();
        if (!paragraph.isEmpty())
            return paragraph.toString();
        rest = end == rest.end() ? QStringView() : rest.sliced(end - rest.begin() + 1);
    }
    return {};
}

QRectF waterfallRoom(double width, bool isMirrored)
{
    const double room = std::max(1.0, width - kWaterfallCaptionWidth);
    return QRectF(isMirrored ? 0 : kWaterfallCaptionWidth, 0, room, 0);
}

SpecimenPage::Text waterfallLine(const DetailSpecimen &specimen, const WaterfallRow &row,
                                 const QRectF &room, WaterfallLineEnd end)
{
    TextLayoutOptions options;
    options.letterSpacing = specimen.letterSpacing * row.size;
    if (end == WaterfallLineEnd::wholeWords) {
        options.width = room.width();
        options.maximumLines = 1;
    }
    const QString text =
        lineExcerpt(waterfallText(specimen.text), room.width() + row.size, row.size);
    SpecimenPage::Text line{
        TextLayout(text, specimen.font.withPointSize(row.size), options), {}, specimen.foreground};
    if (line.layout.lines().empty())
        return line;
    const LayoutLine &set = line.layout.lines().front();
    // A line without a width of its own stands at the left of its box.
    const double free = std::isinf(options.width) ? room.width() - line.layout.size().width() : 0;
    line.origin = {room.left() + (set.isRightToLeft ? free : 0), row.baseline - set.origin.y()};
    return line;
}

void addWaterfallFurniture(SpecimenPage &page, const DetailSpecimen &specimen,
                           const WaterfallRow &row, double width, bool isMirrored)
{
    const QFontMetrics metrics(interfaceFont(InterfaceSize::caption));
    const double x = isMirrored ? width - kWaterfallCaptionWidth : 0;
    SpecimenPage::Caption caption;
    caption.text = QString::number(row.size);
    caption.rect = QRectF(x, row.baseline - metrics.ascent(), kWaterfallCaptionWidth,
                          metrics.ascent() + metrics.descent());
    caption.alignment = isMirrored ? Qt::AlignRight : Qt::AlignLeft;
    const QColor ink = controlColor(specimen.foreground, specimen.background);
    caption.color = withAlpha(ink, kCaptionAlpha);
    page.captions.push_back(caption);
    if (row.size != kWaterfallSizes.back())
        page.rules.push_back({QRectF(0, row.top, width, row.height),
                              hairlineColor(specimen.foreground, specimen.background)});
}

SpecimenPage waterfallPage(const DetailSpecimen &specimen, double width, bool isMirrored)
{
    SpecimenPage page;
    page.title = specimen.familyName + QLatin1Char(' ') + specimen.styleName;
    const std::vector<WaterfallRow> rows = waterfallRows(specimen.font);
    if (rows.empty() || !(width > 0))
        return page;
    page.size = QSizeF(width, rows.back().top + rows.back().height);
    const QRectF room = waterfallRoom(width, isMirrored);
    for (const WaterfallRow &row : rows) {
        page.texts.push_back(waterfallLine(specimen, row, room, WaterfallLineEnd::wholeWords));
        addWaterfallFurniture(page, specimen, row, width, isMirrored);
    }
    return page;
}

} // namespace lorva
