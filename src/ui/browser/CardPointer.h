// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/BrowserSelection.h"

#include <QObject>
#include <QPoint>
#include <QTimer>

#include <optional>

class QMouseEvent;

namespace lorva {

class BrowserCollectionView;
class RubberBand;

/// What the pointer does to the cards: selects, draws rubber bands, drags families away, and edits
/// with a second click.
///
/// Cards leave no gaps, so the press decides what a drag is: on a card it takes the selected
/// families along; on the ground, or with Shift or Control anywhere, it draws a rubber band, which
/// scrolls at the edges. Thread: main.
class CardPointer final : public QObject
{
    Q_OBJECT
public:
    explicit CardPointer(BrowserCollectionView &view);

    void press(const QMouseEvent &event);
    void move(const QMouseEvent &event);
    void release(const QMouseEvent &event);
    void doubleClick(const QMouseEvent &event);

    /// The press that follows only gave the view its focus, and asks for nothing more.
    void expectFocusPress() { m_isFocusPress = true; }
    /// The cards moved beneath the pointer.
    void scrolled();
    /// Other cards: what was begun ends here, what is selected stays.
    void end();
    /// True when there was a rubber band; the selection is then the one before it.
    bool cancelBand();
    /// No edit after all.
    void forgetClick() { m_editDelay.stop(); }

private:
    struct Press
    {
        QPoint at;
        /// In the content, which may scroll.
        QPoint content;
        int index = -1;
        BrowserSelection before;
        BrowserSelection::Band band = BrowserSelection::Band::replace;
        bool takesFamilies = false;
        bool choosesOnRelease = false;
        bool editsOnRelease = false;
    };
    Press pressOf(const QMouseEvent &event) const;
    void select(Press &press, Qt::KeyboardModifiers modifiers, bool isFocusPress);
    void stretchBand();
    void scrollAtEdges();
    void edit();

    BrowserCollectionView &m_view;
    RubberBand *m_band;
    std::optional<Press> m_press;
    /// In the viewport; the band's other corner.
    QPoint m_position;
    QTimer m_edgeScroll;
    QTimer m_editDelay;
    QString m_editID;
    bool m_isFocusPress = false;
};

} // namespace lorva
