// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/quiz/FontQuizPosterLines.h"

#include "ui/style/Style.h"

#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr double kLineSpacing = 1.42;
/// Of a line, in its own size.
constexpr double kMeasure = 33;

/// So that a line of names from another direction stays where it was in its paragraph.
QString withDirectionOf(const QString &paragraph, const QString &line)
{
    return (paragraph.isRightToLeft() ? QChar(0x200f) : QChar(0x200e)) + line;
}

void appendParagraph(FontQuizPosterLines &into, const QString &paragraph, int number, double width)
{
    QTextLayout layout(paragraph, into.font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        QString shown = paragraph.mid(line.textStart(), line.textLength());
        while (shown.endsWith(u' '))
            shown.chop(1);
        into.lines.push_back({withDirectionOf(paragraph, shown), number});
    }
    layout.endLayout();
}

FontQuizPosterLines linesOf(const QString &sentence, double size, double width)
{
    FontQuizPosterLines lines;
    lines.font = posterFont(size, QFont::Normal);
    lines.pitch = std::round(size * kLineSpacing);
    const double measure = std::min(width, kMeasure * size);
    int number = 0;
    for (const QString &paragraph : sentence.split(u'\n')) {
        if (paragraph.isEmpty())
            lines.lines.push_back({});
        else
            appendParagraph(lines, paragraph, number++, measure);
    }
    return lines;
}

} // namespace

QFont posterFont(double size, int weight)
{
    QFont font = interfaceFont(InterfaceSize::heading, InterfaceWeight::regular, Figures::tabular);
    font.setPixelSize(std::max(int(std::lround(size)), 1));
    font.setWeight(QFont::Weight(weight));
    return font;
}

FontQuizPosterLines fittingPosterLines(const QString &sentences, double size, double width,
                                       double height)
{
    for (double tried = std::max(size, kSmallestPosterSize);; tried -= 1) {
        const bool isLast = tried <= kSmallestPosterSize;
        FontQuizPosterLines lines = linesOf(sentences, tried, width);
        if (isLast || lines.height() <= height)
            return lines;
    }
}

} // namespace lorva
