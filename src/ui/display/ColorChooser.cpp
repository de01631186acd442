// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/ColorChooser.h"

#include "ui/style/LineField.h"
#include "ui/style/Style.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace lorva {

namespace {

constexpr int kDigitsWidth = 96;

QString hexOf(const QColor &color)
{
    return color.name(QColor::HexRgb).toUpper();
}

} // namespace

std::optional<QString> typedColorHex(const QString &text)
{
    QString digits;
    for (const QChar c : text) {
        if (!c.isSpace())
            digits.append(c.toUpper());
    }
    if (digits.startsWith(u'#'))
        digits.remove(0, 1);
    const auto isDigit = [](QChar c) {
        return (c >= u'0' && c <= u'9') || (c >= u'A' && c <= u'F');
    };
    if (!std::all_of(digits.begin(), digits.end(), isDigit))
        return std::nullopt;
    if (digits.size() == 3) {
        for (const qsizetype i : {4, 2, 0})
            digits.insert(i / 2, digits[i / 2]);
    }
    if (digits.size() != 6)
        return std::nullopt;
    return QString(u'#' + digits);
}

ColorChooser::ColorChooser(QWidget *parent)
    : QWidget(parent)
    , m_field(new SaturationField(this))
    , m_hue(new HueBar(this))
    , m_digits(new LineField(this))
    , m_digitsRow(new QHBoxLayout)
{
    m_digits->setObjectName(QStringLiteral("colorDigits"));
    m_digits->setAccessibleName(tr("Color Code"));
    m_digits->setFixedWidth(kDigitsWidth);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(spacing::k8);
    column->addWidget(m_field);
    column->addWidget(m_hue);
    m_digitsRow->setSpacing(spacing::k12);
    m_digitsRow->addWidget(m_digits);
    m_digitsRow->addStretch();
    column->addLayout(m_digitsRow);
    for (ColorSurface *surface :
         {static_cast<ColorSurface *>(m_field), static_cast<ColorSurface *>(m_hue)}) {
        connect(surface, &ColorSurface::chosen, this, &ColorChooser::chooseHsv);
        connect(surface, &ColorSurface::held, this, &ColorChooser::held);
    }
    connect(m_digits, &LineField::textSettled, this,
            [this](const QString &text) { takeDigits(text, false); });
    connect(m_digits, &LineField::editingFinished, this,
            [this] { takeDigits(m_digits->text(), true); });
    showColor();
    m_digits->setText(hexOf(m_color));
}

void ColorChooser::setColor(const QColor &color)
{
    if (color.rgb() == m_color.rgb() || !color.isValid())
        return;
    m_color = color;
    m_hsv = Hsv::from(color, m_hsv);
    showColor();
    // What is being typed stays as it is typed.
    if (typedColorHex(m_digits->text()) != hexOf(color))
        m_digits->setText(hexOf(color));
}

void ColorChooser::showColor()
{
    m_field->setHsv(m_hsv);
    m_hue->setHsv(m_hsv);
}

void ColorChooser::chooseHsv(const Hsv &hsv)
{
    m_hsv = hsv;
    m_color = QColor(hsv.color().rgb());
    showColor();
    m_digits->setText(hexOf(m_color));
    Q_EMIT colorChosen(m_color);
}

/// Three digits may be the beginning of six, so they count only once the user is done.
void ColorChooser::takeDigits(const QString &text, bool isDone)
{
    const std::optional<QString> hex = typedColorHex(text);
    const bool isWhole = hex && (isDone || text.trimmed().size() >= 6);
    if (isWhole && *hex != hexOf(m_color)) {
        m_color = QColor(*hex);
        m_hsv = Hsv::from(m_color, m_hsv);
        showColor();
        Q_EMIT colorChosen(m_color);
    }
    if (isDone)
        m_digits->setText(hexOf(m_color));
}

} // namespace lorva
