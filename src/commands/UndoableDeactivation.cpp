// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "commands/UndoableDeactivation.h"

#include "install/RunSteps.h"
#include "model/stores/OrganizationNames.h"

#include <QCoreApplication>

#include <algorithm>
#include <set>

namespace lorva {

namespace {

/// Menus show it.
constexpr qsizetype kLongestLabel = 60;

QString shortened(const QString &label)
{
    return label.size() <= kLongestLabel
        ? label
        : QString(cutBetweenCharacters(label, kLongestLabel - 1) % u'…');
}

} // namespace

UndoableDeactivation::UndoableDeactivation(std::shared_ptr<DeactivationRecord> record,
                                           std::function<void()> restore,
                                           std::function<void()> repeat)
    : QUndoCommand(QCoreApplication::translate("UndoableDeactivation", "De-activate %1")
                       .arg(shortened(record->label)))
    , m_record(std::move(record))
    , m_restore(std::move(restore))
    , m_repeat(std::move(repeat))
{
}

void UndoableDeactivation::undo()
{
    m_isDone = false;
    if (m_record->isGone)
        setObsolete(true);
    else
        m_restore();
}

/// Called by the stack once for what has been done already.
void UndoableDeactivation::redo()
{
    if (!std::exchange(m_isDone, true))
        m_repeat();
}

std::shared_ptr<DeactivationRecord> UndoableDeactivation::recordOf(const QUndoCommand *command)
{
    const auto *own = dynamic_cast<const UndoableDeactivation *>(command);
    return own ? own->m_record : nullptr;
}

WithdrawnFonts stillWithdrawn(WithdrawnFonts withdrawn, const InstallationOutcome &outcome)
{
    std::set<FilePath> waiting(outcome.filesLeft.begin(), outcome.filesLeft.end());
    for (const auto &[file, error] : outcome.failures)
        if (error.code != InstallationError::fileNotFound)
            waiting.insert(file);
    std::erase_if(withdrawn.copies,
                  [&](const auto &copy) { return !waiting.contains(copy.entry); });
    std::erase_if(withdrawn.registrations,
                  [&](const FilePath &file) { return !waiting.contains(file); });
    return withdrawn;
}

void addWithdrawn(const WithdrawnFonts &more, WithdrawnFonts &withdrawn)
{
    withdrawn.copies.insert(withdrawn.copies.end(), more.copies.begin(), more.copies.end());
    withdrawn.registrations.insert(withdrawn.registrations.end(), more.registrations.begin(),
                                   more.registrations.end());
    for (const auto &[family, method] : more.methods)
        withdrawn.methods.insert_or_assign(family, method);
}

bool hasLeftTrash(const WithdrawnFonts &withdrawn)
{
    const auto isThere = [](const WithdrawnFonts::Copy &copy) { return isTaken(copy.place); };
    return withdrawn.registrations.empty() && std::ranges::none_of(withdrawn.copies, isThere);
}

} // namespace lorva
