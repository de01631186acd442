// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/BackgroundImages.h"

#include "ui/display/SmoothField.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPainterPath>

#include <array>
#include <cmath>
#include <numbers>

namespace lorva {

namespace {

/// Larger than any screen; a size beyond is a mistake.
constexpr int kMostSidePx = 16384;

std::vector<Oklab> colors(std::initializer_list<QRgb> values)
{
    std::vector<Oklab> stops;
    for (const QRgb value : values)
        stops.push_back(Oklab::from(value));
    return stops;
}

struct GlowAt
{
    float u;
    float v;
    float radius;
    QRgb color;
};

ColorAt mesh(std::initializer_list<GlowAt> values)
{
    std::vector<Glow> glows;
    for (const GlowAt &value : values)
        glows.push_back({value.u, value.v, value.radius, Oklab::from(value.color)});
    return [glows](float u, float v, float) { return meshColor(glows, u, v); };
}

/// A length that looks alike in a thumbnail and on a large screen.
int unitPx(QSize sizePx, double share)
{
    const double side = std::sqrt(double(sizePx.width()) * sizePx.height());
    return std::max(1, int(std::lround(side * share)));
}

QImage drawDusk(QSize sizePx)
{
    const auto sky = colors({0x14163a, 0x2a2458, 0x54336f, 0x87456f, 0xb65f63, 0xcf8059});
    const Oklab glow = Oklab::from(0xe8a468);
    return drawSmoothField(sizePx, FieldDetail::soft, 0, [&](float u, float v, float aspect) {
        const float du = (u - 0.68F) * std::min(aspect, 2.0F) / 2;
        const float dv = v - 1.04F;
        const float nearSun = std::exp(-(du * du * 5 + dv * dv * 7));
        const float height = v * v * (1.9F - 0.9F * v);
        return mixed(rampColor(sky, height), glow, nearSun * 0.55F);
    });
}

QImage drawDawn(QSize sizePx)
{
    return drawSmoothField(sizePx, FieldDetail::soft, 0,
                           mesh({{0.05F, 0.0F, 0.42F, 0xf7d9d0},
                                 {0.55F, 0.05F, 0.36F, 0xf3e6ee},
                                 {1.0F, 0.1F, 0.42F, 0xd6e2f7},
                                 {0.15F, 0.95F, 0.40F, 0xfdeed6},
                                 {0.62F, 0.85F, 0.38F, 0xf6d8dc},
                                 {1.0F, 1.0F, 0.36F, 0xe0d9f2}}));
}

QImage drawPaper(QSize sizePx)
{
    const Oklab light = Oklab::from(0xf8f3e8);
    const Oklab dark = Oklab::from(0xefe7d6);
    return drawSmoothField(sizePx, FieldDetail::fine, 3.2F, [&](float u, float v, float aspect) {
        const float du = u - 0.5F;
        const float dv = v - 0.5F;
        const float cloud = cloudNoise(u * 3 * aspect, v * 3, 2, 21);
        const float fibre = cloudNoise(u * 18 * aspect, v * 70, 1, 5) / 2;
        const float edge = (du * du + dv * dv) * 0.9F;
        return mixed(light, dark,
                     std::clamp(0.3F + 0.35F * cloud + 0.28F * fibre + edge, 0.F, 1.F));
    });
}

QImage drawInk(QSize sizePx)
{
    const auto wash = colors({0x14171c, 0x1c2128, 0x2b333c, 0x46525c, 0x5f6b74});
    return drawSmoothField(sizePx, FieldDetail::fine, 1.6F, [&](float u, float v, float aspect) {
        const float x = u * 1.1F * aspect;
        const float y = v * 1.1F;
        const float warpX = cloudNoise(x + 3.1F, y * 1.2F, 2, 31);
        const float warpY = cloudNoise(x - 7.7F, y + 1.9F, 2, 47);
        const float flow = cloudNoise(x * 0.8F + warpX * 1.6F, y * 1.3F + warpY * 1.3F, 2, 63);
        return rampColor(wash, 0.36F + flow * 0.8F);
    });
}

QImage drawEmber(QSize sizePx)
{
    return drawSmoothField(sizePx, FieldDetail::soft, 0,
                           mesh({{0.0F, 0.0F, 0.36F, 0x2b0f1f},
                                 {0.5F, 0.05F, 0.32F, 0x6d1629},
                                 {1.0F, 0.0F, 0.34F, 0x32112c},
                                 {0.25F, 0.75F, 0.34F, 0xbf3a1d},
                                 {0.72F, 0.6F, 0.28F, 0x94212f},
                                 {1.0F, 1.0F, 0.34F, 0xc8551c},
                                 {0.0F, 1.0F, 0.28F, 0x7a1a24}}));
}

QImage drawLagoon(QSize sizePx)
{
    return drawSmoothField(sizePx, FieldDetail::soft, 0,
                           mesh({{0.0F, 0.0F, 0.38F, 0x0b2f4f},
                                 {0.55F, 0.0F, 0.34F, 0x0c4a6a},
                                 {1.0F, 0.1F, 0.36F, 0x123a73},
                                 {0.2F, 0.7F, 0.34F, 0x0f6e70},
                                 {0.75F, 0.65F, 0.32F, 0x12807c},
                                 {0.0F, 1.0F, 0.30F, 0x0a4552},
                                 {1.0F, 1.0F, 0.32F, 0x0d4f66}}));
}

QImage drawFern(QSize sizePx)
{
    return drawSmoothField(sizePx, FieldDetail::soft, 0,
                           mesh({{0.0F, 0.1F, 0.40F, 0xdfe8d3},
                                 {0.6F, 0.0F, 0.36F, 0xeef0dd},
                                 {1.0F, 0.3F, 0.36F, 0xc9dcc6},
                                 {0.2F, 0.9F, 0.36F, 0xbfd6c0},
                                 {0.8F, 1.0F, 0.38F, 0xdbe6cf}}));
}

QImage drawAurora(QSize sizePx)
{
    const auto night = colors({0x0b0d1e, 0x11142e, 0x171a3a});
    const Oklab green = Oklab::from(0x2fbf8f);
    const Oklab violet = Oklab::from(0x7a4fd0);
    return drawSmoothField(sizePx, FieldDetail::fine, 0, [&](float u, float v, float aspect) {
        const float x = u * std::min(aspect, 2.4F);
        const float sway = cloudNoise(x * 1.1F, 0.4F, 2, 90) * 0.26F;
        const float lower = 0.62F + sway - u * 0.14F;
        const float upper = 0.40F + sway * 1.3F + (u - 0.5F) * 0.12F;
        // Sharp below, fading upwards, as the curtains of the sky.
        const auto curtain = [v](float edge, float reach) {
            const float above = edge - v;
            return above < 0 ? std::exp(-above * above / 0.004F) : std::exp(-above / reach);
        };
        const float folds = 0.72F + 0.5F * cloudNoise(x * 4.2F, v * 0.5F, 2, 12);
        Oklab color = rampColor(night, v);
        color = mixed(color, violet, 0.42F * curtain(upper, 0.30F) * folds);
        return mixed(color, green, 0.62F * curtain(lower, 0.16F) * folds);
    });
}

/// Lines on whole pixels, every fifth a little stronger.
QImage drawBlueprint(QSize sizePx)
{
    const auto ground = mesh({{0.2F, 0.1F, 0.6F, 0x1d4f96}, {0.9F, 1.0F, 0.6F, 0x143c7c}});
    QImage image = drawSmoothField(sizePx, FieldDetail::soft, 0.8F, ground);
    QPainter painter(&image);
    const int step = std::max(3, unitPx(sizePx, 1 / 34.0));
    const int line = std::max(1, step / 34);
    // In a thumbnail lines lie close, and would outshine the ground.
    const double strength = std::min(1.0, step / 14.0);
    const auto draw = [&](int length, int across, bool isColumn) {
        const int first = (length / 2) % step;
        for (int at = first, i = -(length / 2 / step); at < length; at += step, ++i) {
            const QColor ink(255, 255, 255, int((i % 5 == 0 ? 40 : 17) * strength));
            painter.fillRect(isColumn ? QRect(at, 0, line, across) : QRect(0, at, across, line),
                             ink);
        }
    };
    draw(sizePx.width(), sizePx.height(), true);
    draw(sizePx.height(), sizePx.width(), false);
    return image;
}

QImage drawGraphite(QSize sizePx)
{
    const auto ground = mesh({{0.3F, 0.0F, 0.55F, 0x34363b}, {0.9F, 1.0F, 0.6F, 0x212226}});
    QImage image = drawSmoothField(sizePx, FieldDetail::soft, 1.0F, ground);
    const int step = std::max(4, unitPx(sizePx, 1 / 62.0));
    QImage tile(step, step, QImage::Format_ARGB32_Premultiplied);
    tile.fill(Qt::transparent);
    QPainter dot(&tile);
    dot.setRenderHint(QPainter::Antialiasing);
    dot.setPen(Qt::NoPen);
    dot.setBrush(QColor(255, 255, 255, 44));
    const double radius = std::max(0.6, step * 0.075);
    dot.drawEllipse(QPointF(step / 2.0, step / 2.0), radius, radius);
    dot.end();
    QPainter painter(&image);
    painter.setBrushOrigin((sizePx.width() % step) / 2, (sizePx.height() % step) / 2);
    painter.fillRect(image.rect(), QBrush(tile));
    return image;
}

/// A stone of the terrazzo: a polygon of five to seven corners around its middle.
QPolygonF makeChip(int column, int row, double sizePx)
{
    const int corners = 5 + int(hashedNoise(column, row, 3) * 2.99F);
    const double turn = hashedNoise(column, row, 4) * 2 * std::numbers::pi;
    const double stretch = 0.55 + 0.45 * hashedNoise(column, row, 5);
    const double lean = hashedNoise(column, row, 6) * std::numbers::pi;
    QPolygonF chip;
    for (int i = 0; i < corners; ++i) {
        const double angle = turn + 2 * std::numbers::pi * i / corners;
        const double reach = sizePx * (0.7 + 0.3 * hashedNoise(column * 8 + i, row, 9));
        chip.append({reach * std::cos(angle), reach * stretch * std::sin(angle)});
    }
    return QTransform().rotateRadians(lean).map(chip);
}

QImage drawTerrazzo(QSize sizePx)
{
    const auto ground = mesh({{0.1F, 0.1F, 0.7F, 0xf4efe8}, {0.9F, 0.9F, 0.7F, 0xeee7de}});
    static constexpr std::array<QRgb, 6> stones{0xe3cdbd, 0xd9d5cb, 0xe8d8b8,
                                                0xcdd4cf, 0xe6c9c0, 0xdcd0d6};
    QImage image = drawSmoothField(sizePx, FieldDetail::soft, 1.4F, ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const double cell = std::sqrt(double(sizePx.width()) * sizePx.height()) / 17;
    for (int row = -1; row * cell < sizePx.height(); ++row) {
        for (int column = -1; column * cell < sizePx.width(); ++column) {
            const double size = cell * (0.12 + 0.36 * std::pow(hashedNoise(column, row, 1), 2.0));
            const QPointF center((column + 0.15 + 0.7 * hashedNoise(column, row, 11)) * cell,
                                 (row + 0.15 + 0.7 * hashedNoise(column, row, 12)) * cell);
            painter.setBrush(QColor(stones[size_t(hashedNoise(column, row, 2) * 5.99F)]));
            painter.drawPolygon(makeChip(column, row, size).translated(center));
        }
    }
    return image;
}

QImage drawPlum(QSize sizePx)
{
    return drawSmoothField(sizePx, FieldDetail::soft, 0,
                           mesh({{0.1F, 0.0F, 0.40F, 0x3a1f5c},
                                 {0.8F, 0.0F, 0.40F, 0x23204f},
                                 {0.35F, 0.8F, 0.34F, 0x7c2f6b},
                                 {0.95F, 0.75F, 0.34F, 0x4a2a7a},
                                 {0.0F, 1.0F, 0.30F, 0x52214f}}));
}

struct Drawing
{
    BackgroundImage image;
    QImage (*draw)(QSize sizePx);
};

// Dark and light ones in turn, so that each row of the panel has both.
constexpr std::array kDrawings{
    //: Background images, named by what they remind of.
    Drawing{{"dusk", QT_TRANSLATE_NOOP("BackgroundImages", "Dusk")}, drawDusk},
    Drawing{{"dawn", QT_TRANSLATE_NOOP("BackgroundImages", "Dawn")}, drawDawn},
    Drawing{{"ember", QT_TRANSLATE_NOOP("BackgroundImages", "Ember")}, drawEmber},
    Drawing{{"paper", QT_TRANSLATE_NOOP("BackgroundImages", "Paper")}, drawPaper},
    Drawing{{"lagoon", QT_TRANSLATE_NOOP("BackgroundImages", "Lagoon")}, drawLagoon},
    Drawing{{"fern", QT_TRANSLATE_NOOP("BackgroundImages", "Fern")}, drawFern},
    Drawing{{"blueprint", QT_TRANSLATE_NOOP("BackgroundImages", "Blueprint")}, drawBlueprint},
    Drawing{{"terrazzo", QT_TRANSLATE_NOOP("BackgroundImages", "Terrazzo")}, drawTerrazzo},
    Drawing{{"ink", QT_TRANSLATE_NOOP("BackgroundImages", "Ink Wash")}, drawInk},
    Drawing{{"plum", QT_TRANSLATE_NOOP("BackgroundImages", "Plum")}, drawPlum},
    Drawing{{"aurora", QT_TRANSLATE_NOOP("BackgroundImages", "Aurora")}, drawAurora},
    Drawing{{"graphite", QT_TRANSLATE_NOOP("BackgroundImages", "Graphite")}, drawGraphite},
};

const Drawing *findDrawing(const QString &id)
{
    const auto *found = std::find_if(kDrawings.begin(), kDrawings.end(), [&id](const Drawing &one) {
        return id == QLatin1String(one.image.id);
    });
    return found == kDrawings.end() ? nullptr : found;
}

} // namespace

std::span<const BackgroundImage> builtInBackgroundImages()
{
    static const auto images = [] {
        std::array<BackgroundImage, kDrawings.size()> list{};
        std::transform(kDrawings.begin(), kDrawings.end(), list.begin(),
                       [](const Drawing &drawing) { return drawing.image; });
        return list;
    }();
    return images;
}

QString backgroundImageName(const QString &id)
{
    const Drawing *drawing = findDrawing(id);
    return drawing ? QCoreApplication::translate("BackgroundImages", drawing->image.name)
                   : QString();
}

QImage drawBackgroundImage(const QString &id, QSize sizePx)
{
    const Drawing *drawing = findDrawing(id);
    if (!drawing || sizePx.isEmpty())
        return {};
    return drawing->draw(sizePx.boundedTo({kMostSidePx, kMostSidePx}));
}

QColor averageBackgroundColor(const QString &id)
{
    constexpr QSize small(128, 80);
    return averageColor(drawBackgroundImage(id, small));
}

QImage coveringImage(const QImage &image, QSize sizePx)
{
    if (image.isNull() || sizePx.isEmpty())
        return {};
    if (image.size() == sizePx)
        return image;
    const QSize part = sizePx.scaled(image.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    const QRect middle(
        QPoint((image.width() - part.width()) / 2, (image.height() - part.height()) / 2), part);
    return image.copy(middle).scaled(sizePx, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QColor averageColor(const QImage &image)
{
    if (image.isNull())
        return {};
    const QImage small = image
                             .scaled(image.size().boundedTo({32, 32}), Qt::IgnoreAspectRatio,
                                     Qt::SmoothTransformation)
                             .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    std::array<qint64, 3> sums{};
    for (int y = 0; y < small.height(); ++y) {
        for (int x = 0; x < small.width(); ++x) {
            const QRgb pixel = reinterpret_cast<const QRgb *>(small.constScanLine(y))[x];
            const int white = 255 - qAlpha(pixel);
            sums[0] += qRed(pixel) + white;
            sums[1] += qGreen(pixel) + white;
            sums[2] += qBlue(pixel) + white;
        }
    }
    const qint64 count = qint64(small.width()) * small.height();
    return QColor(int(sums[0] / count), int(sums[1] / count), int(sums[2] / count));
}

} // namespace lorva
