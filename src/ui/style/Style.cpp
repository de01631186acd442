// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/Style.h"

#include <QGuiApplication>

namespace lorva {

QFont interfaceFont(InterfaceSize size, InterfaceWeight weight, Figures figures)
{
    QFont font = QGuiApplication::font();
    font.setPixelSize(int(size));
    font.setWeight(QFont::Weight(int(weight)));
#if QT_VERSION >= QT_VERSION_CHECK(6, 7, 0)
    if (figures == Figures::tabular)
        font.setFeature("tnum", 1);
#else
    Q_UNUSED(figures)
#endif
    return font;
}

} // namespace lorva
