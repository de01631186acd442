// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetText.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <cmath>

namespace lorva {

namespace {

constexpr double kLineSpacing = 1.3;

double lineHeight(const QFont &font)
{
    return std::ceil(QFontMetricsF(font).height() / 1.2 * kLineSpacing);
}

/// The lines of one paragraph, at most `limit` of them; the last one then holds all the rest.
void appendLines(QStringList &lines, const QString &paragraph, const QFont &font, double width,
                 int limit)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.beginLayout();
    const qsizetype before = lines.size();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const bool isLast = lines.size() + 1 == limit;
        lines.append(isLast ? paragraph.mid(line.textStart())
                            : paragraph.mid(line.textStart(), line.textLength()));
        if (isLast)
            break;
    }
    layout.endLayout();
    if (lines.size() == before)
        lines.append(QString());
}

QStringList wrapped(const QString &text, const QFont &font, double width, int maximumLineCount)
{
    const int limit = maximumLineCount > 0 ? maximumLineCount : -1;
    QStringList lines;
    for (const QString &paragraph : text.split(u'\n')) {
        if (lines.size() == limit)
            break;
        appendLines(lines, paragraph, font, width, limit);
    }
    return lines;
}

} // namespace

SheetText::SheetText(const QString &text, const QFont &font, QWidget *parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
    setFont(font);
    setWordWrap(true);
}

int SheetText::heightForWidth(int width) const
{
    const auto count = wrapped(text(), font(), width, m_maximumLineCount).size();
    return int(std::ceil(double(count) * lineHeight(font())));
}

void SheetText::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::WindowText));
    const double height = lineHeight(font());
    double y = 0;
    for (const QString &line : wrapped(text(), font(), width(), m_maximumLineCount)) {
        const QString shown = fontMetrics().elidedText(line, Qt::ElideRight, width());
        painter.drawText(
            QRectF(0, y, width(), height),
            int(Qt::AlignVCenter | QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)),
            shown);
        y += height;
    }
}

} // namespace lorva
