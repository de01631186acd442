// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProgressBar>
#include <QTimer>
#include <QWidget>

namespace lorva {

/// Says that something goes on and nobody knows for how long: an arc that goes round, or lies still
/// where nothing is to move. 16 square. Thread: main.
class QuietSpinner final : public QWidget
{
    Q_OBJECT
public:
    explicit QuietSpinner(QWidget *parent = nullptr);
    QSize sizeHint() const override;
    /// Only while it can be seen.
    bool isTurning() const { return m_turn.isActive(); }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QTimer m_turn;
    int m_step = 0;
};

/// How much of something is done, as a thin bar. Thread: main.
class ThinProgressBar final : public QProgressBar
{
    Q_OBJECT
public:
    explicit ThinProgressBar(QWidget *parent = nullptr);
    /// 0 … 1; what lies outside is cut.
    void setFraction(double fraction);
    double fraction() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace lorva
