// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/TextLayout.h"
#include "ui/style/FocusRinged.h"

#include <QColor>
#include <QWidget>

namespace lorva {

class PaneButton;

/// The characters that someone collected, set in the face that they are from. Backspace takes the
/// last one away; empty, it hides itself.
///
/// Thread: main. Units: points.
class CharacterTrayView final : public FocusRinged<QWidget>
{
    Q_OBJECT
public:
    static constexpr int kHeight = 52;

    explicit CharacterTrayView(QWidget *parent);

    const QString &text() const { return m_text; }
    void add(const QString &character);
    void removeLast();
    void clear();
    void setPreviewFace(const Font &face);
    void setColors(const QColor &foreground, const QColor &ground);

Q_SIGNALS:
    void copyWanted(const QString &text);
    void textChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setText(const QString &text);
    void setLine();
    QRect textRect() const;

    QString m_text;
    Font m_face;
    TextLayout m_line;
    QColor m_foreground = Qt::black;
    QColor m_ground = Qt::white;
    PaneButton *m_copy;
    PaneButton *m_clear;
};

} // namespace lorva
