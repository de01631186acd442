// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sheets/SheetFooter.h"

#include "ui/style/Style.h"

#include <QEvent>
#include <QStyle>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kGap = spacing::k8;
constexpr int kLeadGap = spacing::k16;

} // namespace

void SheetFooter::addButton(QWidget *button)
{
    button->setParent(this);
    m_buttons.push_back(button);
}

void SheetFooter::setLead(QWidget *lead)
{
    lead->setParent(this);
    m_lead = lead;
}

std::vector<SheetFooter::Place> SheetFooter::placesFor(int width) const
{
    std::vector<Place> places;
    const int end = width - kOverhang;
    int right = end;
    int top = 0;
    for (QWidget *button : m_buttons) {
        const QSize size = button->sizeHint().boundedTo(QSize(end - kOverhang, QWIDGETSIZE_MAX));
        if (right < end && right - size.width() < kOverhang) {
            right = end;
            top += size.height() + kGap;
        }
        places.push_back({button, {{right - size.width(), top}, size}});
        right -= size.width() + kGap;
    }
    if (m_lead)
        addLead(places, width);
    return places;
}

void SheetFooter::addLead(std::vector<Place> &places, int width) const
{
    const QSize lead = m_lead->sizeHint();
    const QRect last = places.empty() ? QRect(width, 0, 0, lead.height()) : places.back().rect;
    if (lead.width() + kLeadGap <= last.left()) {
        const int top = last.center().y() - lead.height() / 2;
        places.push_back({m_lead, {QPoint(0, std::max(0, top)), lead}});
        return;
    }
    const int height = m_lead->heightForWidth(width);
    for (Place &place : places)
        place.rect.translate(0, height + kLeadGap);
    places.push_back({m_lead, {0, 0, width, height}});
}

int SheetFooter::heightForWidth(int width) const
{
    int bottom = 0;
    for (const Place &place : placesFor(width))
        bottom = std::max(bottom, place.rect.bottom() + 1);
    return bottom;
}

void SheetFooter::place()
{
    for (const auto &[part, rect] : placesFor(width()))
        part->setGeometry(QStyle::visualRect(layoutDirection(), this->rect(), rect));
}

void SheetFooter::resizeEvent(QResizeEvent *)
{
    place();
}

void SheetFooter::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        place();
}

} // namespace lorva
