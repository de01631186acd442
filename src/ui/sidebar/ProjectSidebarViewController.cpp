// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/ProjectSidebarViewController.h"

#include "ui/sidebar/SidebarModel.h"
#include "ui/sidebar/SidebarOutlineView.h"
#include "ui/sidebar/SidebarRowDelegate.h"
#include "ui/style/Hairline.h"
#include "ui/style/IconButton.h"
#include "ui/style/Palette.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QScopedValueRollback>
#include <QWheelEvent>

#include <utility>

namespace lorva {

ProjectSidebarViewController::ProjectSidebarViewController(QWidget *parent)
    : QWidget(parent)
    , m_model(new SidebarModel(this))
    , m_outlineView(new SidebarOutlineView(*m_model, this))
    , m_addButton(new IconButton(QStringLiteral("plus"), tr("Create an empty collection."), this))
{
    setObjectName(QStringLiteral("ProjectSidebarViewController"));
    setFocusProxy(m_outlineView);
    m_addButton->setObjectName(QStringLiteral("SidebarAddButton"));
    setTabOrder(m_outlineView, m_addButton);
    connectOutline();
    connect(m_addButton, &IconButton::clicked, this,
            &ProjectSidebarViewController::beginCreatingCollection);
    adoptColors();
    apply({});
}

ProjectSidebarViewController::~ProjectSidebarViewController()
{
    // The outline goes while this object is half gone already; nobody is there to be told.
    m_delegate = nullptr;
    m_outlineView->disconnect(this);
}

void ProjectSidebarViewController::connectOutline()
{
    using Outline = SidebarOutlineView;
    using Self = ProjectSidebarViewController;
    connect(m_outlineView, &Outline::chosen, this, &Self::choose);
    connect(m_outlineView, &Outline::expanded, this, &Self::noteGroupToggled);
    connect(m_outlineView, &Outline::collapsed, this, &Self::noteGroupToggled);
    connect(m_outlineView, &Outline::deletionWanted, this, &Self::askForDeletion);
    connect(m_outlineView, &Outline::menuWanted, this, &Self::showMenu);
    connect(m_outlineView, &Outline::rowsMoved, this, &Self::placeAddButton);
    connect(m_outlineView, &Outline::familiesDropped, this,
            [this](const QModelIndex &index, const QStringList &names) {
                const std::optional<SidebarItem> item = m_model->itemAt(index);
                if (m_delegate && item)
                    m_delegate->sidebarFamiliesDropped(*item, names);
            });
    m_outlineView->rowDelegate().onRenamed = [this](const SidebarItem &item, const QString &name) {
        rename(item, name);
    };
}

QAbstractScrollArea *ProjectSidebarViewController::scrollView() const
{
    return m_outlineView;
}

QSize ProjectSidebarViewController::sizeHint() const
{
    return {kWidth, kWidth};
}

void ProjectSidebarViewController::apply(const SidebarState &state)
{
    {
        const QScopedValueRollback guard(m_suppressSelectionCallbacks, true);
        m_state = state;
        m_model->apply(sidebarTree(state.content));
        applyCollapsedGroups();
        mirrorSelection();
    }
    startPendingRename();
    // A collection that this state does not hold is gone already.
    m_pendingRename.reset();
}

void ProjectSidebarViewController::applyCollapsedGroups()
{
    for (const SidebarGroup group : kSidebarGroups) {
        const QModelIndex header = m_model->headerIndex(group);
        const bool isOpen = !m_state.collapsedGroups.contains(sidebarGroupIdentifier(group));
        if (m_outlineView->isExpanded(header) != isOpen)
            m_outlineView->setExpanded(header, isOpen);
    }
}

/// Only where the outline shows another choice, so that the keyboard's place is kept.
void ProjectSidebarViewController::mirrorSelection()
{
    QItemSelectionModel *selection = m_outlineView->selectionModel();
    const QModelIndex wanted = m_model->indexOf(itemOf(m_state.selectedSource));
    if (!wanted.isValid()) {
        selection->clearSelection();
        return;
    }
    const bool isShown = selection->isSelected(wanted);
    // To go to another row would end the editing of a name.
    if (m_outlineView->isEditing()) {
        selection->select(wanted, QItemSelectionModel::ClearAndSelect);
    } else if (m_outlineView->isHidden(wanted)) {
        selection->select(wanted, QItemSelectionModel::ClearAndSelect);
        if (!isShown)
            m_outlineView->setCurrentOnly(wanted.parent());
    } else if (!isShown) {
        selection->setCurrentIndex(wanted, QItemSelectionModel::ClearAndSelect);
    }
}

void ProjectSidebarViewController::choose(const QModelIndex &index)
{
    const std::optional<SidebarItem> item = m_model->itemAt(index);
    if (m_suppressSelectionCallbacks || !m_delegate || !item)
        return;
    if (const std::optional<BrowserSource> source = sourceOf(*item))
        m_delegate->sidebarSelected(*source);
    else if (item->kind() == SidebarItem::Kind::organize)
        m_delegate->sidebarOrganizeChosen();
}

void ProjectSidebarViewController::noteGroupToggled(const QModelIndex &header)
{
    const std::optional<SidebarItem> item = m_model->itemAt(header);
    if (m_suppressSelectionCallbacks || !item)
        return;
    const QString identifier = sidebarGroupIdentifier(item->group());
    if (m_outlineView->isExpanded(header))
        m_state.collapsedGroups.remove(identifier);
    else
        m_state.collapsedGroups.insert(identifier);
    if (m_delegate)
        m_delegate->sidebarGroupToggled(item->group());
}

void ProjectSidebarViewController::beginCreatingCollection()
{
    if (!m_delegate)
        return;
    m_outlineView->expand(m_model->headerIndex(SidebarGroup::collections));
    if (const std::optional<QString> id = m_delegate->sidebarCollectionWanted()) {
        m_pendingRename = SidebarItem::collection(*id);
        startPendingRename();
    }
}

void ProjectSidebarViewController::startPendingRename()
{
    if (!m_pendingRename || !m_model->indexOf(*m_pendingRename).isValid())
        return;
    const SidebarItem item = *m_pendingRename;
    m_pendingRename.reset();
    beginRenaming(item);
}

void ProjectSidebarViewController::beginRenaming(const SidebarItem &item)
{
    const QModelIndex index = m_model->indexOf(item);
    if (!index.flags().testFlag(Qt::ItemIsEditable) || m_outlineView->isPersistentEditorOpen(index))
        return;
    m_outlineView->expand(index.parent());
    m_outlineView->setCurrentOnly(index);
    m_outlineView->scrollTo(index);
    m_outlineView->QAbstractItemView::edit(index);
}

void ProjectSidebarViewController::rename(const SidebarItem &item, const QString &newName)
{
    // An editor that a new state takes away with its row or group has nothing left to tell.
    if (!m_delegate || m_suppressSelectionCallbacks)
        return;
    if (item.kind() == SidebarItem::Kind::collection)
        m_delegate->sidebarCollectionRenamed(item.id(), newName);
    else if (item.kind() == SidebarItem::Kind::foundry)
        m_delegate->sidebarFoundryRenamed(item.id(), newName);
}

void ProjectSidebarViewController::askForDeletion(const QModelIndex &index)
{
    const std::optional<SidebarItem> item = m_model->itemAt(index);
    if (m_delegate && item && item->kind() == SidebarItem::Kind::collection)
        m_delegate->sidebarCollectionDeletionWanted(item->id());
}

void ProjectSidebarViewController::placeAddButton()
{
    const QRect row = m_outlineView->visualRect(m_model->headerIndex(SidebarGroup::collections));
    const QRect place = SidebarHeaderPlaces::of(row, layoutDirection()).addButton;
    const QWidget *viewport = m_outlineView->viewport();
    m_addButton->setGeometry(place.translated(viewport->mapTo(this, QPoint())));
    m_addButton->setVisible(row.isValid() && viewport->rect().intersects(place));
}

void ProjectSidebarViewController::adoptColors()
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    m_addButton->setColors(withAlpha(colors.text, 0.68), colors.sidebar);
    m_outlineView->setForeground(colors.text);
    update();
}

void ProjectSidebarViewController::paintEvent(QPaintEvent *)
{
    const NeutralColors colors = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.fillRect(rect(), colors.sidebar);
    const Qt::Edge trailing = layoutDirection() == Qt::RightToLeft ? Qt::LeftEdge : Qt::RightEdge;
    drawHairline(painter, rect(), trailing, hairlineColor(colors.text, colors.sidebar));
}

void ProjectSidebarViewController::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_outlineView->setGeometry(rect());
}

void ProjectSidebarViewController::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    const bool isPalette =
        event->type() == QEvent::PaletteChange || event->type() == QEvent::ApplicationPaletteChange;
    if (isPalette)
        adoptColors();
    if (isPalette || event->type() == QEvent::LayoutDirectionChange)
        placeAddButton();
}

/// The wheel over the add button turns the rows below it.
void ProjectSidebarViewController::wheelEvent(QWheelEvent *event)
{
    if (m_forwardsWheel)
        return;
    const QScopedValueRollback guard(m_forwardsWheel, true);
    m_outlineView->takeWheel(event);
    event->accept();
}

} // namespace lorva
