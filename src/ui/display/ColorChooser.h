// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "ui/display/ColorSurfaces.h"

#include <optional>

class QHBoxLayout;

namespace lorva {

class LineField;

/// "#RRGGBB" of what people type or paste: "#abc", "abcdef", " AB CD EF "; nothing for anything
/// else.
std::optional<QString> typedColorHex(const QString &text);

/// Chooses one colour: a field, a bar of hues, and its digits. Thread: main.
class ColorChooser final : public QWidget
{
    Q_OBJECT
public:
    explicit ColorChooser(QWidget *parent);

    QColor color() const { return m_color; }
    void setColor(const QColor &color);
    /// Beside the digits, for what a panel has to say.
    QHBoxLayout *digitsRow() const { return m_digitsRow; }

Q_SIGNALS:
    /// The user chose it.
    void colorChosen(const QColor &color);
    void held(bool isHeld);

private:
    void chooseHsv(const Hsv &hsv);
    void takeDigits(const QString &text, bool isDone);
    void showColor();

    QColor m_color = Qt::black;
    Hsv m_hsv;
    SaturationField *m_field;
    HueBar *m_hue;
    LineField *m_digits;
    QHBoxLayout *m_digitsRow;
};

} // namespace lorva
