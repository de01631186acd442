// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "base/Result.h"
#include "ui/sidebar/SidebarState.h"

#include <functional>

namespace lorva {

class LorvaAppModel;
struct Alert;

/// Leads what the user does in the sidebar to the model.
///
/// Does not own the model, which must outlive it. Thread: main.
class SidebarActions final : public SidebarDelegate
{
public:
    explicit SidebarActions(LorvaAppModel &model);

    /// A change was refused; the text is fit to be shown.
    std::function<void(const QString &reason)> onRefused;
    /// Asks the user; `accepted` is called if they choose the first button.
    std::function<void(const Alert &question, std::function<void()> accepted)> onQuestion;
    /// The families without a style are to be sorted.
    std::function<void()> onOrganizeWanted;
    std::function<void(const QStringList &familyNames)> onActivationWanted;
    std::function<void(const QStringList &familyNames)> onDeactivationWanted;

    void sidebarSelected(const BrowserSource &source) override;
    void sidebarOrganizeChosen() override;
    void sidebarPromoHidden() override;
    void sidebarGroupToggled(SidebarGroup group) override;
    std::optional<QString> sidebarCollectionWanted() override;
    void sidebarCollectionRenamed(const QString &id, const QString &name) override;
    void sidebarCollectionDeletionWanted(const QString &id) override;
    void sidebarFoundryRenamed(const QString &id, const QString &name) override;
    void sidebarFoundryHidingWanted(const QString &id) override;
    void sidebarFoundryBroughtBack(const QString &id) override;
    void sidebarActivationWanted(const SidebarItem &item) override;
    void sidebarDeactivationWanted(const SidebarItem &item) override;
    void sidebarFamiliesDropped(const SidebarItem &target, const QStringList &familyNames) override;

private:
    void tell(const Result<void> &outcome) const;
    QStringList membersOf(const SidebarItem &item) const;

    LorvaAppModel &m_model;
};

} // namespace lorva
