// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/Caret.h"

#include "ui/style/Palette.h"

#include <QGuiApplication>
#include <QStyleHints>

#include <utility>

namespace lorva {

namespace {

constexpr double kLeastContrast = 3.0;

} // namespace

QColor caretColor(const QColor &ink, const QColor &ground)
{
    return contrastRatio(accentColor(), ground) >= kLeastContrast ? accentColor() : ink;
}

CaretBlink::CaretBlink(std::function<void()> repaint)
{
    m_timer.setTimerType(Qt::CoarseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this, repaint = std::move(repaint)] {
        m_isLit = !m_isLit;
        repaint();
    });
}

void CaretBlink::restart(bool hasKeyboard)
{
    m_isLit = true;
    const int flashMs = QGuiApplication::styleHints()->cursorFlashTime();
    if (hasKeyboard && flashMs >= 2)
        m_timer.start(flashMs / 2);
    else
        m_timer.stop();
}

} // namespace lorva
