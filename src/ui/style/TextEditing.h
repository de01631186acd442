// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace lorva {

/// What the window's Edit menu does to a widget in which one types.
class TextEditing
{
public:
    virtual ~TextEditing() = default;
    virtual bool canUndo() const = 0;
    virtual bool canRedo() const = 0;
    virtual void undo() = 0;
    virtual void redo() = 0;
    virtual void copy() = 0;
    virtual void selectAll() = 0;
};

} // namespace lorva
