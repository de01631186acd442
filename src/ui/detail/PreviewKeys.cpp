// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/PreviewKeys.h"

#include <QKeyEvent>

namespace lorva {

namespace {

using Kind = EditCommand::Kind;

struct MoveKey
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    CaretMove move;
};

constexpr Qt::KeyboardModifiers kPlain = Qt::NoModifier;
constexpr Qt::KeyboardModifiers kControl = Qt::ControlModifier;

constexpr MoveKey kMoveKeys[] = {
    {Qt::Key_Left, kPlain, CaretMove::left},
    {Qt::Key_Right, kPlain, CaretMove::right},
    {Qt::Key_Left, kControl, CaretMove::wordLeft},
    {Qt::Key_Right, kControl, CaretMove::wordRight},
    {Qt::Key_Home, kPlain, CaretMove::lineStart},
    {Qt::Key_End, kPlain, CaretMove::lineEnd},
    {Qt::Key_Home, kControl, CaretMove::textStart},
    {Qt::Key_End, kControl, CaretMove::textEnd},
    {Qt::Key_Up, kPlain, CaretMove::up},
    {Qt::Key_Down, kPlain, CaretMove::down},
};

struct EditKey
{
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    Kind kind;
};

constexpr EditKey kEditKeys[] = {
    {Qt::Key_Backspace, kPlain, Kind::eraseBefore},
    {Qt::Key_Backspace, Qt::ShiftModifier, Kind::eraseBefore},
    {Qt::Key_Backspace, kControl, Kind::eraseWordBefore},
    {Qt::Key_Delete, kPlain, Kind::eraseAfter},
    {Qt::Key_Delete, kControl, Kind::eraseWordAfter},
    {Qt::Key_Y, kControl, Kind::redo},
    {Qt::Key_Escape, kPlain, Kind::leave},
};

struct StandardEdit
{
    QKeySequence::StandardKey key;
    Kind kind;
};

constexpr StandardEdit kStandardEdits[] = {
    {QKeySequence::Undo, Kind::undo},   {QKeySequence::Redo, Kind::redo},
    {QKeySequence::Cut, Kind::cut},     {QKeySequence::Copy, Kind::copy},
    {QKeySequence::Paste, Kind::paste}, {QKeySequence::SelectAll, Kind::selectAll},
};

std::optional<EditCommand> moveFor(int key, Qt::KeyboardModifiers modifiers)
{
    const bool selects = modifiers.testFlag(Qt::ShiftModifier);
    for (const MoveKey &candidate : kMoveKeys) {
        if (candidate.key == key && candidate.modifiers == (modifiers & ~Qt::ShiftModifier))
            return EditCommand{Kind::move, candidate.move, selects, {}};
    }
    return {};
}

/// Letters, and marks and joiners that show only beside them. Control and Alt together are the
/// third level of some keyboards.
bool isTyped(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers commands =
        event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    const bool isCommand = commands && commands != (Qt::ControlModifier | Qt::AltModifier);
    if (event.text().isEmpty() || isCommand)
        return false;
    const QChar first = event.text().front();
    return first.isPrint() || first.isSurrogate() || first.category() == QChar::Other_Format
        || first.category() == QChar::Other_PrivateUse;
}

} // namespace

std::optional<EditCommand> editCommandFor(const QKeyEvent &event)
{
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    if (const auto move = moveFor(event.key(), modifiers))
        return move;
    for (const EditKey &candidate : kEditKeys) {
        if (candidate.key == event.key() && candidate.modifiers == modifiers)
            return EditCommand{candidate.kind, {}, false, {}};
    }
    for (const StandardEdit &candidate : kStandardEdits) {
        if (event.matches(candidate.key))
            return EditCommand{candidate.kind, {}, false, {}};
    }
    const bool isReturn = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
    if (isReturn && !(modifiers & ~Qt::ShiftModifier))
        return EditCommand{Kind::type, {}, false, QStringLiteral("\n")};
    if (isTyped(event))
        return EditCommand{Kind::type, {}, false, event.text()};
    return {};
}

} // namespace lorva
