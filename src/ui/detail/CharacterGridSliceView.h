// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/GlyphInkStore.h"

#include <QStringList>
#include <QWidget>

#include <functional>
#include <optional>
#include <vector>

namespace lorva {

/// What one row band of a section shows.
struct CharacterSlice
{
    int sectionIndex = -1;
    /// Of its first cell in the section.
    int startIndex = 0;
    bool drawsTopEdge = true;
    bool drawsBottomEdge = false;
    /// One for each cell; empty for a glyph that no character reaches.
    QStringList characters;
    /// As many.
    std::vector<quint32> glyphs;
    int columns = 1;

    bool operator==(const CharacterSlice &) const = default;
};

/// A row of cells side by side. Draws the glyphs that it is given; those not yet painted are empty
/// for a moment.
///
/// Thread: main. Units: points.
class CharacterGridSliceView final : public QWidget
{
    Q_OBJECT
public:
    explicit CharacterGridSliceView(QWidget *parent);

    void setSlice(CharacterSlice slice);
    const CharacterSlice &slice() const { return m_slice; }
    /// The same glyphs are to be painted anew: what is drawn stays until they are.
    void setGlyphFont(const Font &glyphFont);
    void setColor(const QColor &color, const QColor &lineColor);
    /// The cells, counted in this row, that are current and whose character is told of.
    void setMarks(std::optional<int> current, bool hasRing, std::optional<int> opened);
    /// Takes what the store has, or paints within the time that it gives.
    void takeInk(GlyphInkStore &store);
    /// The glyphs that are not painted yet.
    std::vector<quint32> missingGlyphs() const;

    /// A press and a release on the same cell; its index in the section.
    std::function<void(int index)> onSelect;
    std::function<void(int index)> onDoubleClick;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    struct Cell
    {
        GlyphInk ink;
        /// In the present colour.
        QImage image;
        bool isFresh = false;
    };

    QRect cellRect(int column) const;
    std::optional<int> columnAt(QPointF position) const;
    void setHovered(std::optional<int> column);
    void drawEdges(QPainter &painter) const;
    void drawCell(QPainter &painter, int column) const;
    void drawUnreachedMark(QPainter &painter, const QRect &rect) const;

    CharacterSlice m_slice;
    Font m_glyphFont;
    QColor m_color = Qt::black;
    QColor m_lineColor = Qt::lightGray;
    std::vector<Cell> m_cells;
    std::optional<int> m_current;
    bool m_hasRing = false;
    std::optional<int> m_opened;
    std::optional<int> m_hovered;
    std::optional<int> m_pressed;
};

} // namespace lorva
