// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"
#include "ui/sheets/Sheet.h"

#include <functional>
#include <optional>

namespace lorva {

class SheetCheckBox;
class SheetOption;

/// The sheet that asks by which method fonts are made available. Thread: main.
class FontInstallSheetController final : public Sheet
{
    Q_OBJECT
public:
    FontInstallSheetController(QWidget &window, InstallMethodQuestion question);

    const QString &familyName() const { return m_question.familyName; }
    const std::optional<QString> &coResidentNote() const { return m_question.coResidentNote; }
    SheetCheckBox *rememberCheckbox() const { return m_rememberCheckbox; }

    /// Called once, when the sheet has gone. No method: cancelled.
    CommandPresenter::MethodChosen onChoose;

protected:
    void cancel() override { choose({}); }

private:
    void addOptions();
    SheetOption *addOption(const QString &name, SheetOption *option, InstallMethod method);
    void addFooter();
    void choose(std::optional<InstallMethod> method);

    const InstallMethodQuestion m_question;
    SheetCheckBox *m_rememberCheckbox = nullptr;
};

} // namespace lorva
