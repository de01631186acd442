// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QTimer>

#include <functional>

namespace lorva {

/// The desktop's accent where it can be seen on `ground`, else `ink`.
QColor caretColor(const QColor &ink, const QColor &ground);

/// When a text field's caret shows: as often as the desktop says, and at once after every move.
/// Thread: main.
class CaretBlink final
{
public:
    /// `repaint` is called when it comes or goes by itself.
    explicit CaretBlink(std::function<void()> repaint);

    /// It shows from now on, and blinks while the keyboard is there.
    void restart(bool hasKeyboard);
    void stop() { m_timer.stop(); }
    bool isLit() const { return m_isLit; }

private:
    QTimer m_timer;
    bool m_isLit = true;
};

} // namespace lorva
