// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/preview/FontPreviewNSView.h"

#include "ui/preview/PreviewText.h"
#include "ui/style/DeviceSpace.h"
#include "ui/style/PlainToolTip.h"
#include "ui/style/ReducedMotion.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QPointer>

#include <atomic>
#include <limits>
#include <mutex>

namespace lorva {

/// What workers may look at; outlives the view.
struct FontPreviewNSView::Shared
{
    /// The generation whose font is wanted; 0 when nobody waits.
    std::atomic<quint64> wantedGeneration{0};
    std::mutex mutex;
    /// The view's present canvas, so that a worker paints for the size of now, not of the request.
    SpecimenCanvas canvas;

    SpecimenCanvas currentCanvas()
    {
        const std::lock_guard lock(mutex);
        return canvas;
    }
    void setCanvas(const SpecimenCanvas &newCanvas)
    {
        const std::lock_guard lock(mutex);
        canvas = newCanvas;
    }
};

/// A specimen as a worker made it.
struct FontPreviewNSView::Delivery
{
    Specimen specimen;
    SpecimenImage image;
    SpecimenCanvas canvas;
};

namespace {

QAccessibleInterface *makeAccessible(const QString &, QObject *object)
{
    auto *view = qobject_cast<FontPreviewNSView *>(object);
    return view ? new QAccessibleWidget(view, QAccessible::StaticText) : nullptr;
}

void installAccessibleFactory()
{
    [[maybe_unused]] static const bool once = [] {
        QAccessible::installFactory(makeAccessible);
        return true;
    }();
}

bool differOnlyInColor(FontPreviewConfiguration a, const FontPreviewConfiguration &b)
{
    a.textColor = b.textColor;
    return a == b;
}

} // namespace

FontPreviewNSView::FontPreviewNSView(std::shared_ptr<FontResolver> resolver, QWidget *parent)
    : QWidget(parent)
    , m_resolver(std::move(resolver))
    , m_shared(std::make_shared<Shared>())
    , m_fade(this)
{
    installAccessibleFactory();
    setFocusPolicy(Qt::NoFocus);
    m_shared->setCanvas(canvas());
    m_fade.setDuration(kFadeInMilliseconds);
    m_fade.setEasingCurve(QEasingCurve::OutCubic);
    m_fade.setStartValue(0.0);
    m_fade.setEndValue(1.0);
    connect(&m_fade, &QVariantAnimation::valueChanged, this, [this](const QVariant &value) {
        m_textOpacity = value.toDouble();
        update();
    });
}

FontPreviewNSView::~FontPreviewNSView()
{
    m_shared->wantedGeneration = 0;
}

SpecimenCanvas FontPreviewNSView::canvas() const
{
    return {size(), devicePixelRatioF()};
}

bool FontPreviewNSView::isWaiting() const
{
    return m_shared->wantedGeneration != 0;
}

void FontPreviewNSView::beginGeneration()
{
    if (m_applyGeneration == std::numeric_limits<quint64>::max())
        qFatal("A specimen was configured more often than its counter can count");
    ++m_applyGeneration;
    m_shared->wantedGeneration = m_applyGeneration;
}

void FontPreviewNSView::apply(const FontPreviewConfiguration &configuration)
{
    beginGeneration();
    m_configuration = configuration;
    const auto applied = std::make_shared<bool>(false);
    const auto late = std::make_shared<bool>(false);

    const std::optional<Font> cached = m_resolver->cachedFont(
        configuration.familyName, configuration.style, configuration.pointSize);
    if (cached) {
        *applied = true;
        showFont(*cached, *late);
    } else if (configuration.prefersAsyncResolution) {
        enqueue(m_applyGeneration, applied, late);
    } else {
        *applied = true;
        showFont(m_resolver->resolve(configuration.familyName, configuration.style,
                                     configuration.pointSize),
                 *late);
    }

    *late = true;
    if (!*applied)
        showNothing();
}

void FontPreviewNSView::enqueue(quint64 generation, const std::shared_ptr<bool> &applied,
                                const std::shared_ptr<bool> &late)
{
    // The screen, and with it the ratio, may have changed without a change of size.
    m_shared->setCanvas(canvas());
    // Written by the worker before the completion is sent to the main thread, which reads it.
    const auto delivery = std::make_shared<Delivery>();
    PendingResolve request;
    request.familyName = m_configuration.familyName;
    request.style = m_configuration.style;
    request.pointSize = m_configuration.pointSize;
    request.isWanted = [shared = m_shared, generation] {
        return shared->wantedGeneration == generation;
    };
    request.prepare = [shared = m_shared, delivery,
                       configuration = m_configuration](const Font &font) {
        delivery->canvas = shared->currentCanvas();
        delivery->specimen = layOutSpecimen(configuration, font, delivery->canvas);
        delivery->image = paintSpecimen(delivery->specimen, configuration, delivery->canvas);
        return delivery->image.image;
    };
    request.completion = [view = QPointer(this), generation, applied, late,
                          delivery](const ResolvedFace &face) {
        if (!view || view->m_applyGeneration != generation)
            return;
        *applied = true;
        view->showFont(face.font, *late);
        view->accept(*delivery);
    };
    m_resolver->resolveAsync(std::move(request));
}

void FontPreviewNSView::showFont(const Font &font, bool animated)
{
    m_shared->wantedGeneration = 0;
    if (font.isNull()) {
        showNothing();
        return;
    }
    m_specimenIsCurrent =
        m_specimenIsCurrent && m_currentFont == font && differOnlyInColor(m_shown, m_configuration);
    m_imageIsCurrent =
        m_imageIsCurrent && m_specimenIsCurrent && m_shown.textColor == m_configuration.textColor;
    m_currentFont = font;
    m_shown = m_configuration;
    m_shownText = specimenText(m_shown.text, font, m_shown.primaryScript);
    describe();
    m_fade.stop();
    m_textOpacity = 1.0;
    if (animated)
        startFade();
    update();
}

/// Takes the worker's pixels, unless the view has changed since they were made.
void FontPreviewNSView::accept(const Delivery &delivery)
{
    if (!m_currentFont || delivery.canvas != canvas())
        return;
    m_specimen = delivery.specimen;
    m_image = delivery.image;
    m_specimenCanvas = delivery.canvas;
    m_specimenIsCurrent = true;
    m_imageIsCurrent = true;
}

void FontPreviewNSView::showNothing()
{
    m_fade.stop();
    m_textOpacity = 1.0;
    m_currentFont.reset();
    m_shownText.clear();
    m_specimen = {};
    m_image = {};
    m_specimenIsCurrent = false;
    m_imageIsCurrent = false;
    describe();
    update();
}

void FontPreviewNSView::startFade()
{
    if (prefersReducedMotion(this))
        return;
    m_textOpacity = 0.0;
    m_fade.start();
}

void FontPreviewNSView::describe()
{
    const bool isStandIn = m_currentFont && m_currentFont->isStandIn();
    const QString notice = isStandIn
        ? tr("“%1” could not be loaded. The system font is shown instead.")
              .arg(m_configuration.familyName)
        : QString();
    setAccessibleName(m_shownText);
    setAccessibleDescription(notice);
    setToolTip(plainToolTip(notice));
}

void FontPreviewNSView::ensureSpecimen(const SpecimenCanvas &canvas)
{
    if (m_specimenIsCurrent && m_specimenCanvas == canvas)
        return;
    m_specimen = layOutSpecimen(m_shown, *m_currentFont, canvas);
    m_specimenCanvas = canvas;
    m_specimenIsCurrent = true;
    m_imageIsCurrent = false;
}

void FontPreviewNSView::ensureImage(const SpecimenCanvas &canvas)
{
    ensureSpecimen(canvas);
    if (m_imageIsCurrent)
        return;
    m_image = paintSpecimen(m_specimen, m_shown, canvas);
    m_imageIsCurrent = true;
}

void FontPreviewNSView::paintEvent(QPaintEvent *)
{
    if (!m_currentFont)
        return;
    QPainter painter(this);
    const DeviceSpace device(painter);
    ensureImage({size(), device.ratio()});
    painter.setOpacity(m_textOpacity);
    device.drawImage(QPointF(0, 0), m_image.devicePosition, m_image.image);
}

void FontPreviewNSView::resizeEvent(QResizeEvent *)
{
    m_shared->setCanvas(canvas());
}

} // namespace lorva
