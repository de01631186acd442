// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/Font.h"

#include <hb-ot.h>
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

double usablePointSize(double size)
{
    return std::isfinite(size) ? std::clamp(size, 0.0, kMaxPointSize) : 0;
}

double metricOr(hb_font_t *font, hb_ot_metrics_tag_t tag, double otherwise)
{
    hb_position_t value = 0;
    return hb_ot_metrics_get_position(font, tag, &value) ? value : otherwise;
}

} // namespace

struct Font::Data
{
    std::shared_ptr<const FontFace> face;
    double pointSize = 0;
    std::vector<VariationSetting> variations;
    std::vector<FeatureSetting> features;
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

double Font::variedMetric(quint32 tag, double ownInstanceUnits) const
{
    if (m_data->variations.empty())
        return m_data->toPoints(ownInstanceUnits);
    const std::shared_ptr<hb_font_t> font = shapingFont();
    return m_data->toPoints(metricOr(font.get(), hb_ot_metrics_tag_t(tag), ownInstanceUnits));
}

double Font::capHeight() const
{
    return m_data ? variedMetric(HB_OT_METRICS_TAG_CAP_HEIGHT, m_data->face->metrics().capHeight)
                  : 0;
}

double Font::xHeight() const
{
    return m_data ? variedMetric(HB_OT_METRICS_TAG_X_HEIGHT, m_data->face->metrics().xHeight) : 0;
}

double Font::ascent() const
{
    return m_data
        ? variedMetric(HB_OT_METRICS_TAG_HORIZONTAL_ASCENDER, m_data->face->metrics().ascender)
        : 0;
}

double Font::descent() const
{
    return m_data
        ? -variedMetric(HB_OT_METRICS_TAG_HORIZONTAL_DESCENDER, m_data->face->metrics().descender)
        : 0;
}

double Font::lineGap() const
{
    return m_data ? std::max(
               0.0,
               variedMetric(HB_OT_METRICS_TAG_HORIZONTAL_LINE_GAP, m_data->face->metrics().lineGap))
                  : 0;
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
        && m_data->features == other.m_data->features
        && m_data->isStandIn == other.m_data->isStandIn;
}

} // namespace lorva
