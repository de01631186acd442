// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/AlertSheet.h"

#include "ui/sheets/Sheet.h"
#include "ui/sheets/SheetQueue.h"
#include "ui/style/TextButton.h"

#include <algorithm>
#include <utility>

namespace lorva {

namespace {

TextButton::Kind kindOf(const Alert::Button &button, bool isFirst)
{
    if (button.role == Alert::Role::destructive)
        return TextButton::Kind::destructive;
    return isFirst ? TextButton::Kind::prominent : TextButton::Kind::plain;
}

int cancelIndex(const std::vector<Alert::Button> &buttons)
{
    const auto found = std::ranges::find(buttons, Alert::Role::cancel, &Alert::Button::role);
    return int(found == buttons.end() ? buttons.size() - 1 : size_t(found - buttons.begin()));
}

/// The first that loses nothing; Return must not delete.
size_t defaultIndex(const std::vector<Alert::Button> &buttons)
{
    const auto found = std::ranges::find_if(
        buttons, [](const auto &button) { return button.role != Alert::Role::destructive; });
    return found == buttons.end() ? 0 : size_t(found - buttons.begin());
}

class AlertSheet final : public Sheet
{
public:
    /// `answered` is called once, when the sheet has gone.
    AlertSheet(QWidget &window, const Alert &alert, std::function<void(int)> answered)
        : Sheet(window, QStringLiteral("AlertSheet"), QAccessible::AlertMessage)
        , m_answered(std::move(answered))
        , m_cancelIndex(cancelIndex(alert.buttons))
    {
        Q_ASSERT(!alert.buttons.empty());
        addHeading(alert.title);
        addBody(alert.body);
        addNote(alert.note);
        const bool hasNote = !alert.note.isEmpty();
        panel().setAccessibleDescription(hasNote ? QString(alert.body + u'\n' + alert.note)
                                                 : alert.body);
        addButtons(alert.buttons);
    }

protected:
    void cancel() override { answer(m_cancelIndex); }

private:
    void addButtons(const std::vector<Alert::Button> &buttons)
    {
        std::vector<TextButton *> made;
        for (size_t i = 0; i < buttons.size(); ++i) {
            auto *button = new TextButton(buttons[i].text, kindOf(buttons[i], i == 0));
            button->setObjectName(QStringLiteral("AlertSheet.Button%1").arg(i));
            button->setAutoDefault(true);
            connect(button, &QPushButton::clicked, this, [this, i] { answer(int(i)); });
            addButton(button);
            made.push_back(button);
        }
        setDefaultButton(made[defaultIndex(buttons)]);
    }

    void answer(int button)
    {
        if (isDismissed())
            return;
        const std::function<void(int)> answered = m_answered;
        dismiss();
        answered(button);
    }

    const std::function<void(int)> m_answered;
    const int m_cancelIndex;
};

} // namespace

void presentAlert(QWidget &window, const Alert &alert, std::function<void(int)> done)
{
    SheetQueue::of(window).add(
        [&owner = *window.window(), alert, done = std::move(done)](SheetQueue &queue) -> QObject * {
            auto *sheet = new AlertSheet(owner, alert, [&queue, done](int button) {
                queue.finish([&done, button] {
                    if (done)
                        done(button);
                });
            });
            sheet->present();
            return sheet;
        });
}

bool hasAlertSheet(const QWidget &window)
{
    const SheetQueue *queue = SheetQueue::find(window);
    return queue && queue->isShowing();
}

} // namespace lorva
