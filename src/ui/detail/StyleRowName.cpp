// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/detail/StyleRowName.h"

#include "text/GlyphPainter.h"
#include "ui/preview/PreviewText.h"

#include <QPointer>

#include <atomic>
#include <cmath>

namespace lorva {

/// What workers look at; outlives the row.
struct StyleRowName::Wanted
{
    /// 0 when nobody waits.
    std::atomic<quint64> generation{0};
};

namespace {

/// What of a name is drawn above and below its baseline, and before it: fonts may ask for anything.
constexpr double kHighestInk = 48;
constexpr double kWidestOverhang = 12;
/// Antialiasing reaches this far beyond the outlines.
constexpr int kInkOutsetDevicePx = 2;

/// The device pixels that ink touches; it is given from the baseline's left end, in points.
QRect inkDeviceRect(const QRectF &ink, const StyleNameLook &look)
{
    const QRectF drawn(-kWidestOverhang, -kHighestInk, look.room + 2 * kWidestOverhang,
                       2 * kHighestInk);
    const QRectF cut = ink.intersected(drawn);
    if (cut.isEmpty())
        return {};
    const QRectF devicePx(cut.topLeft() * look.devicePixelRatio,
                          cut.size() * look.devicePixelRatio);
    constexpr int outset = kInkOutsetDevicePx;
    return devicePx.toAlignedRect().adjusted(-outset, -outset, outset, outset);
}

} // namespace

StyleNamePicture drawStyleName(const Font &font, const StyleNameLook &look)
{
    StyleNamePicture picture;
    if (font.isNull() || font.isStandIn() || look.room <= 0 || coverage(font, look.text) < 1)
        return picture;
    picture.isOwnFace = true;
    TextLayoutOptions options;
    options.width = look.room;
    options.alignment = TextAlignment::left;
    options.lineBreakMode = LineBreakMode::truncateTail;
    options.maximumLines = 1;
    const TextLayout layout(lineExcerpt(look.text, look.room, font.pointSize()), font, options);
    if (layout.lines().empty())
        return picture;
    const QPointF baseline = layout.lines().front().origin;
    picture.width = std::min(layout.lines().front().width, look.room);
    const QRect devicePx = inkDeviceRect(layout.inkBounds().translated(-baseline), look);
    QImage image(devicePx.size(), QImage::Format_ARGB32_Premultiplied);
    if (devicePx.isEmpty() || image.isNull())
        return picture;
    image.fill(Qt::transparent);
    image.setDevicePixelRatio(look.devicePixelRatio);
    const QPointF corner = QPointF(devicePx.topLeft()) / look.devicePixelRatio;
    GlyphPainter::paint(image, layout, -corner - baseline, look.color);
    picture.image = image;
    picture.devicePosition = devicePx.topLeft();
    return picture;
}

StyleRowName::StyleRowName(std::shared_ptr<FontResolver> resolver, QObject *parent)
    : QObject(parent)
    , m_resolver(std::move(resolver))
    , m_wanted(std::make_shared<Wanted>())
{
}

StyleRowName::~StyleRowName()
{
    m_wanted->generation = 0;
}

bool StyleRowName::isWaiting() const
{
    return m_wanted->generation != 0;
}

void StyleRowName::stopWaiting()
{
    m_wanted->generation = 0;
    ++m_generation;
}

void StyleRowName::setStyle(const QString &familyName, const FontStyleRecord &style,
                            bool prefersWorker, const StyleNameLook &look)
{
    stopWaiting();
    m_font.reset();
    m_look.reset();
    if (const auto cached = m_resolver->cachedFont(familyName, style, kStyleNamePointSize))
        m_font = cached;
    else if (prefersWorker)
        request(familyName, style, look);
    else
        m_font = m_resolver->resolve(familyName, style, kStyleNamePointSize);
}

void StyleRowName::request(const QString &familyName, const FontStyleRecord &style,
                           const StyleNameLook &look)
{
    m_wanted->generation = m_generation;
    // Written by the worker before the completion is sent to the main thread, which reads it.
    const auto picture = std::make_shared<StyleNamePicture>();
    PendingResolve request;
    request.familyName = familyName;
    request.style = style;
    request.pointSize = kStyleNamePointSize;
    request.isWanted = [wanted = m_wanted, generation = m_generation] {
        return wanted->generation == generation;
    };
    request.prepare = [picture, look](const Font &font) {
        *picture = drawStyleName(font, look);
        return picture->image;
    };
    request.completion = [self = QPointer(this), picture, look,
                          generation = m_generation](const ResolvedFace &face) {
        if (!self || self->m_generation != generation)
            return;
        self->m_wanted->generation = 0;
        self->m_font = face.font;
        self->m_picture = *picture;
        self->m_look = look;
        Q_EMIT self->changed();
    };
    m_resolver->resolveAsync(std::move(request));
}

const StyleNamePicture *StyleRowName::picture(const StyleNameLook &look)
{
    if (!m_font)
        return nullptr;
    if (m_look != look) {
        m_picture = drawStyleName(*m_font, look);
        m_look = look;
    }
    return &m_picture;
}

} // namespace lorva
