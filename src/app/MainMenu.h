// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/detail/FontDetailState.h"

#include <QKeySequence>
#include <QList>
#include <QObject>
#include <QPointer>

#include <functional>
#include <memory>

class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;

namespace lorva {

class ActivationCommands;
class LorvaAppModel;
class MenuBarReveal;
class UpdateCommands;

/// What the menus do with the family that is open in the detail view. Without one they do nothing.
struct DetailCommands
{
    std::function<bool()> isOpen;
    std::function<void()> close;
    /// The next (1) or previous (−1) family.
    std::function<void(int step)> step;
    std::function<void()> toggleInspector;
    std::function<bool()> showsInspector;
    std::function<void(DetailStage stage)> showStage;
    std::function<double()> pointSize;
    std::function<void(double pointSize)> setPointSize;
    std::function<void()> exportPage;
    std::function<void()> copyAsCss;
};

/// The program's commands: menus, their shortcuts, and where they are found.
///
/// Desktops with a menu of their own get it exported. Elsewhere no bar is drawn: the shortcuts work
/// all the same, Alt or F10 shows the bar as long as it is used, and buttonMenu() offers the same
/// menus behind a button. While a sheet asks something, only quitting acts.
///
/// Owns: the actions and menus. Thread: main. Does not own what it acts on, which must outlive it.
class MainMenu final : public QObject
{
    Q_OBJECT
public:
    struct Targets
    {
        LorvaAppModel &model;
        UpdateCommands &updates;
        QMainWindow &window;
        std::function<void()> newCollection;
        std::function<void()> addFolder;
        std::function<void()> find;
        /// Of the cards; a text that has the keyboard sees to its own.
        std::function<void()> copy;
        std::function<void()> selectAll;
        std::function<void()> showSettings;
        ActivationCommands &activation;
        /// The families whose cards are chosen.
        std::function<QStringList()> selectedNames;
        DetailCommands detail;
        /// A game covers the window: only what concerns the whole program acts.
        std::function<bool()> isQuizOpen;
        std::function<void()> quit;
    };

    explicit MainMenu(Targets targets);
    ~MainMenu() override;

    /// All menus, one below the other, for a button.
    QMenu *buttonMenu() { return m_buttonMenu.get(); }
    /// Makes the bar, exported or hidden; asks the desktop, so it can wait until the window is
    /// there.
    void makeMenuBar();
    /// Shows what the model, the updater and the focus allow now.
    void update();

private:
    QMenu *addMenu(const QString &title, const QString &name);
    QAction *add(QMenu *menu, const char *name, const QString &text,
                 const QList<QKeySequence> &shortcuts, std::function<void()> act);
    void buildProgramMenu();
    void buildFileMenu();
    void buildEditMenu();
    void buildFontsMenu();
    void buildViewMenu();
    void addSizeActions(QMenu *menu);
    void addDetailActions(QMenu *menu);
    void updateDetailActions();
    void restLibraryActions();
    double pointSize() const;
    void setPointSize(double pointSize);
    void addModeActions(QMenu *menu);
    void updateFontActions();
    void remember(QWidget *focused);
    void undo();
    void redo();
    void copy();
    void selectAll();
    void toggleFullScreen();
    void showAbout();

    const Targets m_targets;
    QList<QMenu *> m_menus;
    std::unique_ptr<QMenu> m_buttonMenu;
    QPointer<QMenuBar> m_bar;
    std::unique_ptr<MenuBarReveal> m_reveal;
    /// What had the keyboard's focus last, menus apart.
    QPointer<QWidget> m_focused;
    QAction *m_checkForUpdates = nullptr;
    QAction *m_organize = nullptr;
    QAction *m_failedFiles = nullptr;
    QAction *m_activate = nullptr;
    QAction *m_activateRemaining = nullptr;
    QAction *m_deactivate = nullptr;
    QAction *m_undo = nullptr;
    QAction *m_redo = nullptr;
    QAction *m_grid = nullptr;
    QAction *m_list = nullptr;
    QAction *m_larger = nullptr;
    QAction *m_smaller = nullptr;
    QAction *m_fullScreen = nullptr;
    QAction *m_inspector = nullptr;
    /// The quiz is open.
    bool m_isResting = false;
    /// Those that act on what the quiz covers.
    QList<QAction *> m_libraryActions;
    /// Those that need an open family.
    QList<QAction *> m_detailActions;
};

} // namespace lorva
