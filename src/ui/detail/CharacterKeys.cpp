// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterKeys.h"

#include <QKeyEvent>

namespace lorva {

std::optional<CellMove> moveOf(const QKeyEvent &event, bool isMirrored)
{
    const bool isFar = event.modifiers().testFlag(Qt::ControlModifier);
    switch (event.key()) {
    case Qt::Key_Left:
        return isMirrored ? CellMove::next : CellMove::previous;
    case Qt::Key_Right:
        return isMirrored ? CellMove::previous : CellMove::next;
    case Qt::Key_Up:
        return CellMove::up;
    case Qt::Key_Down:
        return CellMove::down;
    case Qt::Key_Home:
        return isFar ? CellMove::first : CellMove::rowStart;
    case Qt::Key_End:
        return isFar ? CellMove::last : CellMove::rowEnd;
    case Qt::Key_PageUp:
        return CellMove::pageUp;
    case Qt::Key_PageDown:
        return CellMove::pageDown;
    default:
        return std::nullopt;
    }
}

bool isPressKey(const QKeyEvent &event)
{
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter
        || event.key() == Qt::Key_Space;
}

bool claimCopyKey(QEvent &event)
{
    if (event.type() != QEvent::ShortcutOverride
        || !static_cast<QKeyEvent &>(event).matches(QKeySequence::Copy))
        return false;
    event.accept();
    return true;
}

} // namespace lorva
