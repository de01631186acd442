// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/FeatureRow.h"

#include "ui/inspector/InspectorLook.h"
#include "ui/style/ToggleSwitch.h"

#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QTimer>

#include <chrono>

namespace lorva {

namespace {

/// The switch has room for its focus ring around it.
constexpr int kSwitchRoom = 3;
/// The keyboard passes many rows on its way to one.
constexpr std::chrono::milliseconds kRest{500};

} // namespace

FeatureRow::FeatureRow(const OpenTypeFeatureRecord &feature, const FeatureNotes &notes,
                       const QString &group, QWidget *parent)
    : QWidget(parent)
    , m_notes(notes)
    , m_switch(new ToggleSwitch(notes.title.left(kLongestShownName), this))
{
    setObjectName(QString(u"Feature." % feature.id));
    m_switch->setObjectName(QString(u"Feature." % feature.id % u".switch"));
    m_switch->setAccessibleDescription(
        //: The group of a font's feature, and what the feature does; spoken.
        notes.toolTip.isEmpty() ? group : tr("%1, %2").arg(group, notes.toolTip));
    m_switch->setChecked(feature.isEnabled);
    m_switch->installEventFilter(this);
    connect(m_switch, &QAbstractButton::clicked, this, [this](bool isOn) {
        if (onToggled)
            onToggled(isOn);
    });
}

void FeatureRow::setOn(bool isOn)
{
    m_switch->setChecked(isOn);
}

void FeatureRow::wantTip(bool isWanted) const
{
    const auto &tell = isWanted ? onTipWanted : onTipUnwanted;
    if (tell)
        tell();
}

bool FeatureRow::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        wantTip(true);
        return true;
    }
    if (event->type() == QEvent::Leave)
        wantTip(false);
    return QWidget::event(event);
}

/// The keyboard's way to the tip.
bool FeatureRow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn
        && showsFocusRing(static_cast<QFocusEvent *>(event)->reason(), false)) {
        QTimer::singleShot(kRest, this, [this] {
            if (m_switch->hasFocus())
                wantTip(true);
        });
    } else if (event->type() == QEvent::FocusOut) {
        wantTip(false);
    }
    return QWidget::eventFilter(watched, event);
}

void FeatureRow::mousePressEvent(QMouseEvent *event)
{
    event->setAccepted(event->button() == Qt::LeftButton);
}

void FeatureRow::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
        m_switch->click();
}

void FeatureRow::resizeEvent(QResizeEvent *)
{
    placeParts();
}

void FeatureRow::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placeParts();
}

void FeatureRow::placeParts()
{
    const QSize size = m_switch->sizeHint();
    const QRect place(QPoint(width() - kInspectorPadding + kSwitchRoom - size.width(),
                             (height() - size.height()) / 2),
                      size);
    m_switch->setGeometry(QStyle::visualRect(layoutDirection(), rect(), place));
}

void FeatureRow::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setFont(interfaceFont(InterfaceSize::body));
    painter.setPen(inspectorInk());
    const QRect room(kInspectorPadding, 0,
                     width() - 2 * kInspectorPadding - m_switch->width() - spacing::k4, height());
    drawInspectorLine(painter, *this, room, m_notes.title);
}

} // namespace lorva
