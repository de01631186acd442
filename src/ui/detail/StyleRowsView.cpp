// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/StyleRowsView.h"

#include "ui/browser/BarParts.h"
#include "ui/detail/StyleRowPill.h"
#include "ui/detail/StyleRowView.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kCaptionHeight = spacing::k28;
constexpr double kCaptionAlpha = 0.5;
/// Rows beyond the band, so that a scroll by a line finds them ready.
constexpr int kRowsBeyond = 2;

/// Their outlines are read whole, up to 25 MB: two frames on the main thread.
bool hasLargeTables(const FontFamilyRecord &family)
{
    return family.primaryScript.value_or(WritingScript::latin) != WritingScript::latin;
}

bool isAtHand(const FontDetailState &state)
{
    return state.familyActivation && state.familyActivation->isActive()
        && !hasLargeTables(state.family);
}

} // namespace

StyleRowsView::StyleRowsView(std::shared_ptr<FontResolver> resolver, QWidget *parent)
    : DetailSection(parent)
    , m_resolver(std::move(resolver))
{
    setObjectName(QStringLiteral("StyleRowsView"));
    setAccessibleName(tr("Styles"));
}

StyleRowsView::~StyleRowsView() = default;

int StyleRowsView::heightFor(int) const
{
    if (m_shown.styles.empty())
        return 0;
    return kCaptionHeight + int(m_shown.styles.size()) * StyleRowView::kHeight;
}

QRect StyleRowsView::rowRect(int index) const
{
    return {0, kCaptionHeight + index * StyleRowView::kHeight, width(), StyleRowView::kHeight};
}

void StyleRowsView::apply(const FontDetailState &state, const std::vector<FontStyleRecord> &styles,
                          const QString &selectedStyleID)
{
    Shown shown{state.family.familyName, styles,          state.activationByStyleID,
                state.labelsInSameFile,  selectedStyleID, !isAtHand(state)};
    if (shown == m_shown)
        return;
    const bool isOtherCount = shown.styles.size() != m_shown.styles.size();
    const bool isOtherSelection = shown.selectedStyleID != m_shown.selectedStyleID
        || shown.familyName != m_shown.familyName || shown.styles != m_shown.styles;
    m_shown = std::move(shown);
    if (isOtherSelection) {
        const auto selected =
            std::ranges::find(m_shown.styles, selectedStyleID, &FontStyleRecord::id);
        m_tabStop = selected == m_shown.styles.end() ? 0 : int(selected - m_shown.styles.begin());
    }
    bringRowsUpToDate();
    for (const auto &[index, row] : m_rows)
        configureRow(row, index);
    update();
    if (isOtherCount)
        Q_EMIT heightChanged();
}

void StyleRowsView::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = groundUnder(foreground, background);
    for (const auto &[index, row] : m_rows)
        row->setColors(m_foreground, m_background);
    update();
}

void StyleRowsView::setVisibleBand(int top, int bottom)
{
    m_bandTop = top;
    m_bandBottom = bottom;
    bringRowsUpToDate();
}

bool StyleRowsView::isNeeded(int index) const
{
    if (index < 0 || index >= int(m_shown.styles.size()))
        return false;
    const QRect row = rowRect(index);
    const int beyond = kRowsBeyond * StyleRowView::kHeight;
    const bool isInSight = m_bandBottom > m_bandTop && row.bottom() >= m_bandTop - beyond
        && row.top() < m_bandBottom + beyond;
    return isInSight || index == m_tabStop;
}

void StyleRowsView::bringRowsUpToDate()
{
    dropRows();
    const int first = (m_bandTop - kCaptionHeight) / StyleRowView::kHeight - kRowsBeyond - 1;
    const int last = (m_bandBottom - kCaptionHeight) / StyleRowView::kHeight + kRowsBeyond + 1;
    const int end = std::min(last + 1, int(m_shown.styles.size()));
    for (int index = std::max(first, 0); index < end; ++index) {
        if (isNeeded(index))
            ensureRow(index);
    }
    if (isNeeded(m_tabStop))
        makeTabStop(m_tabStop);
}

/// Later, as far as the widgets go: one of them may be telling of a press.
void StyleRowsView::dropRows()
{
    std::erase_if(m_rows, [this](const auto &entry) {
        if (isNeeded(entry.first))
            return false;
        entry.second->stopWaiting();
        entry.second->hide();
        entry.second->disconnect(this);
        entry.second->deleteLater();
        return true;
    });
}

StyleRowView *StyleRowsView::ensureRow(int index)
{
    if (const auto found = m_rows.find(index); found != m_rows.end())
        return found->second;
    auto *row = new StyleRowView(m_resolver, this);
    m_rows.emplace(index, row);
    row->setGeometry(rowRect(index));
    row->setColors(m_foreground, m_background);
    configureRow(row, index);
    connectRow(row, index);
    // It stands where this view stands, not where it was made; for that all have to be stops.
    setFocusPolicy(Qt::TabFocus);
    row->setTabStop(true);
    setTabOrder(this, row);
    setTabOrder(row, row->pill());
    row->setTabStop(false);
    setFocusPolicy(Qt::NoFocus);
    row->show();
    return row;
}

void StyleRowsView::connectRow(StyleRowView *row, int index)
{
    connect(row, &QAbstractButton::clicked, this, [this, row, index] {
        makeTabStop(index);
        Q_EMIT styleChosen(row->state().style);
    });
    connect(row, &StyleRowView::activationWanted, this,
            [this, row] { Q_EMIT activationWanted(row->state().style); });
    connect(row, &StyleRowView::deactivationWanted, this,
            [this, row] { Q_EMIT deactivationWanted(row->state().style); });
    connect(row, &StyleRowView::stepWanted, this, [this, index](int by) { step(index, by); });
}

void StyleRowsView::configureRow(StyleRowView *row, int index) const
{
    const FontStyleRecord &style = m_shown.styles[size_t(index)];
    StyleRowState state;
    state.familyName = m_shown.familyName;
    state.style = style;
    if (const auto found = m_shown.activations.constFind(style.id);
        found != m_shown.activations.cend())
        state.activation = *found;
    state.labelsInSameFile = m_shown.labelsInSameFile.value(style.id);
    state.isSelected = style.id == m_shown.selectedStyleID;
    state.prefersWorker = m_shown.prefersWorker;
    if (state != row->state())
        row->configure(state);
}

void StyleRowsView::makeTabStop(int index)
{
    m_tabStop = index;
    ensureRow(index);
    for (const auto &[place, row] : m_rows)
        row->setTabStop(place == index);
}

/// From row to row, or from pill to pill.
void StyleRowsView::step(int index, int by)
{
    const int next = index + by;
    if (next < 0 || next >= int(m_shown.styles.size()))
        return;
    const bool isOnPill = m_rows.at(index)->pill()->hasFocus();
    makeTabStop(next);
    StyleRowView *row = m_rows.at(next);
    QWidget *target =
        isOnPill && row->pill()->isVisibleTo(row) ? static_cast<QWidget *>(row->pill()) : row;
    target->setFocus(Qt::TabFocusReason);
    Q_EMIT revealWanted(rowRect(next));
}

bool StyleRowsView::isSettled() const
{
    return std::ranges::none_of(m_rows,
                                [](const auto &entry) { return entry.second->isWaiting(); });
}

void StyleRowsView::resizeEvent(QResizeEvent *)
{
    for (const auto &[index, row] : m_rows)
        row->setGeometry(rowRect(index));
}

void StyleRowsView::paintEvent(QPaintEvent *)
{
    if (m_shown.styles.empty())
        return;
    QPainter painter(this);
    const QRect caption(0, 0, width(), kCaptionHeight);
    const Qt::Alignment leading =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter)
        | Qt::AlignAbsolute;
    painter.setFont(interfaceFont(InterfaceSize::caption, InterfaceWeight::semibold));
    painter.setPen(withAlpha(m_foreground, kCaptionAlpha));
    painter.drawText(caption, int(leading), tr("Styles"));
    drawHairline(painter, caption, Qt::BottomEdge, hairlineColor(m_foreground, m_background));
}

} // namespace lorva
