// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/settings/SettingsLabel.h"

#include "ui/style/Palette.h"
#include "ui/style/Style.h"

#include <QEvent>

namespace lorva {

namespace {

constexpr double kSecondaryAlpha = 0.62;

QFont fontOf(SettingsLabel::Kind kind)
{
    switch (kind) {
    case SettingsLabel::Kind::heading:
        return interfaceFont(InterfaceSize::title, InterfaceWeight::semibold);
    case SettingsLabel::Kind::body:
        return interfaceFont(InterfaceSize::body);
    case SettingsLabel::Kind::strong:
        return interfaceFont(InterfaceSize::label, InterfaceWeight::medium);
    case SettingsLabel::Kind::secondary:
        break;
    }
    return interfaceFont(InterfaceSize::label, InterfaceWeight::regular, Figures::tabular);
}

} // namespace

SettingsLabel::SettingsLabel(const QString &text, Kind kind, QWidget *parent)
    : QLabel(text, parent)
    , m_kind(kind)
{
    setFont(fontOf(kind));
    setTextFormat(Qt::PlainText);
    setWordWrap(kind != Kind::body);
    takeColors();
}

void SettingsLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        takeColors();
}

void SettingsLabel::takeColors()
{
    const NeutralColors neutral = neutralColors(isDarkDesktop());
    const QColor ink = m_kind == Kind::secondary
        ? quietColor(neutral.text, neutral.ground, kSecondaryAlpha)
        : neutral.text;
    QPalette own = palette();
    if (own.color(QPalette::WindowText) == ink)
        return;
    own.setColor(QPalette::WindowText, ink);
    setPalette(own);
}

} // namespace lorva
