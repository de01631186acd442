// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"

#include <QPointer>
#include <QWidget>

#include <chrono>
#include <memory>

namespace lorva {

class ReportSheet;
class SheetQueue;

/// Shows what commands ask and tell as sheets of a window, one after the other. Thread: main.
class WindowPresenter final : public CommandPresenter
{
public:
    /// Progress that ends sooner is not shown.
    static constexpr std::chrono::milliseconds kProgressDelay{400};

    explicit WindowPresenter(QWidget &window,
                             std::chrono::milliseconds progressDelay = kProgressDelay);
    ~WindowPresenter() override;

    bool isAvailable() const override;
    void showAlert(const Alert &alert, std::function<void(int button)> done) override;
    void askInstallMethod(const InstallMethodQuestion &question, MethodChosen done) override;
    /// Begins where folders were chosen last, else in the home.
    void askFolders(const FolderQuestion &question,
                    std::function<void(std::vector<FilePath>)> done) override;
    /// Choosing a file ends the sheet: what `save` has to tell comes at once.
    void showReport(const Report &report, std::function<void(FilePath)> save) override;
    std::unique_ptr<ProgressDisplay> showProgress(const ProgressState &state,
                                                  std::function<void()> cancel) override;

private:
    class Progress;
    /// Outlives the presenter in what still waits.
    struct LastFolders
    {
        QString chosen;
        QString exported;
    };

    const QPointer<QWidget> m_window;
    const std::chrono::milliseconds m_progressDelay;
    const std::shared_ptr<LastFolders> m_lastFolders;
};

} // namespace lorva
