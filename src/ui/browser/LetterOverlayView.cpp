// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/browser/LetterOverlayView.h"

#include "ui/style/Palette.h"
#include "ui/style/ReducedMotion.h"
#include "ui/style/Style.h"

#include <QPainter>

namespace lorva {

namespace {

constexpr double kRadius = 24;
constexpr double kGroundAlpha = 0.05;
constexpr double kLetterAlpha = 0.25;
constexpr int kLetterSize = 180;

QFont letterFont()
{
    // A picture rather than a text of the interface: its size is none of the six.
    QFont font = interfaceFont(InterfaceSize::heading, InterfaceWeight::semibold);
    font.setPixelSize(kLetterSize);
    return font;
}

} // namespace

LetterOverlayView::LetterOverlayView(const QString &letter, const QColor &foreground, QWidget *pane)
    : QWidget(pane)
    , m_letter(letter)
    , m_foreground(foreground)
{
    setObjectName(QStringLiteral("LetterOverlayView"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAccessibleName(letter);
    center();
    m_hide.setSingleShot(true);
    connect(&m_hide, &QTimer::timeout, this, &LetterOverlayView::leave);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_opacity = value.toDouble();
        update();
    });
    show();
    raise();
    fadeTo(1, kFadeInMilliseconds);
    m_hide.start(kHideAfterMilliseconds);
}

void LetterOverlayView::center()
{
    const QRect pane = parentWidget()->rect();
    setGeometry((pane.width() - kSide) / 2, (pane.height() - kSide) / 2, kSide, kSide);
}

void LetterOverlayView::fadeTo(double opacity, int milliseconds)
{
    m_fade.stop();
    if (prefersReducedMotion(this)) {
        m_opacity = opacity;
        update();
        return;
    }
    m_fade.setDuration(milliseconds);
    m_fade.setStartValue(m_opacity);
    m_fade.setEndValue(opacity);
    m_fade.start();
}

void LetterOverlayView::leave()
{
    fadeTo(0, kFadeOutMilliseconds);
    if (m_fade.state() == QAbstractAnimation::Running)
        connect(&m_fade, &QVariantAnimation::finished, this, &QObject::deleteLater);
    else
        deleteLater();
}

void LetterOverlayView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(m_opacity);
    painter.setPen(Qt::NoPen);
    painter.setBrush(withAlpha(m_foreground, kGroundAlpha));
    painter.drawRoundedRect(rect(), kRadius, kRadius);
    painter.setFont(letterFont());
    painter.setPen(withAlpha(m_foreground, kLetterAlpha));
    painter.drawText(rect(), Qt::AlignCenter, m_letter);
}

} // namespace lorva
