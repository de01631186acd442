// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "support/Waiting.h"
#include "ui/sidebar/ProjectSidebarViewController.h"
#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/sidebar/SidebarRowCellView.h"

#include <QTest>

#include <gtest/gtest.h>

namespace lorva::test {

inline QString text(const char *utf8)
{
    return QString::fromUtf8(utf8);
}

/// Writes down what it is told, one line for each call.
class RecordingSidebarDelegate final : public SidebarDelegate
{
public:
    QStringList log;
    std::optional<QString> newCollection = QStringLiteral("new");

    /// What was told since the last call.
    QString taken() { return std::exchange(log, {}).join(u';'); }

    void sidebarSelected(const BrowserSource &source) override
    {
        log.append(QStringLiteral("%1:%2").arg(int(source.kind())).arg(source.id()));
    }
    void sidebarOrganizeChosen() override { log.append(text("organize")); }
    void sidebarPromoHidden() override { log.append(text("promo hidden")); }
    void sidebarGroupToggled(SidebarGroup group) override
    {
        log.append(text("toggled ") + sidebarGroupIdentifier(group));
    }
    std::optional<QString> sidebarCollectionWanted() override
    {
        log.append(text("wanted"));
        return newCollection;
    }
    void sidebarCollectionRenamed(const QString &id, const QString &name) override
    {
        log.append(text("collection ") + id + text("=") + name);
    }
    void sidebarCollectionDeletionWanted(const QString &id) override
    {
        log.append(text("delete ") + id);
    }
    void sidebarFoundryRenamed(const QString &id, const QString &name) override
    {
        log.append(text("foundry ") + id + text("=") + name);
    }
    void sidebarFoundryHidingWanted(const QString &id) override { log.append(text("hide ") + id); }
    void sidebarFoundryBroughtBack(const QString &id) override { log.append(text("back ") + id); }
    void sidebarActivationWanted(const SidebarItem &item) override
    {
        log.append(QStringLiteral("activate %1").arg(item.id()));
    }
    void sidebarDeactivationWanted(const SidebarItem &item) override
    {
        log.append(QStringLiteral("deactivate %1").arg(item.id()));
    }
    void sidebarFamiliesDropped(const SidebarItem &target, const QStringList &names) override
    {
        log.append(text("dropped on ") + target.id() + text(": ") + names.join(u','));
    }
};

/// The real sidebar in a window of its own, with two rows in each group that has rows of its own.
class SidebarFixture : public ::testing::Test
{
protected:
    void SetUp() override
    {
        state.content.collections = {{text("c1"), text("Annual report"), {}},
                                     {text("c2"), text("Wayfinding"), {}}};
        state.content.styleCategories = {{text("serif"), text("Serif"), {}},
                                         {text("sans"), text("Sans-Serif"), {}}};
        state.content.foundryCollections = {{text("f1"), text("Adobe"), {}},
                                            {text("f2"), text("SIL International"), {}}};
        state.content.counts.styles = {{text("serif"), 121}, {text("sans"), 1}};
        sidebar.setDelegate(&delegate);
        sidebar.resize(ProjectSidebarViewController::kWidth, 700);
        sidebar.apply(state);
        sidebar.show();
        QApplication::setActiveWindow(&sidebar);
        outline().setFocus(Qt::TabFocusReason);
    }

    SidebarOutlineView &outline() { return sidebar.outlineView(); }
    QModelIndex at(const SidebarItem &item) { return outline().sidebarModel().indexOf(item); }
    static SidebarItem fonts(SidebarItem::Kind kind) { return SidebarItem::fixed(kind); }
    static SidebarItem head(SidebarGroup group) { return SidebarItem::header(group); }
    static SidebarItem c(const char *id) { return SidebarItem::collection(text(id)); }
    static SidebarItem f(const char *id) { return SidebarItem::foundry(text(id)); }
    static SidebarItem s(const char *id) { return SidebarItem::style(text(id)); }

    QPoint centre(const SidebarItem &item) { return outline().visualRect(at(item)).center(); }
    void click(const SidebarItem &item, Qt::MouseButton button = Qt::LeftButton)
    {
        QTest::mouseClick(outline().viewport(), button, {}, centre(item));
    }
    void press(Qt::Key key) { QTest::keyClick(&outline(), key); }
    QString current() { return outline().sidebarModel().labelAt(outline().currentIndex()); }
    QString selected()
    {
        const QModelIndexList rows = outline().selectionModel()->selectedIndexes();
        return rows.size() == 1 ? outline().sidebarModel().labelAt(rows.first()) : QString();
    }
    SidebarRowCellView *editor() { return outline().findChild<SidebarRowCellView *>(); }
    bool editorIsGone()
    {
        return waitUntil([this] {
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
            return !editor();
        });
    }

    RecordingSidebarDelegate delegate;
    SidebarState state;
    ProjectSidebarViewController sidebar;
};

} // namespace lorva::test
