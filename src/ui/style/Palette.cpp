// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/style/Palette.h"

#include <QApplication>
#include <QPalette>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

constexpr double kLineOnWhite = 0.085;
constexpr double kLineOnBlack = 0.13;
constexpr double kLineOnColor = 0.20;
/// What accessibility guidelines ask of texts (WCAG 2, 1.4.3); symbols as thin as ours need it,
/// too.
constexpr double kControlContrast = 4.5;
/// Lines need less: they only part what stands apart anyhow.
constexpr double kLineContrast = 3.0;
constexpr double kAlphaStep = 0.02;
/// Grounds this near to white or black count as such; an off-white paper is still paper.
constexpr double kNearWhite = 0.92;
constexpr double kNearBlack = 0.12;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
        + 0.0722 * linear(color.blueF());
}

double smallestChannel(const QColor &color)
{
    return std::min({color.redF(), color.greenF(), color.blueF()});
}

double largestChannel(const QColor &color)
{
    return std::max({color.redF(), color.greenF(), color.blueF()});
}

QColor seenColor(const QColor &foreground, const QColor &background, double contrast)
{
    const QColor ground = blended(background, Qt::white);
    const QColor seen = blended(foreground, ground);
    return contrastRatio(seen, ground) >= contrast ? foreground : contrastingNeutral(ground);
}

std::optional<bool> &darkOverride()
{
    static std::optional<bool> isDark;
    return isDark;
}

} // namespace

NeutralColors neutralColors(bool isDark)
{
    if (isDark)
        return {QColor(0x16, 0x16, 0x17), QColor(0x1b, 0x1b, 0x1c), QColor(0xed, 0xed, 0xee)};
    return {QColor(0xff, 0xff, 0xff), QColor(0xf6, 0xf5, 0xf3), QColor(0x1d, 0x1d, 0x1f)};
}

void setDarkDesktopOverride(std::optional<bool> isDark)
{
    darkOverride() = isDark;
    for (QWidget *widget : QApplication::allWidgets()) {
        QEvent change(QEvent::PaletteChange);
        QCoreApplication::sendEvent(widget, &change);
        widget->update();
    }
}

bool isDarkDesktop()
{
    if (darkOverride())
        return *darkOverride();
    return QGuiApplication::palette().color(QPalette::Window).lightnessF() < 0.5;
}

QColor accentColor()
{
    return QGuiApplication::palette().color(QPalette::Highlight);
}

QColor withAlpha(QColor color, double alpha)
{
    color.setAlphaF(float(std::clamp(color.alphaF() * alpha, 0.0, 1.0)));
    return color;
}

QColor blended(const QColor &over, const QColor &ground)
{
    const double share = over.alphaF();
    const auto mix = [share](double top, double bottom) {
        return float(top * share + bottom * (1.0 - share));
    };
    return QColor::fromRgbF(mix(over.redF(), ground.redF()), mix(over.greenF(), ground.greenF()),
                            mix(over.blueF(), ground.blueF()));
}

double contrastRatio(const QColor &a, const QColor &b)
{
    const double la = luminance(a);
    const double lb = luminance(b);
    return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

QColor contrastingNeutral(const QColor &background)
{
    return contrastRatio(Qt::black, background) >= contrastRatio(Qt::white, background) ? Qt::black
                                                                                        : Qt::white;
}

QColor controlColor(const QColor &foreground, const QColor &background)
{
    return seenColor(foreground, background, kControlContrast);
}

QColor quietColor(const QColor &ink, const QColor &ground, double alpha)
{
    while (alpha < 1.0
           && contrastRatio(blended(withAlpha(ink, alpha), ground), ground) < kControlContrast)
        alpha += kAlphaStep;
    return withAlpha(ink, std::min(alpha, 1.0));
}

QColor hairlineColor(const QColor &foreground, const QColor &background)
{
    if (background.alpha() < 255)
        return withAlpha(foreground, kLineOnColor);
    if (smallestChannel(background) >= kNearWhite)
        return withAlpha(Qt::black, kLineOnWhite);
    if (largestChannel(background) <= kNearBlack)
        return withAlpha(Qt::white, kLineOnBlack);
    return withAlpha(seenColor(foreground, background, kLineContrast), kLineOnColor);
}

} // namespace lorva
