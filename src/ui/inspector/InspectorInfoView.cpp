// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InspectorInfoView.h"

#include "ui/inspector/InfoRowView.h"
#include "ui/inspector/InspectorLook.h"

#include <QResizeEvent>

namespace lorva {

namespace {

constexpr int kTop = spacing::k16;
constexpr int kBottom = spacing::k24;

} // namespace

InspectorInfoView::InspectorInfoView(QWidget *parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("InspectorInfoView"));
}

InspectorInfoView::Part InspectorInfoView::makePart(const InfoSection &section)
{
    Part part{new InspectorLabel(section.title, InspectorLabel::Kind::caption, this), {}};
    part.title->setObjectName(QStringLiteral("Info.%1").arg(m_parts.size()));
    part.title->show();
    for (const InfoRow &row : section.rows) {
        const QString place =
            QStringLiteral("Info.%1.%2").arg(m_parts.size()).arg(part.rows.size());
        auto *view = new InfoRowView(row, place, this);
        view->onLink = [this](const QUrl &link) {
            if (onLink)
                onLink(link);
        };
        view->onFile = [this] {
            if (onFile)
                onFile();
        };
        view->onResized = [this] { placeParts(); };
        view->show();
        part.rows.push_back(view);
    }
    return part;
}

void InspectorInfoView::setSections(const std::vector<InfoSection> &sections)
{
    if (sections == m_sections)
        return;
    m_sections = sections;
    for (const Part &part : m_parts) {
        delete part.title;
        for (const InfoRowView *row : part.rows)
            delete row;
    }
    m_parts.clear();
    for (const InfoSection &section : m_sections)
        m_parts.push_back(makePart(section));
    placeParts();
}

void InspectorInfoView::resizeEvent(QResizeEvent *event)
{
    if (event->size().width() != event->oldSize().width())
        placeParts();
}

void InspectorInfoView::placeParts()
{
    int y = kTop;
    for (const Part &part : m_parts) {
        part.title->setGeometry(kInspectorPadding, y, width() - 2 * kInspectorPadding,
                                kInspectorCaption);
        y += kInspectorCaption;
        for (InfoRowView *row : part.rows) {
            const int height = row->heightForWidth(width());
            row->setGeometry(0, y, width(), height);
            y += height;
        }
        y += kInspectorGap;
    }
    setMinimumHeight(y + kBottom - kInspectorGap);
}

} // namespace lorva
