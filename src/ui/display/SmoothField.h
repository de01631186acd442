// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include <QImage>
#include <QPointF>
#include <QRgb>
#include <QSize>

#include <functional>
#include <vector>

namespace lorva {

// How the backgrounds that change slowly from pixel to pixel are drawn: the colour is worked out on
// a coarse grid, pixels between are interpolated, and a fixed pattern of noise below one step keeps
// the gradients from falling into bands. Thread: any.

/// A colour as the eye mixes it (Oklab, Björn Ottosson): between two of these lies no mud.
struct Oklab
{
    float l = 0;
    float a = 0;
    float b = 0;

    static Oklab from(QRgb color);
};
Oklab mixed(const Oklab &from, const Oklab &to, float share);

/// The colour at a place, 0 … 1 in each direction. `aspect`: width by height.
using ColorAt = std::function<Oklab(float u, float v, float aspect)>;

/// How small the features are that colorAt() shows: what the grid's points lie apart depends on it
/// and on the size.
enum class FieldDetail { soft, fine };

/// `grain`: how far the pixels stray from their colour, in 255ths.
QImage drawSmoothField(QSize sizePx, FieldDetail detail, float grain, const ColorAt &colorAt);

/// A soft patch of colour.
struct Glow
{
    float u;
    float v;
    /// Where it has fallen to 60 %, as a share of the picture's width and height.
    float radius;
    Oklab color;
};
/// The glows laid together, the nearest the strongest.
Oklab meshColor(const std::vector<Glow> &glows, float u, float v);
/// Along `stops`, evenly apart, smoothly.
Oklab rampColor(const std::vector<Oklab> &stops, float share);

/// Smooth noise, −1 … 1, of one feature per unit; `octaves` of it, each half as large and strong.
float cloudNoise(float x, float y, int octaves, unsigned seed);
/// 0 … 1, by place.
float hashedNoise(int x, int y, unsigned seed);

} // namespace lorva
