// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/FilePath.h"
#include "commands/Alert.h"
#include "commands/Report.h"
#include "model/records/Activation.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace lorva {

/// What the sheet that asks for the install method says besides its own texts.
struct InstallMethodQuestion
{
    /// What is acted on: a family's name, or "3 Fonts".
    QString familyName;
    /// The families that come along; nothing for none.
    std::optional<QString> coResidentNote;

    bool operator==(const InstallMethodQuestion &) const = default;
};

/// Asks for folders of the file system.
struct FolderQuestion
{
    QString message;
    /// The button that accepts; empty: the desktop's own word.
    QString prompt;
    bool allowsSeveral = false;

    bool operator==(const FolderQuestion &) const = default;
};

/// How far something is that takes a while.
struct ProgressState
{
    QString message;
    /// 0 … 1; nothing while there is no knowing.
    std::optional<double> fraction;

    bool operator==(const ProgressState &) const = default;
};

/// Shows progress from its making to its end. Thread: main.
class ProgressDisplay
{
public:
    virtual ~ProgressDisplay() = default;
    virtual void update(const ProgressState &state) = 0;
};

/// Shows what commands ask and tell, attached to one window.
///
/// Answers come later, on the main thread, and not at all when the window goes first. What is asked
/// while something else is shown waits for its turn. Thread: main.
class CommandPresenter
{
public:
    virtual ~CommandPresenter() = default;

    /// False: there is no window, and nothing that is asked or told is shown.
    virtual bool isAvailable() const = 0;
    /// `done` gets the index of the chosen button; may be empty.
    virtual void showAlert(const Alert &alert, std::function<void(int button)> done) = 0;
    /// No method: cancelled.
    using MethodChosen = std::function<void(std::optional<InstallMethod> method, bool remember)>;
    virtual void askInstallMethod(const InstallMethodQuestion &question, MethodChosen done) = 0;
    /// None: cancelled.
    virtual void askFolders(const FolderQuestion &question,
                            std::function<void(std::vector<FilePath>)> done) = 0;
    /// `save` is called when the user has chosen a file to export to; may be empty when the report
    /// offers no export.
    virtual void showReport(const Report &report, std::function<void(FilePath)> save) = 0;
    /// Shows it only when it lasts: what is done in a moment must not flash a sheet. `cancel` is
    /// called at most once. Null when there is no window.
    virtual std::unique_ptr<ProgressDisplay> showProgress(const ProgressState &state,
                                                          std::function<void()> cancel) = 0;
};

} // namespace lorva
