// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

class QScrollBar;

namespace lorva {

/// A slim scroll bar that lies over the content, shows itself while the content moves or the
/// pointer is near, and takes no room.
///
/// It only mirrors a real scroll bar (which stays hidden): value, range and page come from there.
/// Thread: main.
class OverlayScrollBar final : public QWidget
{
    Q_OBJECT
public:
    explicit OverlayScrollBar(QWidget *parent);

    void follow(QScrollBar *source);
    void setForeground(const QColor &color);
    /// Takes its place at the trailing edge of the parent and hides when there is nothing to
    /// scroll.
    void adapt();
    /// Shows the knob for a moment.
    void flash();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void enterEvent(QEnterEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QRect knobRect() const;

    QScrollBar *m_source = nullptr;
    QColor m_foreground = Qt::black;
    QTimer m_hide;
    bool m_isShown = false;
    bool m_isHovered = false;
    /// Where in the knob it was seized; −1 when it is not.
    int m_grip = -1;
};

} // namespace lorva
