// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "commands/CommandPresenter.h"

#include <QWidget>

#include <memory>

namespace lorva {

class FontsSettingsTab;
class LorvaSettingsViewModel;

/// The settings, in a window of their own.
///
/// Escape and Ctrl+W close it, which only hides it. What changes without the program's knowing is
/// looked at anew whenever the window gets the keyboard. Does not own the view model, which must
/// outlive it. Thread: main.
class SettingsWindow final : public QWidget
{
    Q_OBJECT
public:
    explicit SettingsWindow(LorvaSettingsViewModel &viewModel, QWidget *parent = nullptr);
    ~SettingsWindow() override;

    /// To the front, with the keyboard.
    void present();
    FontsSettingsTab &fontsTab() { return *m_fontsTab; }

protected:
    void paintEvent(QPaintEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    LorvaSettingsViewModel &m_viewModel;
    FontsSettingsTab *m_fontsTab;
    /// Made when first asked.
    std::unique_ptr<CommandPresenter> m_presenter;
};

} // namespace lorva
