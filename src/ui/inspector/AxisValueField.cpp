// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/inspector/AxisValueField.h"

#include "ui/inspector/InspectorLook.h"
#include "ui/style/ControlColors.h"

#include <QKeyEvent>
#include <QPainter>

namespace lorva {

namespace {

constexpr int kWidth = 64;
constexpr int kHeight = 22;
constexpr double kRadius = 5;
constexpr int kLongestNumber = 16;
constexpr int kStepsWithShift = 10;

} // namespace

AxisValueField::AxisValueField(const AxisScale &scale, QWidget *parent)
    : QLineEdit(parent)
    , m_scale(scale)
{
    setFrame(false);
    setFont(interfaceFont(InterfaceSize::caption, InterfaceWeight::regular, Figures::tabular));
    setMaxLength(kLongestNumber);
    setAttribute(Qt::WA_Hover);
    setAlignment(Qt::AlignTrailing | Qt::AlignVCenter);
    setTextMargins(spacing::k2, 0, spacing::k2, 0);
    connect(this, &QLineEdit::returnPressed, this, [this] {
        take();
        selectAll();
    });
    takeColors();
}

QSize AxisValueField::sizeHint() const
{
    return {kWidth, kHeight};
}

void AxisValueField::setValue(double value)
{
    m_value = value;
    restore();
}

void AxisValueField::restore()
{
    const QString shown = m_scale.text(m_value, locale());
    if (text() != shown)
        setText(shown);
    setModified(false);
    if (hasFocus())
        selectAll();
}

void AxisValueField::take()
{
    const auto typed = isModified() ? m_scale.parsed(text(), locale()) : std::nullopt;
    if (typed && *typed != m_value) {
        m_value = *typed;
        restore();
        if (onValue)
            onValue(*typed);
    } else {
        restore();
    }
}

void AxisValueField::step(int steps)
{
    const double from = isModified() ? m_scale.parsed(text(), locale()).value_or(m_value) : m_value;
    const double to = m_scale.stepped(from, steps);
    const bool isNew = to != m_value;
    setValue(to);
    if (isNew && onValue)
        onValue(to);
}

/// A number that is being typed keeps Escape from what else it would do here.
bool AxisValueField::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride && isModified()
        && static_cast<QKeyEvent *>(event)->matches(QKeySequence::Cancel)) {
        event->accept();
        return true;
    }
    return QLineEdit::event(event);
}

void AxisValueField::keyPressEvent(QKeyEvent *event)
{
    const int size = event->modifiers().testFlag(Qt::ShiftModifier) ? kStepsWithShift : 1;
    if (event->key() == Qt::Key_Up)
        step(size);
    else if (event->key() == Qt::Key_Down)
        step(-size);
    else if (event->matches(QKeySequence::Cancel) && isModified())
        restore();
    else
        QLineEdit::keyPressEvent(event);
}

void AxisValueField::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    // After the press that brought the focus has put the caret somewhere.
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (hasFocus() && !isModified())
                selectAll();
        },
        Qt::QueuedConnection);
    takeColors();
}

void AxisValueField::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() == Qt::PopupFocusReason || event->reason() == Qt::ActiveWindowFocusReason)
        return;
    take();
    deselect();
    takeColors();
}

void AxisValueField::takeColors()
{
    QPalette own = palette();
    own.setColor(QPalette::Base, Qt::transparent);
    own.setColor(QPalette::Text, hasFocus() ? inspectorInk() : inspectorQuiet());
    own.setColor(QPalette::Highlight, accentColor());
    own.setColor(QPalette::HighlightedText, contrastingNeutral(accentColor()));
    m_takesColors = true;
    setPalette(own);
    m_takesColors = false;
}

void AxisValueField::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && !m_takesColors)
        takeColors();
}

void AxisValueField::paintEvent(QPaintEvent *event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        if (hasFocus())
            drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRadius - 2);
        else if (underMouse())
            drawHover(painter, rect(), kRadius, inspectorInk(), false);
    }
    QLineEdit::paintEvent(event);
}

} // namespace lorva
