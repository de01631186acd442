// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTimer>
#include <QVariantAnimation>
#include <QWidget>

namespace lorva {

/// A large translucent letter over the middle of the pane, for a moment.
///
/// Fades in, stays a little, fades out and deletes itself; with reduced motion it comes and goes
/// without fades. Who shows a newer one deletes this one first. Thread: main.
class LetterOverlayView final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kSide = 260;
    static constexpr int kFadeInMilliseconds = 120;
    static constexpr int kHideAfterMilliseconds = 320;
    static constexpr int kFadeOutMilliseconds = 500;

    /// Shows itself centred in `pane`.
    LetterOverlayView(const QString &letter, const QColor &foreground, QWidget *pane);

    const QString &letter() const { return m_letter; }
    /// 0 … 1.
    double opacity() const { return m_opacity; }
    void center();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void fadeTo(double opacity, int milliseconds);
    void leave();

    const QString m_letter;
    const QColor m_foreground;
    QVariantAnimation m_fade;
    QTimer m_hide;
    double m_opacity = 0;
};

} // namespace lorva
