// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/Caret.h"

#include <QColor>
#include <QLineEdit>

#include <optional>

namespace lorva {

class IconButton;

/// A one-line text field without a frame: radius 8 over 8 % of the foreground, an optional symbol
/// in front, a button that clears it while it holds text where asked for. 28 high. Caret and
/// selection in the desktop's accent. Thread: main.
class LineField final : public QLineEdit
{
    Q_OBJECT
public:
    explicit LineField(QWidget *parent = nullptr);

    void setSymbol(const QString &symbol);
    void setClearable(bool isClearable);
    /// Without it the neutral colours, light or dark with the desktop.
    void setColors(const QColor &foreground, const QColor &background);
    /// An input method is composing: what the field holds is not final.
    bool isComposing() const { return m_isComposing; }
    /// Empties it as the user's doing, which can be undone and is told by textSettled().
    void clearByUser();
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user changed the text, and no input method is composing.
    void textSettled(const QString &text);

protected:
    void inputMethodEvent(QInputMethodEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    struct Colors
    {
        QColor foreground;
        QColor background;
    };

    Colors colors() const;
    void settle();
    void takeColors();
    void placeParts();
    void restartCaret();
    void paintCaret(QPainter &painter) const;

    std::optional<Colors> m_paneColors;
    QColor m_bed;
    QString m_symbol;
    IconButton *m_clear = nullptr;
    CaretBlink m_blink;
    /// What was told last.
    QString m_settledText;
    bool m_isComposing = false;
    bool m_takesColors = false;
    bool m_showsFocus = false;
};

} // namespace lorva
