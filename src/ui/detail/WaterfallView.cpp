// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/WaterfallView.h"

#include "ui/style/DeviceSpace.h"

#include <QEvent>
#include <QPainter>
#include <QPaintEvent>
#include <QResizeEvent>

#include <algorithm>

namespace lorva {

WaterfallView::WaterfallView(QWidget *parent)
    : DetailSection(parent)
{
    setObjectName(QStringLiteral("WaterfallView"));
    setAccessibleName(tr("Waterfall"));
}

WaterfallView::~WaterfallView() = default;

void WaterfallView::apply(const DetailSpecimen &specimen)
{
    if (specimen == m_specimen)
        return;
    const bool isSameFont = specimen.font == m_specimen.font;
    m_specimen = specimen;
    setAccessibleDescription(waterfallText(specimen.text));
    forgetLines();
    if (isSameFont)
        return;
    const std::vector<WaterfallRow> rows = waterfallRows(specimen.font);
    if (rows == m_rows)
        return;
    m_rows = rows;
    forgetLines();
    Q_EMIT heightChanged();
}

void WaterfallView::forgetLines()
{
    m_lines.assign(m_rows.size(), std::nullopt);
    update();
}

SpecimenPage WaterfallView::page() const
{
    return waterfallPage(m_specimen, width(), isRightToLeft());
}

int WaterfallView::heightFor(int) const
{
    return m_rows.empty() ? 0 : m_rows.back().top + m_rows.back().height;
}

void WaterfallView::setVisibleBand(int top, int bottom)
{
    // Half a screen more, so that a scroll to and fro paints nothing anew.
    const int reach = std::max(0, bottom - top) / 2;
    for (size_t i = 0; i < m_lines.size(); ++i) {
        const WaterfallRow &row = m_rows[i];
        if (row.top + row.height < top - reach || row.top > bottom + reach)
            m_lines[i].reset();
    }
}

int WaterfallView::paintedLines() const
{
    return int(std::ranges::count_if(m_lines, [](const auto &line) { return line.has_value(); }));
}

TextInk &WaterfallView::line(size_t index)
{
    if (!m_lines[index]) {
        const QRectF room = waterfallRoom(width(), isRightToLeft());
        m_lines[index].emplace(
            waterfallLine(m_specimen, m_rows[index], room, WaterfallLineEnd::cut), room);
    }
    return *m_lines[index];
}

void WaterfallView::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const SpecimenCanvas canvas{size(), DeviceSpace(painter).ratio()};
    SpecimenPage furniture;
    std::vector<size_t> shown;
    for (size_t i = 0; i < m_rows.size(); ++i) {
        const WaterfallRow &row = m_rows[i];
        // Swashes reach into the neighbours.
        const QRect reach(0, row.top - row.height / 2, width(), 2 * row.height);
        if (!reach.intersects(event->rect()))
            continue;
        addWaterfallFurniture(furniture, m_specimen, row, width(), isRightToLeft());
        shown.push_back(i);
    }
    paintPageFurniture(painter, furniture);
    for (const size_t i : shown)
        line(i).draw(painter, canvas);
}

void WaterfallView::resizeEvent(QResizeEvent *event)
{
    if (event->size().width() != event->oldSize().width())
        forgetLines();
}

void WaterfallView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange || event->type() == QEvent::FontChange)
        forgetLines();
    DetailSection::changeEvent(event);
}

} // namespace lorva
