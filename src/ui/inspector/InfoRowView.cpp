// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/InfoRowView.h"

#include "ui/inspector/CopyButton.h"
#include "ui/inspector/InfoValueText.h"
#include "ui/inspector/InspectorLook.h"
#include "ui/inspector/QuietButton.h"
#include "ui/style/ControlColors.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace lorva {

namespace {

constexpr int kLabelWidth = 108;
constexpr int kLabelRoom = kLabelWidth - spacing::k8;
constexpr int kMostLabelLines = 3;
constexpr int kLineRoom = 6;
/// The copy button stands in the margin, as far as the scroll bar leaves it room.
constexpr int kCopyOutset = 10;

} // namespace

InfoRowView::InfoRowView(const InfoRow &row, const QString &place, QWidget *parent)
    : QWidget(parent)
    , m_row(row)
    , m_text(new InfoValueText(row.value, this))
    , m_copy(new CopyButton(tr("Copy"), this))
{
    setObjectName(place);
    m_text->setObjectName(QString(place % u".value"));
    m_text->setAccessibleName(row.label);
    alignValue();
    m_copy->setObjectName(QString(place % u".copy"));
    m_copy->hide();
    connect(m_copy, &QAbstractButton::clicked, this, [this] { m_text->copyAll(); });
    if (m_text->isCut())
        addMore();
    addAction(place);
}

/// Beside a label values stand in a column, in whichever script; paragraphs as they are read.
void InfoRowView::alignValue()
{
    if (!m_row.label.isEmpty())
        m_text->setAlignment(Qt::AlignAbsolute
                             | (isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft));
}

void InfoRowView::addMore()
{
    m_more = new QuietButton(tr("More"), this);
    m_more->setObjectName(QString(objectName() % u".more"));
    connect(m_more, &QAbstractButton::clicked, this, [this] {
        m_text->expand();
        alignValue();
        m_text->setFocus(Qt::OtherFocusReason);
        m_more->hide();
        if (onResized)
            onResized();
    });
}

void InfoRowView::addAction(const QString &place)
{
    if (m_row.isFile) {
        m_action = new QuietButton(tr("Show in File Manager"), this);
        connect(m_action, &QAbstractButton::clicked, this, [this] {
            if (onFile)
                onFile();
        });
    } else if (m_row.link.isValid()) {
        m_action = new QuietButton(tr("Open in Browser"), this);
        connect(m_action, &QAbstractButton::clicked, this, [this] {
            if (onLink)
                onLink(m_row.link);
        });
    }
    if (m_action)
        m_action->setObjectName(QString(place % u".open"));
}

WrappedText InfoRowView::labelText() const
{
    return {m_row.label, interfaceFont(InterfaceSize::label), kMostLabelLines};
}

/// Two words in one language may be three in another.
bool InfoRowView::isLabelLong() const
{
    const WrappedText label = labelText();
    return QFontMetrics(label.font).horizontalAdvance(label.text) > kLabelRoom;
}

int InfoRowView::valueLeft() const
{
    return kInspectorPadding + (m_row.label.isEmpty() ? 0 : kLabelWidth);
}

int InfoRowView::valueWidth(int width) const
{
    return std::max(1, width - valueLeft() - kInspectorPadding);
}

int InfoRowView::heightForWidth(int width) const
{
    int height = m_text->heightForWidth(valueWidth(width)) + 2 * kLineRoom;
    if (isLabelLong())
        height = std::max(height, labelText().heightFor(kLabelRoom) + 2 * kLineRoom);
    for (const QWidget *part : {m_more, m_action}) {
        if (part && !part->isHidden())
            height += part->sizeHint().height();
    }
    return height;
}

/// Below the value; a long one begins as far before as it must.
int InfoRowView::actionLeft(const QWidget &action) const
{
    const int last =
        width() - kInspectorPadding + QuietButton::kSideRoom - action.sizeHint().width();
    return std::max(kInspectorPadding, std::min(valueLeft(), last + QuietButton::kSideRoom))
        - QuietButton::kSideRoom;
}

void InfoRowView::place(QWidget *part, const QRect &where) const
{
    part->setGeometry(QStyle::visualRect(layoutDirection(), rect(), where));
}

void InfoRowView::placeParts()
{
    const int valueHeight = m_text->heightForWidth(valueWidth(width()));
    place(m_text, {valueLeft(), kLineRoom, valueWidth(width()), valueHeight});
    const int side = CopyButton::kSide;
    place(m_copy, {width() - kInspectorPadding - side + kCopyOutset, kLineRoom - 1, side, side});
    int y = kLineRoom + valueHeight + spacing::k2;
    for (QuietButton *part : {m_more, m_action}) {
        if (!part || part->isHidden())
            continue;
        place(part, QRect(QPoint(actionLeft(*part), y), part->sizeHint()));
        y += part->sizeHint().height();
    }
}

bool InfoRowView::event(QEvent *event)
{
    if (event->type() == QEvent::Enter) {
        m_copy->show();
        m_copy->raise();
    } else if (event->type() == QEvent::Leave) {
        m_copy->hide();
    }
    return QWidget::event(event);
}

void InfoRowView::resizeEvent(QResizeEvent *)
{
    placeParts();
}

void InfoRowView::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange) {
        alignValue();
        placeParts();
    }
}

void InfoRowView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_text->hasFocusRing())
        drawFocusRing(painter, QRectF(m_text->geometry()).adjusted(-4, -2, 4, 2), 4);
    if (m_row.label.isEmpty())
        return;
    painter.setFont(interfaceFont(InterfaceSize::label));
    painter.setPen(inspectorQuiet());
    QRect room(kInspectorPadding, kLineRoom, kLabelRoom, painter.fontMetrics().height());
    if (!isLabelLong())
        return drawInspectorLine(painter, *this, room, m_row.label);
    room.setHeight(height() - 2 * kLineRoom);
    labelText().draw(painter, QStyle::visualRect(layoutDirection(), rect(), room),
                     layoutDirection());
}

} // namespace lorva
