// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QAbstractButton>
#include <QColor>

namespace lorva {

/// A symbol of 16 points that can be pressed, 28 square, on any foreground and background colour:
/// no frame until the pointer is over it or the keyboard is on it. Checkable where asked for.
/// Thread: main.
class IconButton final : public FocusRinged<QAbstractButton>
{
    Q_OBJECT
public:
    /// `label`: tool tip and name for assistive technology.
    IconButton(QString symbol, const QString &label, QWidget *parent = nullptr);

    void setSymbol(const QString &symbol);
    void setColors(const QColor &foreground, const QColor &background);
    /// A dot in the corner: something is set behind this button.
    void setMarked(bool isMarked);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QString m_symbol;
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
    bool m_isMarked = false;
};

} // namespace lorva
