// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetText.h"

#include "ui/style/Palette.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QStyle>
#include <QTextLayout>

#include <cmath>
#include <vector>

namespace lorva {

namespace {

constexpr double kLineSpacing = 1.3;
/// More is somebody's damaged name; laying it out would take seconds.
constexpr qsizetype kLongestText = 2000;

/// What turns the direction of everything after it.
bool isDirectionControl(QChar character)
{
    return (character >= u'\u202A' && character <= u'\u202E')
        || (character >= u'\u2066' && character <= u'\u2069');
}

double lineHeight(const QFont &font)
{
    return std::ceil(QFontMetricsF(font).height() / 1.2 * kLineSpacing);
}

/// The names in it are anybody's.
QString showable(const QString &text)
{
    QString shown = text.size() > kLongestText ? QString(text.left(kLongestText) % u'…') : text;
    shown.removeIf(isDirectionControl);
    return shown;
}

struct Line
{
    QString text;
    /// It holds more than there is room for.
    bool isCut = false;
};

/// White space at a line's end takes no room, at neither side.
QString trimmedEnd(QString text)
{
    while (!text.isEmpty() && text.back().isSpace())
        text.chop(1);
    return text;
}

/// The lines of one paragraph, at most `limit` of them; the last one then holds all the rest.
void appendLines(std::vector<Line> &lines, const QString &paragraph, const QFont &font,
                 double width, int limit)
{
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    QTextLayout layout(paragraph, font);
    layout.setTextOption(option);
    layout.beginLayout();
    const size_t before = lines.size();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const QString shown = trimmedEnd(paragraph.mid(line.textStart(), line.textLength()));
        const QString rest = trimmedEnd(paragraph.mid(line.textStart()));
        const bool isLast = int(lines.size()) + 1 == limit;
        lines.push_back({isLast ? rest : shown, isLast && rest.size() > shown.size()});
        if (isLast)
            break;
    }
    layout.endLayout();
    if (lines.size() == before)
        lines.push_back({});
}

std::vector<Line> linesOf(const WrappedText &wrapped, double width)
{
    const int limit = wrapped.maximumLineCount > 0 ? wrapped.maximumLineCount : -1;
    std::vector<Line> lines;
    for (const QString &paragraph : showable(wrapped.text).split(u'\n')) {
        if (int(lines.size()) == limit)
            break;
        appendLines(lines, paragraph, wrapped.font, width, limit);
    }
    return lines;
}

} // namespace

int WrappedText::heightFor(int width) const
{
    return int(std::ceil(double(linesOf(*this, width).size()) * lineHeight(font)));
}

void WrappedText::draw(QPainter &painter, const QRectF &rect, Qt::LayoutDirection direction) const
{
    painter.setFont(font);
    const QFontMetricsF metrics(font);
    const double height = lineHeight(font);
    const auto alignment = Qt::AlignVCenter
        | (isCentred ? Qt::AlignHCenter : QStyle::visualAlignment(direction, Qt::AlignLeft));
    double y = rect.top();
    for (const auto &[line, isCut] : linesOf(*this, rect.width())) {
        const QString shown = isCut ? metrics.elidedText(line, Qt::ElideRight, rect.width()) : line;
        // Scripts with tall letters may reach over their line.
        painter.drawText(QRectF(rect.left(), y, rect.width(), height),
                         int(alignment) | Qt::TextDontClip, shown);
        y += height;
    }
}

SheetText::SheetText(const QString &text, const QFont &font, double alpha, QWidget *parent)
    : QLabel(text, parent)
    , m_alpha(alpha)
{
    setTextFormat(Qt::PlainText);
    setFont(font);
    setWordWrap(true);
}

int SheetText::heightForWidth(int width) const
{
    return wrapped().heightFor(width);
}

void SheetText::paintEvent(QPaintEvent *)
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.setPen(quietColor(colors.text, colors.ground, m_alpha));
    wrapped().draw(painter, rect(), layoutDirection());
}

} // namespace lorva
