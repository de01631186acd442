// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/StyleRowView.h"

#include "ui/detail/StyleRowPill.h"
#include "ui/style/ControlColors.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/Hairline.h"
#include "ui/style/Palette.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/Style.h"

#include <QKeyEvent>
#include <QLocale>
#include <QPainter>
#include <QStyle>

#include <cmath>

namespace lorva {

namespace {

constexpr double kQuietAlpha = 0.45;
constexpr int kBaseline = 31;
/// Of a name in the interface's font, which is smaller.
constexpr int kStandInBaseline = 28;
constexpr int kPillGap = 18;
constexpr int kWeightWidth = 40;
constexpr int kWeightGap = spacing::k16;
constexpr int kTogetherGap = spacing::k12;
/// Less of "with Bold" tells nothing.
constexpr int kLeastTogether = 48;
constexpr int kMarkHeight = 2;
constexpr double kHoverMarkAlpha = 0.25;
constexpr int kShortestMark = 24;
/// More than any row has room for; a font may bring a name of 64 kilobytes.
constexpr qsizetype kLongestName = 300;

QFont standInFont()
{
    return interfaceFont(InterfaceSize::title);
}

QFont quietFont()
{
    return interfaceFont(InterfaceSize::caption);
}

} // namespace

StyleRowView::StyleRowView(std::shared_ptr<FontResolver> resolver, QWidget *parent)
    : FocusRinged(parent)
    , m_name(new StyleRowName(std::move(resolver), this))
    , m_pill(new StyleRowPill(this))
{
    setAttribute(Qt::WA_Hover);
    m_pill->hide();
    connect(m_name, &StyleRowName::changed, this, [this] {
        describe();
        update();
    });
    connect(m_pill, &QAbstractButton::clicked, this, [this] {
        if (m_state.activation->isActive())
            Q_EMIT deactivationWanted();
        else
            Q_EMIT activationWanted();
    });
}

QString StyleRowView::shownName() const
{
    const FontStyleRecord &style = m_state.style;
    const QString name = style.label.isEmpty() ? style.postScriptName : style.label;
    //: A style without a name of its own, as fonts call it.
    return name.isEmpty() ? tr("Regular") : name.left(kLongestName).simplified();
}

void StyleRowView::configure(const StyleRowState &state)
{
    const bool isOtherFace = state.familyName != m_state.familyName || state.style != m_state.style;
    m_state = state;
    if (isOtherFace) {
        m_name->setStyle(state.familyName, state.style, state.prefersWorker,
                         look(devicePixelRatioF()));
    }
    showPill();
    describe();
    update();
}

void StyleRowView::showPill()
{
    const auto &activation = m_state.activation;
    const bool isSwitched = activation && (!activation->isActive() || activation->method());
    if (isSwitched)
        m_pill->setStyle(shownName(), activation->isActive());
    m_pill->setVisible(isSwitched);
}

void StyleRowView::describe()
{
    const QString name = shownName();
    setObjectName(QString(QStringLiteral("styleRow ") + name));
    m_pill->setObjectName(QString(QStringLiteral("stylePill ") + name));
    setAccessibleName(name);
    QStringList notes;
    if (m_name->isMissing())
        notes.append(tr("“%1” could not be loaded.").arg(name));
    if (!m_state.labelsInSameFile.isEmpty()) {
        const QString others = QLocale().createSeparatedList(m_state.labelsInSameFile);
        notes.append(
            tr("In one file with %1: they are activated and de-activated together.").arg(others));
    }
    setToolTip(plainToolTip(notes.join(u'\n')));
    if (m_state.isSelected)
        notes.prepend(tr("Shown in the preview."));
    setAccessibleDescription(notes.join(u' '));
}

void StyleRowView::setColors(const QColor &foreground, const QColor &background)
{
    m_foreground = foreground;
    m_background = background;
    m_pill->setColors(foreground, background);
    update();
}

void StyleRowView::setTabStop(bool isTabStop)
{
    // A click must not take the keyboard away from the preview.
    const Qt::FocusPolicy policy = isTabStop ? Qt::TabFocus : Qt::NoFocus;
    setFocusPolicy(policy);
    m_pill->setFocusPolicy(policy);
}

void StyleRowView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        Q_EMIT stepWanted(-1);
        break;
    case Qt::Key_Down:
        Q_EMIT stepWanted(1);
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        click();
        break;
    case Qt::Key_Space:
        QAbstractButton::keyPressEvent(event);
        break;
    default:
        event->ignore();
    }
}

void StyleRowView::changeEvent(QEvent *event)
{
    FocusRinged::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        placePill();
}

void StyleRowView::resizeEvent(QResizeEvent *)
{
    placePill();
}

QRect StyleRowView::visual(const QRect &logical) const
{
    return QStyle::visualRect(layoutDirection(), rect(), logical);
}

void StyleRowView::placePill()
{
    const QSize pill = m_pill->sizeHint();
    m_pill->setGeometry(
        visual(QRect(QPoint(width() - pill.width(), (kHeight - pill.height()) / 2), pill)));
}

double StyleRowView::nameRoom() const
{
    return std::max(0,
                    width() - StyleRowPill::commonWidth() - kPillGap - kWeightWidth - kWeightGap);
}

StyleNameLook StyleRowView::look(double devicePixelRatio) const
{
    return {shownName(), nameRoom(), devicePixelRatio, m_foreground};
}

/// Gives the width.
double StyleRowView::paintName(QPainter &painter)
{
    const DeviceSpace device(painter);
    const StyleNameLook wanted = look(device.ratio());
    const StyleNamePicture *picture = m_name->picture(wanted);
    if (!picture)
        return 0;
    if (picture->isOwnFace) {
        const double left = isRightToLeft() ? width() - picture->width : 0;
        device.drawImage(QPointF(left, kBaseline), picture->devicePosition, picture->image);
        return picture->width;
    }
    const QFontMetrics metrics(standInFont());
    const QString shown = metrics.elidedText(wanted.text, Qt::ElideRight, int(wanted.room));
    const int nameWidth = metrics.horizontalAdvance(shown);
    painter.setFont(standInFont());
    painter.setPen(m_foreground);
    painter.drawText(QPoint(isRightToLeft() ? width() - nameWidth : 0, kStandInBaseline), shown);
    return nameWidth;
}

void StyleRowView::paintTogether(QPainter &painter, double nameWidth) const
{
    const int left = int(std::ceil(nameWidth)) + kTogetherGap;
    const int room = int(nameRoom()) - left;
    if (m_state.labelsInSameFile.isEmpty() || room < kLeastTogether)
        return;
    const QFontMetrics metrics(quietFont());
    const QString others = QLocale().createSeparatedList(m_state.labelsInSameFile);
    //: %1 are the styles that are in the same file as this one.
    const QString text = tr("with %1").arg(others.left(kLongestName));
    const QString shown = metrics.elidedText(text, Qt::ElideRight, room);
    const QRect place = visual(QRect(left, 0, metrics.horizontalAdvance(shown), kHeight));
    painter.setFont(quietFont());
    painter.setPen(withAlpha(m_foreground, kQuietAlpha));
    painter.drawText(QPoint(place.left(), kBaseline), shown);
}

/// And, in the pill's place, what the system has switched on.
void StyleRowView::paintWeight(QPainter &painter) const
{
    const int pillWidth = StyleRowPill::commonWidth();
    const int right = width() - pillWidth - kPillGap;
    painter.setFont(
        interfaceFont(InterfaceSize::label, InterfaceWeight::regular, Figures::tabular));
    painter.setPen(withAlpha(m_foreground, kQuietAlpha));
    const Qt::Alignment trailing =
        QStyle::visualAlignment(layoutDirection(), Qt::AlignRight | Qt::AlignVCenter)
        | Qt::AlignAbsolute;
    painter.drawText(visual(QRect(right - kWeightWidth, 0, kWeightWidth, kHeight - 1)),
                     int(trailing), QString::number(m_state.style.weight));
    if (!m_state.activation || m_pill->isVisibleTo(this))
        return;
    painter.setFont(interfaceFont(InterfaceSize::label));
    painter.drawText(visual(QRect(right + kPillGap, 0, pillWidth, kHeight - 1)),
                     //: A style that the system has switched on, which the user cannot change.
                     Qt::AlignCenter, tr("System"));
}

/// On the line below: under the name of what is shown, along all of what has the keyboard.
void StyleRowView::paintMark(QPainter &painter, double nameWidth) const
{
    const int top = kHeight - kMarkHeight;
    if (m_state.isSelected || underMouse()) {
        const int markWidth = std::max(int(std::ceil(nameWidth)), kShortestMark);
        const QColor ink = controlColor(m_foreground, m_background);
        painter.fillRect(visual(QRect(0, top, markWidth, kMarkHeight)),
                         withAlpha(ink, m_state.isSelected ? 1 : kHoverMarkAlpha));
    }
    if (hasFocusRing())
        painter.fillRect(QRect(0, top, width(), kMarkHeight),
                         controlColor(accentColor(), m_background));
}

void StyleRowView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawHairline(painter, rect(), Qt::BottomEdge, hairlineColor(m_foreground, m_background));
    const double nameWidth = paintName(painter);
    paintTogether(painter, nameWidth);
    paintWeight(painter);
    paintMark(painter, nameWidth);
}

} // namespace lorva
