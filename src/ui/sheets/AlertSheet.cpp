// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/AlertSheet.h"

#include "ui/sheets/SheetOverlay.h"

#include <QWidget>

#include <deque>
#include <utility>

namespace lorva {

namespace {

/// The alerts of one window, whose child it is: with the window they go unanswered.
class AlertQueue final : public QObject
{
public:
    static AlertQueue &of(QWidget &window)
    {
        AlertQueue *queue = find(window);
        return queue ? *queue : *new AlertQueue(window);
    }
    static AlertQueue *find(const QWidget &window)
    {
        for (QObject *child : window.children())
            if (auto *queue = dynamic_cast<AlertQueue *>(child))
                return queue;
        return nullptr;
    }

    void add(const Alert &alert, std::function<void(int)> done)
    {
        m_waiting.emplace_back(alert, std::move(done));
        if (!m_isShowing)
            showNext();
    }
    bool isShowing() const { return m_isShowing; }

private:
    explicit AlertQueue(QWidget &window)
        : QObject(&window)
        , m_window(window)
    {
    }

    void showNext()
    {
        m_isShowing = !m_waiting.empty();
        if (!m_isShowing)
            return;
        auto [alert, done] = std::move(m_waiting.front());
        m_waiting.pop_front();
        auto *sheet = new SheetOverlay(
            m_window, alert, [this, done = std::move(done)](int button) { finish(done, button); });
        sheet->present();
    }

    void finish(const std::function<void(int)> &done, int button)
    {
        const QPointer<AlertQueue> self(this);
        // Before the next one comes: what it answers may decide about that.
        m_isShowing = false;
        done(button);
        if (self && !m_isShowing)
            showNext();
    }

    QWidget &m_window;
    std::deque<std::pair<Alert, std::function<void(int)>>> m_waiting;
    bool m_isShowing = false;
};

} // namespace

void presentAlert(QWidget &window, const Alert &alert, std::function<void(int)> done)
{
    AlertQueue::of(*window.window()).add(alert, std::move(done));
}

bool hasAlertSheet(const QWidget &window)
{
    const AlertQueue *queue = AlertQueue::find(*window.window());
    return queue && queue->isShowing();
}

} // namespace lorva
