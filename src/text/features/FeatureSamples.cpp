// SPDX-FileCopyrightText: 2026 The Lorva developers
// SPDX-License-Identifier: MIT
#include "text/features/FeatureReach.h"
#include "text/FontLimits.h"

#include <QTextBoundaryFinder>

#include <algorithm>
#include <set>

namespace lorva {

namespace {

struct TagSample
{
    char tags[65];
    const char16_t *text;
};

/// Where people look for the feature, tried before its glyphs one by one.
constexpr TagSample kTagSamples[] = {
    {"kern", u"AV To Ty"},
    {"kern", u"Wa Po LT"},
    {"fracafrc", u"1/2 3/4"},
    {"lnumonumpnumtnumsubssupssinfnumrdnom", u"0123456789"},
    {"ordn", u"1st 2nd"},
    {"ordn", u"1a 2o"},
    {"zero", u"100"},
    {"case", u"(H-H) [H]"},
    {"cpsptitl", u"HAMBURG"},
    {"calt", u"3x4 -> A:A"},
    {"paltpwidpknahalt", u"「あ」、ア。"},
    {"hwidfwidtwidqwid", u"Aa 123"},
};

/// Words in which letters meet; and the signs of what many fonts change by context.
constexpr const char16_t *kWords[] = {
    u"Hamburg", u"affinity", u"flying", u"Quick", u"Theory", u"nostrum", u"Rhythm",
    u"12:34",   u"A-B @A",   u"!= =>",  u"<- ->", u"(A)",    u"www",     u"Kg ky",
    u"بسم",     u"لا",       u"بما",    u"ربي",   u"الله",   u"بِّ",       u"بـب",
    u"क्ष",      u"ជា",       u"アイ、", u"오늘",  u"Ёж",     u"Ωδ",      u"ff fi fl"};

constexpr size_t kSinglesTried = 96;
constexpr size_t kPartnersTried = 16;

bool isAmong(FontTag tag, const char *tags)
{
    for (const char *at = tags; *at; at += 4) {
        if (fontTag(at[0], at[1], at[2], at[3]) == tag)
            return true;
    }
    return false;
}

/// What a reader would rather see first; nothing for what does not show alone.
std::optional<int> rank(char32_t scalar, bool digitsFirst)
{
    const bool isDigit = QChar::isDigit(scalar);
    if (!QChar::isPrint(scalar) || QChar::isMark(scalar) || QChar::isSpace(scalar)
        || QChar::category(scalar) == QChar::Other_PrivateUse)
        return std::nullopt;
    if (scalar < 0x80)
        return isDigit ? (digitsFirst ? 0 : 2) : (QChar::isLetter(scalar) ? 1 : 5);
    if (QChar::isLetter(scalar))
        return scalar < 0x100 ? 3 : 4;
    return 6;
}

std::vector<char32_t> ranked(std::vector<char32_t> characters, bool digitsFirst)
{
    std::erase_if(characters, [](char32_t scalar) { return !rank(scalar, false); });
    const auto key = [digitsFirst](char32_t scalar) {
        return std::pair(*rank(scalar, digitsFirst), scalar);
    };
    std::sort(characters.begin(), characters.end(),
              [&](char32_t a, char32_t b) { return key(a) < key(b); });
    characters.erase(std::unique(characters.begin(), characters.end()), characters.end());
    return characters;
}

/// The first clusters of a text.
QString firstClusters(const QString &text, int most)
{
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, text);
    for (int i = 0; i < most; ++i) {
        if (finder.toNextBoundary() < 0)
            return text;
    }
    return text.left(finder.position()).trimmed();
}

/// Shapes texts without and with a feature.
class Comparison
{
public:
    Comparison(hb_font_t *font, FontTag tag)
        : m_font(font)
        , m_tag(tag)
    {
    }

    /// Whether the text comes out differently; never once kMaxSampleShapings texts have been tried.
    bool differs(const QString &text)
    {
        if (text.isEmpty() || m_triesLeft == 0)
            return false;
        --m_triesLeft;
        return shaped(text, 0) != shaped(text, 1);
    }

private:
    struct Placed
    {
        hb_codepoint_t glyph;
        hb_position_t advance;
        hb_position_t x;
        hb_position_t y;
        bool operator==(const Placed &) const = default;
    };

    std::vector<Placed> shaped(const QString &text, quint32 value) const
    {
        hb_buffer_t *buffer = m_buffer.get();
        hb_buffer_clear_contents(buffer);
        hb_buffer_add_utf16(buffer, reinterpret_cast<const uint16_t *>(text.utf16()),
                            int(text.size()), 0, int(text.size()));
        hb_buffer_guess_segment_properties(buffer);
        const hb_feature_t feature{m_tag, value, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END};
        hb_shape(m_font, buffer, &feature, 1);
        unsigned count = 0;
        const hb_glyph_info_t *infos = hb_buffer_get_glyph_infos(buffer, &count);
        const hb_glyph_position_t *positions = hb_buffer_get_glyph_positions(buffer, &count);
        std::vector<Placed> glyphs;
        for (unsigned i = 0; i < count; ++i)
            glyphs.push_back({infos[i].codepoint, positions[i].x_advance, positions[i].x_offset,
                              positions[i].y_offset});
        return glyphs;
    }

    hb_font_t *m_font;
    const FontTag m_tag;
    const std::unique_ptr<hb_buffer_t, decltype(&hb_buffer_destroy)> m_buffer{hb_buffer_create(),
                                                                              &hb_buffer_destroy};
    int m_triesLeft = kMaxSampleShapings;
};

class SampleFinder
{
public:
    SampleFinder(const FontFace &face, const FeatureTables &tables, FontTag tag, int maxClusters)
        : m_tag(tag)
        , m_most(size_t(maxClusters))
        , m_texts(FaceTexts(face, tables).featureTexts(tag))
        , m_reach(featureReach(face, tables, tag))
        , m_comparison(tables.font(), tag)
    {
    }

    QString find()
    {
        const bool isOfLigatures = isAmong(m_tag, "ligadlighligcligrlig");
        using Search = QString (SampleFinder::*)();
        const Search searches[] = {
            &SampleFinder::fontsOwn,
            &SampleFinder::usual,
            isOfLigatures ? &SampleFinder::ligatures : &SampleFinder::substituted,
            isOfLigatures ? &SampleFinder::substituted : &SampleFinder::ligatures,
            &SampleFinder::touched,
            &SampleFinder::words,
            &SampleFinder::pairs,
        };
        for (const Search search : searches) {
            if (QString found = (this->*search)(); !found.isEmpty())
                return found;
        }
        return {};
    }

private:
    QString fontsOwn()
    {
        const QString sample = firstClusters(m_texts.sampleText, int(m_most));
        return m_comparison.differs(sample) ? sample : joined(singles(m_texts.characters), {});
    }

    QString usual()
    {
        for (const TagSample &sample : kTagSamples) {
            const QString text = firstClusters(QString::fromUtf16(sample.text), int(m_most));
            if (isAmong(m_tag, sample.tags) && m_comparison.differs(text))
                return text;
        }
        return {};
    }

    QString substituted()
    {
        std::vector<char32_t> characters;
        for (const ChangedGlyph &changed : m_reach.effect.substitutions)
            characters.push_back(changed.character);
        return joined(singles(ranked(std::move(characters), areDigitsFirst())), {});
    }

    QString ligatures()
    {
        std::vector<QString> found;
        for (const QString &ligature : m_reach.effect.ligatures) {
            if (found.size() == m_most || found.size() == kLigaturesShown)
                break;
            if (m_comparison.differs(ligature))
                found.push_back(ligature);
        }
        return joined(found, QStringLiteral(" "));
    }

    QString touched() { return joined(singles(rankedTouched()), {}); }

    QString words()
    {
        for (const char16_t *each : kWords) {
            const QString word = firstClusters(QString::fromUtf16(each), int(m_most));
            if (m_comparison.differs(word))
                return word;
        }
        return {};
    }

    QString pairs()
    {
        std::vector<char32_t> partners = rankedTouched();
        partners.resize(std::min(partners.size(), kPartnersTried));
        for (const char32_t first : partners) {
            for (const char32_t second : partners) {
                const char32_t both[] = {first, second};
                const QString text = QString::fromUcs4(both, 2);
                if (m_most >= 2 && m_comparison.differs(text))
                    return text;
            }
        }
        return {};
    }

    std::vector<char32_t> rankedTouched() const
    {
        return ranked(m_reach.characters, areDigitsFirst());
    }

    bool areDigitsFirst() const
    {
        return isAmong(m_tag, "lnumonumpnumtnumsubssupssinfnumrdnomordnzero");
    }

    /// The characters that differ alone.
    std::vector<QString> singles(const std::vector<char32_t> &characters)
    {
        std::vector<QString> found;
        for (size_t i = 0; i < std::min(characters.size(), kSinglesTried); ++i) {
            QString text = QString::fromUcs4(&characters[i], 1);
            if (found.size() < m_most && m_comparison.differs(text))
                found.push_back(std::move(text));
        }
        return found;
    }

    /// Neighbours may undo what each does alone: then they stand apart, or the first stands alone.
    QString joined(const std::vector<QString> &parts, const QString &separator)
    {
        if (parts.empty())
            return {};
        const QStringList list(parts.begin(), parts.end());
        for (const QString &between : {separator, QStringLiteral(" ")}) {
            QString text = list.join(between);
            if (m_comparison.differs(text))
                return text;
        }
        return list.first();
    }

    static constexpr size_t kLigaturesShown = 5;

    const FontTag m_tag;
    const size_t m_most;
    const FeatureTexts m_texts;
    const FeatureReach m_reach;
    Comparison m_comparison;
};

} // namespace

QString featureSample(const FontFace &face, FontTag tag, int maxClusters)
{
    const FeatureTables tables(face);
    return maxClusters > 0 ? SampleFinder(face, tables, tag, maxClusters).find() : QString();
}

} // namespace lorva
