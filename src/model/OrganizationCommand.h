// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/stores/OrganizationEdit.h"

#include <QUndoCommand>

#include <functional>

namespace lorva {

/// One change of the organisation that has been made, on the model's undo stack.
///
/// It undoes entry by entry, over whatever else has changed since; what is redone then is what was
/// undone, not what was done at first, so that nothing that others added in between is lost.
/// Thread: main.
class OrganizationCommand final : public QUndoCommand
{
public:
    /// Gives what was really done.
    using Apply = std::function<OrganizationEdit(const OrganizationEdit &)>;

    OrganizationCommand(const QString &name, OrganizationEdit edit, Apply apply)
        : QUndoCommand(name)
        , m_edit(std::move(edit))
        , m_apply(std::move(apply))
    {
    }

    void undo() override { m_edit = m_apply(m_edit.inverted()).inverted(); }
    void redo() override
    {
        // The stack calls it for the change itself as well.
        if (std::exchange(m_isDone, true))
            m_edit = m_apply(m_edit);
    }

private:
    OrganizationEdit m_edit;
    const Apply m_apply;
    bool m_isDone = false;
};

} // namespace lorva
