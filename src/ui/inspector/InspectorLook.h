// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QLabel>

namespace lorva {

// The measures and colours that the parts of the inspector share. Thread: main. Units: points.

inline constexpr int kInspectorPadding = 18;
inline constexpr int kInspectorRow = 30;
/// Over a group of rows.
inline constexpr int kInspectorCaption = 26;
inline constexpr int kInspectorGap = spacing::k12;
/// The longest name of a font's own that anybody reads in one line; a font may bring thousands of
/// letters, and measuring them takes its time.
inline constexpr qsizetype kLongestShownName = 200;

inline QColor inspectorInk()
{
    return neutralColors(isDarkDesktop()).text;
}
inline QColor inspectorGround()
{
    return neutralColors(isDarkDesktop()).sidebar;
}
/// Labels and values, at as much of the ink as it takes to read them.
inline QColor inspectorQuiet(double alpha = 0.55)
{
    return quietColor(inspectorInk(), inspectorGround(), alpha);
}

/// Draws one line in the painter's font and pen, cut at its end where there is no room. `room` and
/// `side` are told as for left-to-right widgets; the line runs as its own letters do.
void drawInspectorLine(QPainter &painter, const QWidget &widget, const QRect &room,
                       const QString &text, Qt::AlignmentFlag side = Qt::AlignLeft);

/// A text of the inspector in one of its voices, light or dark with the desktop; plain, and cut at
/// its end where there is no room. Thread: main.
class InspectorLabel final : public QLabel
{
    Q_OBJECT
public:
    enum class Kind {
        /// Over a group.
        caption,
        /// What is said where there is nothing to show.
        emptyTitle,
        emptyText,
    };
    InspectorLabel(const QString &text, Kind kind, QWidget *parent);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    const Kind m_kind;
};

} // namespace lorva
