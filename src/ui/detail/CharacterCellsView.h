// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/CharacterCells.h"
#include "ui/detail/CharacterGridSliceView.h"

#include <QColor>

namespace lorva {

class CharacterHeaderLabel;

/// The cells of the character grid under their headers, of which only those in sight exist as
/// widgets. The keyboard moves through them.
///
/// Thread: main. Units: points.
class CharacterCellsView final : public QWidget
{
    Q_OBJECT
public:
    explicit CharacterCellsView(QWidget *parent);
    ~CharacterCellsView() override;

    void setCells(const CharacterCells &cells);
    const CharacterCells &cells() const { return m_cells; }
    /// What the glyphs are drawn with, at any size.
    void setPreviewFace(const Font &face);
    void setColors(const QColor &foreground, const QColor &lineColor);
    int heightFor(int width) const;
    void setVisibleBand(int top, int bottom);
    /// What is in sight is painted.
    bool isSettled() const;

    int charGridColumns() const { return m_charGridColumns; }
    const CharacterGridLayout &arrangement() const { return m_layout; }
    /// Where the keyboard is.
    std::optional<CellIndex> current() const { return m_current; }
    void setCurrent(CellIndex cell);
    /// The cell whose popover is open is marked.
    void setOpened(std::optional<CellIndex> cell);
    /// As CharacterCells::nameAt().
    QString nameOf(CellIndex cell) const;

Q_SIGNALS:
    /// By a click or a key, as the reason says.
    void selected(const lorva::CellIndex &cell, Qt::FocusReason reason);
    void copyWanted(const lorva::CellIndex &cell);
    void menuWanted(const lorva::CellIndex &cell, const QPoint &globalPosition);
    /// What the keyboard leads to; in this widget's coordinates.
    void revealWanted(const QRect &rect);
    /// What is in sight is painted.
    void settled();

protected:
    bool event(QEvent *event) override;
    void changeEvent(QEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();
    void showBand();
    void showSlices(const std::vector<CharacterGridLayout::Row> &rows);
    void showHeaders();
    void fillSlice(CharacterGridSliceView *&slice, std::vector<CharacterGridSliceView *> &spare,
                   const CharacterGridLayout::Row &row);
    CharacterGridSliceView *makeSlice();
    CharacterSlice sliceOf(const CharacterGridLayout::Row &row) const;
    void updateLook();
    void updateInk();
    std::vector<quint32> glyphsBeyond() const;
    void updateMarks();
    void moveCurrent(CellMove move);
    void revealCurrent();
    void ensureCurrent();

    CharacterCells m_cells;
    CharacterGridLayout m_layout;
    GlyphInkStore m_ink;
    Font m_previewFace;
    QColor m_foreground = Qt::black;
    QColor m_lineColor = Qt::lightGray;
    int m_charGridColumns = 1;
    int m_bandTop = 0;
    int m_bandBottom = 0;
    bool m_isScrollingUp = false;
    /// Rows show other characters, or as many of them as before no longer.
    bool m_mustRefill = true;
    /// The rows in sight, from the top down; then spare ones, hidden.
    std::vector<CharacterGridSliceView *> m_charSliceViews;
    std::ptrdiff_t m_shownSlices = 0;
    std::vector<CharacterHeaderLabel *> m_charHeaderLabels;
    std::optional<CellIndex> m_current;
    std::optional<CellIndex> m_opened;
    bool m_showsFocus = false;
};

} // namespace lorva
