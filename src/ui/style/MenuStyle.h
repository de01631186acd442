// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

class QStyleOptionMenuItem;

namespace lorva {

/// Draws menus in the look of the house; everything else is the desktop's style. Thread: main.
class MenuStyle final : public QProxyStyle
{
    Q_OBJECT
public:
    /// Lives as long as the application.
    static MenuStyle *shared();

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override;
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returnData) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget) const override;

private:
    void drawItem(const QStyleOptionMenuItem &item, QPainter &painter, const QWidget *widget) const;
    void drawText(const QStyleOptionMenuItem &item, QPainter &painter, const QRect &row,
                  const QWidget *widget) const;
};

} // namespace lorva
