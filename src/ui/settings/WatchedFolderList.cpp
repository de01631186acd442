// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/WatchedFolderList.h"

#include "ui/settings/WatchedFolderDelegate.h"
#include "ui/style/ControlColors.h"
#include "ui/style/GroundlessList.h"
#include "ui/style/OverlayScrollBar.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QListWidget>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kMargin = spacing::k4;
constexpr int kFewestRows = 4;
constexpr double kPlateAlpha = 0.045;
constexpr double kRadius = 10;
constexpr double kDropFill = 0.08;
constexpr double kDropRing = 0.55;
constexpr double kHintAlpha = 0.55;

} // namespace

/// The rows, without any ground of their own.
class WatchedFolderList::View final : public QListWidget
{
public:
    explicit View(WatchedFolderList &list)
        : QListWidget(&list)
        , m_list(list)
    {
        setObjectName(QStringLiteral("Settings.FolderList"));
        setAccessibleName(WatchedFolderList::tr("Watched Folders"));
        makeGroundless(*this);
        setUniformItemSizes(true);
        setItemDelegate(
            new WatchedFolderDelegate([this] { return hasFocus() && m_showsFocus; }, this));
    }

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        const bool isRemoval = event->key() == Qt::Key_Delete || event->key() == Qt::Key_Backspace;
        if (isRemoval && m_list.selectedID())
            Q_EMIT m_list.removalWanted();
        else if (event->key() == Qt::Key_Escape)
            // The base class would look for a row that begins with it.
            event->ignore();
        else
            QListWidget::keyPressEvent(event);
    }
    void focusInEvent(QFocusEvent *event) override
    {
        m_showsFocus = showsFocusRing(event->reason(), m_showsFocus);
        QListWidget::focusInEvent(event);
        const bool isByTab =
            event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
        // Whoever comes here by key acts on what is seen to be selected. Not when the window only
        // opens: a key too many would remove a folder.
        if (isByTab && count() > 0 && selectedItems().isEmpty())
            setCurrentRow(std::max(currentRow(), 0));
        viewport()->update();
    }

private:
    WatchedFolderList &m_list;
    bool m_showsFocus = false;
};

WatchedFolderList::WatchedFolderList(QWidget *parent)
    : QWidget(parent)
    , m_view(new View(*this))
    , m_bar(new OverlayScrollBar(this))
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->addWidget(m_view);
    setMinimumHeight(kFewestRows * WatchedFolderDelegate::kRowHeight + 2 * kMargin);
    setFocusProxy(m_view);
    m_bar->follow(m_view->verticalScrollBar());
    m_bar->setForeground(neutralColors(isDarkDesktop()).text);
    connect(m_view, &QListWidget::itemSelectionChanged, this, &WatchedFolderList::selectionChanged);
}

void WatchedFolderList::setRows(const std::vector<WatchedFolderRow> &rows)
{
    if (rows == m_rows)
        return;
    const std::optional<QString> selected = selectedID();
    const int place = m_view->currentRow();
    const bool isSameList =
        std::ranges::equal(rows, m_rows, {}, &WatchedFolderRow::id, &WatchedFolderRow::id);
    m_rows = rows;
    {
        const QSignalBlocker quiet(m_view);
        if (!isSameList)
            m_view->clear();
        for (size_t i = 0; i < m_rows.size(); ++i) {
            QListWidgetItem *item = m_view->item(int(i));
            if (!item)
                m_view->addItem(item = new QListWidgetItem);
            WatchedFolderDelegate::write(m_rows[i], *item);
        }
        if (!isSameList && selected) {
            setSelectedID(selected);
            if (!selectedID() && !m_rows.empty())
                m_view->setCurrentRow(std::clamp(place, 0, int(m_rows.size()) - 1));
        }
    }
    m_bar->adapt();
    update();
    if (selectedID() != selected)
        Q_EMIT selectionChanged();
}

std::optional<QString> WatchedFolderList::selectedID() const
{
    const QList<QListWidgetItem *> selected = m_view->selectedItems();
    if (selected.isEmpty())
        return std::nullopt;
    const int row = m_view->row(selected.front());
    return size_t(row) < m_rows.size() ? std::optional(m_rows[size_t(row)].id) : std::nullopt;
}

void WatchedFolderList::setSelectedID(const std::optional<QString> &id)
{
    const auto found = std::ranges::find(
        m_rows, id, [](const WatchedFolderRow &row) { return std::optional(row.id); });
    if (found == m_rows.end())
        m_view->setCurrentItem(nullptr);
    else
        m_view->setCurrentRow(int(found - m_rows.begin()));
}

void WatchedFolderList::setDropTarget(bool isTarget)
{
    if (isTarget == m_isDropTarget)
        return;
    m_isDropTarget = isTarget;
    update();
}

void WatchedFolderList::paintEvent(QPaintEvent *)
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(neutral.text, m_isDropTarget ? kDropFill : kPlateAlpha));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    if (m_isDropTarget) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(withAlpha(neutral.text, kDropRing), 2));
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius - 1, kRadius - 1);
    }
    if (!m_rows.empty())
        return;
    painter.setFont(interfaceFont(InterfaceSize::label));
    const QColor plate = blended(withAlpha(neutral.text, kPlateAlpha), neutral.ground);
    painter.setPen(quietColor(neutral.text, plate, kHintAlpha));
    painter.drawText(rect().adjusted(spacing::k16, 0, -spacing::k16, 0),
                     int(Qt::AlignCenter) | Qt::TextWordWrap,
                     tr("No folders yet. Drop folders of fonts here, or press +."));
}

void WatchedFolderList::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    m_bar->adapt();
}

void WatchedFolderList::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::PaletteChange)
        return;
    m_bar->setForeground(neutralColors(isDarkDesktop()).text);
    update();
}

} // namespace lorva
