// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/CharacterCells.h"
#include "ui/detail/DetailSection.h"

#include <QColor>
#include <QPointer>
#include <QTimer>

class QLabel;

namespace lorva {

class CharacterCellsView;
class CharacterTrayView;
class Popover;
class QuietSpinner;
class SegmentedControl;

/// Every character that a face can draw, or every glyph that it has, in cells.
///
/// Thread: main; characters are listed on a worker. Units: points.
class CharacterGridView final : public DetailSection
{
    Q_OBJECT
public:
    explicit CharacterGridView(QWidget *parent = nullptr);
    ~CharacterGridView() override;

    /// Lists the characters of `face` unless those of `key` are shown or on the way. A newer
    /// request supersedes the one that runs. An empty key shows nothing.
    void requestCharacterGrid(const QString &key, const Font &face);
    /// What the glyphs are drawn with: the face with the user's axis values. The popover tells the
    /// glyphs of it.
    void setPreviewFace(const Font &face);
    /// `background` may be transparent (over an image).
    void setColors(const QColor &foreground, const QColor &background);
    /// A character, "U+0041", or part of a name; empty: all.
    void setSearch(const QString &query);
    /// Gives the keyboard to the cells.
    void focusCells();
    int heightFor(int width) const override;
    void setVisibleBand(int top, int bottom) override;
    /// What is in sight is painted.
    bool isSettled() const;

    const CharacterGridModel &model() const { return m_model; }
    /// Of a click or a key on a cell; null while none is open.
    Popover *characterPopover() const;

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void takeListing();
    void takeCells();
    void showState();
    QString countText() const;
    /// What stands in place of cells; empty where there are some.
    QString message() const;
    int bodyHeight(int width) const;
    void placeParts();
    void placeTray();
    QColor groundColor() const;

    void openPopover(CellIndex cell, Qt::FocusReason reason);
    void closePopover();
    void openMenu(CellIndex cell, const QPoint &globalPosition);
    void copy(const QString &text);
    void copyCell(CellIndex cell);
    void collect(const QString &character);

    CharacterGridModel m_model;
    CharacterFinder m_finder;
    Font m_previewFace;
    QColor m_foreground;
    QColor m_background;
    QLabel *m_count;
    QuietSpinner *m_spinner;
    SegmentedControl *m_kind;
    CharacterCellsView *m_cells;
    CharacterTrayView *m_tray;
    QPointer<Popover> m_characterPopover;
    /// What was copied last, told for a moment.
    QString m_note;
    QTimer m_noteEnd;
    QTimer m_spinnerStart;
    /// Kept while other characters are on the way, so that the page does not jump.
    int m_bodyHeightBefore = 0;
    int m_bandTop = 0;
    int m_bandBottom = 0;
};

} // namespace lorva
