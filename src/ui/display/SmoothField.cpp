// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "ui/display/SmoothField.h"

#include <QColor>

#include <algorithm>
#include <array>
#include <cmath>

namespace lorva {

namespace {

constexpr int kTile = 128;

float toLinear(float channel)
{
    return channel <= 0.04045F ? channel / 12.92F : std::pow((channel + 0.055F) / 1.055F, 2.4F);
}

float toSrgb(float channel)
{
    channel = std::clamp(channel, 0.0F, 1.0F);
    return channel <= 0.0031308F ? channel * 12.92F : 1.055F * std::pow(channel, 1 / 2.4F) - 0.055F;
}

/// sRGB with 16 binary places below a 255th.
struct FixedColor
{
    std::array<int, 3> channels;
};

FixedColor toFixed(const Oklab &color)
{
    const float lRoot = color.l + 0.3963377774F * color.a + 0.2158037573F * color.b;
    const float mRoot = color.l - 0.1055613458F * color.a - 0.0638541728F * color.b;
    const float sRoot = color.l - 0.0894841775F * color.a - 1.2914855480F * color.b;
    const float l = lRoot * lRoot * lRoot;
    const float m = mRoot * mRoot * mRoot;
    const float s = sRoot * sRoot * sRoot;
    const std::array linear{4.0767416621F * l - 3.3077115913F * m + 0.2309699292F * s,
                            -1.2684380046F * l + 2.6097574011F * m - 0.3413193965F * s,
                            -0.0041960863F * l - 0.7034186147F * m + 1.7076147010F * s};
    FixedColor fixed{};
    for (size_t i = 0; i < 3; ++i)
        fixed.channels[i] = int(toSrgb(linear[i]) * 255 * 65536);
    return fixed;
}

/// A patternless threshold that rows and columns share evenly ("interleaved gradient noise"),
/// blended with plain noise where grain is wanted.
std::vector<int> makeDitherTile(float grain)
{
    std::vector<int> tile(size_t(kTile) * kTile);
    for (int y = 0; y < kTile; ++y) {
        for (int x = 0; x < kTile; ++x) {
            const float inner = 0.06711056F * float(x) + 0.00583715F * float(y);
            float threshold = 52.9829189F * (inner - std::floor(inner));
            threshold -= std::floor(threshold);
            const float stray = hashedNoise(x, y, 7) + hashedNoise(x, y, 8) - 1;
            tile[size_t(y) * kTile + size_t(x)] = int((threshold + stray * grain) * 65536);
        }
    }
    return tile;
}

struct Grid
{
    int columns = 0;
    int rows = 0;
    std::vector<FixedColor> points;
    const FixedColor &at(int column, int row) const
    {
        return points[size_t(row) * size_t(columns) + size_t(column)];
    }
};

Grid makeGrid(QSize sizePx, int cellPx, const ColorAt &colorAt)
{
    Grid grid;
    grid.columns = (sizePx.width() + cellPx - 1) / cellPx + 1;
    grid.rows = (sizePx.height() + cellPx - 1) / cellPx + 1;
    grid.points.reserve(size_t(grid.columns) * size_t(grid.rows));
    const float aspect = float(sizePx.width()) / float(sizePx.height());
    for (int row = 0; row < grid.rows; ++row) {
        for (int column = 0; column < grid.columns; ++column)
            grid.points.push_back(
                toFixed(colorAt(float(column * cellPx) / float(sizePx.width()),
                                float(row * cellPx) / float(sizePx.height()), aspect)));
    }
    return grid;
}

/// One row of the picture between two points of the grid. Plain variables, so that the compiler
/// works on several pixels at once.
void fillCell(QRgb *out, int count, int cellPx, const FixedColor &left, const FixedColor &right,
              const int *dither)
{
    const auto [red, green, blue] = left.channels;
    const int redStep = (right.channels[0] - red) / cellPx;
    const int greenStep = (right.channels[1] - green) / cellPx;
    const int blueStep = (right.channels[2] - blue) / cellPx;
    constexpr int most = 255 << 16 | 0xffff;
    for (int x = 0; x < count; ++x) {
        const int r = std::clamp(red + redStep * x + dither[x], 0, most) >> 16;
        const int g = std::clamp(green + greenStep * x + dither[x], 0, most) >> 16;
        const int b = std::clamp(blue + blueStep * x + dither[x], 0, most) >> 16;
        out[x] = 0xff000000U | QRgb(r << 16 | g << 8 | b);
    }
}

FixedColor between(const FixedColor &top, const FixedColor &bottom, int part, int whole)
{
    FixedColor color{};
    for (size_t i = 0; i < 3; ++i)
        color.channels[i] = top.channels[i] + (bottom.channels[i] - top.channels[i]) / whole * part;
    return color;
}

/// A power of two, so that a cell's thresholds lie side by side in the tile.
int cellPxFor(QSize sizePx, FieldDetail detail)
{
    const double side = std::sqrt(double(sizePx.width()) * sizePx.height());
    const double wanted = side / (detail == FieldDetail::soft ? 90 : 320);
    int cellPx = 2;
    while (cellPx * 2 <= wanted && cellPx < 32)
        cellPx *= 2;
    return cellPx;
}

float smoothStep(float t)
{
    return t * t * t * (t * (t * 6 - 15) + 10);
}

float latticeNoise(float x, float y, unsigned seed)
{
    const float left = std::floor(x);
    const float top = std::floor(y);
    const int column = int(left);
    const int row = int(top);
    const float tx = smoothStep(x - left);
    const float ty = smoothStep(y - top);
    const float above =
        std::lerp(hashedNoise(column, row, seed), hashedNoise(column + 1, row, seed), tx);
    const float below =
        std::lerp(hashedNoise(column, row + 1, seed), hashedNoise(column + 1, row + 1, seed), tx);
    return std::lerp(above, below, ty) * 2 - 1;
}

} // namespace

Oklab Oklab::from(QRgb color)
{
    const float red = toLinear(float(qRed(color)) / 255);
    const float green = toLinear(float(qGreen(color)) / 255);
    const float blue = toLinear(float(qBlue(color)) / 255);
    const float l = std::cbrt(0.4122214708F * red + 0.5363325363F * green + 0.0514459929F * blue);
    const float m = std::cbrt(0.2119034982F * red + 0.6806995451F * green + 0.1073969566F * blue);
    const float s = std::cbrt(0.0883024619F * red + 0.2817188376F * green + 0.6299787005F * blue);
    return {0.2104542553F * l + 0.7936177850F * m - 0.0040720468F * s,
            1.9779984951F * l - 2.4285922050F * m + 0.4505937099F * s,
            0.0259040371F * l + 0.7827717662F * m - 0.8086757660F * s};
}

Oklab mixed(const Oklab &from, const Oklab &to, float share)
{
    return {std::lerp(from.l, to.l, share), std::lerp(from.a, to.a, share),
            std::lerp(from.b, to.b, share)};
}

QImage drawSmoothField(QSize sizePx, FieldDetail detail, float grain, const ColorAt &colorAt)
{
    const int cellPx = cellPxFor(sizePx, detail);
    QImage image(sizePx, QImage::Format_RGB32);
    if (image.isNull())
        return image;
    const Grid grid = makeGrid(sizePx, cellPx, colorAt);
    const std::vector<int> tile = makeDitherTile(grain);
    for (int y = 0; y < sizePx.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        const int row = y / cellPx;
        const int *dither = tile.data() + size_t(y % kTile) * kTile;
        FixedColor left = between(grid.at(0, row), grid.at(0, row + 1), y % cellPx, cellPx);
        for (int column = 0; column + 1 < grid.columns; ++column) {
            const FixedColor right =
                between(grid.at(column + 1, row), grid.at(column + 1, row + 1), y % cellPx, cellPx);
            const int x = column * cellPx;
            fillCell(line + x, std::min(cellPx, sizePx.width() - x), cellPx, left, right,
                     dither + x % kTile);
            left = right;
        }
    }
    return image;
}

Oklab meshColor(const std::vector<Glow> &glows, float u, float v)
{
    Oklab sum;
    float total = 0;
    for (const Glow &glow : glows) {
        const float du = (u - glow.u) / glow.radius;
        const float dv = (v - glow.v) / glow.radius;
        const float weight = std::exp(-(du * du + dv * dv) / 2) + 1e-5F;
        sum.l += glow.color.l * weight;
        sum.a += glow.color.a * weight;
        sum.b += glow.color.b * weight;
        total += weight;
    }
    return {sum.l / total, sum.a / total, sum.b / total};
}

Oklab rampColor(const std::vector<Oklab> &stops, float share)
{
    const float place = std::clamp(share, 0.0F, 1.0F) * float(stops.size() - 1);
    const size_t index = std::min(size_t(place), stops.size() - 2);
    return mixed(stops[index], stops[index + 1], place - float(index));
}

float cloudNoise(float x, float y, int octaves, unsigned seed)
{
    float sum = 0;
    float strength = 0.5F;
    for (int i = 0; i < octaves; ++i) {
        sum += strength * latticeNoise(x, y, seed + unsigned(i));
        x = x * 2 + 17.3F;
        y = y * 2 + 9.1F;
        strength /= 2;
    }
    return sum;
}

float hashedNoise(int x, int y, unsigned seed)
{
    unsigned h = unsigned(x) * 0x8da6b343U ^ unsigned(y) * 0xd8163841U ^ seed * 0xcb1ab31fU;
    h ^= h >> 15;
    h *= 0x2c1b3c6dU;
    h ^= h >> 12;
    h *= 0x297a2d39U;
    h ^= h >> 15;
    return float(h >> 8) / float(1U << 24);
}

} // namespace lorva
