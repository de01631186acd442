// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/FontFace.h"

#include "text/CharacterMapWork.h"
#include "text/FaceDescribing.h"
#include "text/FontFaceData.h"
#include "text/FontLimits.h"
#include "text/WarmFaces.h"

#include <hb-ot.h>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// Taller lines than any script needs would only serve to make specimens unusable.
constexpr double kMaxLineEms = 16;

FaceNames readNames(const NameTable &names)
{
    FaceNames all;
    all.family = familyName(names);
    all.style = styleName(names);
    all.postScriptName = names.text(NameId::postScript, kMaxNameBytes);
    all.fullName = names.text(NameId::full, kMaxNameBytes);
    all.version = names.text(NameId::version, kMaxLongNameBytes);
    all.copyright = names.text(NameId::copyright, kMaxLongNameBytes);
    all.manufacturer = names.text(NameId::manufacturer, kMaxNameBytes);
    all.designer = names.text(NameId::designer, kMaxLongNameBytes);
    return all;
}

void nameAsInstance(FaceNames &names, const FaceFacts &facts, const FvarInstance &instance)
{
    names.style = instanceName(facts, instance);
    names.postScriptName = instancePostScriptName(facts, instance);
    names.fullName = QString(names.family + u' ' + names.style).trimmed();
}

FontFace::Data::Details readDetails(const FontFace::Data &face)
{
    FontFace::Data::Details details;
    const auto opened = face.file->reopen();
    if (!opened)
        return details;
    const FaceFacts facts = readFaceFacts(**opened, face.directory, NameSelection::all);
    details.names = readNames(facts.names);
    for (const FvarAxis &axis : facts.fvar.axes)
        details.axes.push_back({axis.tag, facts.names.text(axis.nameId, kMaxNameBytes),
                                axis.minValue, axis.defaultValue, axis.maxValue, axis.isHidden});
    for (const FvarInstance &instance : facts.fvar.instances)
        details.instances.push_back({instanceName(facts, instance),
                                     instancePostScriptName(facts, instance),
                                     facts.fvar.settings(instance.coordinates)});
    const int own = face.key.namedInstance;
    if (own >= 0 && size_t(own) < facts.fvar.instances.size())
        nameAsInstance(details.names, facts, facts.fvar.instances[size_t(own)]);
    return details;
}

const FontFace::Data::Details &detailsOf(const FontFace::Data &face)
{
    std::call_once(face.detailsOnce, [&face] { face.details = readDetails(face); });
    return face.details;
}

std::shared_ptr<const WarmFace> warmFace(const FontFace::Data &face)
{
    return WarmFaces::instance().face(face.file, face.key.faceIndex, face.directory);
}

/// The height of the character's ink above the baseline; 0 when it has none.
double inkHeight(hb_font_t *font, char32_t character)
{
    hb_codepoint_t glyph = 0;
    hb_glyph_extents_t extents = {};
    if (!hb_font_get_nominal_glyph(font, character, &glyph) || glyph == 0
        || !hb_font_get_glyph_extents(font, glyph, &extents))
        return 0;
    return std::max(0, extents.y_bearing);
}

double heightMetric(hb_font_t *font, hb_ot_metrics_tag_t tag, char32_t example, double fallback)
{
    hb_position_t position = 0;
    if (hb_ot_metrics_get_position(font, tag, &position) && position > 0)
        return position;
    const double ink = inkHeight(font, example);
    return ink > 0 ? ink : fallback;
}

FaceMetrics readMetrics(hb_font_t *font)
{
    const double em = hb_face_get_upem(hb_font_get_face(font));
    const double limit = kMaxLineEms * em;
    FaceMetrics metrics{int(em), 0.8 * em, -0.2 * em, 0, 0, 0};
    hb_font_extents_t extents = {};
    if (hb_font_get_h_extents(font, &extents) && extents.ascender > extents.descender) {
        metrics.ascender = std::clamp<double>(extents.ascender, -limit, limit);
        metrics.descender = std::clamp<double>(extents.descender, -limit, limit);
        metrics.lineGap = std::clamp<double>(extents.line_gap, 0, limit);
    }
    metrics.capHeight =
        std::min(heightMetric(font, HB_OT_METRICS_TAG_CAP_HEIGHT, U'H', 0.7 * em), limit);
    metrics.xHeight =
        std::min(heightMetric(font, HB_OT_METRICS_TAG_X_HEIGHT, U'x', 0.5 * em), limit);
    return metrics;
}

std::vector<hb_variation_t> mergedVariations(std::span<const VariationSetting> own,
                                             std::span<const VariationSetting> wanted)
{
    std::vector<hb_variation_t> merged;
    for (const auto &settings : {own, wanted})
        for (const VariationSetting &setting : settings)
            if (!std::isnan(setting.value))
                merged.push_back({setting.tag, float(setting.value)});
    return merged;
}

/// The font and the warm face that it belongs to, which so counts as in use.
std::shared_ptr<hb_font_t> owning(hb_font_t *font, std::shared_ptr<const WarmFace> face)
{
    return {font, [face = std::move(face)](hb_font_t *owned) { hb_font_destroy(owned); }};
}

std::shared_ptr<hb_font_t> fontOf(std::shared_ptr<const WarmFace> warm,
                                  const std::vector<hb_variation_t> &variations)
{
    if (variations.empty()) {
        hb_font_t *shared = hb_font_reference(warm->font());
        return owning(shared, std::move(warm));
    }
    hb_font_t *font = hb_font_create(warm->face());
    const int unitsPerEm = int(hb_face_get_upem(warm->face()));
    hb_font_set_scale(font, unitsPerEm, unitsPerEm);
    hb_font_set_variations(font, variations.data(), unsigned(variations.size()));
    hb_font_make_immutable(font);
    return owning(font, std::move(warm));
}

} // namespace

QString tagText(FontTag tag)
{
    QString text;
    for (int shift = 24; shift >= 0; shift -= 8) {
        const uchar byte = uchar(tag >> shift);
        text.append(byte >= 0x20 && byte < 0x7F ? QChar(char16_t(byte)) : QChar(u'?'));
    }
    return text;
}

std::optional<FontTag> tagFromText(QStringView text)
{
    if (text.isEmpty() || text.size() > 4)
        return std::nullopt;
    FontTag tag = 0;
    for (qsizetype i = 0; i < 4; ++i) {
        const char16_t unit = i < text.size() ? text[i].unicode() : u' ';
        if (unit < 0x20 || unit >= 0x7F)
            return std::nullopt;
        tag = (tag << 8) | unit;
    }
    return tag;
}

std::unique_ptr<FontFace::Data> readFaceData(const std::shared_ptr<const FontFile::Data> &file,
                                             const OpenedFile &opened, SfntDirectory directory,
                                             FaceKey key)
{
    const FvarTable fvar = readFvar(opened, directory);
    if (key.namedInstance < -1 || key.namedInstance >= int(fvar.instances.size()))
        return nullptr;
    const bool isInstance = key.namedInstance >= 0;
    const std::vector<double> coordinates = isInstance
        ? fvar.instances[size_t(key.namedInstance)].coordinates
        : fvar.defaultCoordinates();
    auto data = std::make_unique<FontFace::Data>();
    data->file = file;
    data->key = key;
    data->traits = traitsOfInstance(readTraits(opened, directory), fvar, coordinates);
    if (isInstance)
        data->coordinates = fvar.settings(coordinates);
    data->glyphCount = readGlyphCount(opened, directory);
    data->directory = std::move(directory);
    return data;
}

bool mapsAnyCharacter(const std::shared_ptr<const FontFile::Data> &file,
                      const SfntDirectory &directory)
{
    // Not among the faces kept warm: describing a face does not mean that it will be drawn.
    const WarmFace face(file, directory);
    if (!isCharacterMapWorkable(face.face()))
        return false;
    const std::unique_ptr<hb_set_t, decltype(&hb_set_destroy)> characters(hb_set_create(),
                                                                          hb_set_destroy);
    hb_face_collect_unicodes(face.face(), characters.get());
    return !hb_set_is_empty(characters.get());
}

FontFace::FontFace(std::unique_ptr<Data> data)
    : m_data(std::move(data))
{
}

FontFace::~FontFace() = default;

const FilePath &FontFace::path() const
{
    return m_data->file->path;
}

bool FontFace::isUpToDate() const
{
    return currentIdentity(m_data->file->path) == m_data->file->identity;
}

FaceKey FontFace::key() const
{
    return m_data->key;
}

const FaceNames &FontFace::names() const
{
    return detailsOf(*m_data).names;
}

FaceTraits FontFace::traits() const
{
    return m_data->traits;
}

const FaceMetrics &FontFace::metrics() const
{
    std::call_once(m_data->metricsOnce, [this] {
        const auto own = mergedVariations(m_data->coordinates, {});
        m_data->metrics = readMetrics(fontOf(warmFace(*m_data), own).get());
    });
    return m_data->metrics;
}

FaceMetrics FontFace::metricsAt(std::span<const VariationSetting> variations) const
{
    if (variations.empty())
        return metrics();
    const auto merged = mergedVariations(m_data->coordinates, variations);
    return readMetrics(fontOf(warmFace(*m_data), merged).get());
}

int FontFace::glyphCount() const
{
    return m_data->glyphCount;
}

int FontFace::formatNumber() const
{
    return m_data->directory.formatNumber();
}

const std::vector<VariationAxis> &FontFace::axes() const
{
    return detailsOf(*m_data).axes;
}

std::optional<VariationAxis> FontFace::axis(FontTag tag) const
{
    const auto found = std::find_if(axes().begin(), axes().end(),
                                    [tag](const VariationAxis &each) { return each.tag == tag; });
    return found == axes().end() ? std::nullopt : std::optional(*found);
}

const std::vector<NamedInstance> &FontFace::namedInstances() const
{
    return detailsOf(*m_data).instances;
}

const std::vector<VariationSetting> &FontFace::coordinates() const
{
    return m_data->coordinates;
}

std::vector<QString> FontFace::familyNamesInAllLanguages() const
{
    const auto opened = m_data->file->reopen();
    return opened ? readFamilyNames(**opened, m_data->directory) : std::vector<QString>();
}

std::optional<quint32> FontFace::glyphFor(char32_t scalar) const
{
    return warmFace(*m_data)->glyphFor(scalar);
}

std::shared_ptr<hb_font_t> FontFace::shapingFont(std::span<const VariationSetting> variations) const
{
    auto warm = warmFace(*m_data);
    warm->readForDrawing();
    return fontOf(std::move(warm), mergedVariations(m_data->coordinates, variations));
}

} // namespace lorva
