// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/Report.h"
#include "ui/sheets/Sheet.h"

#include <functional>

namespace lorva {

class ReportList;

/// The sheet that shows a list to be looked at, copied and saved. Thread: main.
class ReportSheet final : public Sheet
{
    Q_OBJECT
public:
    /// `canExport`: somebody will save what is exported.
    ReportSheet(QWidget &window, Report report, bool canExport);

    /// Called when it is to be exported; the sheet stays.
    std::function<void()> onExport;
    /// Called once, when the sheet has gone.
    std::function<void()> onDone;

    /// The selected rows, or everything, to the clipboard.
    void copy() const;

protected:
    void cancel() override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void addRows();
    void addButtons(bool canExport);
    void addPlainButton(const QString &text, const QString &name, std::function<void()> pressed);

    Report m_report;
    ReportList *m_list = nullptr;
};

} // namespace lorva
