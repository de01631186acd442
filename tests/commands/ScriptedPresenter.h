// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"

#include <QStringList>

#include <deque>
#include <memory>

namespace lorva::test {

/// Shows nothing: keeps what commands ask and tell, and answers as the case says.
///
/// An answer that was given beforehand is used at once, as the next event would bring it; without
/// one the question stays open until the case answers it. Keeps its callbacks until then, so a case
/// can also answer after what asked has gone.
class ScriptedPresenter final : public CommandPresenter
{
public:
    struct OpenAlert
    {
        Alert alert;
        std::function<void(int)> done;
    };
    struct OpenMethodQuestion
    {
        InstallMethodQuestion question;
        MethodChosen done;
    };
    struct OpenFolderQuestion
    {
        FolderQuestion question;
        std::function<void(std::vector<FilePath>)> done;
    };
    struct MethodAnswer
    {
        std::optional<InstallMethod> method;
        bool remember = false;
    };
    /// Progress from its showing to its end; outlives the display.
    struct Progress
    {
        std::vector<ProgressState> states;
        std::function<void()> cancel;
        bool isShown = true;

        QStringList messages() const
        {
            QStringList texts;
            for (const ProgressState &state : states)
                texts.append(state.message);
            return texts;
        }
    };
    struct ShownReport
    {
        Report report;
        std::function<void(FilePath)> save;
    };

    bool isAvailable() const override { return hasWindow; }

    void showAlert(const Alert &alert, std::function<void(int)> done) override
    {
        if (!hasWindow)
            return;
        alerts.push_back(alert);
        note(QStringLiteral("alert: ") + alert.title);
        openAlerts.push_back({alert, std::move(done)});
        if (!buttons.empty())
            press(taken(buttons));
    }
    void askInstallMethod(const InstallMethodQuestion &question, MethodChosen done) override
    {
        if (!hasWindow)
            return;
        methodQuestions.push_back(question);
        note(QStringLiteral("method: ") + question.familyName);
        openMethodQuestions.push_back({question, std::move(done)});
        if (!methods.empty()) {
            const MethodAnswer answer = taken(methods);
            chooseMethod(answer.method, answer.remember);
        }
    }
    void askFolders(const FolderQuestion &question,
                    std::function<void(std::vector<FilePath>)> done) override
    {
        if (!hasWindow)
            return;
        folderQuestions.push_back(question);
        note(QStringLiteral("folders: ") + question.message);
        openFolderQuestions.push_back({question, std::move(done)});
        if (!folders.empty())
            chooseFolders(taken(folders));
    }
    void showReport(const Report &report, std::function<void(FilePath)> save) override
    {
        if (!hasWindow)
            return;
        note(QStringLiteral("report: ") + report.title);
        reports.push_back({report, std::move(save)});
    }
    std::unique_ptr<ProgressDisplay> showProgress(const ProgressState &state,
                                                  std::function<void()> cancel) override
    {
        if (!hasWindow)
            return nullptr;
        auto shown = std::make_shared<Progress>();
        shown->states.push_back(state);
        shown->cancel = std::move(cancel);
        progress.push_back(shown);
        note(QStringLiteral("progress: ") + state.message);
        return std::make_unique<Display>(std::move(shown), *this);
    }

    // Answers to the oldest open question of the kind; nothing happens when none is open.

    void press(int button)
    {
        if (openAlerts.empty())
            return;
        const auto done = taken(openAlerts).done;
        if (done)
            done(button);
    }
    void chooseMethod(std::optional<InstallMethod> method, bool remember = false)
    {
        if (openMethodQuestions.empty())
            return;
        const auto done = taken(openMethodQuestions).done;
        if (done)
            done(method, remember);
    }
    /// None: the chooser is cancelled.
    void chooseFolders(std::vector<FilePath> chosen)
    {
        if (openFolderQuestions.empty())
            return;
        const auto done = taken(openFolderQuestions).done;
        if (done)
            done(std::move(chosen));
    }
    /// Presses Cancel on the progress that was shown last.
    void cancelProgress()
    {
        if (progress.empty() || !progress.back()->isShown || !progress.back()->cancel)
            return;
        // At most once.
        const auto cancel = std::exchange(progress.back()->cancel, {});
        cancel();
    }
    bool showsProgress() const { return !progress.empty() && progress.back()->isShown; }
    const Alert &lastAlert() const { return alerts.back(); }

    /// False: no window.
    bool hasWindow = true;

    // Answers given beforehand.
    std::deque<int> buttons;
    std::deque<MethodAnswer> methods;
    std::deque<std::vector<FilePath>> folders;

    // What came, in its order: "alert: …", "method: …", "folders: …", "report: …",
    // "progress: …", "progress ends".
    QStringList lines;
    std::vector<Alert> alerts;
    std::vector<InstallMethodQuestion> methodQuestions;
    std::vector<FolderQuestion> folderQuestions;
    std::vector<ShownReport> reports;
    std::vector<std::shared_ptr<Progress>> progress;

    std::deque<OpenAlert> openAlerts;
    std::deque<OpenMethodQuestion> openMethodQuestions;
    std::deque<OpenFolderQuestion> openFolderQuestions;

private:
    class Display final : public ProgressDisplay
    {
    public:
        Display(std::shared_ptr<Progress> shown, ScriptedPresenter &presenter)
            : m_shown(std::move(shown))
            , m_presenter(presenter)
        {
        }
        Display(const Display &) = delete;
        Display &operator=(const Display &) = delete;
        ~Display() override
        {
            m_shown->isShown = false;
            m_presenter.note(QStringLiteral("progress ends"));
        }
        void update(const ProgressState &state) override { m_shown->states.push_back(state); }

    private:
        const std::shared_ptr<Progress> m_shown;
        ScriptedPresenter &m_presenter;
    };

    template <class Item>
    static Item taken(std::deque<Item> &items)
    {
        Item first = std::move(items.front());
        items.pop_front();
        return first;
    }
    void note(const QString &line) { lines.append(line); }
};

} // namespace lorva::test
