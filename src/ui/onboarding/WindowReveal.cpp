// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT

#include "ui/onboarding/WindowReveal.h"

#include "ui/onboarding/Spring.h"
#include "ui/style/ReducedMotion.h"

#include <QGraphicsEffect>
#include <QGuiApplication>
#include <QPainter>
#include <QPointer>
#include <QVariantAnimation>
#include <QWidget>

#include <functional>

namespace lorva {

namespace {

constexpr int kFadeMilliseconds = 700;
constexpr double kFirstScale = 0.94;

/// Shows the widget smaller or larger about its centre; it takes input where it really is.
class ScaleEffect final : public QGraphicsEffect
{
public:
    using QGraphicsEffect::QGraphicsEffect;

    void setScale(double scale)
    {
        m_scale = scale;
        update();
    }

protected:
    void draw(QPainter *painter) override
    {
        QPoint offset;
        const QPixmap pixmap = sourcePixmap(Qt::LogicalCoordinates, &offset, NoPad);
        const QPointF centre = sourceBoundingRect().center();
        painter->setRenderHint(QPainter::SmoothPixmapTransform);
        painter->translate(centre);
        painter->scale(m_scale, m_scale);
        painter->translate(-centre);
        painter->drawPixmap(offset, pixmap);
    }

private:
    double m_scale = 1.0;
};

QEasingCurve easeOut()
{
    QEasingCurve curve(QEasingCurve::BezierSpline);
    curve.addCubicBezierSegment({0.0, 0.0}, {0.58, 1.0}, {1.0, 1.0});
    return curve;
}

QVariantAnimation *animate(QWidget &window, int milliseconds, std::function<void(double)> step)
{
    auto *animation = new QVariantAnimation(&window);
    animation->setObjectName(QStringLiteral("mainWindowReveal"));
    animation->setDuration(milliseconds);
    animation->setStartValue(0.0);
    animation->setEndValue(1.0);
    QObject::connect(animation, &QVariantAnimation::valueChanged, &window,
                     [step = std::move(step)](const QVariant &value) { step(value.toDouble()); });
    return animation;
}

void fadeIn(QWidget &window)
{
    QVariantAnimation *fade =
        animate(window, kFadeMilliseconds, [&window](double v) { window.setWindowOpacity(v); });
    fade->setEasingCurve(easeOut());
    fade->start(QAbstractAnimation::DeleteWhenStopped);
}

void springUp(QWidget &window, QWidget &content)
{
    const Spring spring;
    const QPointer<ScaleEffect> effect(new ScaleEffect);
    effect->setScale(kFirstScale);
    // The content owns it, and deletes it when it is taken off.
    content.setGraphicsEffect(effect);
    const double seconds = spring.settlingSeconds();
    QVariantAnimation *grow =
        animate(window, int(seconds * 1000), [effect, spring, seconds](double time) {
            if (effect)
                effect->setScale(kFirstScale
                                 + (1.0 - kFirstScale) * spring.progress(time * seconds));
        });
    QObject::connect(grow, &QVariantAnimation::finished, &content,
                     [&content] { content.setGraphicsEffect(nullptr); });
    grow->start(QAbstractAnimation::DeleteWhenStopped);
}

} // namespace

bool canFadeWindows()
{
    // It knows no transparent windows, and the toolkit would say so at every start.
    return !QGuiApplication::platformName().startsWith(QLatin1String("wayland"));
}

void concealWindow(QWidget &window)
{
    if (canFadeWindows())
        window.setWindowOpacity(0.0);
}

void showConcealedWindow(QWidget &window)
{
    if (canFadeWindows())
        window.setWindowOpacity(1.0);
}

void revealWindow(QWidget &window, QWidget &content)
{
    if (prefersReducedMotion(&window))
        return showConcealedWindow(window);
    if (canFadeWindows())
        fadeIn(window);
    springUp(window, content);
}

} // namespace lorva
