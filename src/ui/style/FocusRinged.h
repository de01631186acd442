// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/style/ControlColors.h"

#include <QFocusEvent>

namespace lorva {

/// A control that shows a ring while the keyboard is on it; see showsFocusRing(). Draws nothing
/// itself. Thread: main.
template <class Control>
class FocusRinged : public Control
{
protected:
    using Control::Control;

    /// For the control's paintEvent().
    bool hasFocusRing() const { return this->hasFocus() && m_showsFocus; }

    void focusInEvent(QFocusEvent *event) override
    {
        m_showsFocus = showsFocusRing(event->reason(), m_showsFocus);
        Control::focusInEvent(event);
    }

private:
    bool m_showsFocus = false;
};

} // namespace lorva
