// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "app/MainMenu.h"

#include "app/MenuBarReveal.h"
#include "app/SpecimenSizes.h"
#include "base/NotificationCentre.h"
#include "commands/ActivationCommands.h"
#include "commands/UpdateCommands.h"
#include "model/LorvaAppModel.h"
#include "ui/DetailActions.h"
#include "ui/LorvaRootSplitViewController.h"
#include "ui/sheets/AlertSheet.h"
#include "ui/style/MenuLook.h"
#include "ui/style/TextEditing.h"

#include <QActionGroup>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>

#include <algorithm>
#include <optional>
#include <utility>

namespace lorva {

namespace {

bool isMenu(const QWidget *widget)
{
    return qobject_cast<const QMenu *>(widget) || qobject_cast<const QMenuBar *>(widget);
}

/// "Undo New Collection", or the bare word when nothing can be undone.
QString commandText(const QString &withName, const QString &bare, const QString &name)
{
    // A command's name may hold an ampersand, which menus take for a mnemonic.
    QString shown = name;
    shown.replace(u'&', QStringLiteral("&&"));
    return name.isEmpty() ? bare : withName.arg(shown);
}

/// What the focused widget can undo and redo of what was typed in it; nothing where one does not
/// type.
std::optional<std::pair<bool, bool>> typingHistory(const QWidget *focused)
{
    if (const auto *field = qobject_cast<const QLineEdit *>(focused))
        return std::pair(field->isUndoAvailable(), field->isRedoAvailable());
    if (const auto *text = dynamic_cast<const TextEditing *>(focused))
        return std::pair(text->canUndo(), text->canRedo());
    return std::nullopt;
}

/// A text that has the keyboard sees to its own. False: there is none.
template <class Act>
bool passToText(QWidget *focused, Act act)
{
    if (auto *field = qobject_cast<QLineEdit *>(focused))
        act(*field);
    else if (auto *text = dynamic_cast<TextEditing *>(focused))
        act(*text);
    else
        return false;
    return true;
}

/// Of a command: what it does makes sense while the quiz is played.
bool concernsTheProgram(QByteArrayView name)
{
    constexpr const char *kNames[]{
        "Menu.About", "Menu.CheckForUpdates", "Menu.Settings",  "Menu.Undo",
        "Menu.Redo",  "Menu.Close",           "Menu.FullScreen"};
    return std::ranges::any_of(kNames, [name](const char *known) { return name == known; });
}

} // namespace

MainMenu::MainMenu(Targets targets)
    : m_targets(std::move(targets))
    , m_buttonMenu(new QMenu)
{
    m_buttonMenu->setObjectName(QStringLiteral("Menu"));
    buildProgramMenu();
    buildFileMenu();
    buildEditMenu();
    buildFontsMenu();
    buildViewMenu();
    applyMenuLook(*m_buttonMenu);
    connect(qApp, &QApplication::focusChanged, this,
            [this](QWidget *, QWidget *now) { remember(now); });
    connect(&m_targets.model.undoStack(), &QUndoStack::indexChanged, this, &MainMenu::update);
    connect(&m_targets.activation, &ActivationCommands::changed, this, &MainMenu::update);
    connect(&m_targets.updates, &UpdateCommands::changed, this, &MainMenu::update);
    update();
}

MainMenu::~MainMenu() = default;

QMenu *MainMenu::addMenu(const QString &title, const QString &name)
{
    QMenu *menu = m_buttonMenu->addMenu(title);
    menu->setObjectName(name);
    connect(menu, &QMenu::aboutToShow, this, &MainMenu::update);
    m_menus << menu;
    return menu;
}

QAction *MainMenu::add(QMenu *menu, const char *name, const QString &text,
                       const QList<QKeySequence> &shortcuts, std::function<void()> act)
{
    QAction *action = menu->addAction(text);
    action->setObjectName(QString::fromLatin1(name));
    action->setShortcuts(shortcuts);
    // Desktops that move actions by what they seem to be would tear the menus apart.
    action->setMenuRole(QAction::NoRole);
    connect(action, &QAction::triggered, this, [this, act = std::move(act)] {
        if (!hasAlertSheet(m_targets.window))
            act();
    });
    // The window's own, so that the shortcut works while no bar is shown.
    m_targets.window.addAction(action);
    if (!concernsTheProgram(name))
        m_libraryActions << action;
    return action;
}

void MainMenu::buildProgramMenu()
{
    QMenu *menu = addMenu(tr("&Lorva"), QStringLiteral("Menu.Program"));
    add(menu, "Menu.About", tr("About Lorva"), {}, [this] { showAbout(); });
    m_checkForUpdates = add(menu, "Menu.CheckForUpdates", tr("Check for Updates…"), {},
                            [this] { m_targets.updates.checkForUpdates(); });
    menu->addSeparator();
    m_organize = add(menu, "Menu.OrganizeFonts", tr("Organize Fonts…"),
                     {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O)}, [] {
                         NotificationCentre::shared().post(
                             LorvaRootSplitViewController::openFontQuizNotification());
                     });
    menu->addSeparator();
    add(menu, "Menu.Settings", tr("Settings…"), {QKeySequence(Qt::CTRL | Qt::Key_Comma)},
        m_targets.showSettings);
    menu->addSeparator();
    QAction *quit = menu->addAction(tr("Quit"));
    quit->setObjectName(QStringLiteral("Menu.Quit"));
    quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
    m_targets.window.addAction(quit);
    connect(quit, &QAction::triggered, this, [this] { m_targets.quit(); });
}

void MainMenu::buildFileMenu()
{
    QMenu *menu = addMenu(tr("&File"), QStringLiteral("Menu.File"));
    add(menu, "Menu.NewCollection", tr("New Collection"), {QKeySequence(Qt::CTRL | Qt::Key_N)},
        m_targets.newCollection);
    add(menu, "Menu.AddFolder", tr("Add Folder…"), {QKeySequence(Qt::CTRL | Qt::Key_O)},
        m_targets.addFolder);
    add(menu, "Menu.Rescan", tr("Scan Folders Again"), {QKeySequence(Qt::Key_F5)},
        [this] { m_targets.model.loadCatalog(); });
    menu->addSeparator();
    m_detailActions << add(menu, "Menu.Export", tr("Export Specimen…"),
                           {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S)},
                           m_targets.detail.exportPage);
    menu->addSeparator();
    add(menu, "Menu.Close", tr("Close"), {QKeySequence(Qt::CTRL | Qt::Key_W)},
        [this] { m_targets.window.close(); });
}

void MainMenu::buildEditMenu()
{
    QMenu *menu = addMenu(tr("&Edit"), QStringLiteral("Menu.Edit"));
    connect(menu, &QMenu::aboutToShow, &m_targets.activation, &ActivationCommands::refreshUndo);
    m_undo = add(menu, "Menu.Undo", tr("Undo"), {QKeySequence(Qt::CTRL | Qt::Key_Z)},
                 [this] { undo(); });
    m_redo =
        add(menu, "Menu.Redo", tr("Redo"),
            {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z), QKeySequence(Qt::CTRL | Qt::Key_Y)},
            [this] { redo(); });
    menu->addSeparator();
    add(menu, "Menu.Copy", tr("Copy"), {QKeySequence(Qt::CTRL | Qt::Key_C)}, [this] { copy(); });
    m_detailActions << add(menu, "Menu.CopyAsCss", tr("Copy as CSS"),
                           {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_C)},
                           m_targets.detail.copyAsCss);
    add(menu, "Menu.SelectAll", tr("Select All"), {QKeySequence(Qt::CTRL | Qt::Key_A)},
        [this] { selectAll(); });
    menu->addSeparator();
    add(menu, "Menu.Find", tr("Find"), {QKeySequence(Qt::CTRL | Qt::Key_F)}, m_targets.find);
    menu->addSeparator();
    m_failedFiles = add(menu, "Menu.FailedFiles", tr("Files That Failed…"), {},
                        [this] { m_targets.activation.showFailures(); });
    add(menu, "Menu.History", tr("Activation History…"), {},
        [this] { m_targets.activation.showHistory(); });
}

void MainMenu::buildFontsMenu()
{
    //: The titles of the menus, each with the letter that opens it.
    QMenu *menu = addMenu(tr("F&onts"), QStringLiteral("Menu.Fonts"));
    ActivationCommands &activation = m_targets.activation;
    m_activate = add(menu, "Menu.Activate", tr("Activate…"), {QKeySequence(Qt::CTRL | Qt::Key_E)},
                     [this, &activation] { activation.activate(m_targets.selectedNames()); });
    m_activateRemaining = add(menu, "Menu.ActivateRemaining", tr("Activate Remaining Styles…"),
                              {QKeySequence(Qt::CTRL | Qt::ALT | Qt::Key_E)}, [this, &activation] {
                                  activation.activateRemaining(m_targets.selectedNames());
                              });
    m_deactivate = add(menu, "Menu.Deactivate", tr("De-activate"),
                       {QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_E)},
                       [this, &activation] { activation.deactivate(m_targets.selectedNames()); });
}

void MainMenu::buildViewMenu()
{
    QMenu *menu = addMenu(tr("&View"), QStringLiteral("Menu.View"));
    addModeActions(menu);
    menu->addSeparator();
    addSizeActions(menu);
    menu->addSeparator();
    addDetailActions(menu);
    menu->addSeparator();
    QList<QKeySequence> fullScreen{QKeySequence(Qt::Key_F11)};
    for (const QKeySequence &key : QKeySequence::keyBindings(QKeySequence::FullScreen))
        if (!fullScreen.contains(key))
            fullScreen << key;
    m_fullScreen = add(menu, "Menu.FullScreen", tr("Enter Full Screen"), fullScreen,
                       [this] { toggleFullScreen(); });
}

void MainMenu::addModeActions(QMenu *menu)
{
    auto *modes = new QActionGroup(this);
    const auto addMode = [&](const char *name, const QString &text, Qt::Key key, ViewMode mode) {
        QAction *action = add(menu, name, text, {QKeySequence(Qt::CTRL | key)},
                              [this, mode] { m_targets.model.setViewMode(mode); });
        action->setCheckable(true);
        modes->addAction(action);
        return action;
    };
    //: Shows the fonts as cards side by side.
    m_grid = addMode("Menu.Grid", tr("Grid"), Qt::Key_1, ViewMode::grid);
    //: Shows the fonts as rows.
    m_list = addMode("Menu.List", tr("List"), Qt::Key_2, ViewMode::list);
}

void MainMenu::addSizeActions(QMenu *menu)
{
    m_larger = add(menu, "Menu.Larger", tr("Larger Specimens"),
                   {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)},
                   [this] { setPointSize(largerSpecimenSize(pointSize())); });
    m_smaller =
        add(menu, "Menu.Smaller", tr("Smaller Specimens"), {QKeySequence(Qt::CTRL | Qt::Key_Minus)},
            [this] { setPointSize(smallerSpecimenSize(pointSize())); });
    add(menu, "Menu.StandardSize", tr("Standard Specimen Size"),
        {QKeySequence(Qt::CTRL | Qt::Key_0)}, [this] {
            setPointSize(m_targets.detail.isOpen() ? DetailSession::kStandardPointSize
                                                   : DisplayValues().browserPointSize);
        });
}

/// Of the specimens that are shown: the cards', or the open family's.
double MainMenu::pointSize() const
{
    return m_targets.detail.isOpen() ? m_targets.detail.pointSize()
                                     : m_targets.model.browserPointSize();
}

void MainMenu::setPointSize(double pointSize)
{
    if (m_targets.detail.isOpen())
        m_targets.detail.setPointSize(pointSize);
    else
        m_targets.model.setPointSize(pointSize);
}

void MainMenu::addDetailActions(QMenu *menu)
{
    const DetailCommands &detail = m_targets.detail;
    const auto addDetail = [&](const char *name, const QString &text,
                               const QList<QKeySequence> &shortcuts, std::function<void()> act) {
        m_detailActions << add(menu, name, text, shortcuts, std::move(act));
        return m_detailActions.constLast();
    };
    addDetail("Menu.CloseDetail", tr("Back to All Cards"), {QKeySequence(Qt::ALT | Qt::Key_Left)},
              detail.close);
    addDetail("Menu.NextFamily", tr("Next Family"), {QKeySequence(Qt::CTRL | Qt::Key_PageDown)},
              [&detail] { detail.step(1); });
    addDetail("Menu.PreviousFamily", tr("Previous Family"),
              {QKeySequence(Qt::CTRL | Qt::Key_PageUp)}, [&detail] { detail.step(-1); });
    menu->addSeparator();
    const struct
    {
        const char *name;
        QString text;
        Qt::Key key;
        DetailStage stage;
    } stages[]{{"Menu.StageText", tr("Show Text"), Qt::Key_3, DetailStage::text},
               {"Menu.StageWaterfall", tr("Show Waterfall"), Qt::Key_4, DetailStage::waterfall},
               {"Menu.StageComparison", tr("Compare"), Qt::Key_5, DetailStage::comparison}};
    for (const auto &entry : stages)
        addDetail(entry.name, entry.text, {QKeySequence(Qt::CTRL | entry.key)},
                  [&detail, stage = entry.stage] { detail.showStage(stage); });
    m_inspector = addDetail("Menu.Inspector", tr("Inspector"), {QKeySequence(Qt::CTRL | Qt::Key_I)},
                            detail.toggleInspector);
    m_inspector->setCheckable(true);
}

void MainMenu::updateDetailActions()
{
    const bool isOpen = m_targets.detail.isOpen();
    for (QAction *action : m_detailActions)
        action->setEnabled(isOpen);
    m_inspector->setChecked(m_targets.detail.showsInspector());
}

void MainMenu::makeMenuBar()
{
    if (m_bar)
        return;
    m_bar = new QMenuBar(&m_targets.window);
    m_bar->setObjectName(QStringLiteral("MenuBar"));
    for (QMenu *menu : m_menus)
        m_bar->addMenu(menu);
    m_reveal = std::make_unique<MenuBarReveal>(m_targets.window, *m_bar);
}

/// The quiz covers what they act on.
void MainMenu::restLibraryActions()
{
    if (!m_isResting)
        return;
    for (QAction *action : m_libraryActions)
        action->setEnabled(false);
}

void MainMenu::update()
{
    if (std::exchange(m_isResting, m_targets.isQuizOpen()) && !m_isResting)
        for (QAction *action : m_libraryActions)
            action->setEnabled(true);
    const QUndoStack &stack = m_targets.model.undoStack();
    const auto typing = typingHistory(m_focused);
    //: %1 is what was done last, such as "New Collection".
    m_undo->setText(typing ? tr("Undo") : commandText(tr("Undo %1"), tr("Undo"), stack.undoText()));
    m_redo->setText(typing ? tr("Redo") : commandText(tr("Redo %1"), tr("Redo"), stack.redoText()));
    // A de-activation that is being undone cannot be done again before that has ended.
    const bool isIdle = !m_targets.activation.isRunning();
    m_undo->setEnabled(typing ? typing->first : isIdle && stack.canUndo());
    m_redo->setEnabled(typing ? typing->second : isIdle && stack.canRedo());

    const bool isDetail = m_targets.detail.isOpen();
    m_larger->setEnabled(pointSize() < (isDetail ? DetailSession::kMaximumPointSize
                                                 : LorvaAppModel::kMaximumPointSize));
    m_smaller->setEnabled(pointSize() > (isDetail ? DetailSession::kMinimumPointSize
                                                  : LorvaAppModel::kMinimumPointSize));
    updateDetailActions();
    (m_targets.model.viewMode() == ViewMode::grid ? m_grid : m_list)->setChecked(true);
    m_organize->setEnabled(!m_targets.model.allFamilies()->empty());
    m_checkForUpdates->setEnabled(m_targets.updates.canCheckForUpdates());
    updateFontActions();
    restLibraryActions();
    m_fullScreen->setText(m_targets.window.isFullScreen() ? tr("Exit Full Screen")
                                                          : tr("Enter Full Screen"));
}

/// The commands themselves find out what is to be done: the shortcuts act without a menu that
/// looks.
void MainMenu::updateFontActions()
{
    const qsizetype count = m_targets.selectedNames().size();
    for (QAction *action : {m_activate, m_activateRemaining, m_deactivate})
        action->setEnabled(count > 0);
    m_activate->setText(count < 2 ? tr("Activate…")
                                  : tr("Activate %n Fonts…", nullptr, int(count)));
    m_deactivate->setText(count < 2 ? tr("De-activate")
                                    : tr("De-activate %n Fonts", nullptr, int(count)));
    m_failedFiles->setEnabled(m_targets.activation.hasFailures());
}

void MainMenu::remember(QWidget *focused)
{
    if (isMenu(focused))
        return;
    if (focused && focused->window() == &m_targets.window)
        m_focused = focused;
    update();
}

void MainMenu::undo()
{
    if (!passToText(m_focused, [](auto &text) { text.undo(); }))
        m_targets.model.undoStack().undo();
}

void MainMenu::redo()
{
    if (!passToText(m_focused, [](auto &text) { text.redo(); }))
        m_targets.model.undoStack().redo();
}

void MainMenu::copy()
{
    if (!passToText(m_focused, [](auto &text) { text.copy(); }))
        m_targets.copy();
}

void MainMenu::selectAll()
{
    if (!passToText(m_focused, [](auto &text) { text.selectAll(); }))
        m_targets.selectAll();
}

void MainMenu::toggleFullScreen()
{
    m_targets.window.setWindowState(m_targets.window.windowState() ^ Qt::WindowFullScreen);
    update();
}

void MainMenu::showAbout()
{
    const Alert about{Alert::Style::informational,
                      tr("Lorva"),
                      tr("Version %1\n\nBrowse, test and organise all the fonts of this computer.")
                          .arg(QStringLiteral(LORVA_VERSION)),
                      {{tr("OK"), Alert::Role::accept}}};
    presentAlert(m_targets.window, about, [](int) {});
}

} // namespace lorva
