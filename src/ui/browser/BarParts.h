// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/PaneColors.h"
#include <QColor>
#include <QObject>
#include <QRect>
#include <QString>

#include <optional>

class QPainter;
class QWidget;

namespace lorva {

class LineField;

// What the bars over a pane have in common. Thread: main. Units: points.

/// How wide the title would be, in points.
int barTitleWidth(const QString &title);
/// Nothing on a ground that the pane has painted; over an image a veil, on which the controls are
/// seen.
void paintBarGround(QPainter &painter, const QRect &bar, const QColor &foreground,
                    const QColor &background);
/// A bar over a page: its ground, the title in one line, cut to its room, and a hairline below.
void paintTopBar(QPainter &painter, const QWidget &bar, const QRect &titleRoom,
                 const QString &title, const PaneColors &colors);

/// Shows the part at its place; hides it without one.
void placePart(QWidget *part, const std::optional<QRect> &place);

/// The search field of a bar: Escape empties it, and then leaves it; Return and the down key leave.
class BarSearch final : public QObject
{
    Q_OBJECT
public:
    /// Makes the field as a child of the bar, which lays it out. `placeholder` is its name, too.
    BarSearch(const QString &objectName, const QString &placeholder, QWidget *bar);

    LineField *field() const { return m_field; }
    /// Not told by changed(); does nothing while an input method composes, which would be lost.
    void showQuery(const QString &query);
    /// Gives it the keyboard, with all its text selected.
    void focus();

Q_SIGNALS:
    /// The user changed it.
    void changed(const QString &query);
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool keyPressed(int key);

    LineField *m_field;
    bool m_suppressCallbacks = false;
};

} // namespace lorva
