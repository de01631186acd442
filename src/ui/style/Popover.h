// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPointer>
#include <QWidget>

#include <optional>
#include <utility>

class QScrollArea;

namespace lorva {

/// A small panel that hangs from a control: neutral ground, radius 10, a hairline and a soft
/// shadow.
///
/// Lies inside the anchor's window, which it never exceeds, and is no window itself: it looks the
/// same on every desktop. Ends with Escape, a press outside, the anchor's end, or close(); the
/// focus returns to where it was. Deletes itself. Thread: main.
class Popover final : public QWidget
{
    Q_OBJECT
public:
    /// Takes `content` over and opens below (or above) `anchor`. `name`: for assistive technology.
    static Popover *open(QWidget *content, QWidget *anchor, const QString &name);
    /// Hangs from a part of the anchor (in its coordinates) and ends when that is scrolled out of
    /// sight. A press on the anchor, which may concern another part, is not swallowed. `reason`:
    /// how the focus comes to it.
    static Popover *openAt(QWidget *content, QWidget *anchor, const QRect &part,
                           const QString &name, Qt::FocusReason reason);
    ~Popover() override;

    QWidget *content() const { return m_content; }
    /// Instead of the neutral ones.
    void setColors(const QColor &ink, const QColor &ground);
    void close();

Q_SIGNALS:
    void closed();

protected:
    bool event(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    class Shadow;

    Popover(QWidget *content, QWidget *anchor, const QRect &part);
    QRect anchorRect() const;
    bool isAnchorInSight() const;
    void place();
    void placeLater();
    void fadeIn();
    void open(const QString &name, Qt::FocusReason reason);
    void takeFocus(Qt::FocusReason reason);
    void giveFocusBack();
    void followFocus(QWidget *now);
    bool isOutside(const QObject *watched) const;
    bool isOnAnchor(const QObject *watched) const;
    bool isAroundAnchor(const QObject *watched) const;
    QWidget *neighbourInside(QWidget *from, bool next) const;

    QPointer<QWidget> m_content;
    QPointer<QWidget> m_anchor;
    /// Null: the whole anchor.
    QRect m_part;
    QPointer<QWidget> m_focusBefore;
    QPointer<Shadow> m_shadow;
    QScrollArea *m_scroll;
    std::optional<std::pair<QColor, QColor>> m_colors;
    bool m_isClosed = false;
};

} // namespace lorva
