// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "install/InstallationOutcome.h"

#include <QUndoCommand>

#include <functional>
#include <memory>

namespace lorva {

/// A de-activation to the Trash, as far as it can be undone.
struct DeactivationRecord
{
    /// What was acted on, in words.
    QString label;
    QStringList names;
    /// What it has taken away and undoing has not brought back.
    WithdrawnFonts withdrawn;
    /// It is being undone or done again; `withdrawn` is not true while that lasts.
    bool isPending = false;
    /// Nothing of it is in the Trash any more.
    bool isGone = false;
};

/// A de-activation on the undo stack. It was done before it came there; undoing and doing it again
/// end later. Once its record is gone it undoes nothing and leaves the stack. Thread: main.
class UndoableDeactivation final : public QUndoCommand
{
public:
    UndoableDeactivation(std::shared_ptr<DeactivationRecord> record, std::function<void()> restore,
                         std::function<void()> repeat);

    void undo() override;
    void redo() override;

    /// Null for another kind of command.
    static std::shared_ptr<DeactivationRecord> recordOf(const QUndoCommand *command);

private:
    const std::shared_ptr<DeactivationRecord> m_record;
    const std::function<void()> m_restore;
    const std::function<void()> m_repeat;
    bool m_isDone = true;
};

/// What `outcome`, of bringing `withdrawn` back, has left where it was: it was stopped, or files
/// failed that another try may bring back.
WithdrawnFonts stillWithdrawn(WithdrawnFonts withdrawn, const InstallationOutcome &outcome);
void addWithdrawn(const WithdrawnFonts &more, WithdrawnFonts &withdrawn);

/// Nothing of it can be brought back. Looks at the disk.
bool hasLeftTrash(const WithdrawnFonts &withdrawn);

} // namespace lorva
