// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/SoftShadow.h"
#include "ui/style/Style.h"

#include <QAccessible>
#include <QWidget>

#include <vector>

class QScrollArea;

namespace lorva {

class OverlayScrollBar;
class SheetFooter;
class SheetText;

/// The panel of a sheet: a column of texts and controls that scrolls where there is no room for
/// it, perhaps a list that takes what is left, and the line of buttons, which always stays.
///
/// Draws only hairlines itself: what it lies on draws its surface. Thread: main. Units: points.
class SheetPanel final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kPadding = spacing::k28;

    /// `role`: what assistive technology takes it for.
    SheetPanel(QAccessible::Role role, QWidget *parent);

    QAccessible::Role role() const { return m_role; }
    void setPreferredWidth(int width) { m_preferredWidth = width; }
    /// Appends to the column, `gap` below what came before.
    void add(QWidget *block, int gap);
    SheetText *addText(const QString &text, const QFont &font, double alpha, int gap);
    /// Takes the room between column and buttons, over the panel's whole width.
    void setFiller(QWidget *filler, int minimumHeight, int preferredHeight);
    SheetFooter &footer() { return *m_footer; }
    /// Lays everything out in at most that room and takes the size that it needs.
    void fitInto(QSize room);
    /// Scrolls the column to one of its controls.
    void reveal(const QWidget &control);
    /// What paintSurface() covers, in the parent's points: the shadow reaches beyond the panel.
    QRect surfaceRect() const { return SoftShadow::outerRect(geometry()); }
    /// Its shadow and its ground, for the parent's paintEvent(); keeps the painter's opacity.
    void paintSurface(QPainter &painter);

protected:
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    struct Block
    {
        QWidget *widget;
        int gap;
    };

    int columnHeight(int textWidth) const;
    void placeColumn(const QRect &shown, int textWidth, int height);

    const QAccessible::Role m_role;
    int m_preferredWidth;
    std::vector<Block> m_blocks;
    QScrollArea *m_area;
    OverlayScrollBar *m_scrollBar;
    QWidget *m_filler = nullptr;
    int m_fillerMinimum = 0;
    int m_fillerPreferred = 0;
    SheetFooter *m_footer;
    SoftShadow m_shadow;
};

} // namespace lorva
