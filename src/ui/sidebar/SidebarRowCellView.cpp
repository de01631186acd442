// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/sidebar/SidebarRowCellView.h"

#include "ui/style/ControlColors.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace lorva {

namespace {

constexpr int kLongestName = 255;
constexpr double kRadius = 4.0;
constexpr int kRing = 2;

} // namespace

SidebarRowCellView::SidebarRowCellView(Completion completion, QWidget *parent)
    : QLineEdit(parent)
    , m_completion(std::move(completion))
{
    setObjectName(QStringLiteral("SidebarRowCellView"));
    //: Of a collection or foundry that is being renamed.
    setAccessibleName(tr("Name"));
    setFrame(false);
    setMaxLength(kLongestName);
    setFont(interfaceFont(InterfaceSize::body));
    // Together with the field's own margin the text stays where the label was.
    setTextMargins(spacing::k4, 0, spacing::k4, 0);
    adoptColors();
}

void SidebarRowCellView::begin(const QString &name)
{
    if (std::exchange(m_hasBegun, true))
        return;
    setText(name);
    // As the field holds it: line breaks, and what is too long, are gone from it.
    m_valueBeforeEditing = text();
    selectAll();
}

void SidebarRowCellView::commit()
{
    const QString name = text().trimmed();
    if (name.isEmpty() || name == m_valueBeforeEditing.trimmed())
        return;
    if (const Completion completion = std::exchange(m_completion, {}))
        completion(name);
}

void SidebarRowCellView::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QRectF inner = QRectF(rect()).adjusted(kRing, kRing, -kRing, -kRing);
        painter.setPen(Qt::NoPen);
        painter.setBrush(neutralColors(isDarkDesktop()).ground);
        painter.drawRoundedRect(inner.adjusted(-1, -1, 1, 1), kRadius + 1, kRadius + 1);
        drawFocusRing(painter, inner, kRadius);
    }
    QLineEdit::paintEvent(event);
}

void SidebarRowCellView::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::ApplicationPaletteChange)
        adoptColors();
}

/// The ground is painted here, under the text and around its corners.
void SidebarRowCellView::adoptColors()
{
    QPalette colors = palette();
    colors.setColor(QPalette::Base, Qt::transparent);
    colors.setColor(QPalette::Text, neutralColors(isDarkDesktop()).text);
    setPalette(colors);
}

} // namespace lorva
