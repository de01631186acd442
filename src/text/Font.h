// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#pragma once

#include "text/ColorPalette.h"
#include "text/FontFace.h"

namespace lorva {

/// A face at a size, with variation values and feature settings: what text is set in.
///
/// A value: immutable, implicitly shared, cheap to copy, equal when face object, size and settings
/// are. Thread: any. Units: points (one point is one logical pixel). Hostile fonts: sizes are kept
/// within 0 … 16,384 points and metrics within eight ems.
class Font
{
public:
    /// No face; sets nothing. isNull() is true.
    Font() = default;
    Font(std::shared_ptr<const FontFace> face, double pointSize,
         std::vector<VariationSetting> variations = {}, std::vector<FeatureSetting> features = {});

    bool isNull() const { return m_data == nullptr; }
    const std::shared_ptr<const FontFace> &face() const;
    double pointSize() const;
    const std::vector<VariationSetting> &variations() const;
    const std::vector<FeatureSetting> &features() const;

    /// The PostScript name, else file name and face index: unique enough to key a coverage memo.
    QString name() const;
    double capHeight() const;
    double xHeight() const;
    /// Positive above the baseline.
    double ascent() const;
    /// Positive below the baseline.
    double descent() const;
    double lineGap() const;
    bool hasGlyphFor(char32_t scalar) const;

    /// True for the system font that stands in for a face that could not be found.
    bool isStandIn() const;
    Font asStandIn() const;
    Font withPointSize(double pointSize) const;
    Font withVariations(std::vector<VariationSetting> variations) const;
    Font withFeatures(std::vector<FeatureSetting> features) const;
    /// Which colours a colour font is drawn in; the font's first palette if never set.
    const PaletteChoice &palette() const;
    Font withPalette(PaletteChoice palette) const;

    /// The HarfBuzz font with this font's variations, scaled to unitsPerEm. Not kept, so that a
    /// Font of a face that nobody draws with does not hold its tables in memory. Never null. Engine
    /// files only.
    std::shared_ptr<hb_font_t> shapingFont() const;

    bool operator==(const Font &other) const;

private:
    struct Data;
    /// Points of a metric, which the font's variations may move.
    double metric(double FaceMetrics::*member) const;
    template <class Change>
    Font changed(Change change) const;

    std::shared_ptr<const Data> m_data;
};

} // namespace lorva
