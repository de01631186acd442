// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/MenuLook.h"

#include "ui/style/MenuStyle.h"
#include "ui/style/Style.h"

#include <QAbstractButton>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMenu>

#include <algorithm>
#include <iterator>

namespace lorva {

namespace {

constexpr int kWidestEntry = 320;
/// Beyond it nothing would be seen anyway; a font may bring names of 64 kilobytes.
constexpr qsizetype kLongestEntry = 300;

bool hasTranslucentWindows()
{
    // An X11 desktop may have no compositor, and then the corners would be black.
    return QGuiApplication::platformName() != QLatin1String("xcb");
}

void applyToSubmenus(const QMenu &menu)
{
    for (QAction *action : menu.actions()) {
        if (QMenu *submenu = action->menu())
            applyMenuLook(*submenu);
    }
}

} // namespace

QMenu *makeMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    applyMenuLook(*menu);
    return menu;
}

QString menuEntryText(const QString &name)
{
    const QFontMetrics metrics(interfaceFont(InterfaceSize::body));
    const QString line = name.left(kLongestEntry).simplified();
    return metrics.elidedText(line, Qt::ElideRight, kWidestEntry)
        .replace(u'&', QStringLiteral("&&"));
}

void applyMenuLook(QMenu &menu)
{
    if (menu.style() == MenuStyle::shared())
        return applyToSubmenus(menu);
    menu.setStyle(MenuStyle::shared());
    menu.setFont(interfaceFont(InterfaceSize::body));
    menu.setWindowFlag(Qt::FramelessWindowHint);
    menu.setAttribute(Qt::WA_TranslucentBackground, hasTranslucentWindows());
    applyToSubmenus(menu);
    // Submenus that join later.
    QObject::connect(&menu, &QMenu::aboutToShow, &menu, [&menu] { applyToSubmenus(menu); });
}

QMenu *makeChoiceMenu(QAbstractButton &button, const QStringList &entries,
                      std::optional<int> current, const std::function<void(int)> &choose)
{
    QMenu *menu = makeMenu(&button);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    for (int i = 0; i < entries.size(); ++i) {
        QAction *entry = menu->addAction(entries.at(i));
        entry->setCheckable(true);
        entry->setChecked(current == i);
        QObject::connect(entry, &QAction::triggered, &button, [choose, i] { choose(i); });
        if (current == i)
            menu->setActiveAction(entry);
    }
    QObject::connect(menu, &QMenu::aboutToHide, &button, [&button] {
        button.setDown(false);
        button.update();
    });
    return menu;
}

bool isMenuKey(const QKeyEvent &event)
{
    constexpr Qt::Key keys[]{Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Up,
                             Qt::Key_Down};
    return std::ranges::find(keys, event.key()) != std::end(keys);
}

} // namespace lorva
