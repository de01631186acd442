// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterGridSliceView.h"

#include "ui/detail/CharacterGridLayout.h"
#include "ui/style/ControlColors.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"

#include <QMouseEvent>
#include <QPainter>

namespace lorva {

namespace {

constexpr double kHoverAlpha = 0.04;
constexpr double kOpenedAlpha = 0.08;
constexpr double kMarkAlpha = 0.35;
constexpr double kMarkSize = 4;
constexpr double kMarkInset = 7;
constexpr double kRingRadius = 6;

} // namespace

CharacterGridSliceView::CharacterGridSliceView(QWidget *parent)
    : QWidget(parent)
{
    setMouseTracking(true);
}

void CharacterGridSliceView::setSlice(CharacterSlice slice)
{
    if (slice == m_slice)
        return;
    m_slice = std::move(slice);
    m_cells.assign(m_slice.glyphs.size(), {});
    m_hovered.reset();
    m_pressed.reset();
    update();
}

void CharacterGridSliceView::setGlyphFont(const Font &glyphFont)
{
    m_glyphFont = glyphFont;
    for (Cell &cell : m_cells)
        cell.isFresh = false;
}

void CharacterGridSliceView::setColor(const QColor &color, const QColor &lineColor)
{
    if (color == m_color && lineColor == m_lineColor)
        return;
    m_color = color;
    m_lineColor = lineColor;
    for (Cell &cell : m_cells) {
        // Coloured glyphs may have parts in the text's colour.
        cell.isFresh = cell.isFresh && !cell.ink.isColored;
        cell.image = cell.ink.colored(m_color);
    }
    update();
}

void CharacterGridSliceView::setMarks(std::optional<int> current, bool hasRing,
                                      std::optional<int> opened)
{
    if (current == m_current && hasRing == m_hasRing && opened == m_opened)
        return;
    m_current = current;
    m_hasRing = hasRing;
    m_opened = opened;
    update();
}

void CharacterGridSliceView::takeInk(GlyphInkStore &store)
{
    for (size_t i = 0; i < m_cells.size(); ++i) {
        Cell &cell = m_cells[i];
        if (cell.isFresh)
            continue;
        std::optional<GlyphInk> ink = store.findOrPaint(m_slice.glyphs[i]);
        if (!ink)
            continue;
        cell.ink = std::move(*ink);
        cell.image = cell.ink.colored(m_color);
        cell.isFresh = true;
        update(cellRect(int(i)));
    }
}

std::vector<quint32> CharacterGridSliceView::missingGlyphs() const
{
    std::vector<quint32> missing;
    for (size_t i = 0; i < m_cells.size(); ++i) {
        if (!m_cells[i].isFresh)
            missing.push_back(m_slice.glyphs[i]);
    }
    return missing;
}

QRect CharacterGridSliceView::cellRect(int column) const
{
    const int left =
        isRightToLeft() ? width() - (column + 1) * kCharacterCell : column * kCharacterCell;
    return {left, 0, kCharacterCell, kCharacterCell};
}

std::optional<int> CharacterGridSliceView::columnAt(QPointF position) const
{
    for (int column = 0; column < int(m_cells.size()); ++column) {
        if (QRectF(cellRect(column)).contains(position))
            return column;
    }
    return std::nullopt;
}

void CharacterGridSliceView::setHovered(std::optional<int> column)
{
    if (column == m_hovered)
        return;
    for (const std::optional<int> changed : {std::exchange(m_hovered, column), column}) {
        if (changed)
            update(cellRect(*changed));
    }
}

void CharacterGridSliceView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    drawEdges(painter);
    for (int column = 0; column < int(m_cells.size()); ++column) {
        if (cellRect(column).intersects(event->rect()))
            drawCell(painter, column);
    }
}

/// The line over the first row may be its header's; over others it closes the full row above.
void CharacterGridSliceView::drawEdges(QPainter &painter) const
{
    const Qt::Edge leading = isRightToLeft() ? Qt::RightEdge : Qt::LeftEdge;
    const int cells = int(m_cells.size());
    const int topEnd = !m_slice.drawsTopEdge ? 0 : m_slice.startIndex > 0 ? m_slice.columns : cells;
    for (int column = 0; column < topEnd; ++column)
        drawHairline(painter, cellRect(column), Qt::TopEdge, m_lineColor);
    for (int column = 1; column <= cells; ++column)
        drawHairline(painter, cellRect(column), leading, m_lineColor);
    for (int column = 0; m_slice.drawsBottomEdge && column < cells; ++column)
        drawHairline(painter, cellRect(column), Qt::BottomEdge, m_lineColor);
}

void CharacterGridSliceView::drawCell(QPainter &painter, int column) const
{
    const QRect rect = cellRect(column);
    const bool isOpened = m_opened == column;
    if (isOpened || m_hovered == column)
        painter.fillRect(rect, withAlpha(m_color, isOpened ? kOpenedAlpha : kHoverAlpha));
    const Cell &cell = m_cells[size_t(column)];
    DeviceSpace(painter).drawImage(rect.topLeft(), cell.ink.devicePosition, cell.image);
    if (m_slice.characters.at(column).isEmpty())
        drawUnreachedMark(painter, rect);
    if (m_hasRing && m_current == column) {
        painter.setRenderHint(QPainter::Antialiasing);
        drawFocusRing(painter, QRectF(rect).adjusted(3, 3, -3, -3), kRingRadius);
    }
}

/// A hollow dot in the corner.
void CharacterGridSliceView::drawUnreachedMark(QPainter &painter, const QRect &rect) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(withAlpha(m_color, kMarkAlpha), 1));
    painter.setBrush(Qt::NoBrush);
    const double x =
        isRightToLeft() ? rect.left() + kMarkInset : rect.right() + 1 - kMarkInset - kMarkSize;
    painter.drawEllipse(QRectF(x, rect.top() + kMarkInset, kMarkSize, kMarkSize));
}

void CharacterGridSliceView::mousePressEvent(QMouseEvent *event)
{
    m_pressed = event->button() == Qt::LeftButton ? columnAt(event->position()) : std::nullopt;
    event->setAccepted(m_pressed.has_value());
}

void CharacterGridSliceView::mouseMoveEvent(QMouseEvent *event)
{
    setHovered(columnAt(event->position()));
    event->accept();
}

void CharacterGridSliceView::mouseReleaseEvent(QMouseEvent *event)
{
    const std::optional<int> pressed = std::exchange(m_pressed, std::nullopt);
    if (event->button() == Qt::LeftButton && pressed && pressed == columnAt(event->position())
        && onSelect)
        onSelect(m_slice.startIndex + *pressed);
}

void CharacterGridSliceView::mouseDoubleClickEvent(QMouseEvent *event)
{
    // The release that follows is no further click.
    m_pressed.reset();
    const std::optional<int> column = columnAt(event->position());
    if (event->button() == Qt::LeftButton && column && onDoubleClick)
        onDoubleClick(m_slice.startIndex + *column);
}

void CharacterGridSliceView::leaveEvent(QEvent *)
{
    setHovered(std::nullopt);
}

} // namespace lorva
