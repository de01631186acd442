// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/CharacterTrayView.h"

#include "text/GlyphPainter.h"
#include "ui/browser/PaneButton.h"
#include "ui/detail/CharacterKeys.h"
#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPainter>

namespace lorva {

namespace {

constexpr double kPoints = 24;
constexpr double kRadius = 10;
/// Nobody collects more by hand, and setting a line takes time.
constexpr qsizetype kMostUnits = 2000;

} // namespace

CharacterTrayView::CharacterTrayView(QWidget *parent)
    : FocusRinged(parent)
    , m_copy(new PaneButton(tr("Copy"), this))
    , m_clear(new PaneButton(tr("Clear"), this))
{
    setObjectName(QStringLiteral("CharacterTray"));
    setFocusPolicy(Qt::StrongFocus);
    m_copy->setObjectName(QStringLiteral("TrayCopy"));
    m_clear->setObjectName(QStringLiteral("TrayClear"));
    connect(m_copy, &QAbstractButton::clicked, this, [this] { Q_EMIT copyWanted(m_text); });
    connect(m_clear, &QAbstractButton::clicked, this, &CharacterTrayView::clear);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(spacing::k16, 0, spacing::k12, 0);
    row->setSpacing(spacing::k8);
    row->addStretch();
    row->addWidget(m_copy);
    row->addWidget(m_clear);
    setFixedHeight(kHeight);
    hide();
}

void CharacterTrayView::add(const QString &character)
{
    if (m_text.size() + character.size() <= kMostUnits)
        setText(QString(m_text + character));
}

void CharacterTrayView::removeLast()
{
    const bool isPair = m_text.size() > 1 && m_text.back().isLowSurrogate();
    setText(m_text.chopped(std::min<qsizetype>(m_text.size(), isPair ? 2 : 1)));
}

void CharacterTrayView::clear()
{
    setText({});
}

void CharacterTrayView::setText(const QString &text)
{
    if (text == m_text)
        return;
    m_text = text;
    //: Characters that were collected, to be copied together.
    setAccessibleName(tr("Tray: %1").arg(m_text));
    setLine();
    // Who hears of it may give the keyboard to someone before this hides.
    Q_EMIT textChanged();
    setVisible(!m_text.isEmpty());
}

void CharacterTrayView::setPreviewFace(const Font &face)
{
    m_face = face.withPointSize(kPoints);
    setLine();
}

void CharacterTrayView::setColors(const QColor &foreground, const QColor &ground)
{
    m_foreground = foreground;
    m_ground = ground;
    m_copy->setColors(foreground, ground);
    m_clear->setColors(foreground, ground);
    update();
}

void CharacterTrayView::setLine()
{
    m_line = m_text.isEmpty() ? TextLayout() : TextLayout(m_text, m_face);
    update();
}

QRect CharacterTrayView::textRect() const
{
    const int end = std::min(m_copy->x(), m_clear->x()) - spacing::k16;
    const int start = std::max(m_copy->geometry().right(), m_clear->geometry().right()) + 1;
    return isRightToLeft()
        ? QRect(start + spacing::k16, 0, width() - start - 2 * spacing::k16, height())
        : QRect(spacing::k16, 0, end - spacing::k16, height());
}

void CharacterTrayView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double hair = 1.0 / devicePixelRatioF();
    const QRectF box = QRectF(rect()).adjusted(hair / 2, hair / 2, -hair / 2, -hair / 2);
    painter.setBrush(m_ground);
    painter.setPen(QPen(blended(withAlpha(m_foreground, 0.2), m_ground), hair));
    painter.drawRoundedRect(box, kRadius, kRadius);
    if (hasFocusRing())
        drawFocusRing(painter, QRectF(rect()).adjusted(2, 2, -2, -2), kRadius - 2);
    const QRect room = textRect();
    painter.setClipRect(room);
    // What was added last is in sight.
    const double over = std::max(0.0, m_line.size().width() - room.width());
    const double x =
        isRightToLeft() ? room.right() + 1 - m_line.size().width() + over : room.left() - over;
    const double y = (height() - m_line.size().height()) / 2;
    GlyphPainter::paint(painter, m_line, {x, y}, m_foreground);
}

bool CharacterTrayView::event(QEvent *event)
{
    return claimCopyKey(*event) || FocusRinged::event(event);
}

void CharacterTrayView::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Backspace)
        removeLast();
    else if (event->matches(QKeySequence::Copy))
        Q_EMIT copyWanted(m_text);
    else
        FocusRinged::keyPressEvent(event);
}

void CharacterTrayView::focusOutEvent(QFocusEvent *event)
{
    FocusRinged::focusOutEvent(event);
    update();
}

void CharacterTrayView::resizeEvent(QResizeEvent *)
{
    update();
}

} // namespace lorva
