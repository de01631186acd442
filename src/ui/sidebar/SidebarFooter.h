// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

#include <functional>

class QMenu;

namespace lorva {

class IconButton;

/// The foot of the sidebar: adding a folder, and the program's menu, which is not always on screen.
/// Thread: main.
class SidebarFooter final : public QWidget
{
    Q_OBJECT
public:
    static constexpr int kHeight = 44;

    explicit SidebarFooter(QWidget *parent);

    std::function<void()> onAddFolder;
    /// Does not own it. Without one there is no button for it.
    void setMainMenu(QMenu *menu);

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void applyColors();
    void openMenu();

    IconButton *m_addFolder;
    IconButton *m_menuButton;
    QMenu *m_menu = nullptr;
};

} // namespace lorva
