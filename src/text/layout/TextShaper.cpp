// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/layout/TextShaper.h"

#include <unicode/uchar.h>
#include <unicode/utf16.h>

#include <algorithm>
#include <cmath>

namespace lorva {

namespace {

/// The widest real glyphs (ligatures of whole phrases) take some twenty ems.
constexpr double kMaxAdvanceEms = 64;
constexpr double kMaxLetterSpacing = 16384;

using BufferPtr = std::unique_ptr<hb_buffer_t, decltype(&hb_buffer_destroy)>;

hb_buffer_t *threadBuffer()
{
    thread_local const BufferPtr buffer(hb_buffer_create(), &hb_buffer_destroy);
    hb_buffer_clear_contents(buffer.get());
    return buffer.get();
}

hb_feature_t everywhere(hb_tag_t tag, quint32 value)
{
    return {tag, value, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
}

/// Ligatures would stand as tight lumps in spaced-out text. The font's own settings come after, and
/// win.
std::vector<hb_feature_t> shapingFeatures(const Font &font, double letterSpacing)
{
    std::vector<hb_feature_t> features;
    if (letterSpacing != 0) {
        features.push_back(everywhere(HB_TAG('l', 'i', 'g', 'a'), 0));
        features.push_back(everywhere(HB_TAG('c', 'l', 'i', 'g'), 0));
    }
    for (const FeatureSetting &setting : font.features())
        features.push_back(everywhere(setting.tag, setting.value));
    return features;
}

QByteArrayView impliedLanguage(quint32 writing)
{
    switch (writing) {
    case HB_SCRIPT_HIRAGANA:
    case HB_SCRIPT_KATAKANA:
        return "ja";
    case HB_SCRIPT_HANGUL:
        return "ko";
    case HB_SCRIPT_BOPOMOFO:
        return "zh-Hant";
    default:
        return {};
    }
}

/// Scripts whose letters are joined by strokes that no space may cut.
bool isCursive(quint32 script)
{
    switch (script) {
    case HB_SCRIPT_ARABIC:
    case HB_SCRIPT_SYRIAC:
    case HB_SCRIPT_MONGOLIAN:
    case HB_SCRIPT_NKO:
    case HB_SCRIPT_MANDAIC:
    case HB_SCRIPT_PHAGS_PA:
    case HB_SCRIPT_MANICHAEAN:
    case HB_SCRIPT_PSALTER_PAHLAVI:
    case HB_SCRIPT_ADLAM:
    case HB_SCRIPT_HANIFI_ROHINGYA:
    case HB_SCRIPT_SOGDIAN:
    case HB_SCRIPT_CHORASMIAN:
    case HB_SCRIPT_OLD_UYGHUR:
        return true;
    default:
        return false;
    }
}

bool isLetter(QStringView text, int index)
{
    if (index < 0 || index >= text.size())
        return false;
    UChar32 c = 0;
    U16_GET(reinterpret_cast<const UChar *>(text.utf16()), 0, index, int(text.size()), c);
    return u_isalpha(c);
}

double totalAdvance(std::span<const ShapedGlyph> glyphs)
{
    double sum = 0;
    for (const ShapedGlyph &glyph : glyphs)
        sum += glyph.advance;
    return sum;
}

} // namespace

TextShaper::TextShaper(const Font &font, double letterSpacing, const QByteArray &language)
    : m_font(font)
    , m_shapingFont(font.shapingFont())
    , m_letterSpacing(std::isfinite(letterSpacing)
                          ? std::clamp(letterSpacing, -kMaxLetterSpacing, kMaxLetterSpacing)
                          : 0)
    , m_languageTag(language)
{
    m_features = shapingFeatures(font, m_letterSpacing);
    if (!font.isNull())
        m_pointsPerUnit = font.pointSize() / std::max(1, font.face()->metrics().unitsPerEm);
    if (!language.isEmpty())
        m_language = hb_language_from_string(language.constData(), int(language.size()));
}

double TextShaper::toPoints(hb_position_t units) const
{
    const double limit = kMaxAdvanceEms * m_font.pointSize();
    return std::clamp(units * m_pointsPerUnit, -limit, limit);
}

QByteArray TextShaper::languageTag(const TextItem &item) const
{
    const QByteArrayView implied = impliedLanguage(item.writing);
    return m_languageTag.isEmpty() ? implied.toByteArray() : m_languageTag;
}

hb_language_t TextShaper::languageFor(const TextItem &item) const
{
    if (m_language != HB_LANGUAGE_INVALID)
        return m_language;
    const QByteArrayView implied = impliedLanguage(item.writing);
    return implied.isEmpty() ? hb_language_get_default()
                             : hb_language_from_string(implied.data(), int(implied.size()));
}

std::vector<ShapedGlyph> TextShaper::glyphsIn(hb_buffer_t *buffer) const
{
    unsigned count = 0;
    unsigned positionCount = 0;
    const hb_glyph_info_t *infos = hb_buffer_get_glyph_infos(buffer, &count);
    const hb_glyph_position_t *positions = hb_buffer_get_glyph_positions(buffer, &positionCount);
    std::vector<ShapedGlyph> glyphs;
    glyphs.reserve(count);
    for (unsigned i = 0; i < std::min(count, positionCount); ++i) {
        const hb_glyph_position_t &at = positions[i];
        const bool unsafe =
            hb_glyph_info_get_glyph_flags(&infos[i]) & HB_GLYPH_FLAG_UNSAFE_TO_BREAK;
        glyphs.push_back({infos[i].codepoint, int(infos[i].cluster), toPoints(at.x_advance),
                          QPointF(toPoints(at.x_offset), -toPoints(at.y_offset)), unsafe});
    }
    return glyphs;
}

ShapedRun TextShaper::shape(QStringView paragraph, const TextItem &item) const
{
    ShapedRun run{item, {}};
    if (m_font.isNull() || item.end <= item.start)
        return run;
    hb_buffer_t *buffer = threadBuffer();
    hb_buffer_add_utf16(buffer, reinterpret_cast<const uint16_t *>(paragraph.utf16()),
                        int(paragraph.size()), unsigned(item.start), item.end - item.start);
    hb_buffer_set_direction(buffer, item.isRightToLeft() ? HB_DIRECTION_RTL : HB_DIRECTION_LTR);
    hb_buffer_set_script(buffer, hb_script_t(item.script));
    hb_buffer_set_language(buffer, languageFor(item));
    hb_shape(m_shapingFont.get(), buffer, m_features.data(), unsigned(m_features.size()));
    run.glyphs = glyphsIn(buffer);
    addLetterSpacing(paragraph, run);
    return run;
}

/// Space follows a cluster in reading direction; clusters without width (joiners, lone marks) get
/// none, nor do letters of a joined script that other letters follow.
void TextShaper::addLetterSpacing(QStringView paragraph, ShapedRun &run) const
{
    if (m_letterSpacing == 0)
        return;
    const bool falls = run.item.isRightToLeft();
    const bool joins = isCursive(run.item.script);
    std::span<ShapedGlyph> glyphs(run.glyphs);
    int clusterBefore = run.item.end;
    for (size_t start = 0; start < glyphs.size();) {
        size_t end = start + 1;
        while (end < glyphs.size() && glyphs[end].cluster == glyphs[start].cluster)
            ++end;
        const int cluster = glyphs[start].cluster;
        const int following = end < glyphs.size() ? glyphs[end].cluster : run.item.end;
        const int next = falls ? std::exchange(clusterBefore, cluster) : following;
        const bool isJoined = joins && isLetter(paragraph, cluster) && isLetter(paragraph, next);
        ShapedGlyph &edge = falls ? glyphs[start] : glyphs[end - 1];
        if (!isJoined && totalAdvance(glyphs.subspan(start, end - start)) != 0) {
            edge.advance += m_letterSpacing;
            if (falls)
                edge.offset.rx() += m_letterSpacing;
        }
        start = end;
    }
}

ShapedRun TextShaper::shapeEllipsis(const TextItem &item) const
{
    QStringView text;
    if (m_font.hasGlyphFor(U'\u2026'))
        text = u"\u2026";
    else if (m_font.hasGlyphFor(U'.'))
        text = u"...";
    ShapedRun run =
        shape(text, {0, int(text.size()), item.level, item.script, item.writing, item.font});
    run.item = item;
    for (ShapedGlyph &glyph : run.glyphs)
        glyph.cluster = item.start;
    return run;
}

} // namespace lorva
