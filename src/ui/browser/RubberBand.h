// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QWidget>

namespace lorva {

/// The rectangle that a drag over the cards draws. Thread: main.
class RubberBand final : public QWidget
{
    Q_OBJECT
public:
    explicit RubberBand(QWidget *parent);

    void setForeground(const QColor &foreground);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_foreground = Qt::black;
};

} // namespace lorva
