// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/MembershipOptions.h"

#include <QAction>

class QMenu;

namespace lorva {

/// The item of a collection in a card's menu.
class CollectionMenuAction final : public QAction
{
    Q_OBJECT
public:
    CollectionMenuAction(const CollectionMembershipOption &option, QObject *parent);

    const QString collectionID;
};

/// The menu of one card, or of all selected ones: style, collections, foundry, and switching on and
/// off.
///
/// Its submenus are filled when they open, so that it is there at once however many foundries there
/// are. The state it was made from is kept. Thread: main. `delegate` may be null, and must outlive
/// the menu.
QMenu *makeCardMenu(const FontBrowserState &state, const QStringList &familyNames,
                    FontBrowserDelegate *delegate, QWidget *parent);

} // namespace lorva
