// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/VariantBar.h"

#include "ui/browser/BarParts.h"
#include "ui/browser/PaneButton.h"
#include "ui/style/Hairline.h"
#include "ui/style/MenuLook.h"
#include "ui/style/Palette.h"
#include "ui/style/SegmentedControl.h"
#include "ui/style/Style.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QStyle>

namespace lorva {

namespace {

constexpr int kMargin = spacing::k48;
constexpr int kMenuGap = spacing::k8;

} // namespace

VariantBar::VariantBar(QWidget *parent)
    : QWidget(parent)
    , m_segments(new SegmentedControl(this))
    , m_more(new PaneButton({}, this))
{
    setObjectName(QStringLiteral("VariantBar"));
    m_segments->setObjectName(QStringLiteral("variantSegments"));
    //: One of the widths or optical sizes of a family.
    m_segments->setAccessibleName(tr("Variant"));
    m_segments->setNaturalWidths(true);
    m_more->setObjectName(QStringLiteral("moreVariantsButton"));
    m_more->setAccessibleName(tr("More Variants"));
    m_more->setToolTip(tr("More Variants"));
    m_more->setFocusPolicy(Qt::TabFocus);
    connect(m_segments, &SegmentedControl::activated, this, [this](int index) {
        if (m_picker.onChange)
            m_picker.onChange(m_picker.visibleSegments.value(index));
    });
    connect(m_more, &QAbstractButton::clicked, this, &VariantBar::openMenu);
}

VariantBar::~VariantBar() = default;

void VariantBar::apply(const QStringList &labels, const QString &selected)
{
    if (labels == m_labels && selected == m_selected)
        return;
    m_labels = labels;
    m_selected = selected;
    layOut();
}

void VariantBar::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    const QColor under = groundUnder(foreground, background);
    m_segments->setColors(foreground, under);
    m_more->setColors(foreground, under);
    update();
}

void VariantBar::showPicker(SegmentPickerState picker)
{
    if (picker.visibleSegments != m_picker.visibleSegments) {
        m_segments->clear();
        for (const QString &label : picker.visibleSegments)
            m_segments->addTextSegment(label);
    }
    m_segments->setCurrentIndex(int(picker.visibleSegments.indexOf(picker.selected)));
    //: So many variants of a family that have no room beside the others.
    m_more->setText(tr("%n More", nullptr, int(picker.overflowSegments.size())));
    m_more->setVisible(!picker.overflowSegments.isEmpty());
    picker.onChange = [this](const QString &label) {
        if (label != m_selected)
            Q_EMIT variantSelected(label);
    };
    m_picker = std::move(picker);
}

void VariantBar::layOut()
{
    const bool hadFocus = m_segments->isAncestorOf(focusWidget());
    m_more->setText(tr("%n More", nullptr, int(m_labels.size())));
    SegmentRoom room;
    room.width = std::max(width() - 2 * kMargin, 0);
    room.overflowButton = m_more->sizeHint().width() + kMenuGap;
    room.padding = SegmentedControl().sizeHint().width();
    room.widthOf = SegmentedControl::textSegmentWidth;
    showPicker(segmentsThatFit(m_labels, m_selected, room));

    const int buttonRoom = m_picker.overflowSegments.isEmpty() ? 0 : room.overflowButton;
    const QSize wanted = m_segments->sizeHint();
    const QSize segments(std::clamp(room.width - buttonRoom, 0, wanted.width()), wanted.height());
    const int top = (kHeight - segments.height()) / 2;
    const QRect first(QPoint(kMargin, top), segments);
    const QRect second(first.right() + 1 + kMenuGap, top, m_more->sizeHint().width(),
                       segments.height());
    m_segments->setGeometry(QStyle::visualRect(layoutDirection(), rect(), first));
    m_more->setGeometry(QStyle::visualRect(layoutDirection(), rect(), second));
    if (hadFocus)
        m_segments->focusCurrent();
}

void VariantBar::openMenu()
{
    QMenu *menu = makeMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setObjectName(QStringLiteral("moreVariantsMenu"));
    for (const QString &label : m_picker.overflowSegments) {
        connect(menu->addAction(menuEntryText(label)), &QAction::triggered, this,
                [this, label] { m_picker.onChange(label); });
    }
    const QSize size = menu->sizeHint();
    const int left = isRightToLeft() ? m_more->width() - size.width() : 0;
    menu->popup(m_more->mapToGlobal(QPoint(left, -size.height() - spacing::k4)));
}

void VariantBar::changeEvent(QEvent *event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        layOut();
}

void VariantBar::resizeEvent(QResizeEvent *)
{
    layOut();
}

void VariantBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintBarGround(painter, rect(), m_foreground, m_background);
    drawHairline(painter, rect(), Qt::TopEdge,
                 hairlineColor(m_foreground, groundUnder(m_foreground, m_background)));
}

} // namespace lorva
