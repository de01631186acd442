// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/browser/MembershipOptions.h"

#include <QAction>

#include <functional>

class QMenu;

namespace lorva {

/// A menu item that stands for a collection.
class CollectionMenuAction final : public QAction
{
    Q_OBJECT
public:
    CollectionMenuAction(const CollectionMembershipOption &option, QObject *parent);

    const QString collectionID;
};

/// What a menu about one or several families offers, and what its items do. The options are asked
/// for when their submenu opens.
struct FamilyMenuSubject
{
    std::function<std::vector<StyleMembershipOption>()> styles;
    std::function<std::vector<CollectionMembershipOption>()> collections;
    std::function<std::vector<FoundryMembershipOption>()> foundries;
    bool hasCollections = false;
    ActivationOffer offer;
    qsizetype familyCount = 1;

    std::function<void(const std::optional<QString> &id)> chooseStyle;
    std::function<void(const QString &id)> toggleCollection;
    /// An empty id: none.
    std::function<void(const QString &id)> chooseFoundry;
    std::function<void()> activate;
    std::function<void()> activateRemaining;
    std::function<void()> deactivate;
};

/// "Style", "Collections", "Foundry", then what can be switched.
void fillFamilyMenu(QMenu &menu, const FamilyMenuSubject &subject);

} // namespace lorva
