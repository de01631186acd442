// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/WindowPresenter.h"

#include "ui/sheets/AlertSheet.h"
#include "ui/sheets/FileDialogs.h"
#include "ui/sheets/FontIndexingSheetController.h"
#include "ui/sheets/FontInstallSheetController.h"
#include "ui/sheets/ReportSheet.h"
#include "ui/sheets/SheetQueue.h"

#include <QFileDialog>
#include <QTimer>

#include <utility>

namespace lorva {

/// Waits, then lines up for a sheet; what lines up notices when nobody holds the display any more.
class WindowPresenter::Progress final : public ProgressDisplay
{
public:
    Progress(QWidget &window, ProgressState state, std::function<void()> cancel,
             std::chrono::milliseconds delay)
        : m_shared(std::make_shared<Shared>(Shared{std::move(state), std::move(cancel), {}}))
    {
        m_delay.setSingleShot(true);
        QObject::connect(&m_delay, &QTimer::timeout, &window,
                         [&window, shared = std::weak_ptr(m_shared)] { lineUp(window, shared); });
        m_delay.start(delay);
    }

    ~Progress() override
    {
        const QPointer<Sheet> sheet(m_shared->sheet.data());
        m_shared.reset();
        if (!sheet || sheet->isDismissed())
            return;
        SheetQueue *queue = SheetQueue::find(*sheet);
        const bool hasWindow = sheet->window()->isVisible();
        sheet->dismiss();
        // A window that is being destroyed has been hidden before: what waits must not be made in
        // it any more. For one that is only hidden the sheet's deletion brings it.
        if (queue && hasWindow)
            queue->finish();
    }
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    void update(const ProgressState &state) override
    {
        m_shared->state = state;
        if (m_shared->sheet)
            m_shared->sheet->update(state);
    }

private:
    struct Shared
    {
        ProgressState state;
        std::function<void()> cancel;
        QPointer<FontIndexingSheetController> sheet;
    };

    static void lineUp(QWidget &window, const std::weak_ptr<Shared> &waiting)
    {
        SheetQueue::of(window).add([&window, waiting](SheetQueue &) -> QObject * {
            const std::shared_ptr<Shared> shared = waiting.lock();
            return shared ? show(window, *shared) : nullptr;
        });
    }

    static Sheet *show(QWidget &window, Shared &shared)
    {
        auto *sheet = new FontIndexingSheetController(window);
        sheet->update(shared.state);
        sheet->onCancel = shared.cancel;
        shared.sheet = sheet;
        sheet->present();
        return sheet;
    }

    std::shared_ptr<Shared> m_shared;
    QTimer m_delay;
};

namespace {

/// Calls `finished` with what was chosen, or with nothing.
void onFinished(QFileDialog &dialog, std::function<void(std::vector<FilePath>)> finished)
{
    QObject::connect(&dialog, &QDialog::finished, &dialog,
                     [&dialog, finished = std::move(finished)](int result) {
                         const bool isAccepted = result == QDialog::Accepted;
                         finished(isAccepted ? chosenPaths(dialog) : std::vector<FilePath>());
                     });
}

/// The folder that what was chosen lies in.
QString folderOf(const FilePath &path)
{
    return QFile::decodeName(path.parent().bytes());
}

} // namespace

WindowPresenter::WindowPresenter(QWidget &window, std::chrono::milliseconds progressDelay)
    : m_window(window.window())
    , m_progressDelay(progressDelay)
    , m_lastFolders(std::make_shared<LastFolders>())
{
    // From now on it knows whether the keyboard was used last.
    SheetQueue::of(window);
}

WindowPresenter::~WindowPresenter() = default;

bool WindowPresenter::isAvailable() const
{
    return !m_window.isNull();
}

void WindowPresenter::showAlert(const Alert &alert, std::function<void(int button)> done)
{
    if (m_window)
        presentAlert(*m_window, alert, std::move(done));
}

void WindowPresenter::askInstallMethod(const InstallMethodQuestion &question, MethodChosen done)
{
    if (!m_window)
        return;
    SheetQueue::of(*m_window).add(
        [&window = *m_window, question, done = std::move(done)](SheetQueue &queue) -> QObject * {
            auto *sheet = new FontInstallSheetController(window, question);
            sheet->onChoose = [&queue, done](std::optional<InstallMethod> method, bool remember) {
                queue.finish([&] { done(method, remember); });
            };
            sheet->present(queue.focusReason());
            return sheet;
        });
}

void WindowPresenter::askFolders(const FolderQuestion &question,
                                 std::function<void(std::vector<FilePath>)> done)
{
    if (!m_window)
        return;
    SheetQueue::of(*m_window).add([&window = *m_window, question, last = m_lastFolders,
                                   done = std::move(done)](SheetQueue &queue) -> QObject * {
        QFileDialog *dialog = openFolderDialog(window, question, last->chosen);
        onFinished(*dialog, [&queue, last, done](const std::vector<FilePath> &chosen) {
            if (!chosen.empty())
                last->chosen = folderOf(chosen.front());
            queue.finish([&] { done(chosen); });
        });
        return dialog;
    });
}

void WindowPresenter::showReport(const Report &report, std::function<void(FilePath)> save)
{
    if (!m_window)
        return;
    SheetQueue::of(*m_window).add([&window = *m_window, report, last = m_lastFolders,
                                   save = std::move(save)](SheetQueue &queue) -> QObject * {
        auto *sheet = new ReportSheet(window, report, bool(save));
        sheet->onDone = [&queue] { queue.finish(); };
        sheet->onExport = [&queue, &window, sheet, save, last, title = report.exportLabel,
                           name = exportFileName(report.exportName, report.title)] {
            QFileDialog *dialog = openSaveDialog(window, title, name, last->exported);
            QObject::connect(sheet, &QObject::destroyed, dialog, &QDialog::reject);
            onFinished(*dialog,
                       [&queue, sheet = QPointer<Sheet>(sheet), save,
                        last](const std::vector<FilePath> &chosen) {
                           if (chosen.empty() || !sheet || sheet->isDismissed())
                               return;
                           last->exported = folderOf(chosen.front());
                           sheet->dismiss();
                           queue.finish([&] { save(chosen.front()); });
                       });
        };
        sheet->present(queue.focusReason());
        return sheet;
    });
}

std::unique_ptr<ProgressDisplay> WindowPresenter::showProgress(const ProgressState &state,
                                                               std::function<void()> cancel)
{
    if (!m_window)
        return nullptr;
    return std::make_unique<Progress>(*m_window, state, std::move(cancel), m_progressDelay);
}

} // namespace lorva
