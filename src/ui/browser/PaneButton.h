// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/FocusRinged.h"

#include <QColor>
#include <QPushButton>

namespace lorva {

/// A push button in the colours of the pane, seen on any of them. Thread: main.
class PaneButton final : public FocusRinged<QPushButton>
{
    Q_OBJECT
public:
    explicit PaneButton(const QString &text, QWidget *parent = nullptr);

    void setColors(const QColor &foreground, const QColor &background);
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_foreground = Qt::black;
    QColor m_background = Qt::white;
};

} // namespace lorva
