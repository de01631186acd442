// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "model/SourceDisplay.h"

#include <QWidget>

#include <array>

namespace lorva {

class ColorChip;

/// The four chips of the colour modes: white, black, the custom colours, an image. A radio group
/// for the keyboard.
///
/// What is chosen is what setValues() said last; the user only wishes. Thread: main.
class ColorModeChips final : public QWidget
{
    Q_OBJECT
public:
    explicit ColorModeChips(QWidget *parent = nullptr);

    /// `userImage`: the user's image that is shown, small; null: none.
    void setValues(const DisplayValues &values, const QImage &userImage = {});
    void setColors(const QColor &foreground, const QColor &background);
    QWidget *chip(ColorMode mode) const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

Q_SIGNALS:
    void modeChosen(ColorMode mode);
    /// The controls of the custom colours or of the image are wanted.
    void panelWanted(ColorMode mode);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void choose(ColorMode mode);
    void wantPanel(ColorMode mode);
    void showChosen();
    void showImage();

    std::array<ColorChip *, std::size(kAllColorModes)> m_chips{};
    DisplayValues m_values;
    QImage m_userImage;
    /// The picture on the last chip; null until it is painted.
    QString m_shownImageID;
};

} // namespace lorva
