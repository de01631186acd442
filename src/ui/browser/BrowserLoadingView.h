// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTimer>
#include <QWidget>

namespace lorva {

/// A turning ring, and under it what the scan is doing. Stands still when the desktop asks for
/// reduced motion. Thread: main.
class BrowserLoadingView final : public QWidget
{
    Q_OBJECT
public:
    explicit BrowserLoadingView(QWidget *parent);

    void setForeground(const QColor &foreground);
    void setText(const QString &text);
    const QString &text() const { return m_text; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    QTimer m_timer;
    int m_angle = 0;
    QString m_text;
    QColor m_foreground = Qt::black;
};

} // namespace lorva
