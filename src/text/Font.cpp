// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/Font.h"

#include <hb.h>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// No one sets type larger than this; a larger size only makes coordinates overflow.
constexpr double kMaxPointSize = 16384;
/// Real ascenders reach about three ems (stacked scripts); a hostile one would push the text away.
constexpr double kMaxVerticalEms = 8;

const std::shared_ptr<const FontFace> kNoFace;
const std::vector<VariationSetting> kNoVariations;
const std::vector<FeatureSetting> kNoFeatures;
const PaletteChoice kFirstPalette;

double usablePointSize(double size)
{
    return std::isfinite(size) ? std::clamp(size, 0.0, kMaxPointSize) : 0;
}

} // namespace

struct Font::Data
{
    std::shared_ptr<const FontFace> face;
    double pointSize = 0;
    std::vector<VariationSetting> variations;
    std::vector<FeatureSetting> features;
    PaletteChoice palette;
    bool isStandIn = false;

    double toPoints(double units) const
    {
        const double ems = units / std::max(1, face->metrics().unitsPerEm);
        const double usable = std::isfinite(ems) ? ems : 0;
        return std::clamp(usable, -kMaxVerticalEms, kMaxVerticalEms) * pointSize;
    }
};

Font::Font(std::shared_ptr<const FontFace> face, double pointSize,
           std::vector<VariationSetting> variations, std::vector<FeatureSetting> features)
{
    if (!face)
        return;
    auto data = std::make_shared<Data>();
    data->face = std::move(face);
    data->pointSize = usablePointSize(pointSize);
    data->variations = std::move(variations);
    data->features = std::move(features);
    m_data = std::move(data);
}

const std::shared_ptr<const FontFace> &Font::face() const
{
    return m_data ? m_data->face : kNoFace;
}

double Font::pointSize() const
{
    return m_data ? m_data->pointSize : 0;
}

const std::vector<VariationSetting> &Font::variations() const
{
    return m_data ? m_data->variations : kNoVariations;
}

const std::vector<FeatureSetting> &Font::features() const
{
    return m_data ? m_data->features : kNoFeatures;
}

QString Font::name() const
{
    if (!m_data)
        return {};
    const FontFace &face = *m_data->face;
    if (!face.names().postScriptName.isEmpty())
        return face.names().postScriptName;
    QString name =
        QString::fromUtf8(face.path().fileName()) + u'#' + QString::number(face.key().faceIndex);
    if (face.key().namedInstance >= 0)
        name += u'.' + QString::number(face.key().namedInstance);
    return name;
}

double Font::metric(double FaceMetrics::*member) const
{
    return m_data ? m_data->toPoints(m_data->face->metricsAt(m_data->variations).*member) : 0;
}

double Font::capHeight() const
{
    return metric(&FaceMetrics::capHeight);
}

double Font::xHeight() const
{
    return metric(&FaceMetrics::xHeight);
}

double Font::ascent() const
{
    return metric(&FaceMetrics::ascender);
}

double Font::descent() const
{
    return -metric(&FaceMetrics::descender);
}

double Font::lineGap() const
{
    return std::max(0.0, metric(&FaceMetrics::lineGap));
}

bool Font::hasGlyphFor(char32_t scalar) const
{
    return m_data && m_data->face->glyphFor(scalar).has_value();
}

bool Font::isStandIn() const
{
    return m_data && m_data->isStandIn;
}

template <class Change>
Font Font::changed(Change change) const
{
    if (!m_data)
        return {};
    auto data = std::make_shared<Data>(*m_data);
    change(*data);
    Font font;
    font.m_data = std::move(data);
    return font;
}

Font Font::asStandIn() const
{
    return changed([](Data &data) { data.isStandIn = true; });
}

Font Font::withPointSize(double pointSize) const
{
    return changed([=](Data &data) { data.pointSize = usablePointSize(pointSize); });
}

Font Font::withVariations(std::vector<VariationSetting> variations) const
{
    return changed([&](Data &data) { data.variations = std::move(variations); });
}

Font Font::withFeatures(std::vector<FeatureSetting> features) const
{
    return changed([&](Data &data) { data.features = std::move(features); });
}

const PaletteChoice &Font::palette() const
{
    return m_data ? m_data->palette : kFirstPalette;
}

Font Font::withPalette(PaletteChoice palette) const
{
    return changed([&](Data &data) { data.palette = std::move(palette); });
}

std::shared_ptr<hb_font_t> Font::shapingFont() const
{
    if (!m_data)
        return std::shared_ptr<hb_font_t>(hb_font_get_empty(), [](hb_font_t *) {});
    return m_data->face->shapingFont(m_data->variations);
}

bool Font::operator==(const Font &other) const
{
    if (m_data == other.m_data)
        return true;
    if (!m_data || !other.m_data)
        return false;
    return m_data->face == other.m_data->face && m_data->pointSize == other.m_data->pointSize
        && m_data->variations == other.m_data->variations
        && m_data->features == other.m_data->features && m_data->palette == other.m_data->palette
        && m_data->isStandIn == other.m_data->isStandIn;
}

} // namespace lorva
